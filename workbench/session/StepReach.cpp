#include "session/StepReach.h"

#include "session/BoardPlaces.h"
#include "session/WidgetFinder.h"

#include <QApplication>
#include <QWidget>

namespace StepReach {
namespace {

bool positionOf(const Target& target, const QWidget* widget, QPoint* position, StepResult* result)
{
    QString reason;
    switch (target.kind) {
        case Target::Centre:
            *position = widget->rect().center();
            return true;
        case Target::Pixels:
            *position = target.place.toPoint();
            break;
        case Target::Board:
            if (!BoardPlaces::toWidget(widget, target.place, position, &reason)) {
                *result = failed(reason);
                return false;
            }
            break;
    }
    if (target.mayLeave || widget->rect().contains(*position)) {
        return true;
    }
    *result = target.kind == Target::Board
                  ? failed(QStringLiteral("\"%1\" does not show %2")
                               .arg(target.name, BoardPlaces::text(target.place)))
                  : failed(QStringLiteral("\"%1\" is only %2 x %3 wide and high")
                               .arg(target.name)
                               .arg(widget->width())
                               .arg(widget->height()));
    return false;
}

}  // namespace

StepResult again(const QString& reason)
{
    return {StepResult::Again, reason};
}

StepResult failed(const QString& reason)
{
    return {StepResult::Failed, reason};
}

QWidget* find(const QString& name, StepResult* result)
{
    QWidget* const widget = WidgetFinder::find(name);
    if (!widget) {
        const QStringList similar = WidgetFinder::similarNames(name);
        *result =
            again(QStringLiteral("no widget \"%1\"%2")
                      .arg(name, similar.isEmpty() ? QString()
                                                   : QStringLiteral("; there is %1")
                                                         .arg(similar.join(QStringLiteral(", ")))));
    }
    return widget;
}

QWidget* reach(const QString& name, StepResult* result)
{
    QWidget* const widget = find(name, result);
    if (!widget) {
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

QWidget* reach(const Target& target, QPoint* position, StepResult* result)
{
    QWidget* const widget = reach(target.name, result);
    if (!widget || !positionOf(target, widget, position, result)) {
        return nullptr;
    }
    const QPoint inWindow = widget->mapTo(widget->window(), *position);
    QWidget* const hit = widget->window()->childAt(inWindow);
    if (!target.mayLeave && widget != widget->window() && hit != widget &&
        !widget->isAncestorOf(hit)) {
        *result = again(QStringLiteral("\"%1\" is covered or out of sight").arg(target.name));
        return nullptr;
    }
    return widget;
}

}  // namespace StepReach
