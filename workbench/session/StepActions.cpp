#include "session/StepActions.h"

#include "messages/WindowPicture.h"
#include "session/InputEvents.h"
#include "session/MenuEntries.h"
#include "session/TextWidgets.h"
#include "session/WidgetFinder.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QCursor>
#include <QMenu>
#include <QMenuBar>
#include <QPixmap>
#include <QPointer>

namespace StepActions {

using StepReach::again;
using StepReach::failed;
using StepReach::reach;

namespace {

using Press = void (*)(QWidget* widget, const QPoint& position);

StepAction atPlace(const Target& target, Press press)
{
    return [=](const StepContext&) -> StepResult {
        StepResult result;
        QPoint position;
        if (QWidget* const widget = reach(target, &position, &result)) {
            press(widget, position);
        }
        return result;
    };
}

QMenu* openMenu()
{
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

bool focus(QWidget* widget, StepResult* result)
{
    widget->setFocus(Qt::OtherFocusReason);
    if (widget->hasFocus() || (widget->focusProxy() && widget->focusProxy()->hasFocus())) {
        return true;
    }
    *result = again(QStringLiteral("\"%1\" does not take the focus").arg(widget->objectName()));
    return false;
}

/// The index of `item` when it can be chosen; -1 with the reason otherwise.
int itemIndex(const QComboBox* combo, const QString& item, QString* reason)
{
    const int index = combo->findText(item);
    if (index >= 0) {
        const auto flags =
            combo->model()->flags(combo->model()->index(index, combo->modelColumn()));
        if (flags & Qt::ItemIsEnabled) {
            return index;
        }
        *reason = QStringLiteral("the item \"%1\" is greyed").arg(item);
        return -1;
    }
    QStringList items;
    for (int other = 0; other < combo->count(); ++other) {
        items.append(combo->itemText(other));
    }
    *reason = QStringLiteral("no item \"%1\" in \"%2\"; there is %3")
                  .arg(item, combo->objectName(), items.join(QStringLiteral(", ")));
    return -1;
}

}  // namespace

StepAction click(const Target& target)
{
    return atPlace(target, [](QWidget* widget, const QPoint& position) {
        InputEvents::click(widget, position);
    });
}

StepAction press(const Target& target, Qt::MouseButton button)
{
    return [=](const StepContext&) -> StepResult {
        StepResult result;
        QPoint position;
        if (QWidget* const widget = reach(target, &position, &result)) {
            InputEvents::press(widget, position, button);
        }
        return result;
    };
}

StepAction move(const Target& target)
{
    return atPlace(target, InputEvents::move);
}

StepAction release(const Target& target, Qt::MouseButton button)
{
    return [=](const StepContext&) -> StepResult {
        StepResult result;
        QPoint position;
        if (QWidget* const widget = reach(target, &position, &result)) {
            InputEvents::release(widget, position, button);
        }
        return result;
    };
}

StepAction wheel(const Target& target, double notches)
{
    return [=](const StepContext&) -> StepResult {
        StepResult result;
        QPoint position;
        if (QWidget* const widget = reach(target, &position, &result)) {
            InputEvents::wheel(widget, position, notches);
        }
        return result;
    };
}

StepAction doubleClick(const Target& target)
{
    return atPlace(target, InputEvents::doubleClick);
}

StepAction rightClick(const Target& target)
{
    return atPlace(target, [](QWidget* widget, const QPoint& position) {
        // A menu opens where the mouse stands.
        QCursor::setPos(widget->mapToGlobal(position));
        InputEvents::click(widget, position, Qt::RightButton);
    });
}

StepAction pickEntry(const QString& entry)
{
    return [=](const StepContext&) -> StepResult {
        QMenu* const menu = openMenu();
        if (!menu) {
            return again(QStringLiteral("no menu opened"));
        }
        QString reason;
        QAction* const action = MenuEntries::find(menu, entry, &reason);
        if (!action) {
            menu->close();
            return failed(reason);
        }
        InputEvents::click(menu, menu->actionGeometry(action).center());
        return {};
    };
}

StepAction dismissMenu()
{
    return [](const StepContext&) -> StepResult {
        QMenu* const menu = openMenu();
        if (!menu) {
            return again(QStringLiteral("no menu opened"));
        }
        InputEvents::key(menu, Qt::Key_Escape);
        return {};
    };
}

StepAction dismissMenuIfAny()
{
    return [](const StepContext&) -> StepResult {
        if (QMenu* const menu = openMenu()) {
            InputEvents::key(menu, Qt::Key_Escape);
        }
        return {};
    };
}

StepAction openBarMenu(const QString& name)
{
    return [=](const StepContext&) -> StepResult {
        StepResult result;
        auto* const menu = qobject_cast<QMenu*>(StepReach::find(name, &result));
        if (!menu) {
            return result.kind == StepResult::Again
                       ? result
                       : failed(QStringLiteral("\"%1\" is no menu").arg(name));
        }
        QMenuBar* const bar = MenuEntries::barOf(menu);
        if (!bar) {
            return failed(QStringLiteral("\"%1\" stands in no menu bar").arg(name));
        }
        const QString obstacle = WidgetFinder::obstacle(bar);
        if (!obstacle.isEmpty()) {
            return again(obstacle);
        }
        InputEvents::click(bar, bar->actionGeometry(menu->menuAction()).center());
        return {};
    };
}

StepAction closeWindow(const QString& name)
{
    return [=](const StepContext&) -> StepResult {
        StepResult result;
        if (QWidget* const widget = reach(name, &result)) {
            widget->window()->close();
        }
        return result;
    };
}

StepAction type(const QString& name, const QString& text)
{
    return [=](const StepContext&) -> StepResult {
        StepResult result;
        QWidget* const widget = reach(name, &result);
        if (!widget || !focus(widget, &result)) {
            return result;
        }
        QWidget* const window = widget->window();
        if (TextWidgets::hasText(widget)) {
            InputEvents::key(window, QKeySequence(QStringLiteral("Ctrl+A")));
        }
        if (text.isEmpty()) {
            InputEvents::key(window, Qt::Key_Delete);
        }
        InputEvents::type(window, text);
        return {};
    };
}

StepAction key(const QString& name, const QKeySequence& combination)
{
    return [=](const StepContext&) -> StepResult {
        StepResult result;
        QWidget* const widget = reach(name, &result);
        if (!widget || !focus(widget, &result)) {
            return result;
        }
        InputEvents::key(widget->window(), combination);
        return {};
    };
}

StepAction openList(const QString& name, const QString& item)
{
    return [=](const StepContext&) -> StepResult {
        StepResult result;
        QWidget* const widget = reach(name, &result);
        if (!widget) {
            return result;
        }
        auto* const combo = qobject_cast<QComboBox*>(widget);
        if (!combo) {
            return failed(QStringLiteral("\"%1\" is no combo box").arg(name));
        }
        QString reason;
        if (itemIndex(combo, item, &reason) < 0) {
            return again(reason);
        }
        combo->setFocus(Qt::MouseFocusReason);
        combo->showPopup();
        return {};
    };
}

StepAction pickItem(const QString& name, const QString& item)
{
    return [=](const StepContext&) -> StepResult {
        auto* const combo = qobject_cast<QComboBox*>(WidgetFinder::find(name));
        if (!combo || !combo->view()->isVisible()) {
            return again(QStringLiteral("the list of \"%1\" did not open").arg(name));
        }
        QString reason;
        const int row = itemIndex(combo, item, &reason);
        if (row < 0) {
            return failed(reason);
        }
        QAbstractItemView* const view = combo->view();
        const QModelIndex index = combo->model()->index(row, combo->modelColumn());
        view->scrollTo(index);
        const QPointer<QComboBox> chosen = combo;
        // An item may be wider than the list that shows it.
        const QRect seen = view->visualRect(index) & view->viewport()->rect();
        InputEvents::click(view->viewport(), seen.center());
        if (chosen && chosen->currentIndex() != row) {
            chosen->hidePopup();
            return failed(QStringLiteral("\"%1\" in \"%2\" cannot be chosen").arg(item, name));
        }
        return {};
    };
}

StepAction setItem(const QString& name, const QString& item)
{
    return [=](const StepContext&) -> StepResult {
        StepResult result;
        QWidget* const widget = reach(name, &result);
        auto* const combo = qobject_cast<QComboBox*>(widget);
        if (!combo) {
            return widget ? failed(QStringLiteral("\"%1\" is no combo box").arg(name)) : result;
        }
        const int index = combo->findText(item);
        if (index < 0) {
            QString reason;
            itemIndex(combo, item, &reason);
            return again(reason);
        }
        combo->setCurrentIndex(index);
        return {};
    };
}

StepAction picture(const QString& file, const QString& name)
{
    return [=](const StepContext& context) -> StepResult {
        QWidget* const widget = name.isEmpty() ? context.window : WidgetFinder::find(name);
        if (!widget) {
            return again(QStringLiteral("no widget \"%1\"").arg(name));
        }
        return (name.isEmpty() ? pictureOf(widget) : widget->grab()).save(file)
                   ? StepResult{}
                   : failed(QStringLiteral("the picture \"%1\" cannot be written").arg(file));
    };
}

}  // namespace StepActions
