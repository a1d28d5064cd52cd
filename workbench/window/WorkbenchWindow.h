#pragma once

#include "window/Language.h"
#include "window/ModulePlace.h"
#include "window/Options.h"

#include <PluginMetaData.h>

#include <QMainWindow>
#include <QPointer>

#include <memory>

class ComposeDialog;
class HostState;
class MessageLog;
class MessageMonitor;
struct MessageRecord;
class QAction;
class QCheckBox;
class QComboBox;
class QDockWidget;
class QLabel;
class QMenu;

/// The host's window: the modules, the message monitor, and what the host itself has to set.
class WorkbenchWindow : public QMainWindow {
    Q_OBJECT

public:
    /// Unit and language start as `options` say; the jobs must be there already. `log` is not owned
    /// and must outlive the window.
    WorkbenchWindow(const Options& options, MessageLog* log);
    ~WorkbenchWindow() override;

    /// Loads the modules and opens the first job. On failure `error` names file and reason.
    bool start(QString* error);

    HostState* host() const { return m_host; }

protected:
    void changeEvent(QEvent* event) override;

private:
    /// A menu entry and its text, which is read again when the language changes.
    struct Entry {
        QAction* action;
        const char* text;
    };

    static void receive(void* window, PluginMetaData message);

    void createControls();
    void createDocks(MessageLog* log);
    QDockWidget* createDock(const char* name, Qt::DockWidgetArea area, QWidget* content);
    void createMenus();
    QAction* addEntry(QMenu* menu, const char* name, const char* text);
    void connectControls();

    void showStep(const QString& job, const QString& step);
    void changeLanguage(int index);
    void showEq(bool visible);
    void tellCanvas(const MessageRecord& message);
    void invokeCanvas(const char* method, QGenericArgument argument = {});
    void savePicture();
    void openDimensions();
    void compose();
    void retranslate();

    Options m_options;
    Language m_language;
    HostState* m_host;
    QComboBox* m_pHostJobCMB;
    QComboBox* m_pHostStepCMB;
    QComboBox* m_pHostUnitCMB;
    QComboBox* m_pHostLanguageCMB;
    QCheckBox* m_pHostEqCB;
    QLabel* m_pHostJobLB;
    QLabel* m_pHostStepLB;
    QLabel* m_pHostUnitLB;
    QLabel* m_pHostLanguageLB;
    MessageMonitor* m_monitor;
    QDockWidget* m_stripDock;
    QDockWidget* m_jobTreeDock;
    QDockWidget* m_monitorDock;
    QMenu* m_fileMenu;
    QMenu* m_toolsMenu;
    QMenu* m_viewMenu;
    QList<Entry> m_entries;
    QList<QAction*> m_sendActions;
    ComposeDialog* m_compose = nullptr;  // made when it is first asked for
    QPointer<QWidget> m_dimensions;      // a window of its own, made when it is first asked for
    std::unique_ptr<ModulePlace> m_strip;
    std::unique_ptr<ModulePlace> m_viewer;
    std::unique_ptr<ModulePlace> m_jobTree;
};
