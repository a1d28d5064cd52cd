// Figure for the Add Feature dialog's life.

#include "Canvas.h"
#include "DialogWindow.h"
#include "Groups.h"
#include "Panel.h"
#include "Runner.h"
#include "addfeature/AddFeature.h"
#include "floors/PlainCopy.h"

#include <QEvent>
#include <QMetaObject>
#include <QStringList>
#include <QVariant>

namespace {

/// Notices the first paint of the widget that it watches.
class PaintWatch : public QObject {
public:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        m_painted = m_painted || event->type() == QEvent::Paint;
        return false;
    }
    bool isPainted() const { return m_painted; }

private:
    bool m_painted = false;
};

/// The class of Qt's that the widget is, or that its own class is derived from.
const char* qtClassOf(const QWidget& widget)
{
    const QMetaObject* type = widget.metaObject();
    while (*type->className() != 'Q') {
        type = type->superClass();
    }
    return qstrcmp(type->className(), "QDialog") == 0 ? "QWidget" : type->className();
}

/// Each widget's class and text, and the window's height: the copy must have the same.
QStringList outlineOf(const QWidget& dialog)
{
    QStringList outline{QString::number(dialog.sizeHint().height())};
    for (const QWidget* const widget : dialog.findChildren<QWidget*>()) {
        outline.append(QStringLiteral("%1 \"%2%3\"")
                           .arg(QLatin1String(qtClassOf(*widget)),
                                widget->property("text").toString(),
                                widget->property("currentText").toString()));
    }
    return outline;
}

QWidget* makeDialog(QWidget* owner)
{
    return new AddFeature(owner, "job", "step", owner);
}

PlainCopy copyOfDialog()
{
    openBenchmarkJob();
    QWidget owner;
    const QWidget* const original = makeDialog(&owner);
    PlainCopy copy(*original);
    const QStringList wanted = outlineOf(*original);
    const QStringList made = outlineOf(*copy.make(&owner));
    for (int i = 0; i < qMax(wanted.size(), made.size()); ++i) {
        if (wanted.value(i) != made.value(i)) {
            qFatal("the plain copy has %s in place of the dialog's %s", qPrintable(made.value(i)),
                   qPrintable(wanted.value(i)));
        }
    }
    return copy;
}

template <class Make>
void live(benchmark::State& state, Make make)
{
    openBenchmarkJob();
    Panel owner;
    owner.showPainted();
    for (auto _ : state) {
        QWidget* const dialog = make(&owner);
        PaintWatch watch;
        dialog->installEventFilter(&watch);
        dialog->show();
        while (!watch.isPainted()) {
            QApplication::processEvents();
        }
        delete dialog;
    }
}

}  // namespace

void addDialogFigures(Runner& runner)
{
    runner.addPair(
        "dialog", {}, [](benchmark::State& state) { live(state, makeDialog); },
        [](benchmark::State& state) {
            static const PlainCopy copy = copyOfDialog();
            live(state, [](QWidget* owner) { return copy.make(owner); });
        });
}
