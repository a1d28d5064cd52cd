// The menus of the window. What acts on the board are actions of the canvas.

#include "messages/HostState.h"
#include "messages/MessageMonitor.h"
#include "messages/MessageNames.h"
#include "plugin/ModuleNames.h"
#include "shared/BringToFront.h"
#include "shared/CanvasControl.h"
#include "shared/Named.h"
#include "window/Documentation.h"
#include "window/WindowPlacer.h"
#include "window/WorkbenchWindow.h"

#include <CommonWidgetsStandIn.h>

#include <QAction>
#include <QDockWidget>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>

namespace {

QMenu* createMenu(QMenuBar* bar, const char* name)
{
    return named(bar->addMenu(QString()), name);
}

}  // namespace

QAction* WorkbenchWindow::addEntry(QMenu* menu, const char* name, const char* text)
{
    QAction* const action = named(menu->addAction(QString()), name);
    m_entries.append({action, text});
    return action;
}

void WorkbenchWindow::createMenus()
{
    m_fileMenu = createMenu(menuBar(), "m_pFileMenu");
    m_editMenu = createMenu(menuBar(), "m_pEditMenu");
    m_viewMenu = createMenu(menuBar(), "m_pViewMenu");
    m_sendMenu = createMenu(menuBar(), "m_pSendMenu");
    m_helpMenu = createMenu(menuBar(), "m_pHelpMenu");

    connect(addEntry(m_fileMenu, "m_pSaveTraceAct", QT_TR_NOOP("Save &Trace...")),
            &QAction::triggered, m_monitor, &MessageMonitor::saveTrace);
    connect(addEntry(m_fileMenu, "m_pSavePictureAct", QT_TR_NOOP("Save &Picture...")),
            &QAction::triggered, this, &WorkbenchWindow::savePicture);
    m_record = named(m_fileMenu->addAction(QString()), "m_pRecordAct");
    connect(m_record, &QAction::triggered, this, &WorkbenchWindow::startOrStopRecording);
    m_fileMenu->addSeparator();
    QAction* const quit = addEntry(m_fileMenu, "m_pQuitAct", QT_TR_NOOP("&Quit"));
    quit->setShortcut(QKeySequence::Quit);
    connect(quit, &QAction::triggered, this, &QWidget::close);

    for (QDockWidget* const dock : {m_stripDock, m_jobTreeDock, m_monitorDock}) {
        m_viewMenu->addAction(dock->toggleViewAction());
    }
    m_viewMenu->addSeparator();
    connect(addEntry(m_viewMenu, "m_pDimensionsAct", QT_TR_NOOP("&Dimensions Popup")),
            &QAction::triggered, this, &WorkbenchWindow::openDimensions);
    connect(addEntry(m_viewMenu, "m_pRestoreLayoutAct", QT_TR_NOOP("Restore &Layout")),
            &QAction::triggered, this, [this] {
                m_layout->restoreFirst();
                m_placer->forgetAll();
            });

    createSendEntries();
    connect(addEntry(m_helpMenu, "m_pDocumentationAct", QT_TR_NOOP("&Documentation")),
            &QAction::triggered, this, &WorkbenchWindow::showDocumentation);
    connect(addEntry(m_helpMenu, "m_pAboutAct", QT_TR_NOOP("&About...")), &QAction::triggered, this,
            &WorkbenchWindow::showAbout);
}

void WorkbenchWindow::createSendEntries()
{
    for (const QVector<int>& group : MessageNames::accepted()) {
        if (!m_sendActions.isEmpty()) {
            m_sendMenu->addSeparator();
        }
        for (const int code : group) {
            QAction* const action = m_sendMenu->addAction(QString());
            action->setObjectName(QStringLiteral("m_pSend%1Act").arg(code));
            action->setData(code);
            m_sendActions.append(action);
            connect(action, &QAction::triggered, m_host,
                    [this, code] { m_host->sendSample(code); });
        }
    }
}

void WorkbenchWindow::addCanvasEntries()
{
    using Group = CanvasControl::Group;
    QAction* const trace = m_fileMenu->actions().constFirst();
    m_fileMenu->insertActions(trace, canvas()->actions(Group::NewAndOpen));
    QAction* const openJob = addEntry(m_fileMenu, "m_pOpenJobAct", QT_TR_NOOP("Open &Job..."));
    connect(openJob, &QAction::triggered, this, &WorkbenchWindow::chooseAndOpenJob);
    m_fileMenu->insertAction(trace, openJob);
    m_recentMenu = named(new QMenu(m_fileMenu), "m_pRecentMenu");
    connect(m_fileMenu, &QMenu::aboutToShow, this, &WorkbenchWindow::listRecentFiles);
    m_fileMenu->insertMenu(trace, m_recentMenu);
    m_fileMenu->insertActions(trace, canvas()->actions(Group::Save));
    m_fileMenu->insertSeparator(trace);
    m_editMenu->addActions(canvas()->actions(Group::History));
    m_editMenu->addSeparator();
    m_editMenu->addActions(canvas()->actions(Group::Selection));
    QAction* const docks = m_viewMenu->actions().constFirst();
    m_viewMenu->insertActions(docks, canvas()->actions(Group::View));
    m_viewMenu->insertSeparator(docks);
    canvas()->files().setChanged([this] { showTitle(); });
}

void WorkbenchWindow::showTitle()
{
    QString title = m_host->job().isEmpty()
                        ? tr("Workbench")
                        : tr("%1 / %2[*] - Workbench").arg(m_host->job(), m_host->step());
    if (canvas()) {
        const QString file = canvas()->files().file();
        if (!file.isEmpty()) {
            title = tr("%1[*] - %2 / %3 - Workbench")
                        .arg(QFileInfo(file).fileName(), m_host->job(), m_host->step());
        }
        setWindowModified(canvas()->files().isModified());
    }
    setWindowTitle(title);
}

void WorkbenchWindow::showDocumentation()
{
    if (!m_documentation) {
        m_documentation = new Documentation(this);
        CanvasHost::closeByEscape(m_documentation);
    }
    bringToFront(m_documentation);
}

void WorkbenchWindow::showAbout()
{
    QMessageBox box(QMessageBox::NoIcon, tr("About"),
                    tr("Workbench %1, a small host of the Canvas Tool Strip.\nQt %2")
                        .arg(QStringLiteral(WORKBENCH_VERSION), QLatin1String(qVersion())),
                    QMessageBox::Ok, this);
    box.setObjectName(QStringLiteral("m_pAboutBox"));
    box.exec();
}

void WorkbenchWindow::retranslateMenus()
{
    m_fileMenu->setTitle(tr("&File"));
    m_editMenu->setTitle(tr("&Edit"));
    m_viewMenu->setTitle(tr("&View"));
    m_sendMenu->setTitle(tr("&Send"));
    m_helpMenu->setTitle(tr("&Help"));
    if (m_recentMenu) {
        m_recentMenu->setTitle(tr("Open &Recent"));
    }
    showRecording();
    for (const Entry& entry : m_entries) {
        entry.action->setText(tr(entry.text));
    }
    for (QAction* const action : m_sendActions) {
        const int code = action->data().toInt();
        action->setText(
            tr("%1 (%2)").arg(MessageNames::text(ModuleNames::toolStrip, code)).arg(code));
    }
}
