#include "UserActions.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QTest>

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
            const std::function<bool()>& isChosen)
{
    window.show();
    list.setCurrentIndex(index);
    if (!isChosen()) {
        QTest::keyClick(&list, Qt::Key_Return);
    }
    // The second click makes the first one a double click.
    for (const QEvent::Type press : {QEvent::MouseButtonPress, QEvent::MouseButtonDblClick}) {
        if (!isChosen()) {
            click(list, index, press);
        }
    }
    if (isChosen()) {
        return;  // and the window may be gone
    }
    for (auto* const button : window.findChildren<QAbstractButton*>()) {
        if (isChosen()) {
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

bool isHostWindow(const QWidget& window)
{
    return window.inherits("Widget_Attributes") || window.inherits("Widget_SymbolSelection") ||
           window.inherits("Widget_listpopup") || window.inherits("Grc_Tbe_measurepopup");
}

}  // namespace UserActions
