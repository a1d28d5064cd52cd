// The menus of the window. What acts on the board are actions of the canvas, which is a module and
// known by the object names of its parts alone.

#include "messages/HostState.h"
#include "messages/MessageMonitor.h"
#include "messages/MessageNames.h"
#include "plugin/ModuleNames.h"
#include "window/Documentation.h"
#include "window/WorkbenchWindow.h"

#include <Settings.h>

#include <QAction>
#include <QDir>
#include <QDockWidget>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>

namespace {

QMenu* createMenu(QMenuBar* bar, const char* name)
{
    QMenu* const menu = bar->addMenu(QString());
    menu->setObjectName(QLatin1String(name));
    return menu;
}

QString droppedFile(const QMimeData* data)
{
    const QList<QUrl> urls = data->urls();
    return urls.size() == 1 ? urls.constFirst().toLocalFile() : QString();
}

}  // namespace

QAction* WorkbenchWindow::addEntry(QMenu* menu, const char* name, const char* text)
{
    QAction* const action = menu->addAction(QString());
    action->setObjectName(QLatin1String(name));
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
            &QAction::triggered, this, [this] { m_layout->restoreFirst(); });

    createSendEntries();
    connect(addEntry(m_helpMenu, "m_pDocumentationAct", QT_TR_NOOP("&Documentation")),
            &QAction::triggered, this, [this] { Documentation::show(this); });
    connect(addEntry(m_helpMenu, "m_pAboutAct", QT_TR_NOOP("&About...")), &QAction::triggered, this,
            &WorkbenchWindow::showAbout);
}

void WorkbenchWindow::createSendEntries()
{
    bool tool = false;
    for (const MessageNames::Row& row : MessageNames::accepted()) {
        if (row.tool != tool) {
            m_sendMenu->addSeparator();
            tool = row.tool;
        }
        QAction* const action = m_sendMenu->addAction(QString());
        action->setObjectName(QStringLiteral("m_pSend%1Act").arg(row.code));
        action->setData(row.code);
        m_sendActions.append(action);
        connect(action, &QAction::triggered, m_host,
                [this, code = row.code] { m_host->sendSample(code); });
    }
}

void WorkbenchWindow::addCanvasEntries()
{
    const auto actions = [this](const std::initializer_list<const char*>& names) {
        QList<QAction*> found;
        for (const char* const name : names) {
            if (auto* const action = findChild<QAction*>(QLatin1String(name))) {
                found.append(action);
            }
        }
        return found;
    };
    QAction* const trace = m_fileMenu->actions().constFirst();
    m_fileMenu->insertActions(trace, actions({"m_pNewBoardAct", "m_pOpenBoardAct"}));
    m_recentMenu = new QMenu(m_fileMenu);
    m_recentMenu->setObjectName(QStringLiteral("m_pRecentMenu"));
    connect(m_fileMenu, &QMenu::aboutToShow, this, &WorkbenchWindow::listRecentFiles);
    m_fileMenu->insertMenu(trace, m_recentMenu);
    m_fileMenu->insertActions(
        trace, actions({"m_pSaveBoardAct", "m_pSaveBoardAsAct", "m_pExportBoardAct"}));
    m_fileMenu->insertSeparator(trace);
    m_editMenu->addActions(actions({"m_pUndoAct", "m_pRedoAct"}));
    m_editMenu->addSeparator();
    m_editMenu->addActions(actions({"m_pSelectAllAct", "m_pDeselectAct", "m_pDeleteAct"}));
    QAction* const docks = m_viewMenu->actions().constFirst();
    m_viewMenu->insertActions(
        docks, actions({"m_pFitAct", "m_pZoomInAct", "m_pZoomOutAct", "m_pSnapAct"}));
    m_viewMenu->insertSeparator(docks);
    m_boardFiles = findChild<QObject*>(QStringLiteral("m_pBoardFiles"));
    connect(m_boardFiles, SIGNAL(changed()), this, SLOT(showTitle()));
}

void WorkbenchWindow::listRecentFiles()
{
    m_recentMenu->clear();
    const QStringList files =
        CanvasHost::Settings::value(QStringLiteral("files/recent")).toStringList();
    for (const QString& file : files) {
        QAction* const action = m_recentMenu->addAction(QDir::toNativeSeparators(file));
        connect(action, &QAction::triggered, this, [this, file] { openBoard(file); });
    }
    m_recentMenu->setEnabled(!files.isEmpty());
}

void WorkbenchWindow::openBoard(const QString& file)
{
    QMetaObject::invokeMethod(m_boardFiles, "open", Q_ARG(QString, file));
}

void WorkbenchWindow::setMayAsk(const std::function<bool()>& mayAsk)
{
    QMetaObject::invokeMethod(m_boardFiles, "setMayAsk", Q_ARG(std::function<bool()>, mayAsk));
}

bool WorkbenchWindow::mayClose() const
{
    bool may = true;
    QMetaObject::invokeMethod(m_boardFiles, "mayClose", Q_RETURN_ARG(bool, may));
    return may;
}

void WorkbenchWindow::showTitle()
{
    QString title = m_host->job().isEmpty()
                        ? tr("Workbench")
                        : tr("%1 / %2[*] - Workbench").arg(m_host->job(), m_host->step());
    if (m_boardFiles) {
        QString file;
        bool modified = false;
        QMetaObject::invokeMethod(m_boardFiles, "file", Q_RETURN_ARG(QString, file));
        QMetaObject::invokeMethod(m_boardFiles, "isModified", Q_RETURN_ARG(bool, modified));
        if (!file.isEmpty()) {
            title = tr("%1[*] - %2 / %3 - Workbench")
                        .arg(QFileInfo(file).fileName(), m_host->job(), m_host->step());
        }
        setWindowModified(modified);
    }
    setWindowTitle(title);
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

void WorkbenchWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!droppedFile(event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
    }
}

void WorkbenchWindow::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    openBoard(droppedFile(event->mimeData()));
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
    for (const Entry& entry : m_entries) {
        entry.action->setText(tr(entry.text));
    }
    for (QAction* const action : m_sendActions) {
        const int code = action->data().toInt();
        action->setText(
            tr("%1 (%2)").arg(MessageNames::text(ModuleNames::toolStrip, code)).arg(code));
    }
}
