// Fonts and special texts: the job's lists, and the windows to choose from them.

#include "DialogFixture.h"
#include "Expect.h"
#include "Main.h"
#include "RaiseCounter.h"
#include "plugin/MessageCodes.h"
#include "plugin/RecordKeys.h"

#include <CamApiStandIn.h>
#include <common_widgets.h>

#include <QListWidget>
#include <QPushButton>

namespace Sent = MessageCodes::Sent;

namespace {

QVector<Widget_listpopup*> openWindows()
{
    QVector<Widget_listpopup*> found;
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        if (auto* const popup = qobject_cast<Widget_listpopup*>(widget)) {
            found.append(popup);
        }
    }
    return found;
}

QStringList namesIn(const QWidget& popup, const char* listName)
{
    QStringList names;
    const auto& list = findNamed<QListWidget>(popup, listName);
    for (int row = 0; row < list.count(); ++row) {
        names.append(list.item(row)->text());
    }
    return names;
}

}  // namespace

class TestFontsAndSpecialTextsPage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fontsAreFetchedAnew()
    {
        DialogFixture fixture;
        int fetched = 0;
        CanvasHost::camApiOverrides().get_fonts = [&](const std::string& job,
                                                      std::vector<std::string>& names) {
            ++fetched;
            names = {job};
        };
        fixture.enter("m_pFontLE", "job");
        QCOMPARE(fetched, 1);
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::Record});
        fixture.dialog->set_job_info("other", "step");
        fixture.dialog->on_m_pFontLE_editingFinished();
        QCOMPARE(fetched, 2);
        QCOMPARE(fixture.text("m_pFontLE"), QString());
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::Record});
    }

    void fontPopup()
    {
        DialogFixture fixture;
        fixture.chooseType("m_pTextTB");
        fixture.click("m_pFontPB");
        QPointer<Widget_listpopup> first = fixture.window.findChild<Widget_listpopup*>();
        QVERIFY(first && first->isVisible());
        QCOMPARE(first->parent(), &fixture.window);
        fixture.click("m_pFontPB");
        QVERIFY(!first);
        const auto popups = fixture.window.findChildren<Widget_listpopup*>();
        QCOMPARE(popups.size(), 1);
        Q_EMIT popups[0]->on_send_Font("simple");
        QCOMPARE(fixture.text("m_pFontLE"), QString("simple"));
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::Record});
        Expect::holds(fixture, {Expect::record(RecordKeys::stringTextFont, "simple")});
        fixture.dialog->close();
        QVERIFY(!popups[0]->isVisible());
    }

    void fontPopupThatSomeoneElseDeletes()
    {
        DialogFixture fixture;
        fixture.chooseType("m_pTextTB");
        fixture.click("m_pFontPB");
        delete fixture.window.findChild<Widget_listpopup*>();
        fixture.click("m_pFontPB");
        QCOMPARE(fixture.window.findChildren<Widget_listpopup*>().size(), 1);
    }

    void specialTextPopup()
    {
        QPointer<QWidget> popup;
        {
            DialogFixture fixture;
            fixture.chooseType("m_pTextTB");
            fixture.click("m_pTextPB");
            QCOMPARE(openWindows().size(), 1);
            popup = openWindows().at(0);
            QVERIFY(popup->isVisible());
            QVERIFY(!popup->parent());
            popup->hide();
            fixture.click("m_pTextPB");
            QCOMPARE(openWindows().size(), 1);
            QCOMPARE(openWindows().at(0), popup);
            QVERIFY(popup->isVisible());
            RaiseCounter counter;
            popup->installEventFilter(&counter);
            fixture.click("m_pTextPB");
            QCOMPARE(counter.count, 1);  // it may have been behind another window

            fixture.find<QLineEdit>("m_pTextLE").setText("before");
            auto& list = findNamed<QListWidget>(*popup, "m_pTextLW");
            list.setCurrentRow(1);
            QTest::mouseClick(&findNamed(*popup, "m_pOkPB"), Qt::LeftButton);
            QCOMPARE(fixture.text("m_pTextLE"), QString("$$DATE"));
            QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::Record});
            Expect::holds(fixture, {Expect::record(RecordKeys::textContains, "$$DATE")});
            fixture.dialog->close();
            QVERIFY(!popup->isVisible());
        }
        QVERIFY(!popup);  // deleted with the dialog
    }

    void specialTextBeyondTheValidator()
    {
        DialogFixture fixture;
        fixture.dialog->get_Special_TEXT(QString::fromUtf8("\u65e5\u671f|"));
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::Record});
        Expect::holds(fixture, {Expect::record(RecordKeys::textContains,
                                               QString::fromUtf8("$$\u65e5\u671f|"))});
    }

    void theOtherTextSlotDoesNothing()
    {
        DialogFixture fixture;
        fixture.chooseType("m_pTextTB");
        fixture.dialog->on_m_pTextPB_clicked();
        QVERIFY(fixture.recorder.messages().isEmpty());
        QVERIFY(openWindows().isEmpty());
        QVERIFY(!QObject::disconnect(&fixture.find("m_pTextPB"), SIGNAL(clicked()), fixture.dialog,
                                     SLOT(on_m_pTextPB_clicked())));
    }

    /// The fonts of the current job are listed.
    void aFreshFontListForEachClick()
    {
        DialogFixture fixture;
        fixture.chooseType("m_pTextTB");
        fixture.click("m_pFontPB");
        QCOMPARE(namesIn(*openWindows().at(0), "m_pFontLW"), (QStringList{"simple", "standard"}));
        fixture.dialog->set_job_info("other", "step");
        fixture.click("m_pFontPB");
        QCOMPARE(openWindows().size(), 1);
        QCOMPARE(namesIn(*openWindows().at(0), "m_pFontLW"), QStringList("wide"));
        QVERIFY(fixture.recorder.messages().isEmpty());
        QCOMPARE(fixture.text("m_pFontLE"), QString("standard"));
    }

    /// A font is taken as named, whether the job has it or not.
    void aChosenFontIsNotLookedUp()
    {
        DialogFixture fixture;
        fixture.chooseType("m_pTextTB");
        fixture.dialog->get_font_name("fancy");
        QCOMPARE(fixture.text("m_pFontLE"), QString("fancy"));
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::Record});
        Expect::holds(fixture, {Expect::record(RecordKeys::stringTextFont, "fancy")});
    }

    /// The field is read-only, but Enter finishes its editing all the same.
    void enterInTheFontField()
    {
        DialogFixture fixture;
        fixture.chooseType("m_pTextTB");
        fixture.focus("m_pFontLE");
        fixture.press(Qt::Key_X);
        fixture.leave(By::Enter);
        QCOMPARE(fixture.text("m_pFontLE"), QString("standard"));
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::Record});

        fixture.recorder.clear();
        fixture.dialog->set_job_info("other", "step");
        fixture.leave(By::Enter);
        QCOMPARE(fixture.text("m_pFontLE"), QString());
        QVERIFY(fixture.recorder.messages().isEmpty());
        Expect::holds(fixture, {Expect::record(RecordKeys::stringTextFont, "standard")});
        QVERIFY(fixture.boxes.take().isEmpty());
    }

    /// The window is created once: it keeps the job of that moment.
    void oneSpecialTextListForGood()
    {
        DialogFixture fixture;
        fixture.chooseType("m_pTextTB");
        fixture.click("m_pTextPB");
        const QStringList names = {"JOB", "DATE"};
        QCOMPARE(namesIn(*openWindows().at(0), "m_pTextLW"), names);
        fixture.dialog->set_job_info("other", "step");
        fixture.click("m_pTextPB");
        QCOMPARE(openWindows().size(), 1);
        QCOMPARE(namesIn(*openWindows().at(0), "m_pTextLW"), names);
        QVERIFY(fixture.recorder.messages().isEmpty());
    }

    void aSpecialTextTakesThePlaceOfWhatWasThere()
    {
        DialogFixture fixture;
        fixture.chooseType("m_pTextTB");
        for (const char* const name : {"abc", "", "$$x"}) {
            fixture.recorder.clear();
            fixture.dialog->get_Special_TEXT(name);
            QCOMPARE(fixture.text("m_pTextLE"), QString("$$") + name);
            QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::Record});
            Expect::holds(fixture,
                          {Expect::record(RecordKeys::textContains, QString("$$") + name)});
        }
    }

    void bothWindowsBesideEachOther()
    {
        DialogFixture fixture;
        fixture.chooseType("m_pTextTB");
        fixture.click("m_pTextPB");
        fixture.click("m_pFontPB");
        fixture.click("m_pFontPB");
        fixture.click("m_pTextPB");
        QCOMPARE(openWindows().size(), 2);
        for (const Widget_listpopup* const popup : openWindows()) {
            QVERIFY(popup->isVisible());
        }
    }
};

CTS_TEST(TestFontsAndSpecialTextsPage);
#include "test_fonts_and_special_texts_page.moc"
