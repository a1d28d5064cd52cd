// A list of items under mouse, keyboard and wheel, without a dialog around it.

#include "FakeDoor.h"
#include "FindChild.h"
#include "Main.h"
#include "addfeature/fields/ChoiceField.h"

#include <QAbstractItemView>
#include <QWheelEvent>

namespace {

const QStringList freeItems = {"Start", "Middle", "End"};
const QStringList greyedItems = {"Start again", "Edge"};

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

/// In the open list, with the arrow key.
void goDown(QComboBox& combo, const QString& item)
{
    combo.showPopup();
    for (int i = combo.findText(item); i > 0; --i) {
        QTest::keyClick(combo.view(), Qt::Key_Down);
    }
    QTest::keyClick(combo.view(), Qt::Key_Return);
    combo.hidePopup();
}

/// The first word, then the first letter again and again.
void typeAhead(QComboBox& combo, const QString& item)
{
    QTest::keyClicks(&combo, item.section(' ', 0, 0));
    QTest::qWait(QApplication::keyboardInputInterval() + 10);
    QTest::keyClicks(&combo, QString(combo.count(), item.at(0)));
    QTest::qWait(QApplication::keyboardInputInterval() + 10);
}

void press(QComboBox& combo, Qt::Key key, int times = 1)
{
    for (int i = 0; i < times; ++i) {
        QTest::keyClick(&combo, key);
    }
}

void turnWheel(QComboBox& combo, int notches = 1)
{
    const QPointF middle = combo.rect().center();
    for (int i = 0; i < notches; ++i) {
        QWheelEvent event(middle, combo.mapToGlobal(middle.toPoint()), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&combo, &event);
    }
}

/// A list in a window that is shown.
struct ShownList {
    ShownList() { window.show(); }
    QString stored() { return door.record().text("Key"); }

    FakeDoor door;
    QWidget window;
    ChoiceField combo{
        door,
        &window,
        {"m_pAnyCMB", Caption::spoken("Any"), "Key", SLOT(on_Any_Changed()), Sends::Always},
        {{"Start", "1"},
         {"Middle", "2"},
         {"End", "3"},
         {"Start again", "4", false},
         {"Edge", "5", false}},
        ChoiceField::Stores::Text};
};

}  // namespace

class TestByHand : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setKeyboardInputInterval(20); }

    void eachWayStoresAndSendsOnce()
    {
        ShownList list;
        click(list.combo, "End");
        QCOMPARE(list.stored(), QString("3"));
        press(list.combo, Qt::Key_Up);
        QCOMPARE(list.stored(), QString("2"));
        turnWheel(list.combo);
        QCOMPARE(list.stored(), QString("3"));
        QCOMPARE(list.door.takeCalls(), (QStringList{"record", "record", "record"}));
    }

    void aDisabledListTakesNoInput()
    {
        ShownList list;
        list.combo.setEnabled(false);
        press(list.combo, Qt::Key_Down);
        turnWheel(list.combo);
        QTest::mouseClick(&list.combo, Qt::LeftButton);
        QVERIFY(!QApplication::activePopupWidget());
        QCOMPARE(list.combo.currentText(), QString("Start"));
        QCOMPARE(list.door.takeCalls(), QStringList());
    }

    /// The ways lead to the last free item: they work, and they end there.
    void theLastFreeItemIsReached()
    {
        ShownList list;
        QComboBox& combo = list.combo;
        const auto start = [&] { combo.setCurrentIndex(0); };
        press(combo, Qt::Key_Down, 10);
        QCOMPARE(combo.currentText(), freeItems.last());
        for (const Qt::Key key : {Qt::Key_End, Qt::Key_PageDown, Qt::Key_Right}) {
            start();
            press(combo, key, 10);
            QVERIFY2(freeItems.contains(combo.currentText()), qPrintable(combo.currentText()));
        }
        start();
        turnWheel(combo, 10);
        QCOMPARE(combo.currentText(), freeItems.last());
        start();
        click(combo, freeItems.last());
        QCOMPARE(combo.currentText(), freeItems.last());
    }

    void aGreyedItemIsNotReached()
    {
        ShownList list;
        QComboBox& combo = list.combo;
        QCOMPARE(itemTexts(combo), freeItems + greyedItems);
        for (const QString& item : greyedItems) {
            combo.setCurrentIndex(0);
            click(combo, item);
            QCOMPARE(combo.currentText(), freeItems.first());
            goDown(combo, item);
            QVERIFY2(freeItems.contains(combo.currentText()), qPrintable(item));
            typeAhead(combo, item);
            QVERIFY2(freeItems.contains(combo.currentText()), qPrintable(item));
            combo.setCurrentText(item);  // a program may do it
            QCOMPARE(combo.currentText(), item);
        }
        QCOMPARE(itemTexts(combo), freeItems + greyedItems);
    }
};

CTS_TEST(TestByHand);
#include "test_by_hand.moc"
