#include "ByHand.h"

#include <QAbstractItemView>
#include <QTest>

namespace ByHand {

void click(QComboBox& combo, const QString& item)
{
    combo.showPopup();
    QWidget* const list = combo.view()->viewport();
    // An item may be wider than the list.
    const QModelIndex index = combo.model()->index(combo.findText(item), 0);
    const QRect place = combo.view()->visualRect(index) & list->rect();
    QVERIFY(!place.isEmpty());
    QTest::mouseMove(list, place.center());
    QTest::mouseClick(list, Qt::LeftButton, Qt::NoModifier, place.center());
    combo.hidePopup();
}

void goDown(QComboBox& combo, const QString& item)
{
    combo.showPopup();
    for (int i = combo.findText(item); i > 0; --i) {
        QTest::keyClick(combo.view(), Qt::Key_Down);
    }
    QTest::keyClick(combo.view(), Qt::Key_Return);
    combo.hidePopup();
}

void typeAhead(QComboBox& combo, const QString& item)
{
    QTest::keyClicks(&combo, item.section(' ', 0, 0));
    QTest::qWait(QApplication::keyboardInputInterval() + 10);
    QTest::keyClicks(&combo, QString(combo.count(), item.at(0)));
    QTest::qWait(QApplication::keyboardInputInterval() + 10);
}

void press(QComboBox& combo, Qt::Key key, int times)
{
    for (int i = 0; i < times; ++i) {
        QTest::keyClick(&combo, key);
    }
}

void turnWheel(QComboBox& combo, int notches)
{
    const QPointF middle = combo.rect().center();
    for (int i = 0; i < notches; ++i) {
        QWheelEvent event(middle, combo.mapToGlobal(middle.toPoint()), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&combo, &event);
    }
}

}  // namespace ByHand
