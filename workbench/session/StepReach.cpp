#include "session/StepReach.h"

#include "session/BoardPlaces.h"
#include "session/WidgetFinder.h"

#include <QApplication>
#include <QWidget>

namespace StepReach {
namespace {

QPoint onBoard(const QWidget* widget, const QPointF& place)
{
    const std::optional<QPoint> position = BoardPlaces::toWidget(widget, place);
    if (!position) {
        never(QStringLiteral("\"%1\" does not know places on the board: it has no method "
                             "viewPoint(double,double)")
                  .arg(widget->objectName()));
    }
    return *position;
}

QPoint positionOf(const Target& target, const QWidget* widget)
{
    if (target.kind == Target::Centre) {
        return widget->rect().center();
    }
    const bool board = target.kind == Target::Board;
    const QPoint position = board ? onBoard(widget, target.place) : target.place.toPoint();
    if (!target.mayLeave && !widget->rect().contains(position)) {
        never(board ? QStringLiteral("\"%1\" does not show %2")
                          .arg(target.name, BoardPlaces::text(target.place))
                    : QStringLiteral("\"%1\" is only %2 x %3 wide and high")
                          .arg(target.name)
                          .arg(widget->width())
                          .arg(widget->height()));
    }
    return position;
}

}  // namespace

QWidget* find(const QString& name)
{
    QWidget* const widget = WidgetFinder::find(name);
    if (!widget) {
        const QString similar = WidgetFinder::similarNames(name).join(QStringLiteral(", "));
        notYet(QStringLiteral("no widget \"%1\"").arg(name) +
               (similar.isEmpty() ? QString() : QStringLiteral("; there is ") + similar));
    }
    return widget;
}

QWidget* reach(const QString& name)
{
    QWidget* const widget = find(name);
    const QString obstacle = WidgetFinder::obstacle(widget);
    if (!obstacle.isEmpty()) {
        notYet(obstacle);
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

Place reach(const Target& target)
{
    QWidget* const widget = reach(target.name);
    const QPoint position = positionOf(target, widget);
    const QWidget* const window = widget->window();
    QWidget* const hit = window->childAt(widget->mapTo(window, position));
    if (!target.mayLeave && widget != window && hit != widget && !widget->isAncestorOf(hit)) {
        notYet(QStringLiteral("\"%1\" is covered or out of sight").arg(target.name));
    }
    return {widget, position};
}

}  // namespace StepReach
