// What each item, check box and button of the pages stores, without a dialog around them.

#include "AllPages.h"
#include "Main.h"
#include "plugin/RecordKeys.h"

#include <QAbstractButton>
#include <QCheckBox>

#include <utility>

using Stores = ChoiceField::Stores;

namespace {

struct Item {
    const char* text;
    QString value;
    bool isFree = true;  // or greyed
};

struct List {
    const char* combo;
    QString key;
    Sends sends;
    Stores stores;
    QList<Item> items;
};

struct Flag {
    const char* box;
    QString key;
    Sends sends;
    bool isOnAtFirst;
    QString on;
    QString off;
};

QList<Item> numbersTo(int last)
{
    static const char* const texts[] = {"1", "2", "3", "4", "5", "6", "7"};
    QList<Item> items;
    for (int i = 0; i < last; ++i) {
        items.append(Item{texts[i], texts[i]});
    }
    return items;
}

const List lists[] = {
    {"m_pLineCMB",
     RecordKeys::line,
     Sends::Always,
     Stores::Text,
     {{"Single Line", LineKind::single},
      {"Polyline", LineKind::polyline},
      {"Rectangle", LineKind::rectangle},
      {"Slot", LineKind::slot, false}}},
    {"m_pCornerTypeCMB",
     RecordKeys::cornerType,
     Sends::Always,
     Stores::TextThenNumber,
     {{"Straight", CornerType::straight},
      {"Round", CornerType::round},
      {"Chamfer", CornerType::chamfer},
      {"Oblong", CornerType::oblong}}},
    {"m_pSlotPlatedCMB",
     RecordKeys::slotPlated,
     Sends::Never,
     Stores::Text,
     {{"Plated", SlotPlated::yes}, {"Non Plated", SlotPlated::no}}},
    {"m_pSurfShapeCMB",
     RecordKeys::surfaceShape,
     Sends::Always,
     Stores::Text,
     {{"Rectangle", SurfaceKind::rectangle},
      {"Polygon", SurfaceKind::polygon},
      {"Circle", SurfaceKind::circle}}},
    {"m_pArcAndCircleCMB",
     RecordKeys::arcAndCircle,
     Sends::Always,
     Stores::Text,
     {{"Arc", ArcOrCircle::arc}, {"Circle", ArcOrCircle::circle}}},
    {"m_pArcCMB",
     RecordKeys::arcMode,
     Sends::Always,
     Stores::Text,
     {{"Start, Center, End", ArcMode::startCenterEnd},
      {"Start, End, Edge", ArcMode::startEndEdge},
      {"Start, End, Center", ArcMode::startEndCenter},
      {"Start, Center, Angle", ArcMode::startCenterAngle, false},
      {"Start, Center, Length", ArcMode::startCenterLength, false},
      {"Start, End, Angle", ArcMode::startEndAngle, false},
      {"Start, End, Radius", ArcMode::startEndRadius, false}}},
    {"m_pCircleCMB",
     RecordKeys::circleMode,
     Sends::Always,
     Stores::Text,
     {{"Center, Radius", CircleMode::centerRadius},
      {"Center, Point", CircleMode::centerPoint},
      {"Point, Center", CircleMode::pointCenter},
      {"Three Points", CircleMode::threePoints, false}}},
    {"m_pTextFormatCMB",
     RecordKeys::textFormat,
     Sends::Never,
     Stores::Text,
     {{"String", TextKind::string},
      {"Barcode", TextKind::barcode, false},
      {"Orbotech Plot Stamp", TextKind::plotStamp, false},
      {"Canned Text", TextKind::cannedText, false}}},
    {"m_pUPCCMB",
     RecordKeys::barcodeMode,
     Sends::Never,
     Stores::TextThenNumber,
     {{"UPC39", Symbology::upc39},
      {"UPC39 ascii", Symbology::upc39Ascii},
      {"CODE128B", Symbology::code128B},
      {"CODE128C", Symbology::code128C},
      {"ECC-200", Symbology::ecc200}}},
    {"m_pPositionCMB",
     RecordKeys::stringPosition,
     Sends::Never,
     Stores::Text,
     {{"Top", StringPosition::top}, {"Bottom", StringPosition::bottom}}},
    {"m_pOrbotechTypeCMB",
     RecordKeys::orbotechType,
     Sends::Never,
     Stores::TextElseNumber,
     {{"String", PlotStampType::string}, {"Barcode", PlotStampType::barcode}}},
    {"m_pOrbotechFontSizeCMB", RecordKeys::orbotechFontSize, Sends::Never, Stores::Number,
     numbersTo(4)},
    {"m_pOrbotechZoomCMB", RecordKeys::orbotechZoom, Sends::Never, Stores::Number, numbersTo(7)},
    {"m_pCannedHoleSizeCMB",
     RecordKeys::cannedHoleMode,
     Sends::Never,
     Stores::Text,
     {{"5 X 7", CannedHoleMode::fiveBySeven}, {"6 X 7", CannedHoleMode::sixBySeven}}},
};

const Flag flagRows[] = {
    {"m_pClosedCB", RecordKeys::closed, Sends::Always, false, Closed::yes, Closed::no},
    {"m_pClockWiseCB", RecordKeys::clockWise, Sends::Always, true, ClockWise::yes, ClockWise::no},
    {"m_pAddStringCB", RecordKeys::addString, Sends::Never, false, Added::yes, Added::no},
    {"m_pAddMarkersCB", RecordKeys::addMarkers, Sends::Never, false, Added::yes, Added::no},
};

// What the dialog sets to 0 for an item that is greyed.
constexpr int greyRole = Qt::UserRole - 1;

/// How often a change is sent.
int times(Sends sends)
{
    return sends == Sends::Always ? 1 : 0;
}

}  // namespace
Q_DECLARE_METATYPE(List)
Q_DECLARE_METATYPE(Flag)

class TestItems : public QObject {
    Q_OBJECT

    template <class Row, std::size_t count>
    static void addRows(const Row (&rows)[count], const char* Row::*name)
    {
        QTest::addColumn<Row>("row");
        for (const Row& row : rows) {
            QTest::newRow(row.*name) << row;
        }
    }

private Q_SLOTS:
    void items_data() { addRows(lists, &List::combo); }

    /// From the last item to the first, the last again, and none, as a program can choose.
    void items()
    {
        QFETCH(List, row);
        AllPages pages;
        auto& combo = pages.find<QComboBox>(row.combo);
        const auto& field = dynamic_cast<const Field&>(combo);
        const auto change = [&](int index) {
            const QMap<QString, QString> others = pages.others(row.key);
            combo.setCurrentIndex(index);
            QCOMPARE(pages.others(row.key), others);
            QCOMPARE(pages.door.takeCalls().count("record"), times(row.sends));
        };
        const bool isText = row.stores == Stores::Text || row.stores == Stores::TextElseNumber;
        const auto chosen = [&](const Item& item) {
            return AllPages::described(isText ? QVariant(item.value) : item.value.toInt());
        };
        const Item& first = row.items.first();
        QCOMPARE(combo.currentIndex(), 0);
        QCOMPARE(pages.stored(row.key), row.stores == Stores::TextThenNumber
                                            ? AllPages::described(first.value)
                                            : chosen(first));
        QCOMPARE(combo.count(), row.items.size());
        for (int index = combo.count() - 1; index >= 0; --index) {
            const Item& item = row.items[index];
            change(index);
            QCOMPARE(combo.currentText(), QString(item.text));
            QCOMPARE(combo.itemData(index, greyRole).isNull(), item.isFree);
            QCOMPARE(pages.stored(row.key), chosen(item));
            for (const Item& other : row.items) {
                QCOMPARE(field.is(other.value), &other == &item);
            }
        }
        change(combo.count() - 1);
        change(-1);
        QCOMPARE(pages.stored(row.key),
                 row.stores == Stores::Text ? chosen(row.items.last()) : "int 0");
    }

    void flags_data() { addRows(flagRows, &Flag::box); }

    void flags()
    {
        QFETCH(Flag, row);
        AllPages pages;
        auto& box = pages.find<QCheckBox>(row.box);
        const auto stored = [&] { return AllPages::described(box.isChecked() ? row.on : row.off); };
        QCOMPARE(box.isChecked(), row.isOnAtFirst);
        QCOMPARE(pages.stored(row.key), stored());
        for (const bool isOn : {!row.isOnAtFirst, row.isOnAtFirst}) {
            const QMap<QString, QString> others = pages.others(row.key);
            box.setChecked(isOn);
            QCOMPARE(pages.stored(row.key), stored());
            QCOMPARE(pages.others(row.key), others);
            QCOMPARE(pages.door.takeCalls().count("record"), times(row.sends));
        }
    }

    void directions()
    {
        AllPages pages;
        QCOMPARE(pages.line.m_pDirectionBG->checkedId(), 0);
        QCOMPARE(pages.stored(RecordKeys::angleGroup), AllPages::described(LineDirection::free));
        const std::pair<const char*, QString> buttons[] = {
            {"m_pVerticalRB", LineDirection::vertical},
            {"m_pHorizontalRB", LineDirection::horizontal},
            {"m_pVerticalHorizontalRB", LineDirection::verticalThenHorizontal},
            {"m_pEightDirectionsRB", LineDirection::eightDirections},
            {"m_pFixedAngleRB", LineDirection::fixed},
            {"m_pFreeDirectionRB", LineDirection::free}};
        for (const auto& [name, value] : buttons) {
            pages.find<QAbstractButton>(name).click();
            QCOMPARE(pages.stored(RecordKeys::angleGroup), AllPages::described(value.toInt()));
            QVERIFY2(pages.line.m_pDirectionBG->is(value), name);
            QCOMPARE(pages.door.takeCalls(), QStringList("direction"));
        }
    }
};

CTS_TEST(TestItems);
#include "test_items.moc"
