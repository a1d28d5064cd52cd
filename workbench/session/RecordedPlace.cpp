#include "session/RecordedPlace.h"

#include "session/Reach.h"

#include <QPushButton>
#include <QToolButton>

namespace {

bool isPlainButton(const QWidget* widget)
{
    const auto* const tool = qobject_cast<const QToolButton*>(widget);
    return qobject_cast<const QPushButton*>(widget) ||
           (tool && tool->popupMode() != QToolButton::MenuButtonPopup);
}

}  // namespace

RecordedPlace::RecordedPlace(QWidget* hit, const QPoint& global)
    : m_widget(named(hit)), m_global(global)
{
}

RecordedPlace RecordedPlace::movedTo(const QPoint& global) const
{
    RecordedPlace place = *this;
    place.m_global = global;
    return place;
}

QStringList RecordedPlace::click(const QString& step) const
{
    return isPlainButton(m_widget) ? QStringList{step, m_widget->objectName()} : exact(step);
}

QStringList RecordedPlace::exact(const QString& step, const QString& last) const
{
    QStringList words;
    const QPoint position = m_widget->mapFromGlobal(m_global);
    const std::optional<QPointF> place = m_widget->objectName() == Reach::canvasName
                                             ? Reach::boardPlace(m_widget, position)
                                             : std::nullopt;
    if (place) {
        words = QStringList{QStringLiteral("canvas"), step} +
                Reach::placeText(*place).split(QLatin1Char(' '));
    } else {
        words = QStringList{step, m_widget->objectName(), QString::number(position.x()),
                            QString::number(position.y())};
    }
    if (!last.isEmpty()) {
        words.append(last);
    }
    return words;
}

QStringList RecordedPlace::wheel(double notches) const
{
    QStringList words = exact(QStringLiteral("wheel"));
    const bool canvas = words.first() == QLatin1String("canvas");
    words.insert(canvas ? words.size() : 2, QString::number(notches));
    return words;
}

QWidget* RecordedPlace::named(QWidget* widget)
{
    for (; widget; widget = widget->isWindow() ? nullptr : widget->parentWidget()) {
        const QString name = widget->objectName();
        if (!name.isEmpty() && !name.startsWith(QLatin1String("qt_")) &&
            Reach::findWidget(name) == widget) {
            return widget;
        }
    }
    return nullptr;
}
