// The compiled-in pictures: every name that style sheets and icons ask for.

#include "Main.h"
#include "StripFixture.h"

#include <QDir>
#include <QImage>
#include <QImageReader>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <iterator>

namespace {

struct Pair {
    const char* file;
    const char* checkedFile;
};
// What a tool shows instead of the pictures of its row.
const Pair variants[] = {
    {"delete2-gry.jpg", "delete2-gre.jpg"},
    {"Net selection4.jpg", "Net selection3.jpg"},
    {"Net selection6.jpg", "Net selection5.jpg"},
    {"xie_grey.png", "xie_green.png"},
};
constexpr int toolSize = 40;

struct Icon {
    const char* file;
    int size;
};
const Icon icons[] = {
    {"Line1.jpg", 32}, {"Pad1.jpg", 32},   {"Surf1.jpg", 32},  {"Arc1.jpg", 32},
    {"Text1.jpg", 32}, {"Free1.jpg", 24},  {"Ver1.jpg", 24},   {"Hori1.jpg", 24},
    {"VH1.jpg", 24},   {"8 Dir1.jpg", 24}, {"Fixed1.jpg", 24}, {"add_fea.jpg", 25},
};

const QString prefix = QStringLiteral(":/Canvas_Tool_Strip/Resources/");

QString doubled(QString file)
{
    return file.insert(file.lastIndexOf('.'), QStringLiteral("@2x"));
}

bool isDisabled(const ToolTable::Row& row)
{
    return row.start == ToolTable::Start::Disabled;
}

QVector<Pair> usableTools()
{
    QVector<Pair> pairs;
    for (const ToolTable::Row& row : ToolTable::rows()) {
        if (!isDisabled(row)) {
            pairs.append(Pair{row.pictures.released, row.pictures.checked});
        }
    }
    std::copy(std::begin(variants), std::end(variants), std::back_inserter(pairs));
    return pairs;
}

/// A disabled tool has one picture.
QVector<const char*> disabledTools()
{
    QVector<const char*> files;
    for (const ToolTable::Row& row : ToolTable::rows()) {
        if (isDisabled(row)) {
            files.append(row.pictures.released);
        }
    }
    return files;
}

QStringList toolFiles()
{
    QStringList files;
    for (const Pair& tool : usableTools()) {
        files << tool.file << tool.checkedFile;
    }
    for (const char* const file : disabledTools()) {
        files << file;
    }
    return files;
}

QByteArray formatOf(const QString& path)
{
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    return reader.format();
}

/// In levels of a colour, on average.
double difference(const QImage& a, const QImage& b)
{
    double sum = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            sum +=
                qAbs(qRed(p) - qRed(q)) + qAbs(qGreen(p) - qGreen(q)) + qAbs(qBlue(p) - qBlue(q));
        }
    }
    return sum / (a.width() * a.height() * 3);
}

/// The rows that are dark across the whole of what a button shows.
int darkRows(const QImage& picture)
{
    int rows = 0;
    for (int y = 0; y < picture.height(); ++y) {
        bool isDark = true;
        for (int x = 1; x < 35; ++x) {
            isDark = isDark && qGray(picture.pixel(x, y)) < 128;
        }
        rows += isDark ? 1 : 0;
    }
    return rows;
}

/// The tool picture that a button shows: the nearest, if one is near. The frame around it depends
/// on style and state.
QString shownBy(QToolButton* button)
{
    const QImage shown = button->grab().toImage();
    QString nearest;
    double least = 8;
    for (const QString& file : toolFiles()) {
        const QImage inside = QImage(prefix + file).copy(3, 3, 30, 30);
        for (int frame = 0; frame <= 3; ++frame) {
            const double distance = difference(shown.copy(frame + 3, frame + 3, 30, 30), inside);
            if (distance < least) {
                least = distance;
                nearest = file;
            }
        }
    }
    return nearest;
}

/// A slot of the strip that chooses a tool's variant.
using Choice = void (Canvas_Tool_Strip::*)();

}  // namespace

Q_DECLARE_METATYPE(Choice)

class TestResources : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void picture_data()
    {
        QTest::addColumn<int>("size");
        for (const QString& file : toolFiles()) {
            QTest::newRow(qPrintable(file)) << toolSize;
        }
        for (const Icon& icon : icons) {
            QTest::newRow(icon.file) << icon.size;
        }
    }

    void picture()
    {
        QFETCH(int, size);
        const QString file = QTest::currentDataTag();
        const QImage once(prefix + file);
        const QImage twice(prefix + doubled(file));
        QVERIFY(!once.isNull() && !twice.isNull());
        const QByteArray format = file.endsWith(".png") ? "png" : "jpeg";
        QCOMPARE(formatOf(prefix + file), format);
        QCOMPARE(formatOf(prefix + doubled(file)), format);
        QCOMPARE(once.size(), QSize(size, size));
        QCOMPARE(twice.size(), once.size() * 2);
        // The larger one shows the same.
        QVERIFY(difference(once, twice.scaled(once.size(), Qt::IgnoreAspectRatio,
                                              Qt::SmoothTransformation)) < 12);
    }

#ifdef RENDER_PROGRAM
    void committedIsWhatTheSourcesGive()
    {
        const QTemporaryDir folder;
        QCOMPARE(QProcess::execute(RENDER_PROGRAM, {RESOURCE_DIR, folder.path(), folder.path()}),
                 0);
        const QDir committed(RESOURCE_DIR "/pictures");
        const QStringList files = committed.entryList(QDir::Files);
        QStringList rendered = QDir(folder.path()).entryList(QDir::Files);
        rendered.removeAll("pictures-1x.png");
        rendered.removeAll("pictures-2x.png");
        QCOMPARE(rendered, files);
        for (const QString& file : files) {
            const QImage now(folder.filePath(file));
            const QImage before(committed.filePath(file));
            QCOMPARE(now.size(), before.size());
            QVERIFY2(difference(now, before) < 0.5, qPrintable(file));
        }
    }
#endif

    void treeHoldsEachFileUnderItsOwnName()
    {
        const QDir committed(RESOURCE_DIR "/pictures");
        const QStringList files = QDir(prefix).entryList(QDir::Files);
        QCOMPARE(files.size(), 2 * (toolFiles().size() + int(std::size(icons))));
        QCOMPARE(files, committed.entryList(QDir::Files));
        for (const QString& file : files) {
            QFile compiled(prefix + file);
            QFile source(committed.filePath(file));
            QVERIFY(compiled.open(QIODevice::ReadOnly) && source.open(QIODevice::ReadOnly));
            QVERIFY2(compiled.readAll() == source.readAll(), qPrintable(file));
        }
    }

    void picturesAreDistinct()
    {
        QStringList files = toolFiles();
        for (const Icon& icon : icons) {
            files << icon.file;
        }
        for (const QString& one : files) {
            for (const QString& other : files) {
                const QImage a(prefix + one);
                const QImage b(prefix + other);
                if (one != other && a.size() == b.size()) {
                    QVERIFY2(difference(a, b) > 3, qPrintable(one + ", " + other));
                }
            }
        }
    }

    void checkedIsToldWithoutColour()
    {
        for (const Pair& tool : usableTools()) {
            QCOMPARE(darkRows(QImage(prefix + tool.file)), 0);
            QVERIFY2(darkRows(QImage(prefix + tool.checkedFile)) >= 4, tool.checkedFile);
        }
        for (const char* const file : disabledTools()) {
            QCOMPARE(darkRows(QImage(prefix + file)), 0);
        }
    }

    void disabledIsGrey()
    {
        for (const char* const file : disabledTools()) {
            const QImage picture(prefix + file);
            for (int y = 0; y < picture.height(); ++y) {
                for (int x = 0; x < picture.width(); ++x) {
                    const QColor colour = picture.pixelColor(x, y);
                    QVERIFY2(qAbs(colour.red() - colour.blue()) < 32 && colour.lightness() > 128,
                             file);
                }
            }
        }
    }

    void variantShows_data()
    {
        QTest::addColumn<Tool>("tool");
        QTest::addColumn<Choice>("choose");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("checkedFile");
        using Strip = Canvas_Tool_Strip;
        const auto row = [](Tool tool, Choice choose, const char* file, const char* checkedFile) {
            QTest::newRow(file) << tool << choose << QString(file) << QString(checkedFile);
        };
        row(Tool::DeleteFeature, &Strip::on_m_delete_feature_clicked, "delete1-gry.jpg",
            "delete1-gre.jpg");
        row(Tool::DeleteFeature, &Strip::on_m_delete_to_intersection_clicked, "delete2-gry.jpg",
            "delete2-gre.jpg");
        row(Tool::SelectByNet, &Strip::On_Select_polyline_triggered, "Net selection2.jpg",
            "Net selection1.jpg");
        row(Tool::SelectByNet, &Strip::On_pSelect_board_net_triggered, "Net selection4.jpg",
            "Net selection3.jpg");
        row(Tool::SelectByNet, &Strip::On_pSelect_layer_net_triggered, "Net selection6.jpg",
            "Net selection5.jpg");
        row(Tool::Mark, &Strip::on_m_mark_horizontalandvertical_clicked, "markgry.png",
            "markgre.png");
        row(Tool::Mark, &Strip::on_m_mark_point2point_clicked, "xie_grey.png", "xie_green.png");
    }

    void variantShows()
    {
        QFETCH(Tool, tool);
        QFETCH(Choice, choose);
        QFETCH(QString, file);
        QFETCH(QString, checkedFile);
        StripFixture fixture;
        fixture.window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&fixture.window));
        // From another variant, so that the start state is not taken for the choice.
        fixture.strip->On_pSelect_layer_net_triggered();
        fixture.strip->on_m_mark_point2point_clicked();
        fixture.strip->on_m_delete_to_intersection_clicked();
        (fixture.strip->*choose)();
        QCOMPARE(shownBy(fixture.button(tool)), checkedFile);
        QTest::mouseClick(fixture.button(Tool::AreaZoom), Qt::LeftButton);
        QCOMPARE(shownBy(fixture.button(tool)), file);
    }
};

CTS_TEST(TestResources);
#include "test_resources.moc"
