// Which reports that editing has finished are entries, without a dialog around the fields.

#include "AnyField.h"
#include "FakeDoor.h"
#include "Main.h"
#include "addfeature/fields/LengthField.h"
#include "addfeature/fields/TextField.h"

#include <utility>

class TestReports : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aRefusalIsHandledOnceAndWhatIsPendingElsewhereAfterIt()
    {
        FakeDoor door;
        QWidget page;
        LengthField refused(door, &page, upTo50000(Sends::Never), "5");
        TextField pending(door, &page, other(Sends::Always), LineField::Pattern::Text, "a");
        type(pending, "b");
        door.accepts = false;
        door.onBox = [&] {
            refused.finish();  // the box takes the focus
            pending.finish();
            pending.finish();
            QCOMPARE(door.record().text("Other"), QString("a"));
        };
        refused.setText("99");
        refused.finish();
        QCOMPARE(door.takeCalls(), (QStringList{"length 99 up to 50000", "record"}));
        QCOMPARE(door.record().text(anyKey), QString("0"));
        QCOMPARE(door.record().text("Other"), QString("b"));
    }

    void anEntryThatIsPendingIsCheckedItself()
    {
        FakeDoor door;
        QWidget page;
        LengthField first(door, &page, upTo50000(Sends::Never), "5");
        LengthField second(door, &page, other(Sends::Never).within(0, 10000), "5");
        door.accepts = false;
        bool isFirstBox = true;
        door.onBox = [&] {
            if (std::exchange(isFirstBox, false)) {
                second.finish();
            } else {
                second.finish();  // its own box, its own report
            }
        };
        first.setText("98");
        type(second, "99");
        first.finish();
        QCOMPARE(door.takeCalls(), (QStringList{"length 98 up to 50000", "length 99 up to 10000"}));
        QCOMPARE(second.text(), QString("0"));
    }

    void aHandlerThatThrowsLosesNothing()
    {
        FakeDoor door;
        QWidget page;
        TextField pending(door, &page, other(Sends::Never), LineField::Pattern::Text, "a");
        type(pending, "b");
        bool hasThrown = false;
        try {
            door.refusals().run(nullptr, [&] {
                door.refusals().box([&] { pending.finish(); });
                throw 7;
            });
        } catch (int) {
            hasThrown = true;
        }
        QVERIFY(hasThrown);
        QCOMPARE(door.record().text("Other"), QString("b"));
        pending.setText("c");
        pending.finish();  // and the next entry is taken at once
        QCOMPARE(door.record().text("Other"), QString("c"));
    }

    void anEntryThatAUnitChangeMakesUntypableIsTakenOnLeaving()
    {
        FakeDoor door;
        QWidget page;
        LengthField field(door, &page, upTo50000(Sends::WhenAccepted).pattern("^[1-9][0-9]*|0$"),
                          "0");
        type(field, "1");
        door.hostUnits.tell(true);
        field.changeUnit(true);
        QCOMPARE(field.text(), QString("25.4"));
        QVERIFY(!field.hasAcceptableInput());
        QCOMPARE(door.takeCalls(), QStringList());

        QFocusEvent left(QEvent::FocusOut, Qt::TabFocusReason);
        QApplication::sendEvent(&field, &left);
        QCOMPARE(door.record().text(anyKey), QString("25.4"));
        QCOMPARE(door.takeCalls(), (QStringList{"length 25.4 up to 50000", "record"}));
        QApplication::sendEvent(&field, &left);  // once
        QCOMPARE(door.takeCalls(), QStringList());
    }

    void anEntryThatAUnitChangeConvertsStaysAnEntry()
    {
        FakeDoor door;
        QWidget page;
        LengthField field(door, &page, upTo50000(Sends::WhenAccepted), "0");
        type(field, "10");
        door.hostUnits.tell(true);
        field.changeUnit(true);
        QCOMPARE(field.text(), QString("254"));
        door.refusals().run(nullptr, [&] {
            door.refusals().box([&] { field.finish(); });  // what is no entry is no report here
            QCOMPARE(door.record().text(anyKey), QString("0"));
        });
        QCOMPARE(door.record().text(anyKey), QString("254"));
    }

    void anEntryThatTheUserLeftUntypableIsNotTaken()
    {
        FakeDoor door;
        QWidget page;
        LengthField field(door, &page,
                          upTo50000(Sends::WhenAccepted).pattern("[1-9]|[1-9][.][0-9]"), "0");
        type(field, "1.");
        QVERIFY(!field.hasAcceptableInput());
        field.changeUnit(true);
        QFocusEvent left(QEvent::FocusOut, Qt::TabFocusReason);
        QApplication::sendEvent(&field, &left);
        QCOMPARE(door.takeCalls(), QStringList());
        QCOMPARE(door.record().text(anyKey), QString("0"));
    }

    void aBoxOfTheReceiversMakesNoSecondEntry()
    {
        FakeDoor door;
        QWidget page;
        LengthField field(door, &page, upTo50000(Sends::Always), "5");
        door.onSend = [&] { field.finish(); };  // its box takes the focus
        type(field, "10");
        field.finish();
        QCOMPARE(door.takeCalls(), (QStringList{"length 10 up to 50000", "record"}));
    }

    /// A modal window in which the host shows everything is no box.
    void aModalWindowDoesNotBlockItsOwnFields()
    {
        FakeDoor door;
        QWidget window;
        window.setWindowModality(Qt::ApplicationModal);
        window.show();
        QWidget page(&window, Qt::Window);
        LengthField field(door, &page, upTo50000(Sends::Always), "5");
        QVERIFY(!door.refusals().isBoxOver(field));
        field.finish();
        QCOMPARE(door.takeCalls(), (QStringList{"length 5 up to 50000", "record"}));

        QWidget elsewhere;
        LengthField blocked(door, &elsewhere, other(Sends::Always).within(0, 50000), "5");
        QVERIFY(door.refusals().isBoxOver(blocked));
        blocked.finish();
        QCOMPARE(door.takeCalls(), QStringList());
        type(blocked, "6");
        blocked.finish();
        QCOMPARE(door.takeCalls(), (QStringList{"length 6 up to 50000", "record"}));
    }
};

CTS_TEST(TestReports);
#include "test_reports.moc"
