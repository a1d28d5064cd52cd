// Symbols and letters whose shape is not known: no copper is drawn for them.

#include "Main.h"
#include "board/EditOps.h"
#include "board/GerberExport.h"
#include "board/PictureExport.h"
#include "board/Unknowns.h"

#include <Files.h>

#include <QImage>
#include <QSvgRenderer>
#include <QTemporaryDir>

using namespace Pcb;

namespace {

Feature padOf(const char* symbol, const QPointF& place)
{
    return Feature(padGeometry(QString::fromLatin1(symbol), place));
}

Feature lineOf(const char* symbol, const QPointF& from, const QPointF& to)
{
    return Feature(lineGeometry(QString::fromLatin1(symbol), from, to));
}

Feature textOf(const QString& content, const QPointF& corner = {},
               TextFormat format = TextFormat::String)
{
    TextSpec text;
    text.format = format;
    text.content = content;
    return Feature(textGeometry(text, corner));
}

QString german()
{
    return QStringLiteral("Gr\u00fcn");
}

/// A pad that is known, and one of each kind that is not, 10 mm apart.
Board mixed()
{
    Board board;
    board.outline = QPolygonF(QRectF(0, 0, 60000, 20000));
    board.features = {padOf("r60", {5000, 5000}), padOf("logo", {15000, 5000}),
                      lineOf("nick<1>", {25000, 5000}, {29000, 5000}),
                      Feature(arcGeometry(QStringLiteral("logo"), {35000, 5000}, {33000, 7000},
                                          {33000, 5000}, false)),
                      textOf(german(), {5000, 12000})};
    return board;
}

}  // namespace

class TestUnknowns : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void whatIsUnknownIsNoCopper()
    {
        for (size_t i = 1; i <= 3; ++i) {
            const Feature feature = mixed().features.at(i);
            QVERIFY(feature.area().isEmpty());
            QVERIFY(!feature.unknown().isEmpty() && !feature.isEmpty());
            QCOMPARE(feature.bounds(), feature.unknown().boundingRect());
        }
        const Feature known = mixed().features.front();
        QVERIFY(known.unknown().isEmpty() && !known.area().isEmpty());
    }

    void lettersThatTheFontLacksAreNoCopper()
    {
        for (const TextFormat format :
             {TextFormat::String, TextFormat::PlotStamp, TextFormat::Canned}) {
            const Feature text = textOf(german(), {}, format);
            const Feature blank = textOf(QStringLiteral("Gr n"), {}, format);
            QCOMPARE(text.area(), blank.area());
            QVERIFY(blank.unknown().isEmpty());
            // In the place of the third letter.
            const QRectF fourth = textOf(QStringLiteral("   n"), {}, format).bounds();
            const QRectF second = textOf(QStringLiteral(" r"), {}, format).bounds();
            const QRectF box = text.unknown().boundingRect();
            QVERIFY(box.width() > 0 && box.left() > second.right() && box.right() < fourth.left());
        }
        TextSpec code;
        code.format = TextFormat::Barcode;
        code.barcode = BarcodeType::Matrix;
        code.content = QStringLiteral("A\u00fc");
        QVERIFY(Feature(textGeometry(code, {})).unknown().isEmpty());  // it has no letters
        code.addString = true;
        QVERIFY(!Feature(textGeometry(code, {})).unknown().isEmpty());
    }

    void whatIsUnknownCanBePickedAndEdited()
    {
        const Board board = mixed();
        QCOMPARE(featureAt(board, {0, 1, 2, 3, 4}, {15000, 5000}, 0), 1);
        const QRectF box = board.features[4].unknown().boundingRect();
        QCOMPARE(featureAt(board, {0, 1, 2, 3, 4}, box.center(), 0), 4);
        QCOMPARE(insideRectangle(board, QRectF(0, 0, 20000, 10000)), (Indexes{0, 1}));
        QCOMPARE(insidePolygon(board, QPolygonF(QRectF(0, 0, 60000, 20000))),
                 (Indexes{0, 1, 2, 3, 4}));
        QCOMPARE(moved(board.features[1], {1000, 0}).bounds(),
                 board.features[1].bounds().translated(1000, 0));
        QCOMPARE(broken(board.features[2], {27000, 5000}).size(), size_t(2));
    }

    void whatIsUnknownConductsNothing()
    {
        Board board;
        board.features = {lineOf("r10", {0, 0}, {5000, 0}), padOf("logo", {5000, 0}),
                          lineOf("r10", {5000, 100}, {9000, 100})};
        QCOMPARE(touching(board, 1), (Indexes{1}));
        board.features = {lineOf("what", {0, 0}, {5000, 0}), lineOf("r10", {5000, 0}, {9000, 0})};
        QCOMPARE(polylineOf(board, 0), (Indexes{0, 1}));  // their ends are known
    }

    void unknownsAreCounted()
    {
        const Unknowns found = unknownsOf(mixed());
        QCOMPARE(found.features, 4);
        QCOMPARE(found.symbols, QStringList({QStringLiteral("logo"), QStringLiteral("nick<1>")}));
        QCOMPARE(found.letters, QStringLiteral("\u00fc"));
        QVERIFY(unknownsOf(Board()).isEmpty());
        Board letters;
        const uint far = 0x1f600;
        letters.features = {textOf(QStringLiteral("\t") + QString::fromUcs4(&far, 1)),
                            textOf(QStringLiteral("\u00e4\t\u00e4"))};
        QCOMPARE(unknownsOf(letters).letters,
                 QStringLiteral("U+0009") + QString::fromUcs4(&far, 1) + QStringLiteral("\u00e4"));
    }

    void gerberLeavesThemOutAndSaysSo()
    {
        const QByteArray text = toGerber(mixed());
        QVERIFY2(text.contains("G04 Left out, symbols of unknown shape: \"logo\", \"nick<1>\"*\n"
                               "G04 Left out, letters that the font lacks: \\u00FC*\n"),
                 text.left(300));
        Board known;
        known.features = {mixed().features.front(), textOf(QStringLiteral("Gr n"), {5000, 12000})};
        const QByteArray body = toGerber(known);
        QVERIFY(!body.contains("Left out"));
        QCOMPARE(text.mid(text.indexOf("%LPD")), body.mid(body.indexOf("%LPD")));
        known.features = {padOf("a*%b", {0, 0})};
        QVERIFY(toGerber(known).contains("shape: \"a\\u002A\\u0025b\"*\n"));
    }

    void picturesLeaveThemOutAndSaySo()
    {
        const QTemporaryDir folder;
        const QString name = folder.filePath(QStringLiteral("board.svg"));
        Board board = mixed();
        board.job = QStringLiteral("this & that");
        writeSvg(board, name);
        const QByteArray text = CanvasHost::readWhole(name);
        QVERIFY2(text.contains("Left out, symbols of unknown shape:"), text.left(600));
        QVERIFY2(text.contains("nick&lt;1&gt;") && text.contains("\xc3\xbc"), text.left(600));
        QVERIFY(QSvgRenderer(name).isValid());
        const QImage image = toImage(board, 660);
        board.features = {board.features[0], textOf(QStringLiteral("Gr n"), {5000, 12000})};
        QCOMPARE(image, toImage(board, 660));
        writeSvg(board, name);
        QVERIFY(!CanvasHost::readWhole(name).contains("Left out"));
        const QString picture = folder.filePath(QStringLiteral("board.png"));
        writePng(board, picture, 100);
        QCOMPARE(QImage(picture).text(QStringLiteral("Comment")), QString());
        writePng(mixed(), picture, 100);
        QVERIFY(
            QImage(picture).text(QStringLiteral("Comment")).contains(QStringLiteral("nick<1>")));
    }
};

CTS_TEST(TestUnknowns);
#include "test_unknowns.moc"
