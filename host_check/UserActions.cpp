#include "UserActions.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

namespace {

/// Presses and releases the left button at the entry; `press` tells a second click from a first.
void click(QAbstractItemView& list, const QModelIndex& index, QEvent::Type press)
{
    list.scrollTo(index);
    const QPoint place = list.visualRect(index).center();
    for (const QEvent::Type kind : {press, QEvent::MouseButtonRelease}) {
        QMouseEvent event(kind, place, list.viewport()->mapToGlobal(place), Qt::LeftButton,
                          kind == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(list.viewport(), &event);
    }
}

}  // namespace

namespace UserActions {

void pressKey(QWidget& widget, int key, const QString& text)
{
    for (const QEvent::Type kind : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(kind, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(&widget, &event);
    }
}

void type(QWidget& widget, const QString& text)
{
    for (const QChar character : text) {
        pressKey(widget, 0, character);
    }
}

bool hasList(const QWidget& window)
{
    return window.findChild<QAbstractItemView*>() != nullptr;
}

QAbstractItemView* listOf(const QWidget& window)
{
    for (auto* const list : window.findChildren<QAbstractItemView*>()) {
        if (list->model() && list->model()->rowCount() > 0) {
            return list;
        }
    }
    return nullptr;
}

QStringList namesIn(const QWidget& window)
{
    QStringList names;
    if (const QAbstractItemView* const list = listOf(window)) {
        for (int row = 0; row < list->model()->rowCount(); ++row) {
            names.append(list->model()->index(row, 0).data().toString());
        }
    }
    return names;
}

void choose(QWidget& window, QAbstractItemView& list, const QModelIndex& index,
            const QStringList& chosen)
{
    window.show();
    list.setCurrentIndex(index);
    if (chosen.isEmpty()) {
        pressKey(list, Qt::Key_Return);
    }
    // The second click makes the first one a double click.
    for (const QEvent::Type press : {QEvent::MouseButtonPress, QEvent::MouseButtonDblClick}) {
        if (chosen.isEmpty()) {
            click(list, index, press);
        }
    }
    for (auto* const button : window.findChildren<QAbstractButton*>()) {
        if (!chosen.isEmpty()) {
            return;
        }
        window.show();
        list.setCurrentIndex(index);
        button->click();
    }
}

void close(QWidget& window)
{
    window.close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

}  // namespace UserActions
