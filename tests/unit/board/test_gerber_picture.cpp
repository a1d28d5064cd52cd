#include "Main.h"
#include "SampleBoard.h"
#include "board/GerberExport.h"
#include "board/Paths.h"
#include "board/PictureExport.h"

#include <QImage>
#include <QProcess>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtMath>

using namespace Pcb;

namespace {

constexpr double micrometresOfInch = 25400;

/// A square part of the board, in a number of pixels that both programs round alike, and with
/// numbers short enough for the other one's command line.
struct View {
    QPointF corner;  ///< lower left, micrometres
    int hundredths;  ///< of an inch, length of a side
    int dotsOfHundredth;

    int side() const { return hundredths * dotsOfHundredth; }

    QRectF area() const
    {
        const double extent = hundredths / 100.0 * micrometresOfInch;
        return {corner, QSizeF(extent, extent)};
    }

    QString origin() const
    {
        return QStringLiteral("%1;%2")
            .arg(corner.x() / micrometresOfInch, 0, 'f', 4)
            .arg(corner.y() / micrometresOfInch, 0, 'f', 4);
    }

    static View around(const QRectF& bounds, int pixels)
    {
        constexpr double step = 2.54;
        const double extent = qMax(bounds.width(), bounds.height());
        const int hundredths = qCeil(extent / 254) + 2;
        const QPointF corner = (bounds.topLeft() - QPointF(254, 254)) / step;
        return {QPointF(corner.toPoint()) * step, hundredths, qMax(1, pixels / hundredths)};
    }
};

struct Agreement {
    int covered = 0;  ///< pixels that either picture covers
    int both = 0;

    double part() const { return covered ? static_cast<double>(both) / covered : 0; }
};

/// A byte for each pixel: millions are looked at.
QImage grey(const QImage& image)
{
    return image.convertToFormat(QImage::Format_Grayscale8);
}

bool isDark(uchar pixel)
{
    return pixel < 128;
}

Agreement compare(const QImage& a, const QImage& b)
{
    Agreement agreement;
    if (a.size() != b.size()) {
        return agreement;
    }
    const int width = a.width();
    for (int y = 0; y < a.height(); ++y) {
        const uchar* const rowOfA = a.constScanLine(y);
        const uchar* const rowOfB = b.constScanLine(y);
        for (int x = 0; x < width; ++x) {
            const bool first = isDark(rowOfA[x]);
            const bool second = isDark(rowOfB[x]);
            agreement.covered += first || second ? 1 : 0;
            agreement.both += first && second ? 1 : 0;
        }
    }
    return agreement;
}

bool isDarkAround(const QImage& image, int x, int y)
{
    for (int row = qMax(0, y - 1); row <= qMin(image.height() - 1, y + 1); ++row) {
        for (int column = qMax(0, x - 1); column <= qMin(image.width() - 1, x + 1); ++column) {
            if (isDark(image.constScanLine(row)[column])) {
                return true;
            }
        }
    }
    return false;
}

/// How many dark pixels of `a` are farther than a pixel from any of `b`.
int farFrom(const QImage& a, const QImage& b)
{
    int count = 0;
    const int width = a.width();
    for (int y = 0; y < a.height(); ++y) {
        const uchar* const row = a.constScanLine(y);
        for (int x = 0; x < width; ++x) {
            count += isDark(row[x]) && !isDarkAround(b, x, y) ? 1 : 0;
        }
    }
    return count;
}

/// 400 thin circles and arcs that start anywhere, with `gap` micrometres between their ends.
Board ringsWithGaps(double gap)
{
    QRandomGenerator random(9);
    Board board;
    for (int i = 0; i < 400; ++i) {
        const QPointF centre(1500 + i % 20 * 3000 + random.generateDouble(),
                             1500 + i / 20 * 3000 + random.generateDouble());
        const double radius = 200 + random.bounded(1100.0);
        const double start = random.bounded(360.0);
        const bool clockwise = i % 2 == 1;
        const double turn = 360 - qRadiansToDegrees(gap / radius);
        const QPointF from = polar(centre, radius, start);
        const QPointF to =
            gap > 0 ? polar(centre, radius, start + (clockwise ? -turn : turn)) : from;
        board.features.emplace_back(arcGeometry(QStringLiteral("r4"), from, to, centre, clockwise));
    }
    return board;
}

QImage painted(const Board& board, const View& view)
{
    PictureColours colours;
    colours.positive = Qt::black;
    colours.outline = Qt::transparent;
    QImage image(view.side(), view.side(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    paintBoard(painter, board, view.area(), QRectF(image.rect()), colours);
    painter.end();
    return grey(image);
}

/// The picture that the other program makes of the exported file; null if it fails or warns.
QImage rendered(const Board& board, const View& view, const QTemporaryDir& folder)
{
    const QString gerber = folder.filePath(QStringLiteral("board.gbr"));
    const QString picture = folder.filePath(QStringLiteral("board.png"));
    QFile::remove(picture);
    writeGerber(board, gerber);
    QProcess process;
    process.start(QStringLiteral("gerbv"),
                  QStringLiteral("-x png -D %1 -O %2 -W %3x%3 -B 0 -b #FFFFFF -f #000000 -o")
                          .arg(100 * view.dotsOfHundredth)
                          .arg(view.origin())
                          .arg(view.hundredths / 100.0, 0, 'f', 2)
                          .split(QLatin1Char(' '))
                      << picture << gerber);
    process.waitForFinished();
    const QByteArray said = process.readAllStandardError() + process.readAllStandardOutput();
    if (!said.trimmed().isEmpty()) {
        qInfo("%s", said.constData());
        return {};
    }
    return grey(QImage(picture));
}

}  // namespace

class TestGerberPicture : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(!QStandardPaths::findExecutable(QStringLiteral("gerbv")).isEmpty(),
                 "gerbv must be installed");
        QVERIFY(m_folder.isValid());
    }

    void wholeBoardAgrees()
    {
        const Board board = sampleBoard();
        const QImage theirs = rendered(board, m_whole, m_folder);
        const QImage ours = painted(board, m_whole);
        QCOMPARE(theirs.size(), ours.size());
        keep(ours, theirs);
        const Agreement agreement = compare(ours, theirs);
        qInfo("%.3f %% of %d covered pixels agree", agreement.part() * 100, agreement.covered);
        QVERIFY(agreement.covered > 500000);
        QVERIFY(agreement.part() >= 0.98);
    }

    /// Each feature alone and large, so that a small one is not hidden by the others. The programs
    /// round edges to pixels differently, so one pixel does not count.
    void eachFeatureAgrees()
    {
        for (const Feature& feature : sampleBoard().features) {
            const View view = View::around(feature.bounds(), 700);
            Board board;
            if (!feature.isPositive()) {
                board.features.emplace_back(
                    surfaceGeometry(QPolygonF(view.area().adjusted(-10, -10, 10, 10))));
            }
            board.features.push_back(feature);
            const QImage ours = painted(board, view);
            const QImage theirs = rendered(board, view, m_folder);
            keep(ours, theirs);
            QCOMPARE(theirs.size(), ours.size());
            const int covered = compare(ours, theirs).covered;
            const int astray = farFrom(ours, theirs) + farFrom(theirs, ours);
            const Geometry& geometry = feature.geometry();
            const QString what = QStringLiteral("%1 of %2 pixels are astray: kind %3 %4 %5")
                                     .arg(astray)
                                     .arg(covered)
                                     .arg(static_cast<int>(geometry.kind))
                                     .arg(geometry.symbol, geometry.text.content);
            const bool isDrawn = covered > 5000;
            QVERIFY2(isDrawn != feature.area().isEmpty() && astray <= covered / 1000,
                     qPrintable(what));
        }
    }

    void circlesAndAlmostCirclesAgree_data()
    {
        QTest::addColumn<double>("gap");
        QTest::newRow("circles") << 0.0;
        QTest::newRow("less than the grid") << 0.0004;
        QTest::newRow("the grid") << 0.001;
        QTest::newRow("less than the pen") << 20.0;
        QTest::newRow("more than the pen") << 400.0;
    }

    void circlesAndAlmostCirclesAgree()
    {
        QFETCH(double, gap);
        const Board board = ringsWithGaps(gap);
        const QImage theirs = rendered(board, m_whole, m_folder);
        const QImage ours = painted(board, m_whole);
        keep(ours, theirs);
        QCOMPARE(theirs.size(), ours.size());
        QVERIFY(compare(ours, theirs).covered > 200000);
        QCOMPARE(farFrom(ours, theirs) + farFrom(theirs, ours), 0);
    }

    /// What the comparison says about a file without its cut-outs.
    void differencesAreSeen()
    {
        Board filled = sampleBoard();
        for (Feature& feature : filled.features) {
            Geometry geometry = feature.geometry();
            geometry.positive = true;
            feature = Feature(geometry);
        }
        const QImage theirs = rendered(filled, m_whole, m_folder);
        QVERIFY(!theirs.isNull());
        QVERIFY(compare(painted(sampleBoard(), m_whole), theirs).part() < 0.97);
    }

private:
    static void keep(const QImage& ours, const QImage& theirs)
    {
        const QString folder = qEnvironmentVariable("CTS_KEEP_PICTURES");
        if (!folder.isEmpty()) {
            ours.save(folder + QStringLiteral("/board-painted.png"));
            theirs.save(folder + QStringLiteral("/board-gerber.png"));
        }
    }

    const View m_whole{{0, 0}, 240, 10};
    QTemporaryDir m_folder;
};

CTS_TEST(TestGerberPicture);
#include "test_gerber_picture.moc"
