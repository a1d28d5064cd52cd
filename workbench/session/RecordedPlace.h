#pragma once

#include <QPoint>
#include <QPointer>
#include <QStringList>
#include <QWidget>

/// Where the mouse was, in the words of a session.
class RecordedPlace {
public:
    RecordedPlace() = default;
    /// `hit` is the widget under the mouse. The place is given by the nearest widget around it that
    /// a session finds by its name; there may be none, see isValid().
    RecordedPlace(QWidget* hit, const QPoint& global);

    bool isValid() const { return m_widget != nullptr; }
    QWidget* widget() const { return m_widget; }
    QPoint global() const { return m_global; }
    /// The same widget at another place; for drags.
    RecordedPlace movedTo(const QPoint& global) const;

    /// The words of a step at this place: "click NAME [x y]", or "canvas click X Y". A plain button
    /// needs no position.
    QStringList click(const QString& step) const;
    /// The same with the position in any case, `last` after it when it is not empty.
    QStringList exact(const QString& step, const QString& last = {}) const;
    /// "wheel NAME NOTCHES x y", or "canvas wheel X Y NOTCHES"
    QStringList wheel(double notches) const;

    /// The nearest of `widget` and its parents that a session finds by name; null for none.
    static QWidget* named(QWidget* widget);

private:
    QPointer<QWidget> m_widget;
    QPoint m_global;
};
