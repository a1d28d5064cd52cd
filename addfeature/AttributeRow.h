#pragma once

#include <QCoreApplication>
#include <QPointer>
#include <QWidget>

#include <map>
#include <string>
#include <utility>
#include <vector>

class ButtonField;
class DialogDoor;
class FlagField;
class Widget_Attributes;

/// The attribute row of the dialog: check box, "Values..." and "Fill..." buttons, and the attribute
/// map that the canvas reads by address.
///
/// The controls are connected to the named slots of the dialog, which call the methods here.
class AttributeRow : public QWidget {
    Q_DECLARE_TR_FUNCTIONS(AddFeature)
public:
    /// `dialog` becomes the owner of the attribute window as well.
    AttributeRow(DialogDoor& door, QWidget* dialog);

    void retranslate();
    /// Shows the check box and "Fill...".
    void restore();
    void hideAll();
    void setFillEnabled(bool enabled);

    // The named slots of the dialog forward to these.

    /// Writes whether there are attributes and tells the canvas which.
    void stateChanged();
    void openValues();
    void setColor();
    void resetColor();
    /// Takes the list that the attribute window applied.
    void setList(const std::vector<std::pair<std::string, std::string>>& attributes);

    void closePopups();

private:
    void setShown(QWidget* control, bool shown);

    DialogDoor& m_door;
    QWidget* m_dialog;
    FlagField* const m_pAttributesCB;
    ButtonField* const m_pValuesPB;
    ButtonField* const m_pFillPB;
    QPointer<Widget_Attributes> m_window;
    std::map<std::string, std::string> m_attributes;  // passed by address with each code 51
};
