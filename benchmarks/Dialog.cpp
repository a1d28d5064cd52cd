// Figure for the Add Feature dialog's life.

#include "DialogWindow.h"
#include "Groups.h"
#include "Runner.h"
#include "addfeature/AddFeature.h"
#include "floors/PlainCopy.h"

#include <QMetaObject>

namespace {

/// The class of Qt's that the widget is, or that its own class is derived from.
QLatin1String qtClassOf(const QWidget& widget)
{
    const QMetaObject* type = widget.metaObject();
    while (*type->className() != 'Q') {
        type = type->superClass();
    }
    return QLatin1String(type->className());
}

/// Each widget's class and text, and the window's height: the copy must have the same.
QStringList outlineOf(const QWidget& dialog)
{
    QStringList outline{QString::number(dialog.sizeHint().height())};
    for (const QWidget* const widget : dialog.findChildren<QWidget*>()) {
        outline.append(widget->property("text").toString() +
                       widget->property("currentText").toString() + ' ' + qtClassOf(*widget));
    }
    // A plain widget serves as a dialog.
    return outline.replaceInStrings(QStringLiteral("QDialog"), QStringLiteral("QWidget"));
}

QWidget* makeDialog(QWidget* owner)
{
    return new AddFeature(owner, "job", "step", owner);
}

PlainCopy copyOfDialog()
{
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
    QWidget owner;
    showPainted(owner);
    for (auto _ : state) {
        QWidget* const dialog = make(&owner);
        showPainted(*dialog);
        delete dialog;
    }
}

}  // namespace

void addDialogFigures(Runner& runner)
{
    runner.add(
        {"dialog", "dialog: construct, show, first paint, destroy", 1.15},
        [](benchmark::State& state) {
            openBenchmarkJob();
            live(state, makeDialog);
        },
        [](benchmark::State& state) {
            openBenchmarkJob();
            const PlainCopy copy = copyOfDialog();
            live(state, [&](QWidget* owner) { return copy.make(owner); });
        });
}
