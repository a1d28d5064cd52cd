// What the user is told of symbols and letters whose shape is not known, and sees of them.

#include "BoxButton.h"
#include "CanvasFixture.h"
#include "ChosenFile.h"
#include "Main.h"
#include "board/BoardFile.h"
#include "plugin/MessageCodes.h"
#include "plugin/RecordKeys.h"
#include "shared/Settings.h"
#include "viewer/CanvasColours.h"
#include "viewer/FileActions.h"

#include <Files.h>

#include <QAction>
#include <QImage>
#include <QTemporaryDir>
#include <QTranslator>

namespace {

Pcb::Features oddFeatures()
{
    Pcb::TextSpec text;
    text.content = "Gr\u00fcn";
    text.xSize = text.ySize = 2000;
    text.lineWidth = 400;
    Pcb::Geometry negative = Pcb::padGeometry("logo", {15000, 5000});
    negative.positive = false;
    return {Pcb::Feature(Pcb::padGeometry("r60", {3000, 5000})),
            Pcb::Feature(Pcb::padGeometry("logo", {9000, 5000})), Pcb::Feature(negative),
            Pcb::Feature(Pcb::lineGeometry("nick", {3000, 2000}, {9000, 2000})),
            Pcb::Feature(Pcb::textGeometry(text, {2000, 8000}))};
}

const char* const whichOnes = "Symbols: \"logo\", \"nick\". Letters: \u00fc.";

class UnknownFixture : public CanvasFixture {
public:
    UnknownFixture() : CanvasFixture(oddFeatures()) {}
    ~UnknownFixture() { Settings::keepIn({}); }

    FileActions& files() const { return *pane->findChild<FileActions*>(); }
    QString path(const char* name) const { return directory.filePath(name); }
    QString write(const char* name) const
    {
        Pcb::writeBoardFile(document().board(), path(name));
        return path(name);
    }
    void exportAs(const char* name) const
    {
        const ChosenFile chosen(path(name));
        pane->findChild<QAction*>("m_pExportBoardAct")->trigger();
    }

    /// How many pixels around a place have that colour, or nearly.
    int count(const QColor& colour, double x, double y, int reach) const
    {
        QRect around(-reach, -reach, 2 * reach, 2 * reach);
        around.moveCenter(at(x, y));
        const QImage image = view().grab(around).toImage();
        int found = 0;
        for (int row = 0; row < image.height(); ++row) {
            for (int column = 0; column < image.width(); ++column) {
                found += isAlike(image.pixelColor(column, row), colour);
            }
        }
        return found;
    }

    QTemporaryDir directory;
    BoxButton boxes{QMessageBox::Ok};

private:
    /// Red alone is also seen where it is mixed with the dark ground, as thin lines are.
    static bool isAlike(const QColor& pixel, const QColor& colour)
    {
        return colour == CanvasColours::unknown ? pixel.red() - pixel.green() > 70
                                                : qAbs(pixel.red() - colour.red()) < 40 &&
                                                      qAbs(pixel.green() - colour.green()) < 40 &&
                                                      qAbs(pixel.blue() - colour.blue()) < 40;
    }
};

}  // namespace

class TestUnknownShapes : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void openingTellsHowManyAndWhich()
    {
        UnknownFixture fixture;
        const QString file = fixture.write("odd.json");
        const QString told =
            QString("4 feature(s) of unknown shape drawn as outlines. ") + whichOnes;
        QVERIFY(fixture.files().open(file));
        QCOMPARE(fixture.boxes.texts, QStringList("Unknown Shapes|" + told));
        QCOMPARE(fixture.text("m_pCanvasStatusLB"), told + " Opened " + file + ".");
    }

    void oneIsToldAsOne()
    {
        QTranslator plurals;
        QVERIFY(plurals.load("workbench_en", TRANSLATION_DIR));
        QCoreApplication::installTranslator(&plurals);
        UnknownFixture fixture;
        fixture.document().replace({"job", "step", {}, {oddFeatures().back()}});
        fixture.files().openAtOnce(fixture.write("odd.json"));
        const QString opened = fixture.text("m_pCanvasStatusLB");
        QVERIFY2(opened.startsWith("1 feature of unknown shape drawn as an outline. "),
                 qPrintable(opened));
        fixture.exportAs("odd.svg");
        const QString left = fixture.boxes.texts.value(0);
        QVERIFY2(
            left.startsWith("Unknown Shapes|1 feature of unknown shape left out of the file. "),
            qPrintable(left));
    }

    void aFileThatAProgramNamesOpensNoBox()
    {
        UnknownFixture fixture;
        const QString file = fixture.write("odd.json");
        fixture.files().openAtOnce(file);
        QVERIFY(fixture.text("m_pCanvasStatusLB").startsWith("4 feature(s) of unknown shape"));
        fixture.files().setMayAsk([] { return false; });
        QVERIFY(fixture.files().open(file));
        QCOMPARE(fixture.boxes.texts, QStringList());
    }

    void nothingIsToldWhereAllIsKnown()
    {
        UnknownFixture fixture;
        fixture.document().replace({"job", "step", {}, {oddFeatures().front()}});
        const QString file = fixture.write("plain.json");
        QVERIFY(fixture.files().open(file));
        QCOMPARE(fixture.text("m_pCanvasStatusLB"), "Opened " + file + ".");
        fixture.exportAs("plain.gbr");
        QVERIFY(!CanvasHost::readWhole(fixture.path("plain.gbr")).contains("Left out"));
        QCOMPARE(fixture.boxes.texts, QStringList());
    }

    void exportsTellWhatTheyLeaveOut()
    {
        UnknownFixture fixture;
        for (const char* const name : {"odd.gbr", "odd.svg"}) {
            fixture.boxes.texts.clear();
            fixture.exportAs(name);
            QCOMPARE(
                fixture.boxes.texts,
                QStringList(
                    QString("Unknown Shapes|4 feature(s) of unknown shape left out of the file. ") +
                    whichOnes));
            QCOMPARE(fixture.text("m_pCanvasStatusLB"), "Wrote " + fixture.path(name) + ".");
            QVERIFY(CanvasHost::readWhole(fixture.path(name)).contains("Left out, symbols"));
        }
    }

    void manyNamesAreCutShort()
    {
        UnknownFixture fixture;
        Pcb::Features all;
        for (int i = 0; i < 12; ++i) {
            all.push_back(
                Pcb::Feature(Pcb::padGeometry(QString("odd%1").arg(i), {1000.0 * i, 1000})));
        }
        fixture.document().replace({"job", "step", {}, all});
        QVERIFY(fixture.files().open(fixture.write("many.json")));
        QVERIFY(fixture.boxes.texts.value(0).startsWith("Unknown Shapes|12 feature(s) of "));
        QVERIFY(fixture.boxes.texts.value(0).endsWith("\"odd7\", ...."));
    }

    void unknownShapesAreThinOutlines()
    {
        const UnknownFixture fixture;
        fixture.move(19000, 13000);
        const int reach = fixture.at(9762, 5000).x() - fixture.at(9000, 5000).x();
        QVERIFY(reach > 10);
        for (const double x : {9000.0, 15000.0}) {  // whichever polarity
            QVERIFY(fixture.count(CanvasColours::unknown, x, 5000, reach + 2) > reach);
            QCOMPARE(fixture.count(CanvasColours::pad, x, 5000, reach), 0);
        }
        fixture.view().showArea({8000, 4000, 2000, 2000});
        QCOMPARE(fixture.count(CanvasColours::unknown, 9000 + 698, 5000, 3), 0);  // within its ring
        fixture.view().fit();
        QVERIFY(fixture.count(CanvasColours::unknown, 6000, 2000, reach * 2) > reach);
        QCOMPARE(fixture.count(CanvasColours::unknown, 3000, 5000, reach), 0);
        const QPointF letter = fixture.features()[4].unknown().boundingRect().center();
        QVERIFY(fixture.count(CanvasColours::unknown, letter.x(), 8000, reach) > reach / 2);
        QVERIFY(fixture.count(CanvasColours::text, 3500, 10000, reach * 3) > reach);
    }

    /// On a large board, where what is small is drawn more simply.
    void smallOnesAreOutlinesToo()
    {
        const UnknownFixture fixture;
        Pcb::Features all(10001, Pcb::Feature(Pcb::padGeometry("r10", {0, 0})));
        all.push_back(Pcb::Feature(Pcb::padGeometry("logo", {100000, 100000})));
        all.push_back(Pcb::Feature(Pcb::padGeometry("r60", {100000, 50000})));
        const QPolygonF outline(QRectF(0, 0, 600000, 400000));
        fixture.document().replace({"job", "step", outline, all});
        fixture.view().fit();
        QCOMPARE(fixture.count(CanvasColours::pad, 100000, 100000, 4), 0);
        QVERIFY(fixture.count(CanvasColours::unknown, 100000, 100000, 4) > 1);
        QVERIFY(fixture.count(CanvasColours::pad, 100000, 50000, 4) > 1);
    }

    void anUnknownShapeIsHoveredAndSelected()
    {
        const UnknownFixture fixture;
        fixture.receive(MessageCodes::Sent::FeatureSelection);
        fixture.move(9000, 5000);
        QCOMPARE(fixture.text("m_pHoveredLB"), QString("logo"));
        QVERIFY(fixture.count(CanvasColours::hovered, 9000, 5000, 20) > 10);
        fixture.click(9000, 5000);
        fixture.move(19000, 13000);
        QCOMPARE(fixture.state().selected, Pcb::Indexes{1});
        QVERIFY(fixture.count(CanvasColours::selected, 9000, 5000, 20) > 10);
    }

    void anUnknownShapeIsPreviewed()
    {
        const UnknownFixture fixture;
        fixture.receive(
            MessageCodes::Sent::Record, 0,
            {{RecordKeys::features, FeatureKind::pad.toInt()}, {RecordKeys::symbolText, "logo"}});
        fixture.move(12000, 11000);
        QVERIFY(fixture.count(CanvasColours::hovered, 12000, 11000, 20) > 10);
    }
};

CTS_TEST(TestUnknownShapes);
#include "test_unknowns.moc"
