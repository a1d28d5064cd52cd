#include "Driver.h"

#include "UserActions.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QStandardItemModel>
#include <QTest>

namespace {

/// Lets everything happen that is due, deletions included.
void settle()
{
    QApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
}

}  // namespace

void Driver::step(const QString& what, const std::function<void()>& action, int boxes)
{
    m_boxes.take();
    m_report.run(Row::PairSurvives, what, [&] {
        action();
        settle();
    });
    m_report.expect(Row::PairBoxes, what + QStringLiteral(": boxes"), boxes, m_boxes.take());
    m_report.expect(Row::PairWarnings, what + QStringLiteral(": warnings"), QStringList(),
                    m_log.takeWarnings());
}

void Driver::click(QWidget& widget)
{
    QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, QPoint(5, widget.height() / 2));
}

void Driver::type(QWidget& field, const QString& text, bool byReturn)
{
    field.setFocus(Qt::TabFocusReason);
    // A window system may take its time to make the window active.
    static_cast<void>(QTest::qWaitFor([&field] { return field.hasFocus(); }));
    auto* const edit = qobject_cast<QLineEdit*>(&field);
    (edit ? edit : field.findChild<QLineEdit*>())->selectAll();
    if (text.isEmpty()) {
        QTest::keyClick(&field, Qt::Key_Delete);
    }
    QTest::keyClicks(&field, text);
    QTest::keyClick(&field, byReturn ? Qt::Key_Return : Qt::Key_Tab);
}

void Driver::choose(QWidget& comboBox, int index)
{
    auto& combo = static_cast<QComboBox&>(comboBox);
    const QModelIndex item = combo.model()->index(index, combo.modelColumn());
    if (!item.flags().testFlag(Qt::ItemIsEnabled)) {
        combo.setCurrentIndex(index);
        return;
    }
    combo.setFocus(Qt::TabFocusReason);
    for (int i = 0; i < combo.count() && combo.currentIndex() != index; ++i) {
        QTest::keyClick(&combo, combo.currentIndex() < index ? Qt::Key_Down : Qt::Key_Up);
    }
}

bool Driver::clickMenu(QWidget& button, int index)
{
    bool isClicked = false;
    QTimer opened;
    QObject::connect(&opened, &QTimer::timeout, &opened, [&] {
        auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu) {
            return;
        }
        opened.stop();
        QAction* const action = menu->actions().value(index);
        isClicked = action != nullptr;
        if (action) {
            QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier,
                              menu->actionGeometry(action).center());
        } else {
            menu->close();
        }
    });
    opened.start(1);
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(3, 3),
                            button.mapToGlobal(QPoint(3, 3)));
    QApplication::sendEvent(&button, &event);
    return isClicked;
}

QWidget* Driver::windowOf(const char* className)
{
    for (QWidget* const widget : QApplication::allWidgets()) {
        if (widget->inherits(className) && widget->isVisible()) {
            return widget;
        }
    }
    return nullptr;
}

QWidget* Driver::open(QWidget& button, const char* className)
{
    const QString what =
        QStringLiteral("a click on %1 opens %2").arg(button.objectName(), QLatin1String(className));
    step(what, [&] { click(button); });
    QWidget* const window = windowOf(className);
    m_report.expect(Row::PairWindows, what, true, window != nullptr);
    if (window) {
        static_cast<void>(QTest::qWaitForWindowActive(window));
    }
    return window;
}

void Driver::close(QWidget& window)
{
    const QPointer<QWidget> self(&window);
    const QString what =
        QStringLiteral("%1 is closed").arg(QLatin1String(window.metaObject()->className()));
    step(what, [&] { window.close(); });
    m_report.expect(Row::PairWindows, what + QStringLiteral(": is visible"), false,
                    self && self->isVisible());
}

QString Driver::chooseFrom(QWidget& window, int row)
{
    const QPointer<QWidget> self(&window);
    QAbstractItemView* const list = UserActions::listOf(window);
    if (!list || row >= list->model()->rowCount()) {
        return QString();
    }
    const QModelIndex index = list->model()->index(row, 0);
    const QString name = index.data().toString();
    step(QStringLiteral("\"%1\" is chosen").arg(name), [&] {
        m_log.takeRecords();
        UserActions::choose(window, *list, index, [&] { return !self || m_log.hasRecords(); });
    });
    return name;
}
