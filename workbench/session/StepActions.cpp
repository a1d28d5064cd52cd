#include "session/StepActions.h"

#include "session/InputEvents.h"
#include "session/WidgetFinder.h"
#include "window/WindowPicture.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QCursor>
#include <QLineEdit>
#include <QMenu>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTextEdit>

namespace StepActions {
namespace {

StepResult again(const QString& reason)
{
    return {StepResult::Again, reason};
}

StepResult failed(const QString& reason)
{
    return {StepResult::Failed, reason};
}

/// The widget called `name` when a user could work on it now; null with the reason otherwise.
QWidget* reach(const QString& name, StepResult* result)
{
    QWidget* const widget = WidgetFinder::find(name);
    if (!widget) {
        const QStringList similar = WidgetFinder::similarNames(name);
        *result =
            again(QStringLiteral("no widget \"%1\"%2")
                      .arg(name, similar.isEmpty() ? QString()
                                                   : QStringLiteral("; there is %1")
                                                         .arg(similar.join(QStringLiteral(", ")))));
        return nullptr;
    }
    const QString obstacle = WidgetFinder::obstacle(widget);
    if (!obstacle.isEmpty()) {
        *result = again(obstacle);
        return nullptr;
    }
    // A window manager makes a window active when it is clicked. Menus and lists never are.
    QWidget* const window = widget->window();
    if (!window->isActiveWindow() && window->windowType() != Qt::Popup) {
        window->raise();
        window->activateWindow();
        QApplication::setActiveWindow(window);
    }
    return widget;
}

using Press = void (*)(QWidget* widget, const QPoint& position);

StepAction press(const Target& target, Press press)
{
    return [=](const StepContext&) -> StepResult {
        StepResult result;
        QWidget* const widget = reach(target.name, &result);
        if (!widget) {
            return result;
        }
        const QPoint position = target.centre ? widget->rect().center() : target.position;
        if (!widget->rect().contains(position)) {
            return failed(QStringLiteral("\"%1\" is only %2 x %3 wide and high")
                              .arg(target.name)
                              .arg(widget->width())
                              .arg(widget->height()));
        }
        const QPoint inWindow = widget->mapTo(widget->window(), position);
        QWidget* const hit = widget->window()->childAt(inWindow);
        if (widget != widget->window() && hit != widget && !widget->isAncestorOf(hit)) {
            return again(QStringLiteral("\"%1\" is covered or out of sight").arg(target.name));
        }
        press(widget, position);
        return {};
    };
}

QString plainText(const QAction* action)
{
    QString text = action->text().section(QLatin1Char('\t'), 0, 0);
    return text.replace(QLatin1String("&&"), QLatin1String("\x01"))
        .remove(QLatin1Char('&'))
        .replace(QLatin1Char('\x01'), QLatin1Char('&'));
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

bool hasText(const QWidget* widget)
{
    const auto* const combo = qobject_cast<const QComboBox*>(widget);
    return (combo && combo->isEditable()) || qobject_cast<const QLineEdit*>(widget) ||
           qobject_cast<const QAbstractSpinBox*>(widget) ||
           qobject_cast<const QTextEdit*>(widget) || qobject_cast<const QPlainTextEdit*>(widget);
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

Target target(const QStringList& words)
{
    if (words.size() < 3) {
        return {words.value(0), {}, true};
    }
    return {words[0], {words[1].toInt(), words[2].toInt()}, false};
}

StepAction click(const Target& target)
{
    return press(target, [](QWidget* widget, const QPoint& position) {
        InputEvents::click(widget, position);
    });
}

StepAction doubleClick(const Target& target)
{
    return press(target, InputEvents::doubleClick);
}

StepAction rightClick(const Target& target)
{
    return press(target, [](QWidget* widget, const QPoint& position) {
        // A menu opens where the mouse stands.
        QCursor::setPos(widget->mapToGlobal(position));
        InputEvents::click(widget, position, Qt::RightButton);
    });
}

StepAction pickEntry(const QString& text)
{
    return [=](const StepContext&) -> StepResult {
        QMenu* const menu = openMenu();
        if (!menu) {
            return again(QStringLiteral("no menu opened"));
        }
        QStringList entries;
        for (QAction* const action : menu->actions()) {
            const QString entry = plainText(action);
            if (entry == text && action->isEnabled()) {
                InputEvents::click(menu, menu->actionGeometry(action).center());
                return {};
            }
            if (!action->isSeparator()) {
                entries.append(entry);
            }
        }
        menu->close();
        return failed(QStringLiteral("no entry \"%1\" to choose in the menu; there is %2")
                          .arg(text, entries.join(QStringLiteral(", "))));
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

StepAction type(const QString& name, const QString& text)
{
    return [=](const StepContext&) -> StepResult {
        StepResult result;
        QWidget* const widget = reach(name, &result);
        if (!widget || !focus(widget, &result)) {
            return result;
        }
        QWidget* const window = widget->window();
        if (hasText(widget)) {
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
