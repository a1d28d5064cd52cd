#pragma once

#include <QList>
#include <QStringList>
#include <QtPlugin>

#include <functional>

class QAction;
class QWidget;

/// The boards of the canvas as files.
class BoardFiles {
public:
    virtual ~BoardFiles() = default;

    /// For files that a program has named: nothing is asked. Both throw a CanvasHost::FileError.
    /// exportTo() returns what was left out, in words; nothing where nothing was.
    virtual void openAtOnce(const QString& file) = 0;
    virtual QString exportTo(const QString& file) = 0;

    /// As the user asks for it: before changes are lost, and about errors, there is a box.
    /// False: it was not opened.
    virtual bool open(const QString& file) = 0;
    /// False: the user wants to keep a board that is not saved, or it could not be saved.
    virtual bool mayClose() = 0;
    /// Every board goes, with its changes: the job is another.
    virtual void closeAll() = 0;
    /// From now on changed boards are kept beside the settings until they are saved or the program
    /// ends in order. Those that a crash has left are offered to the user.
    virtual void keepForRecovery() = 0;
    /// Whether a user is there to be asked; otherwise changes are discarded.
    virtual void setMayAsk(std::function<bool()> mayAsk) = 0;
    /// How a job file is opened, for boards that a crash has left. It returns false if the file
    /// could not be opened, of which the user has been told.
    virtual void setOpenJob(std::function<bool(const QString& file)> openJob) = 0;

    /// The file of the board that is shown; empty when it was never saved.
    virtual QString file() const = 0;
    /// Whether the board that is shown differs from its file.
    virtual bool isModified() const = 0;
    /// Is called from now on when either of them may be another.
    virtual void setChanged(const std::function<void()>& changed) = 0;
    /// Those that were opened or saved last, the latest first.
    virtual QStringList recent() const = 0;
};

/// What the host's window needs of the canvas besides messages. The canvas is a module: its
/// instance is asked for this with qobject_cast.
class CanvasControl {
public:
    virtual ~CanvasControl() = default;

    virtual BoardFiles& files() = 0;

    /// Actions that stand together in the window's menus, in their order.
    enum class Group { NewAndOpen, Save, History, Selection, View };
    virtual QList<QAction*> actions(Group group) const = 0;

    /// Parts of it in the window.
    virtual QWidget* board() const = 0;
    virtual QWidget* positionField() const = 0;

    /// What only the host knows: the tool strip was recreated, or there was a message to or from it
    /// that did not come to the canvas. The canvas's tool is the one that the strip shows.
    virtual void stripWasMade() = 0;
    /// Before it is recreated: asks if entries or something begun would be lost. False: the user
    /// wants to keep them.
    virtual bool mayMakeStrip() = 0;
    virtual void overhear(int code) = 0;
};
Q_DECLARE_INTERFACE(CanvasControl, "CanvasControl/1")
