// The compiled-in pictures: every name that style sheets and icons ask for.

#include "Main.h"

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

namespace {

const char* const tools[] = {
    "Area zoom2.jpg",
    "Area zoom3.jpg",
    "Open a popview-1.jpg",
    "Open a popview-2.jpg",
    "ruler.jpg",
    "ruler1.jpg",
    "Feature highlight-2.jpg",
    "Feature highlight-3.jpg",
    "Add Feature.jpg",
    "Add Feature1.jpg",
    "delete1-gry.jpg",
    "delete1-gre.jpg",
    "delete2-gry.jpg",
    "delete2-gre.jpg",
    "Move Feature-1.jpg",
    "Move Feature-2.jpg",
    "Copy feature-1.jpg",
    "Copy feature-2.jpg",
    "Change line angle1.jpg",
    "Change line angle2.jpg",
    "Stretch line3.jpg",
    "Stretch line4.jpg",
    "Rotate feature-grey.jpg",
    "Mirror feature-grey.jpg",
    "Invert feature-3.jpg",
    "Invert feature-4.jpg",
    "Break line1.jpg",
    "Break line2.jpg",
    "Rout dimension editor-grey.jpg",
    "Contour editor-grey.jpg",
    "Pull line-grey.jpg",
    "Move junction-grey.jpg",
    "Move triplet1.jpg",
    "Move triplet2.jpg",
    "ReRoute trace1.jpg",
    "ReRoute trace2.jpg",
    "Feature selection1.jpg",
    "Feature selection2.jpg",
    "Frame selection2.jpg",
    "Frame selection3.jpg",
    "Polygon selection2.jpg",
    "Polygon selection3.jpg",
    "Net selection1.jpg",
    "Net selection2.jpg",
    "Net selection3.jpg",
    "Net selection4.jpg",
    "Net selection5.jpg",
    "Net selection6.jpg",
    "markgry.png",
    "markgre.png",
    "xie_grey.png",
    "xie_green.png",
    "EQ-1.jpg",
    "EQ-2.jpg",
};
const char* const icons[] = {
    "Line1.jpg", "Pad1.jpg", "Surf1.jpg", "Arc1.jpg", "Text1.jpg",  "add_fea.jpg",
    "Free1.jpg", "Ver1.jpg", "Hori1.jpg", "VH1.jpg",  "8 Dir1.jpg", "Fixed1.jpg",
};

const QString prefix = QStringLiteral(":/Canvas_Tool_Strip/Resources/");

QString doubled(QString file)
{
    return file.insert(file.lastIndexOf('.'), QStringLiteral("@2x"));
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

}  // namespace

class TestResources : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void picture_data()
    {
        QTest::addColumn<bool>("isTool");
        for (const char* const file : tools) {
            QTest::newRow(file) << true;
        }
        for (const char* const file : icons) {
            QTest::newRow(file) << false;
        }
    }

    void picture()
    {
        QFETCH(bool, isTool);
        const QString file = QTest::currentDataTag();
        const QImage once(prefix + file);
        const QImage twice(prefix + doubled(file));
        QVERIFY(!once.isNull() && !twice.isNull());
        if (isTool) {
            QCOMPARE(once.size(), QSize(40, 40));
        }
        QCOMPARE(once.width(), once.height());
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

    void nothingElseIsInTheTree()
    {
        const int pictures = int(std::size(tools) + std::size(icons));
        QCOMPARE(QDir(prefix).entryList(QDir::Files).size(), 2 * pictures);
    }

    void toolsAreDistinct()
    {
        for (const char* const one : tools) {
            for (const char* const other : tools) {
                if (one != other) {
                    QVERIFY2(difference(QImage(prefix + one), QImage(prefix + other)) > 3,
                             qPrintable(QString(one) + ", " + other));
                }
            }
        }
    }
};

CTS_MAIN(TestResources)
#include "test_resources.moc"
