#pragma once

#include "Agreement.h"
#include "BoxCatcher.h"
#include "FindChild.h"
#include "Recorder.h"
#include "addfeature/AddFeature.h"
#include "plugin/MessageCodes.h"
#include "toolbar/Canvas_Tool_Strip.h"

#include <QAbstractButton>
#include <QPointer>

#include <memory>

/// The dialog as the strip's button opens it, beside the strip in a host's window, with its fields
/// held against its record. The focus is moved as a user's hands would move it.
class FocusFixture {
public:
    explicit FocusFixture(bool metric = false);
    ~FocusFixture();
    FocusFixture(const FocusFixture&) = delete;
    FocusFixture& operator=(const FocusFixture&) = delete;

    template <class T = QWidget>
    T& find(const QString& name) const
    {
        return findNamed<T>(*dialog, name);
    }

    /// Clicks what can be seen; the focus stays where it is.
    void click(const QString& name) const;
    void choose(const QString& combo, int item) const;
    void focus(const QString& name) const;
    /// Replaces what the field shows, and stays in it.
    void type(const QString& field, const QString& text) const;
    void key(Qt::Key key) const;
    /// Goes to a control that is always there.
    void leave() const;

    void receive(int code, qint64 extra = 0, const QVariantMap& payload = {}) const;
    void pick(const std::string& symbol) const;
    void setMetric(bool metric) const;
    void open() const;
    /// A box of the host's, which has nothing to do with the dialog.
    void openHostBox();

    /// The record as the next message would carry it.
    QVariantMap record();
    QString value(const QString& key) { return record().value(key).toString(); }

    Recorder recorder;
    BoxCatcher boxes;
    QWidget window;
    Canvas_Tool_Strip* strip = new Canvas_Tool_Strip(&window);
    QPointer<AddFeature> dialog;
    std::unique_ptr<Agreement> agreement;
};
