#include "Main.h"
#include "board/BoardFile.h"
#include "board/EditOps.h"
#include "board/GerberExport.h"
#include "board/Placement.h"

#include <random>

using namespace Pcb;

namespace {

using Random = std::mt19937;

int upTo(Random& random, int most)
{
    return static_cast<int>(random() % static_cast<unsigned>(most + 1));
}

/// Some entries of a record, most of them meaningful.
QMap<QString, QVariant> anyRecord(Random& random)
{
    struct Entry {
        const char* key;
        int most;
    };
    static constexpr Entry entries[] = {
        {"Features", 5},     {"Polarity", 1},      {"Mirror", 2},        {"MirrorRotate", 360},
        {"Line", 4},         {"Closed", 1},        {"AngleGroup", 6},    {"Angel(deg)", 360},
        {"CornerType", 4},   {"CornerRadius", 99}, {"SlotLength", 5},    {"SlotAngle", 90},
        {"PadNx", 4},        {"PadNy", 4},         {"PadDx", 900},       {"PadDy", 900},
        {"PadXscl", 3},      {"PadYscl", 3},       {"SurfaceShape", 3},  {"Arc&Circle", 2},
        {"ArcMode", 7},      {"CircleMode", 4},    {"ClockWise", 2},     {"StringXSize", 900},
        {"BarcodeMode", 5},  {"AddString", 2},     {"AddBackground", 2}, {"AddMarkers", 2},
        {"OrbotechType", 2}, {"CannedHoleMode", 2}};
    QMap<QString, QVariant> record;
    for (const Entry& entry : entries) {
        record.insert(QLatin1String(entry.key), QString::number(upTo(random, entry.most)));
    }
    const QStringList symbols = {QStringLiteral("r10"), QStringLiteral("s20"),
                                 QStringLiteral("ring_r60x30"), QStringLiteral("logo"),
                                 QStringLiteral("octagon80x50x10_30")};
    const QStringList formats = {QStringLiteral("1"), QStringLiteral("BarcodeMode"),
                                 QStringLiteral("3"), QStringLiteral("4")};
    record.insert(QStringLiteral("SymbolText"), symbols.at(upTo(random, symbols.size() - 1)));
    record.insert(QStringLiteral("TextFormat"), formats.at(upTo(random, formats.size() - 1)));
    record.insert(QStringLiteral("TextContains"), QStringLiteral("A1"));
    return record;
}

}  // namespace

class RandomPlacingTest : public QObject {
    Q_OBJECT

private slots:
    void whateverIsPlacedCanBeSavedExportedAndEdited_data()
    {
        QTest::addColumn<int>("seed");
        for (const int seed : {1, 2, 3, 4, 5}) {
            QTest::addRow("seed %d", seed) << seed;
        }
    }

    void whateverIsPlacedCanBeSavedExportedAndEdited()
    {
        QFETCH(int, seed);
        Random random(static_cast<unsigned>(seed));
        Placement placement;
        Board board;
        for (int step = 0; step < 600; ++step) {
            act(random, placement, board);
        }
        QVERIFY(board.features.size() > 50);
        for (const Feature& feature : board.features) {
            QVERIFY(!feature.area().isEmpty());
            QVERIFY(std::isfinite(feature.bounds().width()) && feature.bounds().width() > 0);
            const QPointF middle = feature.bounds().center();
            QVERIFY(mirrored(mirrored(feature, 50), 50).kind() == feature.kind());
            broken(feature, middle);
            stretched(feature, nearerEnd(feature, middle), middle);
        }
        for (int index = 0; index < static_cast<int>(board.features.size()); ++index) {
            const auto left = deletedToIntersection(board, index, {500, 500});
            QCOMPARE(left.has_value(),
                     board.features[static_cast<size_t>(index)].kind() == Kind::Line);
        }
        QVERIFY(fromJson(toJson(board)) == board);
        QVERIFY(!toGerber(board).isEmpty());
    }

private:
    static void act(Random& random, Placement& placement, Board& board)
    {
        const QPointF point(upTo(random, 20) * 100, upTo(random, 20) * 100);
        Features made;
        switch (upTo(random, 9)) {
            case 0:
                placement.setBrush(readBrush(anyRecord(random)));
                break;
            case 1:
                made = placement.finish();
                break;
            case 2:
                made = placement.fill();
                break;
            case 3:
                placement.move(point);
                placement.preview();
                break;
            default:
                made = placement.press(point);
        }
        board = withAdded(board, made);
    }
};

CTS_MAIN(RandomPlacingTest)
#include "test_random_placing.moc"
