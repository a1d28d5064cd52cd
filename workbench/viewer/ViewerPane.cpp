#include "viewer/ViewerPane.h"

#include "plugin/ModuleNames.h"
#include "viewer/BoardFiles.h"
#include "viewer/BoardView.h"
#include "viewer/CanvasBar.h"
#include "viewer/EditActions.h"
#include "viewer/FileActions.h"
#include "viewer/Inspector.h"

#include <CommonWidgetsStandIn.h>
#include <UiApiStandIn.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QShortcut>
#include <QSplitter>
#include <QVBoxLayout>

namespace {

QLabel* createLabel(const char* name, QWidget* parent)
{
    auto* const label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    return label;
}

/// The error that `work` ends with.
template <class Work>
CanvasHost::FileError errorOf(Work work)
{
    try {
        work();
    } catch (const CanvasHost::FileError& error) {
        return error;
    }
    return {};
}

}  // namespace

ViewerPane::ViewerPane(QWidget* parent) : QWidget(parent), m_parent(parent)
{
    setObjectName(QStringLiteral("m_pViewer"));
    m_view = new BoardView(&m_canvas.scene(), this);
    // What is dropped is the window's, which opens it.
    m_view->viewport()->setAcceptDrops(false);
    m_files = new FileActions(m_canvas, this);
    m_edits = new EditActions(m_canvas, this);
    m_bar = new CanvasBar(m_canvas, *m_view, *m_files, this);
    m_inspector = new Inspector(this);
    auto* const head = createHead();

    auto* const splitter = new QSplitter(this);
    splitter->setObjectName(QStringLiteral("m_pViewerSplitter"));
    splitter->addWidget(m_view);
    splitter->addWidget(m_inspector);
    splitter->setStretchFactor(0, 1);
    splitter->setStretchFactor(1, 0);
    splitter->setChildrenCollapsible(false);
    m_pCanvasStatusLB = createLabel("m_pCanvasStatusLB", this);
    m_pHoveredLB = createLabel("m_pHoveredLB", this);
    auto* const foot = new QHBoxLayout;
    foot->setContentsMargins(8, 3, 8, 3);
    foot->addWidget(m_pCanvasStatusLB);
    foot->addStretch(1);
    foot->addWidget(m_pHoveredLB);

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(head);
    layout->addWidget(splitter, 1);
    layout->addLayout(foot);
    connectCanvas();
    retranslate();
}

ViewerPane::~ViewerPane()
{
    CanvasHost::setMeasureStarted({});
    delete m_secondView;
    // The histories of the boards report once more while they end.
    delete m_files;
}

QLayout* ViewerPane::createHead()
{
    m_pActiveToolLB = createLabel("m_pActiveToolLB", this);
    QFont font = m_pActiveToolLB->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.15);
    m_pActiveToolLB->setFont(font);
    m_pPickHintLB = createLabel("m_pPickHintLB", this);
    m_pPositionLB = createLabel("m_pPositionLB", this);
    // A long hint does not widen the window.
    m_pPickHintLB->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* const words = new QHBoxLayout;
    words->setContentsMargins(8, 2, 8, 4);
    words->addWidget(m_pActiveToolLB);
    words->addSpacing(16);
    words->addWidget(m_pPickHintLB, 1);
    words->addWidget(m_pPositionLB);
    auto* const head = new QVBoxLayout;
    head->setSpacing(0);
    head->addWidget(m_bar);
    head->addLayout(words);
    return head;
}

void ViewerPane::connectCanvas()
{
    m_canvas.connectView(m_view);
    connect(&m_canvas, &CanvasController::said, m_pCanvasStatusLB, &QLabel::setText);
    connect(&m_canvas, &CanvasController::hintChanged, this,
            [this] { m_pPickHintLB->setText(m_canvas.hint()); });
    connect(&m_canvas, &CanvasController::moved, this, [this](const QPointF& point) {
        m_pPositionLB->setText(CanvasHost::lengthText(point));
    });
    connect(&m_canvas, &CanvasController::hovered, this, &ViewerPane::showHovered);
    connect(&m_canvas, &CanvasController::documentOpened, m_view, &BoardView::fit);
    connect(m_files, &FileActions::opened, m_view, &BoardView::fit);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, &m_canvas,
            &CanvasController::cancel);
    CanvasHost::setMeasureStarted([this] { startMeasuring(); });
}

CanvasHost::FileError ViewerPane::openBoard(const QString& file)
{
    return errorOf([&] { m_files->openAtOnce(file); });
}

CanvasHost::FileError ViewerPane::exportBoard(const QString& file)
{
    return errorOf([&] { BoardFiles::exportTo(m_canvas.document(), file); });
}

void ViewerPane::openSecondView()
{
    if (!m_secondView) {
        auto* const view = new BoardView(&m_canvas.scene());
        view->setObjectName(QStringLiteral("m_pSecondView"));
        m_canvas.connectView(view);
        m_secondView = view;
        retranslate();
    }
    m_secondView->show();
    m_secondView->raise();
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
    m_pHoveredLB->setText(words.join(QStringLiteral("  ")));
    m_view->viewport()->setToolTip(words.join('\n'));
}

void ViewerPane::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        m_inspector->retranslate();
        m_files->retranslate();
        m_edits->retranslate();
        m_bar->retranslate();
        retranslate();
    }
}

void ViewerPane::showTool()
{
    QString tool = tr("none");
    if (m_tool) {
        tool = ToolSet::text(*m_tool);
        if (m_mode != 0) {
            tool = tr("%1, mode %2").arg(tool).arg(m_mode);
        }
    }
    m_pActiveToolLB->setText(tr("Tool: %1").arg(tool));
}

void ViewerPane::retranslate()
{
    showTool();
    m_pPickHintLB->setText(m_canvas.hint());
    m_view->setAccessibleName(tr("Board"));
    if (m_secondView) {
        m_secondView->setWindowTitle(tr("Second view"));
        m_secondView->setAccessibleName(tr("Second view"));
    }
}
