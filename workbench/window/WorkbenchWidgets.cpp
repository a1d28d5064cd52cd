// The widgets of the window, and their texts.

#include "messages/HostState.h"
#include "messages/MessageMonitor.h"
#include "plugin/ModuleNames.h"
#include "shared/Named.h"
#include "window/WorkbenchWindow.h"

#include <CamApiStandIn.h>
#include <ui_api.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolBar>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>
#include <initializer_list>
#include <utility>

namespace {

/// The wheel chooses only while it has the keyboard: not by the way.
class SteadyCombo : public QComboBox {
public:
    explicit SteadyCombo(QWidget* parent) : QComboBox(parent) { setFocusPolicy(Qt::StrongFocus); }

protected:
    void wheelEvent(QWheelEvent* event) override
    {
        if (hasFocus()) {
            QComboBox::wheelEvent(event);
        } else {
            event->ignore();
        }
    }
};

/// A widget that keeps a module's panel with `margin` around it.
QWidget* createHolder(const char* name, int margin)
{
    auto* const holder = named(new QWidget, name);
    auto* const layout = new QVBoxLayout(holder);
    layout->setContentsMargins(margin, margin, margin, margin);
    return holder;
}

}  // namespace

void WorkbenchWindow::createControls()
{
    m_hostBar = createBar("m_pHostTB");
    m_settingsBar = createBar("m_pSettingsTB");
    const auto addCombo = [](QToolBar* bar, QLabel*& label, const char* labelName,
                             const char* comboName) {
        auto* const box = new QWidget(bar);
        auto* const layout = new QHBoxLayout(box);
        layout->setContentsMargins(8, 4, 6, 4);
        label = named(new QLabel(box), labelName);
        auto* const combo = named<QComboBox>(new SteadyCombo(box), comboName);
        combo->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        label->setBuddy(combo);
        layout->addWidget(label);
        layout->addWidget(combo);
        bar->addWidget(box);
        return combo;
    };
    m_pHostJobCMB = addCombo(m_hostBar, m_pHostJobLB, "m_pHostJobLB", "m_pHostJobCMB");
    m_pHostStepCMB = addCombo(m_hostBar, m_pHostStepLB, "m_pHostStepLB", "m_pHostStepCMB");
    m_pHostUnitCMB = addCombo(m_settingsBar, m_pHostUnitLB, "m_pHostUnitLB", "m_pHostUnitCMB");
    m_pHostLanguageCMB =
        addCombo(m_settingsBar, m_pHostLanguageLB, "m_pHostLanguageLB", "m_pHostLanguageCMB");
    listJobs();
    for (const CanvasHost::LengthUnit& unit : CanvasHost::lengthUnits()) {
        m_pHostUnitCMB->addItem(QString());
        if (unit.unit == m_options.unit) {
            m_pHostUnitCMB->setCurrentIndex(m_pHostUnitCMB->count() - 1);
        }
    }
    for (const LanguageChoice& choice : languageChoices()) {
        m_pHostLanguageCMB->addItem(QString::fromUtf8(choice.text));
        if (m_options.language == QLatin1String(choice.code)) {
            m_pHostLanguageCMB->setCurrentIndex(m_pHostLanguageCMB->count() - 1);
        }
    }
    m_pHostEqCB = named(new QCheckBox(m_settingsBar), "m_pHostEqCB");
    m_pHostEqCB->setChecked(ZENTRA::UIAPI::getEQVisible());
    m_settingsBar->addWidget(m_pHostEqCB);
}

QToolBar* WorkbenchWindow::createBar(const char* name)
{
    auto* const bar = named(new QToolBar(this), name);
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    addToolBar(bar);
    return bar;
}

bool WorkbenchWindow::event(QEvent* event)
{
    const bool isHandled = Retranslated::event(event);
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest) {
        // One bar below the other where the window is too narrow for both: nothing drops out.
        const int wanted = m_hostBar->sizeHint().width() + m_settingsBar->sizeHint().width();
        const bool isNarrow = wanted > width();
        if (isNarrow && !toolBarBreak(m_settingsBar)) {
            insertToolBarBreak(m_settingsBar);
        } else if (!isNarrow && toolBarBreak(m_settingsBar)) {
            removeToolBarBreak(m_settingsBar);
        }
    }
    return isHandled;
}

QDockWidget* WorkbenchWindow::createDock(const char* name, QWidget* content)
{
    auto* const dock = named(new QDockWidget(this), name);
    dock->setWidget(content);
    return dock;
}

void WorkbenchWindow::createDocks(MessageLog* log)
{
    QWidget* const strip = createHolder("m_pStrip", 4);
    QWidget* const jobTree = createHolder("m_pJobTreeHolder", 0);
    QWidget* const viewer = createHolder("m_pViewerHolder", 0);
    m_monitor = new MessageMonitor(log, this);
    m_stripDock = createDock("m_pStripDock", strip);
    m_jobTreeDock = createDock("m_pJobTreeDock", jobTree);
    m_monitorDock = createDock("m_pMonitorDock", m_monitor);
    setCentralWidget(viewer);
    m_layout = std::make_unique<WindowLayout>(
        this, WindowLayout::Docks{m_stripDock, m_jobTreeDock, m_monitorDock});
    m_strip = std::make_unique<ModulePlace>(ModuleNames::toolStrip, strip);
    m_jobTree = std::make_unique<ModulePlace>(ModuleNames::jobTree, jobTree);
    m_viewer = std::make_unique<ModulePlace>(ModuleNames::viewer, viewer);
}

/// Tab walks the parts in the order in which they are used, and each part in its own order.
void WorkbenchWindow::orderStops()
{
    QList<QWidget*> stops;
    for (QWidget* stop = nextInFocusChain(); stop != this; stop = stop->nextInFocusChain()) {
        if ((stop->focusPolicy() & Qt::TabFocus) && stop->window() == this) {
            stops.append(stop);
        }
    }
    QWidget* last = m_hostBar;
    for (const QWidget* const part :
         std::initializer_list<QWidget*>{m_hostBar, m_settingsBar, m_stripDock, centralWidget(),
                                         m_monitorDock, m_jobTreeDock}) {
        for (QWidget* const stop : std::as_const(stops)) {
            if (part->isAncestorOf(stop)) {
                setTabOrder(last, stop);
                last = stop;
            }
        }
    }
}

void WorkbenchWindow::retranslate()
{
    showTitle();
    retranslateMenus();
    m_pHostJobLB->setText(tr("&Job"));
    m_pHostStepLB->setText(tr("S&tep"));
    m_pHostUnitLB->setText(tr("&Unit"));
    m_pHostLanguageLB->setText(tr("&Language"));
    m_pHostEqCB->setText(tr("E&Q tool"));
    m_pHostEqCB->setToolTip(
        tr("Whether the host offers the EQ tool; the edit tools are made anew."));
    for (int index = 0; index < m_pHostUnitCMB->count(); ++index) {
        m_pHostUnitCMB->setItemText(
            index, CanvasHost::unitText(CanvasHost::lengthUnits().at(size_t(index))));
    }
    m_stripDock->setWindowTitle(tr("Edit tools"));
    m_jobTreeDock->setWindowTitle(tr("Jobs"));
    m_monitorDock->setWindowTitle(tr("Messages"));
}
