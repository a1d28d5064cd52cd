#pragma once

#include <QCoreApplication>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <map>
#include <string>

class DialogDoor;
class QPushButton;
class QRegExpValidator;
class Widget_SymbolSelection;

namespace ZENTRA {
namespace UIAPI {
class ZTLineEdit;
}
}  // namespace ZENTRA

/// The symbol row of the dialog: chooser button, name field, pick-from-board button. It turns what
/// is typed, chosen or picked into the record's symbol and rotation.
///
/// The controls are connected to the named slots of the dialog, which call the methods here.
class SymbolEntry : public QWidget {
    Q_DECLARE_TR_FUNCTIONS(AddFeature)
public:
    SymbolEntry(DialogDoor& door, QWidget* parent);

    QString text() const;
    /// The name field, as the guard of refusals knows it.
    const QObject* field() const;
    /// Clears the field if it shows `name`, and the record's symbol if that is what an entry of
    /// `name` writes.
    void dropRefused(const QString& name);
    void retranslate();
    /// Lets the field accept what the chosen feature type accepts.
    void applyFeatureType();
    void setControlsVisible(bool visible);

    /// Whether `name` is a special symbol of the job, which is read each time.
    bool isSpecial(const QString& name) const;

    /// The degrees that the rotation's handler adds: what follows the first "_" in the field,
    /// deliberately not the last as on entry. 0 without a suffix.
    int suffixDegrees() const;
    /// Stores the rotation with what a suffix adds.
    void storeRotation(int suffixDegrees);

    // The named slots of the dialog forward to these.
    void chosen(const QString& name);
    void enterText();
    /// Handles the entry that the user has finished; see RefusalGuard.
    void finish();
    /// Leaves a pending entry where it is; it is not handled later either.
    void dropEntry();
    /// Remembers the text of the field for a change of the unit; guarded.
    void noteText(const QString& text);
    /// Cuts the entry at the cursor and sends it.
    void returnPressed();
    void togglePick();
    void openChooser();
    void picked(const std::map<int, std::string>& symbols);

    /// Shows the name in the other system of units: as it was typed there, or converted.
    void changeUnit(bool isMetric);
    void jobChanged();
    void readChooser();
    void closePopups();

private:
    bool isMetric() const;
    void keepText(const QString& text);
    QString stored(const QString& name) const;
    QString converted(const QString& name, int direction) const;
    void takeEntry();
    bool isLeft() const;
    void takeLeftEntry();
    void storeEntry();
    void refuse(const QString& title, const QString& text);
    void refusePick(const QString& name);
    bool isStoredForm(const QString& symbol, const QString& name) const;

    DialogDoor& m_door;
    QPushButton* m_pSymbolPB;
    ZENTRA::UIAPI::ZTLineEdit* m_pSymbolTextLE;
    QPushButton* m_pSelectFromEditorPB;
    QRegExpValidator* m_lineValidator;
    QRegExpValidator* m_padValidator;
    QRegExpValidator* m_arcValidator;
    QPointer<Widget_SymbolSelection> m_chooser;  // a child of the host's widget
    QString m_metricText;                        // the text as typed, kept for each system of units
    QString m_otherText;
    bool m_hasSuffix = false;
    bool m_pickArmed = false;
};
