// The rules between the fields of each page, without a dialog around it.

#include "AllPages.h"
#include "AnyField.h"
#include "Main.h"
#include "plugin/RecordKeys.h"

#include <QAbstractButton>
#include <QLabel>

#include <utility>

namespace {

const QStringList barcodeTypes = {"UPC39", "UPC39 ascii", "CODE128B", "CODE128C", "ECC-200"};

QStringList shownGroups(const LinePage& page)
{
    QStringList shown;
    for (const char* const name : {"m_pDirectionGroup", "m_pCornerGroup", "m_pSlotGroup"}) {
        if (page.findChild<QWidget*>(name)->isVisibleTo(&page)) {
            shown.append(name);
        }
    }
    return shown;
}

}  // namespace

class TestRules : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void lineKind_data()
    {
        QTest::addColumn<QString>("item");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("group");
        QTest::addColumn<bool>("mayBeClosed");
        QTest::addColumn<QStringList>("hidden");
        const QStringList placing = {"hide placement rows"};
        const QStringList all = QStringList("hide attribute rows") + placing;
        QTest::newRow("single") << "Single Line" << LineKind::single << "m_pDirectionGroup" << false
                                << placing;
        QTest::newRow("polyline") << "Polyline" << LineKind::polyline << "m_pDirectionGroup" << true
                                  << placing;
        QTest::newRow("rectangle")
            << "Rectangle" << LineKind::rectangle << "m_pCornerGroup" << false << placing;
        QTest::newRow("slot") << "Slot" << LineKind::slot << "m_pSlotGroup" << false << all;
    }

    void lineKind()
    {
        QFETCH(QString, item);
        QFETCH(QString, value);
        QFETCH(QString, group);
        QFETCH(bool, mayBeClosed);
        QFETCH(QStringList, hidden);
        AllPages pages;
        ChoiceField& kinds = *pages.line.m_pLineCMB;
        kinds.setCurrentText(item == "Single Line" ? "Polyline" : "Single Line");
        pages.door.takeCalls();
        QString valueWhenSent;
        pages.door.onSend = [&] { valueWhenSent = pages.door.record().text(RecordKeys::line); };
        kinds.setCurrentText(item);
        QCOMPARE(pages.door.takeCalls(), QStringList("restore") + hidden + QStringList("record"));
        QCOMPARE(valueWhenSent, value);
        QCOMPARE(shownGroups(pages.line), QStringList(group));
        QCOMPARE(pages.line.m_pClosedCB->isEnabled(), mayBeClosed);
    }

    void noLineKind()
    {
        AllPages pages;
        ChoiceField& kinds = *pages.line.m_pLineCMB;
        QVERIFY(!pages.line.m_pClosedCB->isEnabled());
        QCOMPARE(shownGroups(pages.line), QStringList("m_pDirectionGroup"));
        kinds.setCurrentText("Polyline");
        pages.door.takeCalls();
        kinds.setCurrentIndex(-1);
        QCOMPARE(pages.door.takeCalls(), (QStringList{"restore", "record"}));
        QCOMPARE(pages.door.record().text(RecordKeys::line), LineKind::polyline);
        QCOMPARE(shownGroups(pages.line), QStringList("m_pDirectionGroup"));
        QVERIFY(pages.line.m_pClosedCB->isEnabled());
    }

    /// The kind is stored before a group is hidden, which may have an entry to send.
    void whatAHiddenGroupSendsHasTheNewKind()
    {
        AllPages pages;
        LinePage& page = pages.line;
        pages.window.show();
        QApplication::setActiveWindow(&pages.window);
        QVERIFY(QTest::qWaitForWindowActive(&pages.window));
        page.m_pLineCMB->setCurrentText("Rectangle");
        page.m_pCornerTypeCMB->setCurrentText("Round");
        page.m_pCornerRadiusLE->setFocus();
        type(*page.m_pCornerRadiusLE, "10");
        pages.door.takeCalls();
        QStringList kindsWhenSent;
        pages.door.onSend = [&] {
            kindsWhenSent.append(pages.door.record().text(RecordKeys::line));
        };
        page.m_pLineCMB->setCurrentText("Polyline");
        QCOMPARE(kindsWhenSent, (QStringList{LineKind::polyline, LineKind::polyline}));
        QCOMPARE(pages.door.takeCalls(),
                 (QStringList{"restore", "hide placement rows", "length 10 up to 50000", "record",
                              "record"}));
    }

    void aDialogThatIsGoneSendsNothing()
    {
        FakeDoor door;
        LinePage page(door);
        door.survives = false;
        page.chooseKind();
        QCOMPARE(door.takeCalls(), QStringList("restore"));
    }

    void theFixedDirectionHasAnAngle()
    {
        const AllPages pages;
        const auto hasAngle = [&](bool is) {
            QCOMPARE(pages.line.m_pAngleLE->isEnabled(), is);
            QCOMPARE(pages.line.m_pAngleLE->label()->isEnabled(), is);
        };
        hasAngle(false);
        for (const char* const other : {"m_pVerticalRB", "m_pHorizontalRB", "m_pFreeDirectionRB",
                                        "m_pVerticalHorizontalRB", "m_pEightDirectionsRB"}) {
            pages.find<QAbstractButton>("m_pFixedAngleRB").click();
            hasAngle(true);
            pages.find<QAbstractButton>(other).click();
            hasAngle(false);
        }
    }

    void roundAndChamferedCornersHaveARadius()
    {
        const AllPages pages;
        const auto hasRadius = [&](const QString& corner, bool is) {
            const LengthField& radius = *pages.line.m_pCornerRadiusLE;
            pages.line.m_pCornerTypeCMB->setCurrentIndex(
                pages.line.m_pCornerTypeCMB->findText(corner));
            QCOMPARE(radius.isEnabled(), is);
            QCOMPARE(radius.label()->isEnabled(), is);
            QCOMPARE(radius.unitLabel()->isEnabled(), is);
        };
        hasRadius("Straight", false);
        hasRadius("Round", true);
        hasRadius("Oblong", false);
        hasRadius("Chamfer", true);
        hasRadius("Straight", false);
        hasRadius("Chamfer", true);
        hasRadius("none", false);
    }

    void theOtherMethodIsGreyed()
    {
        const AllPages pages;
        const auto isArc = [&](bool is) {
            QCOMPARE(pages.arc.m_pArcCMB->isEnabled(), is);
            QCOMPARE(pages.arc.m_pCircleCMB->isEnabled(), !is);
        };
        isArc(true);
        pages.arc.m_pArcAndCircleCMB->setCurrentText("Circle");
        isArc(false);
        pages.arc.m_pArcAndCircleCMB->setCurrentIndex(-1);
        isArc(false);
        pages.arc.m_pArcAndCircleCMB->setCurrentText("Arc");
        isArc(true);
    }

    void onlyAMatrixHasMarkers()
    {
        AllPages pages;
        BarcodePage& page = *pages.text.m_barcode;
        pages.text.m_pTextFormatCMB->setCurrentText("Barcode");
        page.m_pUPCCMB->setCurrentText("ECC-200");
        page.m_pAddMarkersCB->setChecked(true);
        page.m_pMatrixLE->setText("12x12");
        page.m_pMatrixLE->finish();
        for (const QString& type : barcodeTypes) {
            page.m_pUPCCMB->setCurrentText(type);
            const bool isMatrix = type == "ECC-200";
            QCOMPARE(page.m_pAddMarkersCB->isEnabled(), isMatrix);
            QCOMPARE(page.m_pMatrixPB->isEnabled(), isMatrix);
            QCOMPARE(page.m_pMatrixLE->isEnabled(), isMatrix);
            QVERIFY(page.m_pBackgroundCB->isEnabled() && page.m_pAddStringCB->isEnabled());
            QVERIFY(page.m_pHeightLE->isEnabled());
            QCOMPARE(pages.door.record().text(RecordKeys::addMarkers), Added::yes);
            QCOMPARE(pages.door.record().text(RecordKeys::barcodeMatrix), QString("12x12"));
        }
        page.m_pUPCCMB->setCurrentIndex(-1);
        QVERIFY(!page.m_pAddMarkersCB->isEnabled() && !page.m_pMatrixLE->isEnabled());
        QCOMPARE(pages.door.takeCalls(), QStringList());
    }

    void aStringHasAPosition()
    {
        const AllPages pages;
        const BarcodePage& page = *pages.text.m_barcode;
        QVERIFY(!page.m_pPositionCMB->isEnabled());
        page.m_pAddStringCB->setChecked(true);
        QVERIFY(page.m_pPositionCMB->isEnabled());
        page.m_pAddStringCB->setChecked(false);
        QVERIFY(!page.m_pPositionCMB->isEnabled());
    }

    /// Of whatever type, even where the markers can no longer be changed.
    void theMarkersDecideOnTheBackground()
    {
        for (const QString& type : barcodeTypes) {
            AllPages pages;
            BarcodePage& page = *pages.text.m_barcode;
            page.m_pUPCCMB->setCurrentText(type);
            QCOMPARE(pages.stored(RecordKeys::addBackground), AllPages::described(Added::no));
            QVERIFY(!page.m_pBackgroundCB->isChecked());
            const auto change = [&](QCheckBox* box, bool checked) {
                box->setChecked(checked);
                return std::pair(pages.door.record().text(RecordKeys::addMarkers),
                                 pages.door.record().text(RecordKeys::addBackground));
            };
            const std::pair none(Added::no, Added::no);
            QCOMPARE(change(page.m_pBackgroundCB, true), none);
            QCOMPARE(change(page.m_pAddMarkersCB, true), std::pair(Added::yes, Added::no));
            QCOMPARE(change(page.m_pBackgroundCB, false), std::pair(Added::yes, Added::yes));
            QCOMPARE(change(page.m_pBackgroundCB, true), std::pair(Added::yes, Added::yes));
            QCOMPARE(change(page.m_pAddMarkersCB, false), std::pair(Added::no, Added::yes));
            QCOMPARE(change(page.m_pBackgroundCB, false), none);
            QCOMPARE(pages.door.takeCalls(), QStringList());
        }
    }

    /// The zoom that is shown, which the record need not know yet.
    void theHoleModeStoresTheZoom()
    {
        AllPages pages;
        pages.text.m_plotStamp->m_pOrbotechZoomCMB->setCurrentText("7");
        for (const char* const mode : {"6 X 7", "5 X 7"}) {
            pages.door.record().set(RecordKeys::orbotechZoom, 1);
            pages.text.m_cannedText->m_pCannedHoleSizeCMB->setCurrentText(mode);
            QCOMPARE(pages.stored(RecordKeys::orbotechZoom), QString("int 7"));
        }
        pages.door.record().set(RecordKeys::orbotechZoom, 1);
        pages.text.m_cannedText->m_pCannedHoleSizeCMB->setCurrentIndex(-1);
        QCOMPARE(pages.stored(RecordKeys::orbotechZoom), QString("int 7"));
        QCOMPARE(pages.door.takeCalls(), QStringList());
    }

    void aFormatShowsItsPage()
    {
        AllPages pages;
        TextPage& page = pages.text;
        const struct {
            const char* item;
            const QWidget* page;
        } formats[] = {{"String", page.m_strings},
                       {"Canned Text", page.m_cannedText},
                       {"Orbotech Plot Stamp", page.m_plotStamp},
                       {"Barcode", page.m_barcode}};
        const auto isShown = [&](const QWidget* chosen) {
            for (const auto& format : formats) {
                QCOMPARE(format.page->isVisibleTo(&page), format.page == chosen);
            }
            QCOMPARE(page.m_pFontPB->isEnabled(), chosen == page.m_strings);
            QCOMPARE(page.m_pFontLE->isEnabled(), chosen == page.m_strings);
            QCOMPARE(page.m_barcode->m_pUPCCMB->isEnabled(), chosen == page.m_barcode);
            QVERIFY(page.m_pTextPB->isEnabled() && page.m_pTextLE->isEnabled());
        };
        isShown(page.m_strings);
        for (const auto& format : formats) {
            page.m_pTextFormatCMB->setCurrentText(format.item);
            isShown(format.page);
            // Only a barcode has a type, which is a number once it is chosen.
            QCOMPARE(pages.stored(RecordKeys::barcodeMode),
                     QString(format.page == page.m_barcode ? "int 1" : "QString 1"));
        }
        page.m_pTextFormatCMB->setCurrentIndex(-1);
        QVERIFY(page.m_barcode->isVisibleTo(&page));
        QVERIFY(!page.m_pFontLE->isEnabled() && !page.m_barcode->m_pUPCCMB->isEnabled());
        page.m_pTextFormatCMB->setCurrentText("String");
        isShown(page.m_strings);
        QCOMPARE(pages.door.takeCalls(), QStringList());
    }

    /// Hiding the page of the strings finishes an entry there, which is sent with the old format.
    void theBarcodesPageIsShownBeforeTheFormatIsStored()
    {
        FakeDoor door;
        TextPage page(door);
        door.route(SLOT(on_Textformart_ComboBox_Changed()), [&] { page.chooseFormat(); });
        page.show();
        QApplication::setActiveWindow(&page);
        QVERIFY(QTest::qWaitForWindowActive(&page));
        LengthField& size = *page.m_strings->m_pXSizeLE;
        QString formatWhenSent;
        door.onSend = [&] { formatWhenSent = door.record().text(RecordKeys::textFormat); };
        for (const auto& [format, whenSent] :
             {std::pair("Barcode", TextKind::string),
              std::pair("Orbotech Plot Stamp", TextKind::plotStamp)}) {
            page.m_pTextFormatCMB->setCurrentText("String");
            size.setFocus();
            QTest::keyClicks(&size, "1");
            page.m_pTextFormatCMB->setCurrentText(format);
            QCOMPARE(formatWhenSent, whenSent);
        }
    }

    void changingTheUnitOfAPageSendsAndStoresNothing()
    {
        FakeDoor door;
        LinePage line(door);
        PadPage pad(door);
        TextPage text(door);
        const QList<QLineEdit*> angles{line.m_pAngleLE, line.m_pSlotAngleLE, line.m_pSlotDecodeLE};
        for (QLineEdit* const angle : angles) {
            angle->setText("12.5");
        }
        const QVariantMap before = door.record().map();
        for (Page* const page : std::initializer_list<Page*>{&line, &pad, &text}) {
            page->changeUnit(true);
        }
        for (const QLineEdit* const angle : angles) {
            QCOMPARE(angle->text(), QString("12.5"));
        }
        for (const QLineEdit* const plain : std::initializer_list<const QLineEdit*>{
                 pad.m_pDrilNxLE, pad.m_pDrilNyLE, pad.m_pDrilXsclLE, pad.m_pDrilYsclLE}) {
            QCOMPARE(plain->text(), QString("1"));
        }
        QCOMPARE(line.m_pCornerRadiusLE->unitLabel()->text(), QString("my"));
        QCOMPARE(line.m_pLengthLE->unitLabel()->text(), QString("mm"));
        QCOMPARE(pad.m_pDrilDyLE->unitLabel()->text(), QString("my"));
        QCOMPARE(text.m_strings->m_pXSizeLE->text(), QString("5080"));
        QCOMPARE(text.m_barcode->m_pHeightLE->text(), QString("6350"));
        QCOMPARE(text.m_barcode->m_pHeightLE->unitLabel()->text(), QString("mil"));
        QCOMPARE(text.m_cannedText->m_pCannedHoleSizeLE->text(), QString("508"));
        QCOMPARE(door.takeCalls(), QStringList());
        QCOMPARE(door.record().map(), before);
    }

    void theRecordHasAKeyForEachFieldOfThePages()
    {
        QCOMPARE(AllPages().door.record().map().size(), 39);  // all but the frame's six
    }
};

CTS_TEST(TestRules);
#include "test_rules.moc"
