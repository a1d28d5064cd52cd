#include "viewer/ViewerPane.h"

#include "plugin/ModuleNames.h"
#include "shared/BringToFront.h"
#include "shared/Named.h"
#include "viewer/ActionWatch.h"
#include "viewer/BarPair.h"
#include "viewer/BoardView.h"
#include "viewer/CanvasBar.h"
#include "viewer/CanvasKeys.h"
#include "viewer/FileActions.h"
#include "viewer/Inspector.h"
#include "viewer/SnapControls.h"
#include "viewer/ToolLine.h"
#include "viewer/ToolSet.h"

#include <CommonWidgetsStandIn.h>

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QSplitter>
#include <QToolBar>
#include <QVBoxLayout>

namespace {

constexpr QSize secondViewSize(800, 560);
constexpr int leastLetters = 60;       // of the second view's tool, hint and position
constexpr QSize leastBoard(420, 180);  // the record beside it gives way first

}  // namespace

ViewerPane::ViewerPane(QWidget* parent) : Retranslated(parent), m_parent(parent)
{
    setObjectName(QStringLiteral("m_pViewer"));
    m_view = new BoardView(&m_canvas.scene(), this);
    m_view->setMinimumSize(leastBoard);
    // Dropped files go to the window, which opens them.
    m_view->viewport()->setAcceptDrops(false);
    // In the order in which Tab walks them.
    auto* const toolLine =
        new ToolLine({"m_pActiveToolLB", "m_pPickHintLB", "m_pPositionLE"}, this);
    m_files = new FileActions(m_canvas, this);
    m_bar = new CanvasBar(m_canvas, *m_view, *m_files, this);
    auto* const snapBar = named(new QToolBar(this), "m_pSnapBar");
    m_snapping = new SnapControls(m_canvas, snapBar);
    m_inspector = new Inspector(this);

    auto* const splitter = new QSplitter(this);
    splitter->setObjectName(QStringLiteral("m_pViewerSplitter"));
    splitter->addWidget(m_view);
    splitter->addWidget(m_inspector);
    splitter->setStretchFactor(0, 1);
    splitter->setStretchFactor(1, 0);
    splitter->setChildrenCollapsible(false);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(new BarPair(m_bar, snapBar, this));
    layout->addWidget(toolLine);
    layout->addWidget(splitter, 1);
    layout->addLayout(createFoot());
    connectCanvas();
    connectLine(toolLine, m_view);
    new CanvasKeys(this);
    stripWasMade();
    retranslate();
}

ViewerPane::~ViewerPane()
{
    CanvasHost::setMeasureStarted({});
    delete m_secondView;
    // The histories of the boards report once more when they are destroyed.
    delete m_files;
}

QLayout* ViewerPane::createFoot()
{
    m_pCanvasStatusLB = createSteadyLabel("m_pCanvasStatusLB", this);
    m_pHoveredLB = createSteadyLabel("m_pHoveredLB", this);
    m_pHoveredLB->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto* const foot = new QHBoxLayout;
    foot->setContentsMargins(8, 3, 8, 3);
    makeSteady(foot, m_pCanvasStatusLB);
    foot->addWidget(m_pCanvasStatusLB, 3);
    m_pRecoveryLB = named(new QLabel(this), "m_pRecoveryLB");
    m_pRecoveryLB->hide();
    foot->addWidget(m_pRecoveryLB);
    foot->addWidget(m_pHoveredLB, 1);
    return foot;
}

void ViewerPane::connectCanvas()
{
    m_canvas.connectView(m_view);
    connect(&m_canvas, &CanvasController::said, this,
            [this](const QString& text) { showSteadily(m_pCanvasStatusLB, text); });
    // The line speaks of the last action only.
    connect(new ActionWatch(this), &ActionWatch::begun, this, [this] { m_canvas.say({}); });
    connect(m_snapping, &SnapControls::finished, m_view, qOverload<>(&QWidget::setFocus));
    connect(&m_canvas, &CanvasController::hovered, this, &ViewerPane::showHovered);
    connect(&m_canvas, &CanvasController::documentOpened, m_view, &BoardView::fit);
    connect(m_files, &FileActions::opened, m_view, &BoardView::fit);
    connect(m_files, &FileActions::stepWanted, this, &ViewerPane::askForStep);
    connect(m_files, &FileActions::changesKept, m_pRecoveryLB, &QWidget::hide);
    connect(m_files, &FileActions::changesNotKept, this, [this](const QString& reason) {
        m_pRecoveryLB->setToolTip(reason);
        m_pRecoveryLB->show();
    });
    auto* const cancel = new QAction(this);
    cancel->setObjectName(QStringLiteral("m_pCancelAct"));
    cancel->setShortcut(Qt::Key_Escape);
    connect(cancel, &QAction::triggered, &m_canvas, &CanvasController::cancel);
    CanvasHost::setMeasureStarted([this] { startMeasuring(); });
}

void ViewerPane::connectLine(ToolLine* line, BoardView* view)
{
    m_lines.push_back(line);
    connect(&m_canvas, &CanvasController::hintChanged, line,
            [this, line] { line->showHint(m_canvas.hint()); });
    connect(&m_canvas, &CanvasController::moved, line,
            [line](const QPointF& point) { line->showPosition(point); });
    connect(line, &ToolLine::placeTyped, this, &ViewerPane::clickAt);
    connect(line, &ToolLine::noPlaceTyped, this, [this](const QString& text) {
        m_canvas.say(tr("\"%1\" is not a position, such as 12.5 40 or @5mm 0.").arg(text));
    });
    connect(line, &ToolLine::finished, view, qOverload<>(&QWidget::setFocus));
}

void ViewerPane::clickAt(const TypedPlace::Place& place)
{
    const std::optional<QPointF> last = m_canvas.lastPoint();
    if (place.isRelative && !last) {
        m_canvas.say(tr("There is no last point yet from which @ could count."));
        return;
    }
    const QPointF point = place.isRelative ? *last + place.point : place.point;
    if (TypedPlace::isOnBoard(point)) {
        m_canvas.clickAt(point);
    } else {
        m_canvas.say(tr("A position is less than ten metres from 0."));
    }
}

BoardFiles& ViewerPane::files()
{
    return *m_files;
}

QList<QAction*> ViewerPane::actions(Group group) const
{
    switch (group) {
        case Group::NewAndOpen:
            return m_files->openActions();
        case Group::Save:
            return m_files->saveActions();
        case Group::History:
            return m_bar->historyActions();
        case Group::Selection:
            return m_bar->selectionActions();
        case Group::View:
            break;
    }
    return m_bar->zoomActions() << m_snapping->snapAction();
}

QWidget* ViewerPane::board() const
{
    return m_view;
}

QWidget* ViewerPane::positionField() const
{
    return m_lines.front()->positionField();
}

void ViewerPane::openSecondView()
{
    if (!m_secondView) {
        createSecondView();
        retranslate();
    }
    bringToFront(m_secondView);
}

void ViewerPane::createSecondView()
{
    // X11's window managers keep a dialog above its parent, but not every window.
    m_secondView =
        new QWidget(window(), Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint);
    m_secondView->setObjectName(QStringLiteral("m_pSecondView"));
    auto* const line =
        new ToolLine({"m_pSecondToolLB", "m_pSecondHintLB", "m_pSecondPositionLE"}, m_secondView);
    auto* const view = new BoardView(&m_canvas.scene(), m_secondView);
    view->setObjectName(QStringLiteral("m_pSecondBoardView"));
    auto* const layout = new QVBoxLayout(m_secondView);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(line);
    layout->addWidget(view, 1);
    m_canvas.connectView(view);
    connectLine(line, view);
    connect(&m_canvas, &CanvasController::documentOpened, view, &BoardView::fit);
    CanvasBar::addZoomKeys(m_secondView, *view);
    view->setFocus();
    m_secondView->setMinimumWidth(leastLetters * m_secondView->fontMetrics().averageCharWidth());
    m_secondView->resize(secondViewSize);
}

void ViewerPane::showHovered(int feature)
{
    QStringList words;
    if (feature >= 0) {
        const Pcb::Feature& hovered =
            m_canvas.document().board().features[static_cast<size_t>(feature)];
        if (!hovered.symbol().isEmpty()) {
            words.append(hovered.symbol());
        }
        if (!hovered.isPositive()) {
            words.append(tr("negative"));
        }
        for (auto attribute = hovered.attributes().begin(); attribute != hovered.attributes().end();
             ++attribute) {
            words.append(attribute->isEmpty() ? attribute.key()
                                              : attribute.key() + '=' + attribute.value());
        }
    }
    showSteadily(m_pHoveredLB, words.join(QStringLiteral("  ")));
    m_view->viewport()->setToolTip(words.join('\n'));
}

void ViewerPane::showTool()
{
    QString tool = tr("none");
    if (m_tool != MessageCodes::Sent::Unset) {
        tool = ToolSet::text(m_tool);
        if (m_mode != 0) {
            tool = tr("%1, mode %2").arg(tool).arg(m_mode);
        }
    }
    for (ToolLine* const line : m_lines) {
        line->showTool(tr("Tool: %1").arg(tool));
    }
}

void ViewerPane::retranslate()
{
    m_inspector->retranslate();
    m_files->retranslate();
    m_bar->retranslate();
    m_snapping->retranslate();
    m_pRecoveryLB->setText(tr("Changes cannot be kept for recovery"));
    showTool();
    m_canvas.refresh();  // the hint
    m_view->setAccessibleName(tr("Board"));
    if (m_secondView) {
        m_secondView->setWindowTitle(tr("Popview"));
        m_secondView->setAccessibleName(tr("Popview"));
    }
}

void ViewerPane::showLengths()
{
    m_snapping->showStep();
    for (ToolLine* const line : m_lines) {
        line->showPosition();
    }
    m_canvas.refresh();  // marks and hints have lengths as well
}
