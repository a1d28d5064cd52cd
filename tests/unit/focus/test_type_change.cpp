// The order of the steps of a type change, as the canvas sees it.

#include "DialogFixture.h"
#include "Expect.h"
#include "Main.h"
#include "plugin/MessageCodes.h"
#include "plugin/RecordKeys.h"

namespace Sent = MessageCodes::Sent;

using Opened = DialogFixture::Opened;

namespace {

const QStringList types = {"m_pLineTB", "m_pPadTB", "m_pSurfaceTB", "m_pArcTB", "m_pTextTB"};
const QStringList always = {"m_pAttributesCB", "m_pFillPB", "m_pPolarityCMB"};
const QStringList symbolControls = {"m_pSymbolPB", "m_pSymbolTextLE", "m_pSelectFromEditorPB"};
const QStringList placing = {"m_pMirrorCMB", "m_pAngleValueSB"};

const QStringList kinds = {FeatureKind::line, FeatureKind::pad, FeatureKind::surface,
                           FeatureKind::arc, FeatureKind::text};

/// The record's number for the type with that button.
int kindOf(const QString& type)
{
    return kinds[types.indexOf(type)].toInt();
}

bool isPlaced(const QString& type)
{
    return type == "m_pPadTB" || type == "m_pTextTB";
}

bool hasSymbol(const QString& type)
{
    return type != "m_pSurfaceTB" && type != "m_pTextTB";
}

/// What can be seen of the common controls, one word each.
QStringList shownControls(const DialogFixture& fixture)
{
    QStringList shown;
    for (const QString& name : always + symbolControls + placing) {
        if (fixture.find(name).isVisibleTo(fixture.dialog)) {
            shown.append(name);
        }
    }
    if (fixture.find("m_pFillPB").isEnabled()) {
        shown.append("enabled");
    }
    return shown;
}

QVariant valueOf(const Recorder::Entry& entry, const QString& key)
{
    return entry.message.payload.value(key);
}

}  // namespace

class TestTypeChange : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void order_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        for (const QString& before : types) {
            for (const QString& after : types) {
                QTest::addRow("%s to %s", qPrintable(before), qPrintable(after)) << before << after;
            }
        }
    }

    /// The attributes are sent when all common controls are shown and nothing is hidden yet.
    void order()
    {
        QFETCH(QString, before);
        QFETCH(QString, after);
        DialogFixture fixture(Unit::Mil, Opened::ByTheStrip);
        fixture.click(before);
        fixture.recorder.clear();
        QVector<QStringList> seen;
        QVariant feature;
        fixture.recorder.setOnMessage([&](const Recorder::Entry& entry) {
            if (entry.message.code == Sent::DirectionRecord) {
                return;
            }
            seen.append(shownControls(fixture));
            if (entry.message.code == Sent::AttributeMap) {
                feature = fixture.value(RecordKeys::features);
            }
        });
        fixture.click(after);
        fixture.recorder.setOnMessage({});
        QCOMPARE(fixture.recorder.codes(), (QVector<int>{Sent::AttributeMap, Sent::Record}));
        QCOMPARE(feature.toInt(), kindOf(before));
        Expect::holds(fixture, {Expect::record(RecordKeys::features, kindOf(after))});

        QStringList atAttributes = always + symbolControls;
        atAttributes += isPlaced(before) ? placing : QStringList();
        atAttributes += before == "m_pSurfaceTB" ? QStringList{"enabled"} : QStringList();
        QCOMPARE(seen[0], atAttributes);
        QStringList atRecord = always;
        atRecord += hasSymbol(after) ? symbolControls : QStringList();
        atRecord += isPlaced(after) ? placing : QStringList();
        atRecord += after == "m_pSurfaceTB" ? QStringList{"enabled"} : QStringList();
        QCOMPARE(seen[1], atRecord);
    }

    void typedRotation_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        for (const QString& before : types) {
            for (const QString& after : types) {
                if (isPlaced(before)) {
                    QTest::addRow("%s to %s", qPrintable(before), qPrintable(after))
                        << before << after;
                }
            }
        }
    }

    /// Hiding the spin box finishes what is typed in it, still as the old type.
    void typedRotation()
    {
        QFETCH(QString, before);
        QFETCH(QString, after);
        DialogFixture fixture(Unit::Mil, Opened::ByTheStrip);
        fixture.click(before);
        fixture.type("m_pAngleValueSB", "45");
        fixture.recorder.clear();
        fixture.click(after);
        const QVector<Recorder::Entry>& sent = fixture.recorder.messages();
        QCOMPARE(fixture.recorder.codes(),
                 (QVector<int>{Sent::AttributeMap, Sent::Record, Sent::Record}));
        QCOMPARE(valueOf(sent[1], RecordKeys::mirrorRotate), QVariant("45"));
        QCOMPARE(valueOf(sent[1], RecordKeys::features), QVariant(kindOf(before)));
        QCOMPARE(valueOf(sent[2], RecordKeys::mirrorRotate), QVariant("45"));
        QCOMPARE(valueOf(sent[2], RecordKeys::features), QVariant(kindOf(after)));
        QCOMPARE(fixture.agreement->faultOf(fixture.record()), QString());
    }

    void theLineKindKeepsItsOwnOrder()
    {
        DialogFixture fixture(Unit::Mil, Opened::ByTheStrip);
        fixture.recorder.clear();
        fixture.choose("m_pLineCMB", "Polyline");
        QCOMPARE(fixture.recorder.codes(), (QVector<int>{Sent::AttributeMap, Sent::Record}));
        fixture.choose("m_pLineCMB", "Slot");
        for (const QString& name : always) {
            QVERIFY2(!fixture.find(name).isVisible(), qPrintable(name));
        }
        fixture.click("m_pLineTB");
        for (const QString& name : always + symbolControls) {
            QVERIFY2(fixture.find(name).isVisible(), qPrintable(name));
        }
    }
};

CTS_TEST(TestTypeChange);
#include "test_type_change.moc"
