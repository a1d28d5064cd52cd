#include "viewer/SnapControls.h"

#include "shared/Named.h"
#include "shared/Settings.h"
#include "viewer/CanvasController.h"
#include "viewer/TypedPlace.h"

#include <UiApiStandIn.h>

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QToolBar>

namespace {

constexpr double leastStep = 1;  // micrometres
constexpr double greatestStep = 1e5;

const QString snapChoice = QStringLiteral("snap");
const QString gridChoice = QStringLiteral("grid");  // micrometres

bool isGridStep(double step)
{
    return step >= leastStep && step <= greatestStep;
}

}  // namespace

SnapControls::SnapControls(CanvasController& canvas, QToolBar* bar)
    : QObject(bar),
      m_canvas(canvas),
      m_snap(named(new QAction(bar), "m_pSnapAct")),
      m_label(named(new QLabel(bar), "m_pGridStepLB")),
      m_step(named(new QLineEdit(bar), "m_pGridStepLE"))
{
    m_snap->setShortcut(Qt::Key_F9);
    m_snap->setCheckable(true);
    m_label->setContentsMargins(8, 0, 4, 0);
    m_label->setBuddy(m_step);
    m_step->setFixedWidth(
        m_step->fontMetrics().horizontalAdvance(QStringLiteral("0000.00000 inch")));
    bar->addSeparator();
    bar->addAction(m_snap);
    named(bar->widgetForAction(m_snap), "m_pSnapTB");
    bar->addWidget(m_label);
    bar->addWidget(m_step);
    recall();
    connect(m_snap, &QAction::toggled, this, [this](bool snaps) {
        m_canvas.setSnapping(snaps);
        Settings::choose(snapChoice, snaps);
        m_canvas.say(snaps ? tr("Points snap.") : tr("Points do not snap."));
    });
    connect(m_step, &QLineEdit::editingFinished, this, &SnapControls::takeStep);
    connect(m_step, &QLineEdit::returnPressed, this, &SnapControls::finished);
    retranslate();
}

void SnapControls::recall()
{
    m_snap->setChecked(Settings::choice(snapChoice).toBool());
    m_canvas.setSnapping(m_snap->isChecked());
    const double step = Settings::choice(gridChoice).toDouble();
    if (isGridStep(step)) {
        m_canvas.setGridStep(step);
    }
}

void SnapControls::retranslate()
{
    m_snap->setText(tr("Snap"));
    m_snap->setToolTip(tr("Snap to the grid, and to ends and centres of features (%1)")
                           .arg(m_snap->shortcut().toString(QKeySequence::NativeText)));
    m_label->setText(tr("&Grid"));
    m_step->setToolTip(tr("The step of the grid that points snap to"));
    m_step->setAccessibleName(tr("Grid step"));
    showStep();
}

void SnapControls::showStep()
{
    m_step->setText(CanvasHost::lengthText(m_canvas.gridStep()));
}

void SnapControls::takeStep()
{
    if (!m_step->isModified()) {
        return;
    }
    const auto step = TypedPlace::readLength(m_step->text());
    if (step && isGridStep(*step)) {
        m_canvas.setGridStep(*step);
        Settings::choose(gridChoice, *step);
    } else {
        m_canvas.say(tr("\"%1\" is not a grid step (%2 to %3).")
                         .arg(m_step->text(), CanvasHost::lengthText(leastStep),
                              CanvasHost::lengthText(greatestStep)));
    }
    showStep();
}
