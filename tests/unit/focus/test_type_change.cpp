// In what order a change of type goes, as the canvas can see it.

#include "FocusFixture.h"
#include "Main.h"
#include "plugin/MessageCodes.h"
#include "plugin/RecordKeys.h"

namespace Sent = MessageCodes::Sent;

namespace {

const QStringList types = {"m_pLineTB", "m_pPadTB", "m_pSurfaceTB", "m_pArcTB", "m_pTextTB"};
const QStringList always = {"m_pAttributesCB", "m_pFillPB", "m_pPolarityCMB"};
const QStringList symbolControls = {"m_pSymbolPB", "m_pSymbolTextLE", "m_pSelectFromEditorPB"};
const QStringList placing = {"m_pMirrorCMB", "m_pAngleValueSB"};

bool isPlaced(int type)
{
    return type == 1 || type == 4;
}

/// What can be seen of the common controls, one word each.
QStringList shownControls(const FocusFixture& fixture)
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
        QTest::addColumn<int>("before");
        QTest::addColumn<int>("after");
        for (int before = 0; before < types.size(); ++before) {
            for (int after = 0; after < types.size(); ++after) {
                QTest::addRow("%s to %s", qPrintable(types[before]), qPrintable(types[after]))
                    << before << after;
            }
        }
    }

    /// The attributes go when all common controls are shown and nothing is hidden yet.
    void order()
    {
        QFETCH(int, before);
        QFETCH(int, after);
        FocusFixture fixture;
        fixture.click(types[before]);
        fixture.recorder.clear();
        QVector<QStringList> seen;
        QVariant feature;
        fixture.recorder.setOnMessage([&](const Recorder::Entry& entry) {
            if (entry.message.code == Sent::DirectionRecord) {
                return;
            }
            seen.append(shownControls(fixture));
            if (entry.message.code == Sent::AttributeMap) {
                feature = fixture.record().value(RecordKeys::features);
            }
        });
        fixture.click(types[after]);
        fixture.recorder.setOnMessage({});
        QCOMPARE(fixture.recorder.codes(), (QVector<int>{Sent::AttributeMap, Sent::Record}));
        QCOMPARE(feature.toInt(), before + 1);
        QCOMPARE(valueOf(fixture.recorder.last(Sent::Record), "Features"), QVariant(after + 1));

        QStringList atAttributes = always + symbolControls;
        atAttributes += isPlaced(before) ? placing : QStringList();
        atAttributes += before == 2 ? QStringList{"enabled"} : QStringList();
        QCOMPARE(seen[0], atAttributes);
        QStringList atRecord = always;
        atRecord += after == 2 || after == 4 ? QStringList() : symbolControls;
        atRecord += isPlaced(after) ? placing : QStringList();
        atRecord += after == 2 ? QStringList{"enabled"} : QStringList();
        QCOMPARE(seen[1], atRecord);
    }

    void typedRotation_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<int>("after");
        for (const char* const before : {"m_pPadTB", "m_pTextTB"}) {
            for (int after = 0; after < types.size(); ++after) {
                QTest::addRow("%s to %s", before, qPrintable(types[after])) << before << after;
            }
        }
    }

    /// Hiding the spin box ends what is typed in it, still as the old type.
    void typedRotation()
    {
        QFETCH(QString, before);
        QFETCH(int, after);
        FocusFixture fixture;
        fixture.click(before);
        fixture.type("m_pAngleValueSB", "45");
        fixture.recorder.clear();
        fixture.click(types[after]);
        const QVector<Recorder::Entry>& sent = fixture.recorder.messages();
        QCOMPARE(fixture.recorder.codes(),
                 (QVector<int>{Sent::AttributeMap, Sent::Record, Sent::Record}));
        QCOMPARE(valueOf(sent[1], RecordKeys::mirrorRotate), QVariant("45"));
        QCOMPARE(valueOf(sent[1], "Features"), QVariant(types.indexOf(before) + 1));
        QCOMPARE(valueOf(sent[2], RecordKeys::mirrorRotate), QVariant("45"));
        QCOMPARE(valueOf(sent[2], "Features"), QVariant(after + 1));
        QCOMPARE(fixture.agreement->faultOf(fixture.record()), QString());
    }

    void theLineKindKeepsItsOwnOrder()
    {
        FocusFixture fixture;
        fixture.recorder.clear();
        fixture.choose("m_pLineCMB", 1);
        QCOMPARE(fixture.recorder.codes(), (QVector<int>{Sent::AttributeMap, Sent::Record}));
        fixture.choose("m_pLineCMB", 3);
        for (const char* const name : {"m_pAttributesCB", "m_pFillPB", "m_pPolarityCMB"}) {
            QVERIFY2(!fixture.find(name).isVisible(), name);
        }
        fixture.click("m_pLineTB");
        for (const QString& name : always + symbolControls) {
            QVERIFY2(fixture.find(name).isVisible(), qPrintable(name));
        }
    }
};

CTS_TEST(TestTypeChange);
#include "test_type_change.moc"
