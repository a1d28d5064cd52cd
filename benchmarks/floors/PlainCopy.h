#pragma once

#include <QVector>
#include <QWidget>

#include <functional>
#include <type_traits>

class QComboBox;
class QLayout;
class QValidator;

/// Floor of a window: for each widget of its tree a plain one of the same class in the same layout,
/// with the same texts, picture, validator and state. Nothing is connected, and the only names are
/// those for screen readers.
class PlainCopy {
public:
    /// Walks the window once, before it is shown, and notes the calls that make the copy.
    explicit PlainCopy(const QWidget& original);
    QWidget* make(QWidget* owner) const;

private:
    struct Made {
        QWidget* owner;
        QVector<QWidget*> widgets;
        QVector<QLayout*> layouts;
    };
    void add(const QWidget& original);
    void addProperties(const QWidget& original);
    void addValidator(const QValidator* original);
    void addItems(const QComboBox& original);
    void addBuddiesAndGroups();
    /// Of the widget with that number; -1: nested in another. Returns the number of the copy.
    int addLayout(const QLayout& original, int widget);
    void addItem(const QLayout& original, int position, int number);

    /// Notes a call for the widget made last.
    template <class Widget, class Call>
    void note(Call call)
    {
        m_calls.append([=](Made& made) { call(static_cast<Widget&>(*made.widgets.last())); });
    }

    /// Notes that the widget made last gets this property, if it has it, and another value than
    /// the one that it begins with.
    template <class Widget, class Value, class Argument>
    void copy(const QWidget& original, Value (Widget::*get)() const, void (Widget::*set)(Argument),
              const std::decay_t<Value>& first = {})
    {
        const auto* const found = qobject_cast<const Widget*>(&original);
        if (found && (found->*get)() != first) {
            note<Widget>([set, value = (found->*get)()](Widget& made) { (made.*set)(value); });
        }
    }

    QVector<const QWidget*> m_originals;  // while they are walked
    int m_layoutCount = 0;
    QVector<std::function<void(Made&)>> m_calls;
};
