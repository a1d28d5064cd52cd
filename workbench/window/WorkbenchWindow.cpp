#include "window/WorkbenchWindow.h"

#include "compose/ComposeDialog.h"
#include "messages/HostState.h"
#include "messages/MessageLog.h"
#include "messages/MessageMonitor.h"
#include "plugin/MessageCodes.h"
#include "plugin/ModuleNames.h"
#include "plugin/PayloadKeys.h"
#include "session/SessionRecorder.h"
#include "shared/BringToFront.h"
#include "shared/CanvasControl.h"
#include "shared/ErrorBox.h"
#include "shared/Settings.h"
#include "window/FormWarnings.h"
#include "window/WindowPlacer.h"

#include <CamApiStandIn.h>
#include <CommonWidgetsStandIn.h>
#include <FileError.h>
#include <PluginManagerStandIn.h>
#include <ui_api.h>

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QCoreApplication>
#include <QDockWidget>
#include <QSignalBlocker>

namespace Accepted = MessageCodes::Accepted;

WorkbenchWindow::WorkbenchWindow(const Options& options, MessageLog* log)
    : m_options(options),
      m_language(options.moduleDirectory),
      m_host(new HostState(this)),
      m_recorder(new SessionRecorder(this, this))
{
    setObjectName(QStringLiteral("m_pWorkbench"));
    CanvasHost::setDisplayUnit(options.unit);
    m_language.set(options.language);
    createControls();
    createDocks(log);
    createMenus();
    retranslate();
    connectControls();
    connect(log, &MessageLog::appended, this, &WorkbenchWindow::tellCanvas);
    CanvasHost::addInstance(CanvasHost::hostName, this, &WorkbenchWindow::receive, this);
    setAcceptDrops(true);
}

WorkbenchWindow::~WorkbenchWindow()
{
    // The modules go first: what they do while they end still needs the whole window.
    m_strip.reset();
    m_viewer.reset();
    m_jobTree.reset();
    if (m_dimensions) {
        CanvasHost::removeInstance(static_cast<QObject*>(m_dimensions));
        delete m_dimensions;
    }
    CanvasHost::removeInstance(this);
}

void WorkbenchWindow::start()
{
    for (ModulePlace* const place : {m_viewer.get(), m_jobTree.get(), m_strip.get()}) {
        place->fill(m_options.moduleDirectory);
    }
    if (!canvas()) {
        throw CanvasHost::FileError{
            ModuleNames::viewer, 0,
            QCoreApplication::translate("FileErrors", "is not a canvas for this window")};
    }
    canvas()->files().setOpenJob([this](const QString& file) { return openJob(file); });
    addCanvasEntries();
    retranslateMenus();
    openFirstJob();
    m_layout->restore();
    m_placer = new WindowPlacer({this,
                                 {m_stripDock, canvas()->positionField()},
                                 canvas()->board(),
                                 m_layout->isRemembered()});
    orderStops();
    canvas()->board()->setFocus();
}

void WorkbenchWindow::receive(void* window, PluginMetaData message)
{
    if (message.code == Accepted::JobOpened) {
        static_cast<WorkbenchWindow*>(window)->m_host->openStep(
            message.payload.value(PayloadKeys::jobName).toString(),
            message.payload.value(PayloadKeys::stepName).toString());
    }
}

void WorkbenchWindow::connectControls()
{
    using Activated = void (QComboBox::*)(int);
    const auto changed = static_cast<Activated>(&QComboBox::currentIndexChanged);
    connect(m_host, &HostState::stepOpened, this, &WorkbenchWindow::showStep);
    connect(m_pHostJobCMB, changed, this,
            [this] { m_host->openStep(m_pHostJobCMB->currentText()); });
    connect(m_pHostStepCMB, changed, this,
            [this] { m_host->openStep(m_host->job(), m_pHostStepCMB->currentText()); });
    connect(m_pHostUnitCMB, changed, this, [this](int index) {
        const CanvasHost::LengthUnit& chosen = CanvasHost::lengthUnits().at(size_t(index));
        Settings::choose(Options::unitChoice, QString::fromLatin1(chosen.name));
        m_host->setUnit(chosen.unit);
    });
    connect(m_pHostLanguageCMB, changed, this, &WorkbenchWindow::changeLanguage);
    connect(m_monitor, &MessageMonitor::composeAsked, this, &WorkbenchWindow::compose);
    connect(m_pHostEqCB, &QCheckBox::toggled, this, &WorkbenchWindow::showEq);
}

void WorkbenchWindow::showStep(const QString& job, const QString& step)
{
    const QSignalBlocker jobs(m_pHostJobCMB);
    const QSignalBlocker steps(m_pHostStepCMB);
    m_pHostJobCMB->setCurrentText(job);
    m_pHostStepCMB->clear();
    if (const CanvasHost::Job* const shown = CanvasHost::findJob(job.toStdString())) {
        for (const std::string& name : shown->steps) {
            m_pHostStepCMB->addItem(QString::fromStdString(name));
        }
    }
    m_pHostStepCMB->setCurrentText(step);
    retranslate();
}

void WorkbenchWindow::changeLanguage(int index)
{
    const QString code = QLatin1String(languageChoices().at(size_t(index)).code);
    Settings::choose(Options::languageChoice, code);
    m_language.set(code);
    m_host->sendSample(Accepted::LanguageChanged);
}

void WorkbenchWindow::showEq(bool visible)
{
    if (!canvas()->mayMakeStrip()) {
        const QSignalBlocker unasked(m_pHostEqCB);
        m_pHostEqCB->setChecked(!visible);
        return;
    }
    // The strip asks only while it is created, so the host creates a new one.
    CanvasHost::setEQVisible(visible);
    canvas()->stripWasMade();
    try {
        m_strip->fill(m_options.moduleDirectory);
        orderStops();
        m_host->announceJob();
    } catch (const CanvasHost::FileError& error) {
        showError(this, tr("Cannot load the edit tools"), error);
    }
}

/// The strip's active tool may change by messages that do not go to the canvas.
void WorkbenchWindow::tellCanvas(const MessageRecord& message)
{
    if (canvas() && message.receiver != ModuleNames::viewer) {
        canvas()->overhear(message.code);
    }
}

CanvasControl* WorkbenchWindow::canvas() const
{
    return m_viewer ? qobject_cast<CanvasControl*>(m_viewer->instance()) : nullptr;
}

void WorkbenchWindow::openDimensions()
{
    try {
        if (!m_dimensions) {
            const FormWarnings leftOut;
            m_dimensions = static_cast<QWidget*>(static_cast<QObject*>(CanvasHost::loadModule(
                QStringLiteral("Canvas_Dimensions.dll"), m_options.moduleDirectory, this)));
            CanvasHost::closeByEscape(m_dimensions);
        }
        bringToFront(m_dimensions);
    } catch (const CanvasHost::FileError& error) {
        showError(this, tr("Cannot load the Dimensions Popup"), error);
    }
}

void WorkbenchWindow::compose()
{
    if (!m_compose) {
        m_compose = new ComposeDialog(m_host, this);
    }
    bringToFront(m_compose);
}

void WorkbenchWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(canvas()->files().mayClose());
    if (event->isAccepted()) {
        m_layout->save();
        m_placer->rememberAll();
        Q_EMIT closed();
    }
}
