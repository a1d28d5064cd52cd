#include "viewer/CanvasKeys.h"

#include "shared/TakesText.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QKeyEvent>

#include <algorithm>

namespace {

/// Whether Escape does something else in this window, whatever has the focus there.
bool hasOwnEscape(const QWidget* window)
{
    const QList<QAction*> actions = window->actions();
    return std::any_of(actions.begin(), actions.end(), [&](const QAction* action) {
        return action->parent() == window && action->shortcut() == Qt::Key_Escape;
    });
}

/// Keys that act on the text or the rows of the focused widget.
bool isKept(const QWidget* focus, const QKeyEvent* event)
{
    const bool meansItems =
        event->matches(QKeySequence::SelectAll) || event->matches(QKeySequence::Delete);
    if (qobject_cast<const QAbstractItemView*>(focus)) {
        return meansItems;
    }
    return takesText(focus) &&
           (meansItems || event->matches(QKeySequence::Undo) ||
            event->matches(QKeySequence::Redo) ||
            (event->matches(QKeySequence::Cancel) && !hasOwnEscape(focus->window())) ||
            (event->key() == Qt::Key_Y && event->modifiers() == Qt::ControlModifier));
}

}  // namespace

CanvasKeys::CanvasKeys(QWidget* pane) : QObject(pane), m_pane(pane)
{
    addTo(pane);
    qApp->installEventFilter(this);
}

void CanvasKeys::addTo(QWidget* window) const
{
    QList<QKeySequence> own;
    for (const QAction* const action : window->actions()) {
        own.append(action->shortcuts());
    }
    for (QAction* const action : m_pane->findChildren<QAction*>()) {
        if (!action->shortcut().isEmpty() && !own.contains(action->shortcut())) {
            window->addAction(action);
        }
    }
}

bool CanvasKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride && watched->isWidgetType() &&
        isKept(static_cast<QWidget*>(watched), static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    if (event->type() == QEvent::Show && watched->isWidgetType() &&
        isOfOurWindow(static_cast<QWidget*>(watched))) {
        addTo(static_cast<QWidget*>(watched));
    }
    return QObject::eventFilter(watched, event);
}

/// A QDialog uses the keys itself, and is left alone.
bool CanvasKeys::isOfOurWindow(const QWidget* window) const
{
    const bool isWindow = window->windowType() == Qt::Window || window->windowType() == Qt::Dialog;
    const QWidget* owner = window->parentWidget();
    while (owner && owner != m_pane->window()) {
        owner = owner->parentWidget();
    }
    return isWindow && owner && !window->isModal() && !qobject_cast<const QDialog*>(window);
}
