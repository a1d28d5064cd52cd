#include "Main.h"
#include "SampleBoard.h"
#include "board/BoardFile.h"
#include "board/GerberExport.h"
#include "board/PictureExport.h"

#include <Files.h>

#include <QDateTime>
#include <QSvgRenderer>
#include <QTemporaryDir>

using namespace Pcb;

namespace {

QByteArray gerber(const Features& features)
{
    Board board;
    board.features = features;
    return toGerber(board);
}

const QByteArray origin =
    "G04 #@! TF.GenerationSoftware,Canvas Tool Strip,canvas-workbench," PROGRAM_VERSION
    "*\n"
    "G04 #@! TF.CreationDate,2023-11-14T22:13:20Z*\n";

QByteArray file(const QByteArray& apertures, const QByteArray& body)
{
    return origin + "%FSLAX46Y46*%\n%MOMM*%\n" + apertures + "%LPD*%\nG75*\nG01*\n" + body +
           "M02*\n";
}

Feature negative(Geometry geometry)
{
    geometry.positive = false;
    return Feature(geometry);
}

/// How many pixels have colours that antialiasing does not explain.
int differing(const QImage& a, const QImage& b)
{
    int count = a.size() == b.size() ? 0 : -1;
    for (int y = 0; count >= 0 && y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            count += qAbs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))) > 100 ? 1 : 0;
        }
    }
    return count;
}

}  // namespace

class TestExports : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qputenv("SOURCE_DATE_EPOCH", "1700000000"); }

    void linesAreDrawn()
    {
        QCOMPARE(gerber({Feature(lineGeometry(QStringLiteral("r10"), {1000, -2000}, {3000.5, 0}))}),
                 file("%ADD10C,0.254000*%\n", "D10*\nX1000000Y-2000000D02*\nX3000500Y0D01*\n"));
        QCOMPARE(gerber({Feature(lineGeometry(QStringLiteral("r10"), {0, 0}, {0, 0}))}),
                 file("%ADD10C,0.254000*%\n", "D10*\nX0Y0D03*\n"));
    }

    void arcsAreDrawn()
    {
        const QString pen = QStringLiteral("r10");
        QCOMPARE(gerber({Feature(arcGeometry(pen, {1000, 0}, {0, 1000}, {0, 0}, false)),
                         Feature(arcGeometry(pen, {1000, 0}, {1000, 0}, {0, 0}, true))}),
                 file("%ADD10C,0.254000*%\n",
                      "D10*\nX1000000Y0D02*\nG03*\nX0Y1000000I-1000000J0D01*\nG01*\n"
                      "X1000000Y0D02*\nG02*\nX-1000000Y0I-1000000J0D01*\n"
                      "X1000000Y0I1000000J0D01*\nG01*\n"));
    }

    void padsAreFlashed()
    {
        Geometry turned = padGeometry(QStringLiteral("rect20x40"), {0, 0});
        turned.rotation = 90;
        QCOMPARE(gerber({Feature(padGeometry(QStringLiteral("r50"), {1000, 1000})),
                         Feature(padGeometry(QStringLiteral("rect20x40"), {0, 0})), Feature(turned),
                         Feature(padGeometry(QStringLiteral("oval20x40"), {0, 0})),
                         Feature(padGeometry(QStringLiteral("r50"), {5, 5}))}),
                 file("%ADD10C,1.270000*%\n%ADD11R,0.508000X1.016000*%\n"
                      "%ADD12R,1.016000X0.508000*%\n%ADD13O,0.508000X1.016000*%\n",
                      "D10*\nX1000000Y1000000D03*\nD11*\nX0Y0D03*\nD12*\nX0Y0D03*\n"
                      "D13*\nX0Y0D03*\nD10*\nX5000Y5000D03*\n"));
    }

    void otherPadsAreMacros()
    {
        const QByteArray text =
            gerber({Feature(padGeometry(QStringLiteral("triangle20x40"), {0, 0})),
                    Feature(padGeometry(QStringLiteral("triangle20x40"), {9, 9})),
                    Feature(padGeometry(QStringLiteral("ring_s40x20"), {0, 0}))});
        QCOMPARE(text.count("%AM"), 2);
        QVERIFY(text.contains("%AMSHAPE1*\n4,1,3,"));
        QVERIFY(text.contains("%ADD10SHAPE1*%\n%ADD11SHAPE2*%\n"));
        QVERIFY(text.contains("D10*\nX0Y0D03*\nX9000Y9000D03*\nD11*\nX0Y0D03*\n"));
        QVERIFY(!text.contains("G36"));
        QVERIFY(
            gerber({Feature(padGeometry(QStringLiteral("ellipse80x50"), {0, 0}))}).contains("G36"));
    }

    void surfacesAreRegionsAndPolarityIsKept()
    {
        const QVector<QPointF> corners = {{0, 0}, {1000, 0}, {1000, 1000}};
        const QByteArray text = gerber({Feature(surfaceGeometry(corners)),
                                        negative(padGeometry(QStringLiteral("r10"), {800, 200})),
                                        negative(padGeometry(QStringLiteral("r10"), {900, 200})),
                                        Feature(padGeometry(QStringLiteral("r10"), {0, 0}))});
        QCOMPARE(text.count("G36*"), 1);
        QCOMPARE(text.count("G37*"), 1);
        QVERIFY(
            text.contains("G37*\n%LPC*%\nD10*\nX800000Y200000D03*\nX900000Y200000D03*\n"
                          "%LPD*%\nX0Y0D03*\nM02*\n"));
        QVERIFY(gerber({Feature(surfaceGeometry(corners))}).contains("%ADD10C"));
    }

    void farCoordinatesAreRefused()
    {
        QCOMPARE(errorOf([] {
                     gerber({Feature(padGeometry(QStringLiteral("r10"), {1e7, 0}))});
                 }),
                 QStringLiteral("a coordinate is ten metres or farther from 0"));
        QVERIFY(gerber({Feature(padGeometry(QStringLiteral("r10"), {9999999.999, 0}))})
                    .contains("X9999999999Y0D03"));
        const QTemporaryDir folder;
        const QString name = folder.filePath(QStringLiteral("far.gbr"));
        Board board;
        board.features = {Feature(padGeometry(QStringLiteral("r10"), {0, -1e8}))};
        QVERIFY(errorOf([&] { writeGerber(board, name); }).startsWith(name + ": "));
        QVERIFY(!QFile::exists(name));
    }

    void picturesShowTheBoard()
    {
        Board board;
        board.outline = QPolygonF(QRectF(0, 0, 10000, 5000));
        board.features = {Feature(surfaceGeometry({{0, 0}, {5000, 0}, {5000, 5000}, {0, 5000}})),
                          negative(surfaceGeometry({{0, 0}, {2500, 0}, {2500, 2500}, {0, 2500}}))};
        const PictureColours colours;
        const QImage image = toImage(board, 1100, colours);
        QCOMPARE(image.size(), QSize(1100, 600));
        QCOMPARE(image.pixelColor(100, 100), colours.positive);    // upper left quarter
        QCOMPARE(image.pixelColor(100, 500), colours.background);  // lower left: cut out
        QCOMPARE(image.pixelColor(500, 500), colours.positive);
        QCOMPARE(image.pixelColor(800, 300), colours.background);
    }

    void picturesAreWritten()
    {
        const QTemporaryDir folder;
        const QString png = folder.filePath(QStringLiteral("board.png"));
        const QString svg = folder.filePath(QStringLiteral("board.svg"));
        const Board board = sampleBoard();
        QCOMPARE(boundsOf(board), QRectF(0, 0, 60000, 60000));
        writePng(board, png, 1000);
        QCOMPARE(QImage(png).size(), QSize(1000, 1000));
        writeSvg(board, svg);
        QSvgRenderer renderer(svg);
        QVERIFY(renderer.isValid());
        QImage drawn(1000, 1000, QImage::Format_ARGB32_Premultiplied);
        drawn.fill(Qt::white);
        QPainter painter(&drawn);
        const double margin = 3000 / 66.0;  // only the other picture has it
        renderer.render(&painter, QRectF(drawn.rect()).adjusted(margin, margin, -margin, -margin));
        painter.end();
        QCOMPARE(differing(drawn, QImage(png)), 0);
        const QString homeless = folder.filePath(QStringLiteral("no/board.svg"));
        QVERIFY(errorOf([&] { writeSvg(board, homeless); }).startsWith(homeless + ": "));
    }

    void anEmptyBoardIsExportedInEachKind()
    {
        const QTemporaryDir folder;
        for (const char* const kind : {"gbr", "json", "png", "svg"}) {
            exportBoard(Board(), folder.filePath(QLatin1String(kind) + ".") + kind);
        }
        QCOMPARE(CanvasHost::readWhole(folder.filePath("gbr.gbr")), gerber({}));
        QVERIFY(readBoardFile(folder.filePath("json.json")).features.empty());
        const QImage picture(folder.filePath("png.png"));
        QVERIFY(!picture.isNull());
        QCOMPARE(picture.pixelColor(5, 5), PictureColours().background);
        QVERIFY(QSvgRenderer(folder.filePath("svg.svg")).isValid());
    }

    void gerberNamesItsOrigin()
    {
        Board board;
        board.job = QStringLiteral("demo*%\u677f");
        board.step = QStringLiteral("panel");
        const QByteArray text = toGerber(board);
        QVERIFY2(
            text.startsWith(origin + "G04 Job: demo\\u002A\\u0025\\u677F*\nG04 Step: panel*\n%FS"),
            text.left(300));
        qunsetenv("SOURCE_DATE_EPOCH");
        const QByteArray now = toGerber(board);
        qputenv("SOURCE_DATE_EPOCH", "1700000000");
        const QByteArray date = now.mid(now.indexOf("CreationDate,") + 13, 20);
        const QDateTime written = QDateTime::fromString(QString::fromLatin1(date), Qt::ISODate);
        QVERIFY2(qAbs(written.secsTo(QDateTime::currentDateTimeUtc())) < 60, date);
    }

    void drawingsAreToSize()
    {
        const QTemporaryDir folder;
        const QString name = folder.filePath(QStringLiteral("board.svg"));
        Board board;
        board.outline = QPolygonF(QRectF(-1000, 500, 34000, 12500));
        for (const auto& [step, title] :
             {std::pair("panel", "demo panel"), std::pair("", "demo")}) {
            board.job = QStringLiteral("demo");
            board.step = QString::fromLatin1(step);
            writeSvg(board, name);
            const QByteArray text = CanvasHost::readWhole(name);
            QVERIFY2(text.contains("<svg width=\"34mm\" height=\"12.5mm\""), text.left(300));
            QVERIFY(text.contains("viewBox=\"0 0 34000 12500\""));
            QVERIFY(text.contains(QByteArray("<title>") + title + "</title>"));
        }
    }
};

CTS_TEST(TestExports);
#include "test_exports.moc"
