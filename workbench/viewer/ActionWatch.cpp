#include "viewer/ActionWatch.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace {

bool isModifier(int key)
{
    return (key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock) || key == Qt::Key_AltGr;
}

/// A key that is a shortcut reaches no widget, but each key is first offered to one as this.
bool begins(const QEvent* event)
{
    switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            return true;
        case QEvent::ShortcutOverride:
            return !isModifier(static_cast<const QKeyEvent*>(event)->key());
        default:
            return false;
    }
}

}  // namespace

ActionWatch::ActionWatch(QObject* parent) : QObject(parent)
{
    qApp->installEventFilter(this);
}

bool ActionWatch::eventFilter(QObject* watched, QEvent* event)
{
    if (begins(event) && watched->isWidgetType()) {
        Q_EMIT begun();
    }
    return QObject::eventFilter(watched, event);
}
