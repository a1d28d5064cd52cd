#include "session/WidgetFinder.h"

#include <QApplication>
#include <QSet>
#include <QStringList>
#include <QWidget>

#include <algorithm>
#include <numeric>
#include <vector>

namespace WidgetFinder {
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

bool belongsTo(const QWidget* widget, const QWidget* window)
{
    while (widget && widget != window) {
        widget = widget->parentWidget();
    }
    return widget != nullptr;
}

}  // namespace

QWidget* find(const QString& name)
{
    QWidget* best = nullptr;
    for (QWidget* const widget : QApplication::allWidgets()) {
        if (widget->objectName() == name && (!best || rank(widget) > rank(best))) {
            best = widget;
        }
    }
    return best;
}

QString obstacle(const QWidget* widget)
{
    const QString name = widget->objectName();
    if (!widget->isVisible()) {
        return QStringLiteral("\"%1\" is not visible").arg(name);
    }
    if (!widget->isEnabled()) {
        return QStringLiteral("\"%1\" is disabled").arg(name);
    }
    const QWidget* const modal = QApplication::activeModalWidget();
    if (modal && !belongsTo(widget, modal)) {
        return QStringLiteral("\"%1\" is blocked by the window \"%2\"")
            .arg(name, modal->windowTitle());
    }
    return {};
}

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

}  // namespace WidgetFinder
