#pragma once

#include <QSize>
#include <QSizePolicy>
#include <QVector>

#include <functional>

class QAbstractButton;
class QBoxLayout;
class QComboBox;
class QGridLayout;
class QLayout;
class QLineEdit;
class QSpacerItem;
class QWidget;

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
    /// What a place of a layout holds: the number of a widget or layout, or a space.
    struct Content {
        int widget = -1;
        int layout = -1;
        Qt::Alignment alignment;
        QSize space;
        QSizePolicy policy;
    };
    struct Cell {
        int row = 0;
        int column = 0;
        int rows = 1;
        int columns = 1;
    };

    void add(const QWidget& original);
    void addSizes(const QWidget& original);
    void addContent(const QWidget& original);
    void addLineEdit(const QLineEdit& original);
    void addComboBox(const QComboBox& original);
    void addButton(const QAbstractButton& original);
    void addState(const QWidget& original);
    void addBuddiesAndGroups();
    /// Of the widget with that number; -1: nested in another. Returns the number of the copy.
    int addLayout(const QLayout& original, int widget);
    void addItem(const QLayout& original, int position, int number);
    static QSpacerItem* makeSpacer(const Content& content);
    static void put(const Made& made, const Content& content, const Cell& cell, QGridLayout& grid);
    static void put(const Made& made, const Content& content, int stretch, QBoxLayout& box);

    /// Notes a call for the widget made last.
    template <class Widget, class Call>
    void note(Call call)
    {
        m_calls.append([=](Made& made) { call(static_cast<Widget&>(*made.widgets.last())); });
    }

    QVector<const QWidget*> m_originals;  // while they are walked
    int m_layoutCount = 0;
    QVector<std::function<void(Made&)>> m_calls;
};
