// The hints name the point that is asked for next, and the line that is drawn is measured.

#include "CanvasFixture.h"
#include "Main.h"
#include "plugin/MessageCodes.h"
#include "plugin/RecordKeys.h"

#include <UiApiStandIn.h>

#include <QImage>
#include <QtMath>

#include <cmath>

namespace Sent = MessageCodes::Sent;
namespace Accepted = MessageCodes::Accepted;

using Record = QMap<QString, QVariant>;

class TestHints : public QObject {
    Q_OBJECT

    /// In a window that is as narrow as a screen of 1920 pixels at twice the size.
    static bool isWhollySeen(const CanvasFixture& fixture)
    {
        return fixture.text("m_pPickHintLB").size() <= 57;
    }

    /// The words beside the place of the next click; empty for none.
    static QString noteOf(const CanvasFixture& fixture)
    {
        const std::optional<Note> note = fixture.pane->canvas().scene().overlay().note;
        return note ? note->text : QString();
    }

private Q_SLOTS:
    void eachPointIsAskedForByName_data()
    {
        QTest::addColumn<Record>("record");
        QTest::addColumn<QStringList>("hints");  // before each click, and after the last one
        const auto row = [](const char* name, const QString& kind, Record record,
                            const QStringList& hints) {
            record[RecordKeys::features] = kind.toInt();
            record[RecordKeys::symbolText] = "r20";
            QTest::newRow(name) << record << hints;
        };
        const QString& line = FeatureKind::line;
        row("line", line, {{RecordKeys::line, LineKind::single}},
            {"Click the start.", "Click the end; a right click cancels.", "Click the start."});
        row("polyline", line, {{RecordKeys::line, LineKind::polyline}},
            {"Click the start.", "Click the next corner; a right click ends it.",
             "Click the next corner; a right click ends it.",
             "Click the next corner; a right click ends it."});
        row("rectangle", line, {{RecordKeys::line, LineKind::rectangle}},
            {"Click a corner.", "Click the opposite corner; a right click cancels.",
             "Click a corner."});
        row("slot", line, {{RecordKeys::line, LineKind::slot}, {RecordKeys::slotLength, "1"}},
            {"Click the centre of the slot.", "Click the centre of the slot."});
        row("pad", FeatureKind::pad, {},
            {"Click the centre of the pad.", "Click the centre of the pad."});
        row("pads", FeatureKind::pad, {{RecordKeys::padNy, "2"}, {RecordKeys::padDy, "2000"}},
            {"Click the first pad's centre."});
        const QString& surface = FeatureKind::surface;
        row("surface", surface, {{RecordKeys::surfaceShape, SurfaceKind::rectangle}},
            {"Click a corner.", "Click the opposite corner; a right click cancels.",
             "Click a corner."});
        row("polygon", surface, {{RecordKeys::surfaceShape, SurfaceKind::polygon}},
            {"Click a corner.", "Click the next corner; a right click ends it.",
             "Click the next corner; a right click ends it."});
        row("disc", surface, {{RecordKeys::surfaceShape, SurfaceKind::circle}},
            {"Click the centre.", "Click a point of the circle; a right click cancels.",
             "Click the centre."});
        row("text", FeatureKind::text,
            {{RecordKeys::textContains, "x"}, {RecordKeys::textFormat, TextKind::string}},
            {"Click the lower left corner."});
        const QString cancel = "; a right click cancels.";
        const auto arc = [&](const char* name, const QString& mode, const QString& second,
                             const QString& third) {
            row(name, FeatureKind::arc,
                {{RecordKeys::arcAndCircle, ArcOrCircle::arc}, {RecordKeys::arcMode, mode}},
                {"Click the start.", second + cancel, third, "Click the start."});
        };
        arc("arc 1", "1", "Click the centre", "Click the direction of the end" + cancel);
        arc("arc 2", "2", "Click the end", "Click a point of the arc between" + cancel);
        arc("arc 3", "3", "Click the end", "Click the centre" + cancel);
        arc("arc 4", "4", "Click the centre", "Click where the angle ends" + cancel);
        arc("arc 5", "5", "Click the centre", "Click as far from the start as the arc is long.");
        arc("arc 6", "6", "Click the end", "Click where the angle at the start is half the arc's.");
        arc("arc 7", "7", "Click the end", "Click as far from the end as the radius is long.");
        const auto circle = [&row](const char* name, const QString& mode,
                                   const QStringList& hints) {
            row(name, FeatureKind::arc,
                {{RecordKeys::arcAndCircle, ArcOrCircle::circle}, {RecordKeys::circleMode, mode}},
                hints);
        };
        const QStringList fromCentre{"Click the centre.",
                                     "Click a point of the circle; a right click cancels.",
                                     "Click the centre."};
        circle("circle 1", "1", fromCentre);
        circle("circle 2", "2", fromCentre);
        circle("circle 3", "3",
               {"Click a point of the circle.", "Click the centre; a right click cancels.",
                "Click a point of the circle."});
        circle("circle 4", "4",
               {"Click a point of the circle.",
                "Click the circle's second point; a right click cancels.",
                "Click the circle's third point; a right click cancels.",
                "Click a point of the circle."});
    }
    void eachPointIsAskedForByName()
    {
        QFETCH(Record, record);
        QFETCH(QStringList, hints);
        const CanvasFixture fixture;
        fixture.receive(Sent::AddFeature);
        fixture.receive(Sent::Record, 0, record);
        const QPointF places[] = {{5000, 5000}, {9000, 6000}, {7500, 8000}, {6000, 9000}};
        for (int i = 0; i < hints.size(); ++i) {
            fixture.move(places[i].x(), places[i].y());
            QCOMPARE(fixture.text("m_pPickHintLB"), hints[i]);
            QVERIFY(isWhollySeen(fixture));
            fixture.click(places[i].x(), places[i].y());
        }
    }

    void aLineIsMeasuredWhileItIsDrawn()
    {
        const CanvasFixture fixture;
        fixture.receive(Sent::Record, 0, lineRecord(LineKind::polyline));
        fixture.move(3000, 3000);
        QCOMPARE(noteOf(fixture), QString());
        CanvasController& canvas = fixture.pane->canvas();
        canvas.clickAt({2540, 2540});
        QCOMPARE(noteOf(fixture), QString());  // it has no length yet
        canvas.clickAt({5080, 5080});
        fixture.move(9000, 9000);
        const QPointF way = fixture.view().boardPoint(fixture.at(9000, 9000)) - QPointF(5080, 5080);
        const auto expected = [&way](const char* unit, double micrometres, int digits) {
            return QString("%1 %5, %2\u00b0\ndx %3 %5\ndy %4 %5")
                .arg(std::hypot(way.x(), way.y()) / micrometres, 0, 'f', digits)
                .arg(qRadiansToDegrees(std::atan2(way.y(), way.x())), 0, 'f', 1)
                .arg(way.x() / micrometres, 0, 'f', digits)
                .arg(way.y() / micrometres, 0, 'f', digits)
                .arg(unit);
        };
        QCOMPARE(noteOf(fixture), expected("mil", 25.4, 2));
        CanvasHost::setDisplayUnit(CanvasHost::DisplayUnit::Millimetre);
        fixture.pane->overhear(Accepted::UnitChanged);
        const QString shown = noteOf(fixture);
        CanvasHost::setDisplayUnit(CanvasHost::DisplayUnit::Mil);
        QCOMPARE(shown, expected("mm", 1000, 4));
        fixture.rightClick(9000, 9000);
        QCOMPARE(noteOf(fixture), QString());
    }

    void aConstrainedLineIsMeasuredAsItIsDrawn()
    {
        const CanvasFixture fixture;
        Record record = lineRecord(LineKind::single);
        record[RecordKeys::angleGroup] = LineDirection::vertical.toInt();
        fixture.receive(Sent::Record, 0, record);
        fixture.pane->canvas().clickAt({5080, 5080});
        fixture.move(9000, 2540);
        const QString note = noteOf(fixture);
        QVERIFY2(note.contains(" mil, 270.0\u00b0\ndx 0.00 mil\ndy -"), qPrintable(note));
    }

    void onlyLinesAreMeasured()
    {
        const CanvasFixture fixture;
        fixture.receive(Sent::Record, 0, lineRecord(LineKind::rectangle));
        fixture.click(2000, 2000);
        fixture.move(6000, 5000);
        QCOMPARE(noteOf(fixture), QString());
    }

    /// Its words are white, and lie on a dark ground wherever the line ends.
    void theMeasureIsSeenBesideTheEnd_data()
    {
        QTest::addColumn<QPointF>("end");
        QTest::newRow("middle") << QPointF(9000, 7000);
        QTest::newRow("lower right corner of the view") << QPointF(-1, -1);
    }
    void theMeasureIsSeenBesideTheEnd()
    {
        QFETCH(QPointF, end);
        const CanvasFixture fixture;
        BoardView& view = fixture.view();
        if (end.x() < 0) {
            end = view.boardPoint(view.viewport()->rect().bottomRight() - QPoint(3, 3));
        }
        fixture.receive(Sent::Record, 0, lineRecord(LineKind::single));
        const auto countWhite = [&view] {
            const QImage image = view.grab().toImage();
            int count = 0;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    count += qGray(image.pixel(x, y)) > 230;
                }
            }
            return count;
        };
        fixture.move(end.x(), end.y());
        QCOMPARE(countWhite(), 0);
        fixture.click(2000, 2000);
        fixture.move(end.x(), end.y());
        const int seen = countWhite();
        QVERIFY2(seen > 100, qPrintable(QString::number(seen)));
    }

    void whatIsDoubtfulIsSaidBeforeTheFirstClick_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("symbol");
        QTest::addColumn<QString>("hint");
        const auto row = [](const char* name, const QString& kind, const char* symbol,
                            const char* hint) {
            QTest::newRow(name) << kind.toInt() << symbol << hint;
        };
        row("line", FeatureKind::line, "", "Click the start; no symbol, r10 is drawn.");
        row("pad", FeatureKind::pad, "", "Click the centre of the pad; no symbol, r10 is drawn.");
        row("arc", FeatureKind::arc, "", "Click the start; no symbol, r10 is drawn.");
        row("surface", FeatureKind::surface, "", "Click a corner.");
        row("unknown", FeatureKind::pad, "logo",
            "Click the centre of the pad; \"logo\" is drawn in outline.");
        row("known", FeatureKind::pad, "r20", "Click the centre of the pad.");
        row("no text", FeatureKind::text, "",
            "There is no text that could be drawn: clicks do nothing.");
    }
    void whatIsDoubtfulIsSaidBeforeTheFirstClick()
    {
        QFETCH(int, kind);
        QFETCH(QString, symbol);
        QFETCH(QString, hint);
        const CanvasFixture fixture;
        fixture.receive(Sent::AddFeature);
        fixture.receive(Sent::Record, 0,
                        {{RecordKeys::features, kind}, {RecordKeys::symbolText, symbol}});
        QCOMPARE(fixture.text("m_pPickHintLB"), hint);
        QVERIFY(isWhollySeen(fixture));
    }

    void aHintThatIsTooLongEndsInAnEllipsis_data()
    {
        QTest::addColumn<int>("missing");  // pixels
        QTest::newRow("it fits") << 0;
        QTest::newRow("it is too long") << 40;
    }
    void aHintThatIsTooLongEndsInAnEllipsis()
    {
        QFETCH(int, missing);
        const CanvasFixture fixture;
        fixture.receive(Sent::Record, 0, lineRecord(LineKind::single));
        auto& hint = findNamed<QLabel>(*fixture.pane, "m_pPickHintLB");
        const QString whole = hint.text();
        QLabel expected(whole, fixture.pane);
        expected.setFont(hint.font());
        const int width = expected.sizeHint().width() - missing;
        expected.setText(hint.fontMetrics().elidedText(whole, Qt::ElideRight, width));
        QCOMPARE(expected.text().endsWith(QChar(0x2026)), missing > 0);
        hint.setFixedWidth(width);
        const QImage shown = hint.grab().toImage();
        expected.resize(hint.size());
        QCOMPARE(shown, expected.grab().toImage());
        QCOMPARE(hint.text(), whole);
        QCOMPARE(hint.toolTip(), whole);
    }

    void whatWasDoneHasMoreRoomThanWhatIsBelowTheMouse()
    {
        const CanvasFixture fixture;
        const int done = findNamed<QLabel>(*fixture.pane, "m_pCanvasStatusLB").width();
        const int below = findNamed<QLabel>(*fixture.pane, "m_pHoveredLB").width();
        QVERIFY2(below > 100 && qAbs(done - 3 * below) < 6,
                 qPrintable(QString("%1 %2").arg(done).arg(below)));
    }

    void lettersThatTheFontLacksAreSaid()
    {
        const CanvasFixture fixture;
        fixture.receive(Sent::Record, 0,
                        {{RecordKeys::features, FeatureKind::text.toInt()},
                         {RecordKeys::textFormat, TextKind::string},
                         {RecordKeys::textContains, "Gr\u00fcn"}});
        QCOMPARE(fixture.text("m_pPickHintLB"),
                 QString("Click the lower left corner; the font lacks \"\u00fc\"."));
    }
};

CTS_TEST(TestHints);
#include "test_hints.moc"
