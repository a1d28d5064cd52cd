#include "session/Reach.h"

#include <UiApiStandIn.h>

#include <QApplication>
#include <QLocale>
#include <QMenu>
#include <QMenuBar>
#include <QSet>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

namespace Reach {
namespace {

int rank(const QWidget* widget)
{
    return (widget->isVisible() ? 2 : 0) +
           (widget->window() == QApplication::activeWindow() ? 1 : 0);
}

/// The number of letters to insert, drop or change. Qt has no function for this.
int distance(const QString& from, const QString& to)
{
    std::vector<int> row(static_cast<size_t>(to.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (const QChar letter : from) {
        int diagonal = row[0]++;
        for (int j = 0; j < to.size(); ++j) {
            const auto at = static_cast<size_t>(j);
            const int changed = diagonal + (letter.toLower() == to[j].toLower() ? 0 : 1);
            diagonal = row[at + 1];
            row[at + 1] = std::min({changed, row[at] + 1, row[at + 1] + 1});
        }
    }
    return row.back();
}

/// Up to three names in use that are similar to `name`.
QStringList similarNames(const QString& name)
{
    QSet<QString> names;
    for (const QWidget* const widget : QApplication::allWidgets()) {
        const QString other = widget->objectName();
        if (!other.isEmpty() && !other.startsWith(QLatin1String("qt_")) &&
            distance(name, other) <= 4) {
            names.insert(other);
        }
    }
    QStringList sorted = names.values();
    std::sort(sorted.begin(), sorted.end(), [&](const QString& a, const QString& b) {
        return std::make_pair(distance(name, a), a) < std::make_pair(distance(name, b), b);
    });
    return sorted.mid(0, 3);
}

bool offers(const QWidget* canvas, const char* signature)
{
    return canvas->metaObject()->indexOfMethod(signature) >= 0;
}

QPoint viewPoint(QWidget* canvas, const QPointF& place)
{
    QPoint position;
    if (!offers(canvas, "viewPoint(double,double)")) {
        never(QStringLiteral("\"%1\" does not know places on the board: it has no method "
                             "viewPoint(double,double)")
                  .arg(canvas->objectName()));
    }
    QMetaObject::invokeMethod(canvas, "viewPoint", Qt::DirectConnection,
                              Q_RETURN_ARG(QPoint, position), Q_ARG(double, place.x()),
                              Q_ARG(double, place.y()));
    return position;
}

QPoint positionOf(const Target& target, QWidget* widget)
{
    if (target.kind == Target::Centre) {
        return widget->rect().center();
    }
    const bool board = target.kind == Target::Board;
    const QPoint position = board ? viewPoint(widget, target.place) : target.place.toPoint();
    if (!target.mayLeave && !widget->rect().contains(position)) {
        never(board ? QStringLiteral("\"%1\" does not show %2")
                          .arg(target.name, placeText(target.place))
                    : QStringLiteral("\"%1\" is only %2 x %3 wide and high")
                          .arg(target.name)
                          .arg(widget->width())
                          .arg(widget->height()));
    }
    return position;
}

QString number(double value)
{
    // A nanometre is finer than any board's tolerance; adding 0 takes the sign of -0.
    return QString::number(std::round(value * 1000) / 1000 + 0.0, 'f',
                           QLocale::FloatingPointShortest);
}

}  // namespace

QWidget* findWidget(const QString& name)
{
    QWidget* best = nullptr;
    for (QWidget* const widget : QApplication::allWidgets()) {
        if (widget->objectName() == name && (!best || rank(widget) > rank(best))) {
            best = widget;
        }
    }
    return best;
}

QWidget* widget(const QString& name)
{
    QWidget* const found = findWidget(name);
    if (!found) {
        const QString similar = similarNames(name).join(QStringLiteral(", "));
        notYet(QStringLiteral("no widget \"%1\"").arg(name) +
               (similar.isEmpty() ? QString() : QStringLiteral("; there is ") + similar));
    }
    return found;
}

void requireFree(const QWidget* widget)
{
    const QString name = widget->objectName();
    if (!widget->isVisible()) {
        notYet(QStringLiteral("\"%1\" is not visible").arg(name));
    }
    if (!widget->isEnabled()) {
        notYet(QStringLiteral("\"%1\" is disabled").arg(name));
    }
    const QWidget* const modal = QApplication::activeModalWidget();
    const QWidget* holder = widget;
    while (modal && holder != modal) {
        if (!holder) {
            notYet(QStringLiteral("\"%1\" is blocked by the window \"%2\"")
                       .arg(name, modal->windowTitle()));
        }
        holder = holder->parentWidget();
    }
}

QWidget* reach(const QString& name)
{
    QWidget* const reached = widget(name);
    requireFree(reached);
    // A window manager makes a window active when it is clicked. Menus and lists never are.
    QWidget* const window = reached->window();
    if (!window->isActiveWindow() && window->windowType() != Qt::Popup) {
        window->raise();
        window->activateWindow();
        QApplication::setActiveWindow(window);
    }
    return reached;
}

Place reach(const Target& target)
{
    QWidget* const reached = reach(target.name);
    const QPoint position = positionOf(target, reached);
    const QWidget* const window = reached->window();
    QWidget* const hit = window->childAt(reached->mapTo(window, position));
    if (!target.mayLeave && reached != window && hit != reached && !reached->isAncestorOf(hit)) {
        notYet(QStringLiteral("\"%1\" is covered or out of sight").arg(target.name));
    }
    return {reached, position};
}

const QString canvasName = QStringLiteral("m_pBoardView");

std::optional<QPointF> boardPlace(QWidget* canvas, const QPoint& position)
{
    if (!offers(canvas, "boardPoint(QPoint)") || !offers(canvas, "viewPoint(double,double)")) {
        return {};
    }
    QPointF place;
    QMetaObject::invokeMethod(canvas, "boardPoint", Qt::DirectConnection,
                              Q_RETURN_ARG(QPointF, place), Q_ARG(QPoint, position));
    return place;
}

QString placeText(const QPointF& place)
{
    return number(place.x()) + QLatin1Char(' ') + number(place.y());
}

double length(const QString& word)
{
    double factor = 1.0;
    QString digits = word;
    for (const CanvasHost::LengthUnit& unit : CanvasHost::lengthUnits()) {
        const QLatin1String suffix(unit.name);
        if (word.endsWith(suffix)) {
            factor = unit.micrometres;
            digits = word.chopped(suffix.size());
            break;
        }
    }
    bool ok = false;
    const double micrometres = digits.toDouble(&ok) * factor;
    if (!ok || !std::isfinite(micrometres)) {
        malformed(
            QStringLiteral("\"%1\" is not a length (a number, and um, mm, mil or inch)").arg(word));
    }
    return micrometres;
}

QString textOf(const QAction* entry)
{
    QString text = entry->text().section(QLatin1Char('\t'), 0, 0);
    return text.replace(QLatin1String("&&"), QLatin1String("\x01"))
        .remove(QLatin1Char('&'))
        .replace(QLatin1Char('\x01'), QLatin1Char('&'));
}

QAction* entry(const QMenu* menu, const QString& name)
{
    QStringList entries;
    for (QAction* const action : menu->actions()) {
        const bool named = textOf(action) == name || action->objectName() == name;
        if (named && action->isEnabled() && action->isVisible()) {
            return action;
        }
        if (!action->isSeparator()) {
            entries.append(textOf(action));
        }
    }
    never(QStringLiteral("no entry \"%1\" to choose in the menu; there is %2")
              .arg(name, entries.join(QStringLiteral(", "))));
}

QMenuBar* barOf(const QMenu* menu)
{
    for (QWidget* const holder : menu->menuAction()->associatedWidgets()) {
        if (auto* const bar = qobject_cast<QMenuBar*>(holder)) {
            return bar;
        }
    }
    return nullptr;
}

}  // namespace Reach
