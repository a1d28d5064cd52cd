#include "Main.h"
#include "board/BoardFile.h"
#include "board/EditOps.h"
#include "board/GerberExport.h"
#include "board/Placement.h"
#include "plugin/RecordKeys.h"

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
        QString key;
        int most;
    };
    static const Entry entries[] = {
        {RecordKeys::features, 5},      {RecordKeys::polarity, 1},
        {RecordKeys::mirror, 2},        {RecordKeys::mirrorRotate, 360},
        {RecordKeys::line, 4},          {RecordKeys::closed, 1},
        {RecordKeys::angleGroup, 6},    {RecordKeys::angle, 360},
        {RecordKeys::cornerType, 4},    {RecordKeys::cornerRadius, 99},
        {RecordKeys::slotLength, 5},    {RecordKeys::slotAngle, 90},
        {RecordKeys::padNx, 4},         {RecordKeys::padNy, 4},
        {RecordKeys::padDx, 900},       {RecordKeys::padDy, 900},
        {RecordKeys::padXscl, 3},       {RecordKeys::padYscl, 3},
        {RecordKeys::surfaceShape, 3},  {RecordKeys::arcAndCircle, 2},
        {RecordKeys::arcMode, 7},       {RecordKeys::circleMode, 4},
        {RecordKeys::clockWise, 2},     {RecordKeys::stringXSize, 900},
        {RecordKeys::barcodeMode, 5},   {RecordKeys::addString, 2},
        {RecordKeys::addBackground, 2}, {RecordKeys::addMarkers, 2},
        {RecordKeys::orbotechType, 2},  {RecordKeys::cannedHoleMode, 2}};
    QMap<QString, QVariant> record;
    for (const Entry& entry : entries) {
        record.insert(entry.key, QString::number(upTo(random, entry.most)));
    }
    const QStringList symbols = {QStringLiteral("r10"), QStringLiteral("s20"),
                                 QStringLiteral("ring_r60x30"), QStringLiteral("logo"),
                                 QStringLiteral("octagon80x50x10_30")};
    const QStringList formats = {TextKind::string, TextKind::barcode, TextKind::plotStamp,
                                 TextKind::cannedText};
    record.insert(RecordKeys::symbolText, symbols.at(upTo(random, symbols.size() - 1)));
    record.insert(RecordKeys::textFormat, formats.at(upTo(random, formats.size() - 1)));
    record.insert(RecordKeys::textContains, QStringLiteral("A1"));
    return record;
}

}  // namespace

class TestRandomPlacing : public QObject {
    Q_OBJECT

private Q_SLOTS:
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
            QVERIFY(!feature.isEmpty());
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
        substitute(withAdded(board, made), board.features);
    }
};

CTS_TEST(TestRandomPlacing);
#include "test_random_placing.moc"
