#pragma once

#include <QCoreApplication>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <map>
#include <string>

class ButtonField;
class DialogDoor;
class SymbolField;
class Widget_SymbolSelection;

/// The symbol row of the dialog: chooser button, name field, pick-from-board button.
class SymbolEntry : public QWidget {
    Q_DECLARE_TR_FUNCTIONS(AddFeature)
public:
    SymbolEntry(DialogDoor& door, QWidget* parent);

    void retranslate();
    void setControlsVisible(bool visible);

    // The named slots of the dialog forward to these.
    void togglePick();
    void openChooser();
    void picked(const std::map<int, std::string>& symbols);

    void jobChanged();
    void readChooser();
    void closePopups();

    ButtonField* const m_pSymbolPB;
    SymbolField* const m_pSymbolTextLE;
    ButtonField* const m_pSelectFromEditorPB;

private:
    void refusePick(const QString& name);

    DialogDoor& m_door;
    QPointer<Widget_SymbolSelection> m_chooser;  // a child of the host's widget
    bool m_pickArmed = false;
};
