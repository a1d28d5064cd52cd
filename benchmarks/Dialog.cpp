// Figure of the Add Feature dialog's life.

#include "Canvas.h"
#include "DialogWindow.h"
#include "Groups.h"
#include "Panel.h"
#include "Runner.h"
#include "addfeature/AddFeature.h"
#include "floors/PlainDialog.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>

namespace {

/// Sees the first paint of the widget that it watches.
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

/// How many widgets of each kind that matters there are, and how high the window is: both dialogs
/// must have the same.
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

template <class MakeDialog>
void live(benchmark::State& state, MakeDialog makeDialog)
{
    openBenchmarkJob();
    Panel owner;
    owner.showPainted();
    for (auto _ : state) {
        QWidget* const dialog = makeDialog(&owner);
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
    const auto project = [](QWidget* owner) -> QWidget* {
        return new AddFeature(owner, "job", "step", owner);
    };
    const auto floor = [](QWidget* owner) -> QWidget* { return new PlainDialog(owner); };
    runner.addPair(
        "dialog", {},
        [=](benchmark::State& state) {
            openBenchmarkJob();
            QWidget owner;
            if (census(*project(&owner)) != census(*floor(&owner))) {
                state.SkipWithError("the plain dialog has other widgets than the module's");
                return;
            }
            live(state, project);
        },
        [=](benchmark::State& state) { live(state, floor); });
}
