#include "Main.h"
#include "board/Codes.h"
#include "board/Feature.h"
#include "board/Paths.h"
#include "board/PictureExport.h"
#include "board/StrokeFont.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

using namespace Pcb;

Q_DECLARE_METATYPE(BarcodeType)

namespace {

TextSpec barcode(BarcodeType type, const QString& content)
{
    TextSpec text;
    text.format = TextFormat::Barcode;
    text.barcode = type;
    text.content = content;
    return text;
}

/// What an independent reader finds in the picture of a text.
QString readBy(const QString& program, const QStringList& arguments, const TextSpec& text)
{
    const Feature feature(textGeometry(text, {0, 0}));
    Board board;
    board.features.push_back(feature);
    const double quiet = 3000;
    const QRectF area = feature.bounds().adjusted(-quiet, -quiet, quiet, quiet);
    PictureColours colours;
    colours.positive = Qt::black;
    QImage image((area.size() / 50).toSize(), QImage::Format_RGB32);
    QPainter painter(&image);
    paintBoard(painter, board, area, QRectF(image.rect()), colours);
    painter.end();
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("code.png"));
    image.save(file);
    QProcess process;
    process.start(program, QStringList(arguments) << file);
    process.waitForFinished();
    return QString::fromLatin1(process.readAllStandardOutput()).trimmed();
}

}  // namespace

class TestTexts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyCharacterHasStrokes()
    {
        QVector<QVector<QVector<QPoint>>> known;
        for (char16_t code = u'!'; code <= u'~'; ++code) {
            const QVector<QVector<QPoint>> strokes = glyphStrokes(QChar(code));
            QVERIFY(!strokes.isEmpty());
            QVERIFY2(!known.contains(strokes), qPrintable(QString(QChar(code))));
            known.append(strokes);
            for (const QVector<QPoint>& stroke : strokes) {
                for (const QPoint& point : stroke) {
                    QVERIFY(QRect(0, 0, glyphColumns, glyphRows).contains(point));
                }
            }
        }
        QVERIFY(glyphStrokes(QLatin1Char(' ')).isEmpty());
        QCOMPARE(glyphStrokes(QChar(0x20ac)), glyphStrokes(QChar(7)));
        for (const int code : {0x1f, 0x7f, 0xe4, 0x20ac}) {
            QVERIFY(!hasGlyph(QChar(code)));
        }
        QVERIFY(hasGlyph(QLatin1Char(' ')) && hasGlyph(QLatin1Char('~')));
        QCOMPARE(glyphStrokes(QLatin1Char('L')),
                 QVector<QVector<QPoint>>({{{0, 6}, {0, 0}, {4, 0}}}));
    }

    void dotsFollowTheStrokes()
    {
        QCOMPARE(glyphDots(QLatin1Char('L'), 5).size(), 7 + 4);
        QCOMPARE(glyphDots(QLatin1Char('L'), 6).size(), 7 + 5);
        QCOMPARE(glyphDots(QLatin1Char('/'), 5).size(), 7);
        QCOMPARE(glyphDots(QLatin1Char('+'), 5).size(), 5 + 4);
    }

    /// A dot is a stroke of one point, also between others.
    void dotsAreDrawn()
    {
        TextSpec text;
        text.content = QStringLiteral(".i.");
        text.xSize = text.ySize = 1000;
        text.lineWidth = 200;
        const QPainterPath area = coveredBy(drawText(text));
        // Each character is one and a half wide, with the dot in the middle.
        QVERIFY(area.contains(QPointF(500, 0)));
        QVERIFY(area.contains(QPointF(3500, 0)));
    }

    void stringsTakeTheirSizes()
    {
        TextSpec text;
        text.content = QStringLiteral("HH");
        text.xSize = 1000;
        text.ySize = 3000;
        text.lineWidth = 200;
        const TextDrawing drawing = drawText(text);
        QCOMPARE(drawing.strokes.size(), 6);
        const QRectF box = coveredBy(drawing).boundingRect();
        QCOMPARE(box.toRect(), QRect(-100, -100, 1000 + 1500 + 200, 3000 + 200));
        QVERIFY(coveredBy(drawing).contains(QPointF(500, 1500)));
        QVERIFY(!coveredBy(drawing).contains(QPointF(500, 2500)));
    }

    void longTextsEnd()
    {
        TextSpec text;
        text.content = QString(10000, QLatin1Char('-'));
        QCOMPARE(drawText(text).strokes.size(), longestText);
    }

    void barCodesHaveTheirWidths()
    {
        const auto width = [](BarcodeType type, const char* text) {
            const Code code = encode(type, QString::fromLatin1(text));
            return code.rows.size() == 1 ? code.rows.first().size() : -1;
        };
        // A character is 6 narrow elements, 3 wide ones of two modules, and a gap to the next.
        QCOMPARE(width(BarcodeType::Code39, "AB"), 4 * 12 + 3);
        QCOMPARE(width(BarcodeType::Code39Ascii, "a"), 4 * 12 + 3);
        QCOMPARE(width(BarcodeType::Code128B, "ab"), 4 * 11 + 13);
        QCOMPARE(width(BarcodeType::Code128B, "1234"), 6 * 11 + 13);
        QCOMPARE(width(BarcodeType::Code128C, "123"), 4 * 11 + 13);
    }

    void whatACodeCannotCarryIsLeftOut_data()
    {
        QTest::addColumn<BarcodeType>("type");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("carried");
        QTest::addColumn<QString>("leftOut");
        const auto row = [](const char* name, BarcodeType type, const QString& text,
                            const QString& carried, const QString& leftOut) {
            QTest::newRow(name) << type << text << carried << leftOut;
        };
        const QString tail = QStringLiteral("123");
        const auto many = [](int count, const char* text) {
            return QString::fromLatin1(text).repeated(count);
        };
        row("39", BarcodeType::Code39, "ab*!\u00e4", "AB", "*!\u00e4");
        row("39 long", BarcodeType::Code39, many(85, "A") + tail, many(85, "A"), tail);
        row("39 ascii", BarcodeType::Code39Ascii, "a\u20ac", "a", "\u20ac");
        row("39 ascii long", BarcodeType::Code39Ascii, many(42, "a") + tail, many(42, "a") + "1",
            "23");
        row("128", BarcodeType::Code128B, "a\u00e4b\n", "ab", "\u00e4\n");
        row("128 long", BarcodeType::Code128B, many(60, "b") + tail, many(60, "b"), tail);
        row("pairs", BarcodeType::Code128C, "1-23", "0123", "-");
        row("pairs long", BarcodeType::Code128C, many(120, "7") + tail, many(120, "7"), tail);
        row("matrix", BarcodeType::Matrix, "A\u00e4", "A", "\u00e4");
        row("nothing", BarcodeType::Code128B, "\u00e4", "", "\u00e4");
        row("empty", BarcodeType::Code39, "", "", "");
    }

    void whatACodeCannotCarryIsLeftOut()
    {
        QFETCH(BarcodeType, type);
        QFETCH(QString, text);
        QFETCH(QString, carried);
        QFETCH(QString, leftOut);
        const Code code = encode(type, text);
        QCOMPARE(code.leftOut, leftOut);
        QCOMPARE(code.rows, encode(type, carried).rows);
        QCOMPARE(code.rows.isEmpty(), carried.isEmpty());
        QCOMPARE(Pcb::leftOut(barcode(type, text)), leftOut);
        TextSpec stamp = barcode(type, text);
        stamp.format = TextFormat::PlotStamp;
        QCOMPARE(Pcb::leftOut(stamp), QString());
        stamp.stampBarcode = true;
        QCOMPARE(Pcb::leftOut(stamp), encode(BarcodeType::Code39, text).leftOut);
    }

    void codesOfNothingAreNotDrawn()
    {
        for (const BarcodeType type : {BarcodeType::Code39, BarcodeType::Matrix}) {
            TextSpec text = barcode(type, QString(QChar(0xe4)));
            text.addBackground = text.addMarkers = text.addString = true;
            QVERIFY(coveredBy(drawText(text)).isEmpty());
            text.format = TextFormat::PlotStamp;
            text.stampBarcode = true;
            QVERIFY(coveredBy(drawText(text)).isEmpty());
        }
    }

    void codesAreRead_data()
    {
        QTest::addColumn<BarcodeType>("type");
        QTest::addColumn<QString>("content");
        QTest::addColumn<QString>("read");
        const auto row = [](const char* name, BarcodeType type, const char* text,
                            const char* read) {
            QTest::newRow(name) << type << QString::fromLatin1(text) << QString::fromLatin1(read);
        };
        row("39", BarcodeType::Code39, "PCB-42 A.$/+%", "CODE-39:PCB-42 A.$/+%");
        row("39 digits", BarcodeType::Code39, "0123456789", "CODE-39:0123456789");
        row("39 rest", BarcodeType::Code39, "ABCDEFGHIJKLM", "CODE-39:ABCDEFGHIJKLM");
        row("39 end", BarcodeType::Code39, "nopqrstuvwxyz", "CODE-39:NOPQRSTUVWXYZ");
        row("39 ascii", BarcodeType::Code39Ascii, "a!;[{", "CODE-39:+A/A%F%K%P");
        row("128", BarcodeType::Code128B, "Board 8 {~}", "CODE-128:Board 8 {~}");
        row("128 all", BarcodeType::Code128B, "!\"#$%&'()*+,-./:;<=>?@[]^_`|",
            "CODE-128:!\"#$%&'()*+,-./:;<=>?@[]^_`|");
        row("128 letters", BarcodeType::Code128B, "acdefghijklmnopqrstuvwxyzABDEFG",
            "CODE-128:acdefghijklmnopqrstuvwxyzABDEFG");
        row("128 pairs", BarcodeType::Code128C, "00123499", "CODE-128:00123499");
    }

    void codesAreRead()
    {
        QFETCH(BarcodeType, type);
        QFETCH(QString, content);
        QFETCH(QString, read);
        QCOMPARE(readBy(QStringLiteral("zbarimg"), {QStringLiteral("-q")}, barcode(type, content)),
                 read);
    }

    void matricesAreRead()
    {
        for (const QString& content :
             {QStringLiteral("7"), QStringLiteral("MODULE 0815"), QStringLiteral("Board (demo) #3"),
              QString(60, QLatin1Char('x')) + QStringLiteral("end"),
              QString(150, QLatin1Char('y')) + QStringLiteral("END")}) {
            TextSpec text = barcode(BarcodeType::Matrix, content);
            text.barcodeHeight = 20000;
            QCOMPARE(readBy(QStringLiteral("dmtxread"), {QStringLiteral("-N1")}, text), content);
        }
    }

    void everySizeOfMatrixIsRead()
    {
        const auto sideOf = [](const QString& text, const QString& size) {
            const Code code = encode(BarcodeType::Matrix, text, size);
            return code.rows.size() == code.rows.first().size() ? code.rows.size() : -1;
        };
        for (const int side : {10, 12, 14, 16, 18, 20, 22, 24, 26,  32,  36, 40,
                               44, 48, 52, 64, 72, 80, 88, 96, 104, 120, 132}) {
            const QString size = QString::number(side);
            QCOMPARE(sideOf(QStringLiteral("A1"), size), side);
            TextSpec text = barcode(BarcodeType::Matrix, QStringLiteral("A1"));
            text.matrix = size + QLatin1Char('X') + size;
            text.barcodeHeight = side * 400;
            const QString read = readBy(QStringLiteral("dmtxread"), {QStringLiteral("-N1")}, text);
            QVERIFY2(read == text.content, qPrintable(size + QLatin1Char(' ') + read));
        }
        QCOMPARE(sideOf(QString(30, QLatin1Char('A')), QStringLiteral("10x10")), 20);
        QCOMPARE(sideOf(QStringLiteral("A1"), QStringLiteral("12")), 12);
        QCOMPARE(sideOf(QStringLiteral("A1"), QStringLiteral("11")), 10);
        QCOMPARE(sideOf(QStringLiteral("A1"), QStringLiteral("144x144")), 10);
        QCOMPARE(sideOf(QStringLiteral("A1"), QStringLiteral("Minimal")), 10);
    }

    void barcodesTakeTheirHeight()
    {
        TextSpec text = barcode(BarcodeType::Code39, QStringLiteral("A"));
        text.barcodeHeight = 2500;
        QCOMPARE(coveredBy(drawText(text)).boundingRect(), QRectF(0, 0, 3800, 2500));
        text.addBackground = true;
        QCOMPARE(coveredBy(drawText(text)).boundingRect(), QRectF(-1000, -1000, 5800, 4500));
        QVERIFY(!coveredBy(drawText(text)).contains(QPointF(50, 1000)));
        QVERIFY(coveredBy(drawText(text)).contains(QPointF(150, 1000)));
        text.addBackground = false;
        text.addString = true;
        QVERIFY(coveredBy(drawText(text)).boundingRect().bottom() > 2500 + 500);
        QCOMPARE(coveredBy(drawText(text)).boundingRect().top(), 0.0);
        text.stringOnTop = false;
        QVERIFY(coveredBy(drawText(text)).boundingRect().top() < -500);
    }

    void markersStandInTheCorners()
    {
        TextSpec text = barcode(BarcodeType::Matrix, QStringLiteral("A"));
        text.barcodeHeight = 1000;  // modules of 100
        QCOMPARE(coveredBy(drawText(text)).boundingRect(), QRectF(0, 0, 1000, 1000));
        text.addMarkers = true;
        QCOMPARE(coveredBy(drawText(text)).boundingRect(), QRectF(-200, -200, 1400, 1400));
        QVERIFY(coveredBy(drawText(text)).contains(QPointF(-190, -10)));
        QVERIFY(coveredBy(drawText(text)).contains(QPointF(1190, 1190)));
        QVERIFY(!coveredBy(drawText(text)).contains(QPointF(-100, 500)));
    }

    void stampsAndCannedTexts()
    {
        TextSpec text;
        text.format = TextFormat::PlotStamp;
        text.content = QStringLiteral("I");
        text.stampFontSize = 2;
        text.stampZoom = 3;
        const double height = 1016 * 6;
        const double pen = height * 0.12;
        QVERIFY(std::abs(coveredBy(drawText(text)).boundingRect().height() - height - pen) < 1e-6);
        text.stampBarcode = true;
        QCOMPARE(coveredBy(drawText(text)).boundingRect().height(), height * 2);
        text.format = TextFormat::Canned;
        text.content = QStringLiteral("L");
        text.holeSize = 200;
        const QPainterPath dots = coveredBy(drawText(text));
        QCOMPARE(flattened(dots).size(), 11);
        QCOMPARE(dots.boundingRect().toRect(), QRect(0, 0, 4 * 300 + 200, 6 * 300 + 200));
        text.cannedColumns = 6;
        QCOMPARE(coveredBy(drawText(text)).boundingRect().toRect(),
                 QRect(0, 0, 5 * 300 + 200, 6 * 300 + 200));
    }

    void specialTexts()
    {
        const QMap<QString, QString> values = {{QStringLiteral("Job"), QStringLiteral("demo")}};
        QCOMPARE(resolveSpecialText(QStringLiteral("$$JOB"), values), QStringLiteral("demo"));
        QCOMPARE(resolveSpecialText(QStringLiteral("$$DATE"), values), QStringLiteral("DATE"));
        QCOMPARE(resolveSpecialText(QStringLiteral("$JOB"), values), QStringLiteral("$JOB"));
        QCOMPARE(resolveSpecialText(QString(), values), QString());
    }
};

CTS_TEST(TestTexts);
#include "test_texts.moc"
