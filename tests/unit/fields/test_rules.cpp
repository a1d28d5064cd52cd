// The rules between the fields of each page, without a dialog around it.

#include "FakeDoor.h"
#include "Main.h"
#include "addfeature/pages/ArcPage.h"
#include "addfeature/pages/BarcodePage.h"
#include "addfeature/pages/CannedTextPage.h"
#include "addfeature/pages/LinePage.h"
#include "addfeature/pages/PadPage.h"
#include "addfeature/pages/PlotStampPage.h"
#include "addfeature/pages/StringPage.h"
#include "addfeature/pages/SurfacePage.h"
#include "addfeature/pages/TextPage.h"
#include "plugin/RecordKeys.h"

#include <QLabel>
#include <QPushButton>

namespace {

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
        FakeDoor door;
        LinePage page(door);
        door.route(SLOT(on_Line_ComboBox_Changed()), [&] { page.chooseKind(); });
        page.m_pLineCMB->setCurrentText(item == "Single Line" ? "Polyline" : "Single Line");
        door.takeCalls();
        page.m_pLineCMB->setCurrentText(item);
        QCOMPARE(door.takeCalls(), QStringList("restore") + hidden + QStringList("record"));
        QCOMPARE(door.record().text(RecordKeys::line), value);
        QCOMPARE(shownGroups(page), QStringList(group));
        QCOMPARE(page.m_pClosedCB->isEnabled(), mayBeClosed);
    }

    void noLineKind()
    {
        FakeDoor door;
        LinePage page(door);
        door.route(SLOT(on_Line_ComboBox_Changed()), [&] { page.chooseKind(); });
        page.m_pLineCMB->setCurrentText("Polyline");
        door.takeCalls();
        page.m_pLineCMB->setCurrentIndex(-1);
        QCOMPARE(door.takeCalls(), (QStringList{"restore", "record"}));
        QCOMPARE(door.record().text(RecordKeys::line), LineKind::polyline);
        QVERIFY(page.m_pClosedCB->isEnabled());
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
        FakeDoor door;
        LinePage page(door);
        QVERIFY(!page.m_pAngleLE->isEnabled());
        const QStringList directions = {LineDirection::free,
                                        LineDirection::vertical,
                                        LineDirection::horizontal,
                                        LineDirection::verticalThenHorizontal,
                                        LineDirection::eightDirections,
                                        LineDirection::fixed};
        for (int id = directions.size() - 1; id >= 0; --id) {
            const bool isFixed = directions[id] == LineDirection::fixed;
            page.m_pDirectionBG->button(id)->setChecked(true);
            page.m_pDirectionBG->change();
            QCOMPARE(door.record().map().value(RecordKeys::angleGroup),
                     QVariant(directions[id].toInt()));
            QCOMPARE(page.m_pAngleLE->isEnabled(), isFixed);
            QCOMPARE(page.m_pAngleLE->label()->isEnabled(), isFixed);
            QCOMPARE(door.takeCalls(), QStringList("direction"));
        }
    }

    void roundAndChamferedCornersHaveARadius()
    {
        FakeDoor door;
        LinePage page(door);
        QVERIFY(!page.m_pCornerRadiusLE->isEnabled());
        const auto choose = [&](const QString& corner, const QVariant& value, bool hasRadius) {
            page.m_pCornerTypeCMB->setCurrentIndex(page.m_pCornerTypeCMB->findText(corner));
            QCOMPARE(page.m_pCornerRadiusLE->isEnabled(), hasRadius);
            QCOMPARE(page.m_pCornerRadiusLE->unitLabel()->isEnabled(), hasRadius);
            QCOMPARE(door.record().map().value(RecordKeys::cornerType), value);
            QCOMPARE(door.takeCalls(), QStringList("record"));
        };
        choose("Round", CornerType::round.toInt(), true);
        choose("Chamfer", CornerType::chamfer.toInt(), true);
        choose("Oblong", CornerType::oblong.toInt(), false);
        choose("Straight", CornerType::straight.toInt(), false);
        choose("none", 0, false);
    }

    void theOtherMethodIsGreyed()
    {
        FakeDoor door;
        ArcPage page(door);
        QVERIFY(page.m_pArcCMB->isEnabled() && !page.m_pCircleCMB->isEnabled());
        page.m_pArcAndCircleCMB->setCurrentText("Circle");
        QVERIFY(!page.m_pArcCMB->isEnabled() && page.m_pCircleCMB->isEnabled());
        QCOMPARE(door.record().text(RecordKeys::arcAndCircle), ArcOrCircle::circle);
        page.m_pArcAndCircleCMB->setCurrentIndex(-1);
        QVERIFY(!page.m_pArcCMB->isEnabled() && page.m_pCircleCMB->isEnabled());
        QCOMPARE(door.record().text(RecordKeys::arcAndCircle), ArcOrCircle::circle);
        QCOMPARE(door.takeCalls(), (QStringList{"record", "record"}));
    }

    void onlyAMatrixHasMarkers()
    {
        FakeDoor door;
        BarcodePage page(door);
        QVERIFY(!page.m_pAddMarkersCB->isEnabled());
        const auto choose = [&](const QString& type, const QString& value, bool hasMarkers) {
            page.m_pUPCCMB->setCurrentText(type);
            QCOMPARE(door.record().map().value(RecordKeys::barcodeMode), QVariant(value.toInt()));
            QCOMPARE(page.m_pAddMarkersCB->isEnabled(), hasMarkers);
            QCOMPARE(page.m_pMatrixPB->isEnabled(), hasMarkers);
            QCOMPARE(page.m_pMatrixLE->isEnabled(), hasMarkers);
        };
        choose("ECC-200", Symbology::ecc200, true);
        choose("CODE128C", Symbology::code128C, false);
        choose("CODE128B", Symbology::code128B, false);
        choose("UPC39 ascii", Symbology::upc39Ascii, false);
        choose("UPC39", Symbology::upc39, false);
        QCOMPARE(door.takeCalls(), QStringList());
    }

    void aStringHasAPosition()
    {
        FakeDoor door;
        BarcodePage page(door);
        page.m_pAddStringCB->setChecked(true);
        QVERIFY(page.m_pPositionCMB->isEnabled());
        QCOMPARE(door.record().text(RecordKeys::addString), Added::yes);
        page.m_pAddStringCB->setChecked(false);
        QVERIFY(!page.m_pPositionCMB->isEnabled());
        QCOMPARE(door.record().text(RecordKeys::addString), Added::no);
    }

    void theMarkersDecideOnTheBackground()
    {
        FakeDoor door;
        BarcodePage page(door);
        door.route(SLOT(on_m_pBackgroundCB_CheckState_Changed(int)),
                   [&] { page.chooseBackground(); });
        const auto change = [&](QCheckBox* box, bool checked) {
            box->setChecked(checked);
            return door.record().text(RecordKeys::addMarkers) + ' ' +
                   door.record().text(RecordKeys::addBackground);
        };
        const QString none = Added::no + ' ' + Added::no;
        QCOMPARE(change(page.m_pBackgroundCB, true), none);
        QCOMPARE(change(page.m_pAddMarkersCB, true), Added::yes + ' ' + Added::no);
        QCOMPARE(change(page.m_pBackgroundCB, false), Added::yes + ' ' + Added::yes);
        QCOMPARE(change(page.m_pBackgroundCB, true), Added::yes + ' ' + Added::yes);
        QCOMPARE(change(page.m_pAddMarkersCB, false), Added::no + ' ' + Added::yes);
        QCOMPARE(change(page.m_pBackgroundCB, false), none);
        QCOMPARE(door.takeCalls(), QStringList());
    }

    void theHoleModeStoresTheZoom()
    {
        FakeDoor door;
        PlotStampPage stamp(door);
        CannedTextPage page(door, stamp);
        door.route(SLOT(on_m_pCannedHoleSizeCMB_ComboBox_Changed()),
                   [&] { page.chooseHoleMode(); });
        stamp.m_pOrbotechZoomCMB->setCurrentText("7");
        door.record().set(RecordKeys::orbotechZoom, 1);
        page.m_pCannedHoleSizeCMB->setCurrentText("6 X 7");
        QCOMPARE(door.record().map().value(RecordKeys::orbotechZoom), QVariant(7));
        QCOMPARE(door.record().text(RecordKeys::cannedHoleMode), CannedHoleMode::sixBySeven);
        QCOMPARE(door.takeCalls(), QStringList());
    }

    void aFormatShowsItsPage()
    {
        FakeDoor door;
        TextPage page(door);
        door.route(SLOT(on_Textformart_ComboBox_Changed()), [&] { page.chooseFormat(); });
        const struct {
            const char* item;
            QString value;
            const QWidget* page;
        } formats[] = {{"Canned Text", TextKind::cannedText, page.m_cannedText},
                       {"Orbotech Plot Stamp", TextKind::plotStamp, page.m_plotStamp},
                       {"Barcode", TextKind::barcode, page.m_barcode},
                       {"String", TextKind::string, page.m_strings}};
        for (const auto& format : formats) {
            page.m_pTextFormatCMB->setCurrentText(format.item);
            QCOMPARE(door.record().text(RecordKeys::textFormat), format.value);
            for (const auto& other : formats) {
                QCOMPARE(other.page->isVisibleTo(&page), &other == &format);
            }
            QCOMPARE(page.m_pFontPB->isEnabled(), format.value == TextKind::string);
            QCOMPARE(page.m_pFontLE->isEnabled(), format.value == TextKind::string);
            QCOMPARE(page.m_barcode->m_pUPCCMB->isEnabled(), format.value == TextKind::barcode);
        }
        page.m_pTextFormatCMB->setCurrentIndex(-1);
        QCOMPARE(door.record().text(RecordKeys::textFormat), TextKind::string);
        QVERIFY(!page.m_pFontLE->isEnabled());
        QCOMPARE(door.takeCalls(), QStringList());
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

    void countsAndFactorsHaveNoGroups()
    {
        FakeDoor door;
        const PadPage page(door);
        for (NumberField* const field :
             {page.m_pDrilNxLE, page.m_pDrilNyLE, page.m_pDrilXsclLE, page.m_pDrilYsclLE}) {
            field->selectAll();
            QTest::keyClicks(field, "1,5");
            QCOMPARE(field->text(), QString("15"));
        }
    }

    void changingTheUnitOfAPageSendsAndStoresNothing()
    {
        FakeDoor door;
        LinePage line(door);
        PadPage pad(door);
        TextPage text(door);
        const QVariantMap before = door.record().map();
        for (Page* const page : std::initializer_list<Page*>{&line, &pad, &text}) {
            page->changeUnit(true);
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
        FakeDoor door;
        const LinePage line(door);
        const PadPage pad(door);
        const SurfacePage surface(door);
        const ArcPage arc(door);
        const TextPage text(door);
        QCOMPARE(door.record().map().size(), 39);  // all but the frame's six
        QCOMPARE(door.record().text(RecordKeys::surfaceShape), SurfaceKind::rectangle);
    }
};

CTS_TEST(TestRules);
#include "test_rules.moc"
