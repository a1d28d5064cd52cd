#pragma once

#include "shared/Retranslated.h"
#include "window/Language.h"
#include "window/ModulePlace.h"
#include "window/Options.h"
#include "window/WindowLayout.h"

#include <PluginMetaData.h>

#include <QMainWindow>
#include <QPointer>

#include <memory>

class CanvasControl;
class ComposeDialog;
class Documentation;
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
class SessionRecorder;
class QToolBar;
class WindowPlacer;

/// The host's window: the modules, the message monitor, and the host's own settings.
class WorkbenchWindow : public Retranslated<QMainWindow> {
    Q_OBJECT

public:
    /// Unit and language start as `options` say; the jobs must be loaded already. `log` is not
    /// owned and must outlive the window.
    WorkbenchWindow(const Options& options, MessageLog* log);
    ~WorkbenchWindow() override;

    /// Loads the modules, opens the first job, and takes the place on the screen. Throws a
    /// FileError.
    void start();

    /// Records what the user does from now on. Throws a FileError.
    void record(const QString& file);

    HostState* host() const { return m_host; }
    /// Null before the modules are loaded, and after they have gone.
    CanvasControl* canvas() const;

Q_SIGNALS:
    void closed();

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    /// A menu entry and its text, which is read again when the language changes.
    struct Entry {
        QAction* action;
        const char* text;
    };

    static void receive(void* window, PluginMetaData message);

    void createControls();
    QToolBar* createBar(const char* name);
    void createDocks(MessageLog* log);
    QDockWidget* createDock(const char* name, QWidget* content);
    void createMenus();
    void createSendEntries();
    void addCanvasEntries();
    QAction* addEntry(QMenu* menu, const char* name, const char* text);
    void connectControls();
    void orderStops();

    void chooseAndOpenJob();
    /// False: it is not open, which the user knows.
    bool openJob(const QString& file);
    void openFirstJob();
    void listJobs();
    void openFile(const QString& file);

    void showStep(const QString& job, const QString& step);
    void changeLanguage(int index);
    void showEq(bool visible);
    void tellCanvas(const MessageRecord& message);
    void savePicture();
    void startOrStopRecording();
    void showRecording();
    void openDimensions();
    void compose();
    void showDocumentation();
    void showAbout();
    void listRecentFiles();
    void showTitle();
    void retranslate() override;
    void retranslateMenus();

    Options m_options;
    Language m_language;
    HostState* m_host;
    SessionRecorder* m_recorder;
    QToolBar* m_hostBar = nullptr;
    QToolBar* m_settingsBar = nullptr;
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
    QMenu* m_recentMenu = nullptr;
    QAction* m_record;
    QMenu* m_editMenu;
    QMenu* m_viewMenu;
    QMenu* m_sendMenu;
    QMenu* m_helpMenu;
    QList<Entry> m_entries;
    QList<QAction*> m_sendActions;
    ComposeDialog* m_compose = nullptr;        // made when it is first asked for
    Documentation* m_documentation = nullptr;  // likewise
    QPointer<QWidget> m_dimensions;  // a window of its own, made when it is first asked for
    std::unique_ptr<WindowLayout> m_layout;
    WindowPlacer* m_placer = nullptr;  // made when the canvas is there
    std::unique_ptr<ModulePlace> m_strip;
    std::unique_ptr<ModulePlace> m_viewer;
    std::unique_ptr<ModulePlace> m_jobTree;
};
