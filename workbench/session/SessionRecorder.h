#pragma once

#include "session/RecordedPlace.h"
#include "session/SessionFile.h"

#include <QObject>

class QComboBox;
class QKeyEvent;
class QLineEdit;
class QMenu;
class QMessageBox;
class QMouseEvent;
class QShortcutEvent;
class QWheelEvent;

/// Records what the user does in all windows of the program as a session: it reads the events of
/// mouse and keyboard as the window system sends them, before they are handled.
class SessionRecorder : public QObject {
    Q_OBJECT

public:
    /// `window` is the host's; closing it is not a step. Not owned.
    explicit SessionRecorder(QWidget* window, QObject* parent = nullptr);

    /// Records to `file` from now on, its old content is lost; `remark` becomes a comment. Throws a
    /// CanvasHost::FileError when it cannot be written.
    void start(const QString& file, const QString& remark = {});
    /// A last step of these words is not kept.
    void stop(const QStringList& last);
    bool isRecording() const { return m_file.isOpen(); }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void readWindowEvent(QObject* watched, QEvent* event);
    void readWidgetEvent(QWidget* widget, QEvent* event);
    /// Notes where the mouse is; returns the widget there.
    QWidget* locate(const QObject* watched, const QPointF& local, const QPointF& global);

    void press(QWidget* hit, const QMouseEvent* event);
    void doubleClick(QWidget* hit);
    void move(const QMouseEvent* event);
    void release(const QMouseEvent* event);
    void wheel(QWidget* hit, const QWheelEvent* event);
    void key(const QKeyEvent* event);
    void shortcut(const QObject* receiver, const QShortcutEvent* event);
    void writeKey(QWidget* focus, const QString& key);

    void popupRelease(QWidget* popup);
    void popupKey(QWidget* popup, const QKeyEvent* event);
    void chooseEntry(QMenu* menu, const QAction* action);
    void chooseItem(QComboBox* combo, const QModelIndex& index);
    /// Removes the last line, or puts `before` in its place, if `popup` stays open.
    void unlessClosed(QWidget* popup, const QStringList& before);

    void watchText(QWidget* focus);
    void typed(QWidget* widget, const QString& text);
    void watchBox(QMessageBox* box);

    QWidget* m_window;
    SessionFile m_file;
    QPoint m_mouse;           ///< on the screen
    RecordedPlace m_pressed;  ///< where a button was pressed last
    RecordedPlace m_rightClick;
    bool m_held = false;     ///< that button is held
    bool m_dragged = false;  ///< ... and the mouse was moved since
    QMetaObject::Connection m_text;
    bool m_avoidedNativeDialogs = false;
    QMetaObject::Connection m_focus;
};
