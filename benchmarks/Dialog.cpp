// Figure for the Add Feature dialog's life.

#include "Canvas.h"
#include "DialogWindow.h"
#include "Groups.h"
#include "Panel.h"
#include "Runner.h"
#include "addfeature/AddFeature.h"
#include "floors/PlainCopy.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>

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

/// The number of widgets of each kind that matters, and the window's height: the copy must have the
/// same.
QVector<int> census(const QWidget& dialog)
{
    return {dialog.findChildren<QWidget*>().size(),
            dialog.findChildren<QLabel*>().size(),
            dialog.findChildren<QLineEdit*>().size(),
            dialog.findChildren<QComboBox*>().size(),
            dialog.findChildren<QAbstractButton*>().size(),
            dialog.findChildren<QLayout*>().size(),
            dialog.sizeHint().height()};
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
    if (census(*original) != census(*copy.make(&owner))) {
        qFatal("the plain copy has other widgets than the dialog");
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
