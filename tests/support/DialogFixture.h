#pragma once

#include "Agreement.h"
#include "BoxCatcher.h"
#include "FindChild.h"
#include "QuotingTranslator.h"
#include "Steps.h"
#include "StripFixture.h"
#include "addfeature/AddFeature.h"

#include <QLineEdit>
#include <QPointer>

#include <memory>
#include <string>

/// The unit that lengths are shown and typed in.
enum class Unit { Mil, Metric };
Q_DECLARE_METATYPE(Unit)

/// How a field is left.
enum class By { Tab, Enter, Mouse };
Q_DECLARE_METATYPE(By)

/// The dialog next to a tool strip in a host's window, with a job, a recording canvas, its boxes
/// answered, and its fields compared with its record. The Add Feature tool is active.
class DialogFixture : public StripFixture {
public:
    /// Alone, the dialog is not connected to the strip, and is built in the unit. The strip's
    /// button connects them, and a dialog that it opened is told the unit.
    enum class Opened { Alone, ByTheStrip };

    explicit DialogFixture(Unit unit = Unit::Mil, Opened opened = Opened::Alone);
    ~DialogFixture();

    template <class T = QWidget>
    T& find(const QString& name) const
    {
        return findNamed<T>(*dialog, name);
    }
    QLineEdit& symbol() const { return find<QLineEdit>("m_pSymbolTextLE"); }
    QString text(const QString& field) const { return find<QLineEdit>(field).text(); }
    QString chosen(const QString& combo) const { return find<QComboBox>(combo).currentText(); }

    // What a user does.

    /// The focus stays where it is.
    void click(const QString& name) const;
    /// Clicks on a feature type and forgets what that sent.
    void chooseType(const QString& button);
    /// Chooses the item with that text.
    void choose(const QString& combo, const QString& item) const;
    void focus(const QString& name) const;
    /// Replaces what the field shows, and stays in it.
    void type(const QString& field, const QString& text) const;
    /// Presses the key in whatever has the focus.
    void press(Qt::Key key) const;
    /// Leaves the field that has the focus; with the mouse, to a control that is always there.
    void leave(By way = By::Mouse) const;
    void perform(const Steps& steps) const;
    /// Brings the window back, through the strip's button, and makes it the active one.
    void open() const;

    // What a program or the host does.

    /// Puts a text into the field that its validator may not take, and calls the field's slot.
    void enter(const QString& field, const QString& text) const;
    void pick(const std::string& symbol) const;
    void setUnit(Unit unit) const;
    void setToolActive(bool active) const;
    /// A box of the host's that has nothing to do with the dialog.
    void openHostBox();

    // What is seen.

    bool isShown(const QString& name) const;
    /// The parameter record as the next message would carry it. Sends nothing.
    QVariantMap record();
    QVariant value(const QString& key) { return record().value(key); }
    /// The record that was sent last; if none was, the one that the next message carries.
    QVariantMap lastRecord();

    BoxCatcher boxes;
    QPointer<AddFeature> dialog;
    std::unique_ptr<Agreement> agreement;

private:
    void build(Unit unit);
    void openByTheStrip(Unit unit);

    Opened m_opened;
};
