// What each field of the pages asks, stores and sends for an entry, and what can be typed in it,
// without a dialog around them.

#include "AllPages.h"
#include "AnyField.h"
#include "Main.h"
#include "plugin/RecordKeys.h"

#include <CamApiStandIn.h>
#include <UiApiStandIn.h>

#include <QLineEdit>

#include <utility>

namespace {

using CanvasHost::DisplayUnit;

/// A field into which 10 is entered, or mil.
struct Line {
    const char* field;
    QString key;
    Sends sends;
    QString shownAtFirst;
    QString storedAtFirst;
    QString stored;
    QString check;  // what is asked, with %1 for the text
    QString sent = "record";
};

const QString asAngle = "number %1 from 0 to 360";
const QString asCount = "number %1 from 0 to 50";
const QString asFactor = "number %1 from -100 to 100";
const QString asSize = "length %1 up to 10000";
const QString asLength = "length %1 up to 50000";

const Line lines[] = {
    {"m_pAngleLE", RecordKeys::angle, Sends::WhenAccepted, "", "", "10", asAngle, "direction"},
    {"m_pCornerRadiusLE", RecordKeys::cornerRadius, Sends::WhenAccepted, "0", "0", "254", asLength},
    {"m_pLengthLE", RecordKeys::slotLength, Sends::Never, "0", "0", "254", asLength},
    {"m_pSlotAngleLE", RecordKeys::slotAngle, Sends::Never, "0", "0", "10", ""},
    {"m_pSlotDecodeLE", RecordKeys::slotDecode, Sends::Never, "0", "0", "10", ""},
    {"m_pDrilNxLE", RecordKeys::padNx, Sends::WhenAccepted, "1", "1", "10", asCount},
    {"m_pDrilNyLE", RecordKeys::padNy, Sends::WhenAccepted, "1", "1", "10", asCount},
    {"m_pDrilXsclLE", RecordKeys::padXscl, Sends::WhenAccepted, "1", "1", "10", asFactor},
    {"m_pDrilYsclLE", RecordKeys::padYscl, Sends::WhenAccepted, "1", "1", "10", asFactor},
    {"m_pDrilDxLE", RecordKeys::padDx, Sends::WhenAccepted, "0", "0", "254", "coordinate %1"},
    {"m_pDrilDyLE", RecordKeys::padDy, Sends::WhenAccepted, "0", "0", "254", "coordinate %1"},
    {"m_pTextLE", RecordKeys::textContains, Sends::Always, "", "", "10", ""},
    {"m_pXSizeLE", RecordKeys::stringXSize, Sends::Always, "200", "5080", "254", asSize},
    {"m_pYSizeLE", RecordKeys::stringYSize, Sends::Always, "200", "5080", "254", asSize},
    {"m_pLineWidthLE", RecordKeys::stringLineWidth, Sends::Always, "24", "609.6", "254", asSize},
    {"m_pHeightLE", RecordKeys::barcodeHeight, Sends::Never, "250", "6350", "254", asLength},
    {"m_pMatrixLE", RecordKeys::barcodeMatrix, Sends::Never, "Minimal", "Minimal", "10", ""},
    {"m_pCannedHoleSizeLE", RecordKeys::cannedHoleSize, Sends::Never, "20", "508", "254", asLength},
};

/// What is called for that text.
QStringList calls(const Line& row, const QString& text, bool isSent)
{
    QStringList calls;
    if (!row.check.isEmpty()) {
        calls.append(row.check.arg(text));
    }
    return isSent ? calls + QStringList(row.sent) : calls;
}

}  // namespace
Q_DECLARE_METATYPE(Line)

class TestEntries : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        CanvasHost::setDisplayUnit(DisplayUnit::Mil);
        CanvasHost::camApiOverrides() = {};
    }

    void entry_data()
    {
        QTest::addColumn<Line>("row");
        for (const Line& row : lines) {
            QTest::newRow(row.field) << row;
        }
    }

    void entry()
    {
        QFETCH(Line, row);
        AllPages pages;
        auto& field = pages.find<QLineEdit>(row.field);
        const bool isAtEachChange = row.check == asCount || row.check == asFactor;
        const auto enter = [&](const QString& text) {
            field.setText(text);
            const QStringList whileTyped = pages.door.takeCalls();
            Q_EMIT field.editingFinished();
            return std::pair(whileTyped, pages.door.takeCalls());
        };
        const auto expected = [&](const QString& text, bool isSent) {
            const QStringList all = calls(row, text, isSent);
            return isAtEachChange ? std::pair(all, QStringList()) : std::pair(QStringList(), all);
        };
        QCOMPARE(field.text(), row.shownAtFirst);
        QCOMPARE(pages.stored(row.key), AllPages::described(row.storedAtFirst));
        const QMap<QString, QString> others = pages.others(row.key);
        QCOMPARE(enter("10"), expected("10", row.sends != Sends::Never));
        QCOMPARE(pages.stored(row.key), AllPages::described(row.stored));

        pages.door.accepts = row.check.isEmpty();
        QCOMPARE(enter("7"), expected("7", row.sends == Sends::Always));
        QCOMPARE(pages.others(row.key), others);
    }

    void typing_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown");
        const struct {
            const char* field;
            const char* typed;
            const char* shown;
        } rows[] = {{"m_pAngleLE", "4a5.5", "45.5"},
                    // A whole number without leading zeros, or a lone "0".
                    {"m_pCornerRadiusLE", "01", "0"},
                    {"m_pCornerRadiusLE", "0", "0"},
                    {"m_pCornerRadiusLE", "105", "105"},
                    {"m_pCornerRadiusLE", "1.5", "15"},
                    {"m_pCornerRadiusLE", "-5", "5"},
                    {"m_pLengthLE", "1.2.3", "1.23"},
                    {"m_pDrilDxLE", "01", "0"},
                    {"m_pDrilDxLE", "1.123456", "1.12345"},
                    {"m_pDrilDyLE", "-0.5", "-0.5"},
                    {"m_pDrilDyLE", "1x2", "12"},
                    {"m_pDrilDyLE", "01", "0"},
                    {"m_pDrilNxLE", "1.5", "15"},
                    {"m_pDrilNxLE", "1,5", "15"},
                    {"m_pDrilNyLE", "1.5", "15"},
                    {"m_pDrilNyLE", "1,5", "15"},
                    {"m_pDrilXsclLE", "1,5", "15"},
                    {"m_pDrilXsclLE", "-1.5", "-1.5"},
                    {"m_pDrilYsclLE", "1,5", "15"},
                    {"m_pDrilYsclLE", "-1.5", "-1.5"},
                    {"m_pSlotAngleLE", "-12x.5", "-12.5"},
                    {"m_pSlotDecodeLE", "-7x", "-7"},
                    {"m_pHeightLE", "12x.5", "12.5"},
                    {"m_pCannedHoleSizeLE", "20x.5", "20.5"},
                    {"m_pMatrixLE", "8 x 18?", "8 x 18?"},
                    {"m_pTextLE", "aZ09`~!@#$%^&*()-_=+<>,./ |?'", "aZ09`~!@#$%^&*()-_=+<>,./ "},
                    {"m_pXSizeLE", "-1.5x", "1.5"},
                    {"m_pYSizeLE", "-1.5x", "1.5"},
                    {"m_pLineWidthLE", ".5", ".5"},
                    {"m_pLineWidthLE", "-1", "1"},
                    {"m_pFontLE", "x", ""}};
        for (const auto& row : rows) {
            QTest::addRow("%s %s", row.field, row.typed) << row.field << row.typed << row.shown;
        }
    }

    void typing()
    {
        QFETCH(QString, field);
        QFETCH(QString, typed);
        QFETCH(QString, shown);
        QLocale::setDefault(QLocale(QLocale::German));  // reads a comma; the fields do not
        const AllPages pages;
        auto& line = pages.find<QLineEdit>(field);
        line.setEnabled(true);
        type(line, typed);
        QLocale::setDefault(QLocale::c());
        QCOMPARE(line.text(), shown);
    }

    /// Qt does not report what does not match, so that the field's own "0" is no entry.
    void aLoneZeroIsNoPitch()
    {
        const AllPages pages;
        for (const PitchField* const pitch : {pages.pad.m_pDrilDxLE, pages.pad.m_pDrilDyLE}) {
            QCOMPARE(pitch->text(), QString("0"));
            QVERIFY(!pitch->hasAcceptableInput());
        }
        QCOMPARE(pages.pad.m_pDrilDyLE->validator(), pages.pad.m_pDrilDxLE->validator());
    }

    /// Sizes that start in the metric unit take what the host allows.
    void sizesStartInTheUnitThatIsShown()
    {
        const QVariantMap inMil = AllPages().door.record().map();
        for (const bool isMetric : {false, true}) {
            CanvasHost::setDisplayUnit(isMetric ? DisplayUnit::Micrometre : DisplayUnit::Mil);
            AllPages pages;
            QCOMPARE(pages.door.record().map(), inMil);
            const StringPage& sizes = *pages.text.m_strings;
            for (const LengthField* const side : {sizes.m_pXSizeLE, sizes.m_pYSizeLE}) {
                QCOMPARE(side->text(), QString(isMetric ? "5080" : "200"));
            }
            QCOMPARE(sizes.m_pLineWidthLE->text(), QString(isMetric ? "609.6" : "24"));
            for (LengthField* const field :
                 {sizes.m_pXSizeLE, sizes.m_pYSizeLE, sizes.m_pLineWidthLE}) {
                type(*field, "-1");
                QCOMPARE(field->text(), QString(isMetric ? "-1" : "1"));
            }
        }
    }

    void aFontIsOneOfTheJob()
    {
        QString fonts = "standard";
        CanvasHost::camApiOverrides().get_fonts = [&](const std::string&,
                                                      std::vector<std::string>& names) {
            names = {"other", fonts.toStdString()};
        };
        AllPages pages;
        TextField& font = *pages.text.m_pFontLE;
        QCOMPARE(font.text(), QString("standard"));
        QCOMPARE(pages.stored(RecordKeys::stringTextFont), QString("QString standard"));
        fonts = "simple";
        QCOMPARE(AllPages().text.m_pFontLE->text(), QString());  // a job without the standard one

        font.setText("simple");
        font.finish();
        QCOMPARE(pages.door.takeCalls(), QStringList("record"));
        for (const char* const missing : {"fancy", "Simple", ""}) {
            font.setText(missing);
            font.finish();
            QCOMPARE(font.text(), QString());
            QCOMPARE(pages.stored(RecordKeys::stringTextFont), QString("QString simple"));
            QCOMPARE(pages.door.takeCalls(), QStringList());
        }
        font.enter("fancy");  // chosen elsewhere: not asked
        QCOMPARE(pages.stored(RecordKeys::stringTextFont), QString("QString fancy"));
        QCOMPARE(pages.door.takeCalls(), QStringList("record"));
    }
};

CTS_TEST(TestEntries);
#include "test_entries.moc"
