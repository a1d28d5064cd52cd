#pragma once

#include "BoxCatcher.h"
#include "FindChild.h"
#include "QuotingTranslator.h"
#include "Recorder.h"
#include "addfeature/AddFeature.h"
#include "toolbar/Canvas_Tool_Strip.h"

#include <QLineEdit>
#include <QPointer>

/// The dialog beside a tool strip in a host's window, with a job, a recording canvas, and its boxes
/// answered. The Add Feature tool is active.
class DialogFixture {
public:
    explicit DialogFixture(bool metric = false);
    ~DialogFixture();

    template <class T = QWidget>
    T& find(const QString& name) const
    {
        return findNamed<T>(*dialog, name);
    }
    QLineEdit& symbol() const { return find<QLineEdit>("m_pSymbolTextLE"); }

    void click(const QString& name) const;
    /// Makes a feature type the chosen one and forgets what that has sent.
    void choose(const QString& typeButton);
    /// Replaces the symbol by typing.
    void type(const QString& text) const;
    /// Leaves the symbol field: "Enter", "Tab" or "mouse".
    void leave(const QString& way) const;
    /// Puts a text into the symbol field that its validator would not take, and leaves it.
    void enter(const QString& text) const;
    void setMetric(bool metric) const;
    void setToolActive(bool active) const;

    bool isShown(const QString& name) const;
    /// The parameter record as the next message would carry it. Sends nothing.
    QVariantMap record();

    Recorder recorder;
    BoxCatcher boxes;
    QWidget window;
    Canvas_Tool_Strip* strip = new Canvas_Tool_Strip(&window);
    QPointer<AddFeature> dialog;
};
