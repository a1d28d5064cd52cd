// Whether the comparison of fields and record finds what it is meant to find.

#include "AgreementTable.h"
#include "DialogFixture.h"
#include "Main.h"
#include "plugin/RecordKeys.h"

#include <QLineEdit>

using Opened = DialogFixture::Opened;

namespace {

Agreement::Result resultOf(const DialogFixture& fixture, const QVariantMap& record,
                           const QString& field)
{
    for (const Agreement::Finding& finding : fixture.agreement->look(record)) {
        if (finding.field == field) {
            return finding.result;
        }
    }
    qFatal("no field %s", qPrintable(field));
}

}  // namespace

class TestAgreement : public QObject {
    Q_OBJECT

    using Result = Agreement::Result;

private Q_SLOTS:
    /// Every key of the record belongs to one field, and none to two.
    void everyKeyHasAField()
    {
        DialogFixture fixture(Unit::Mil, Opened::ByTheStrip);
        QStringList keys;
        for (const AgreementTable::Field& field : AgreementTable::fields()) {
            keys.append(field.key);
        }
        keys.sort();
        QCOMPARE(keys, QStringList(fixture.record().keys()));
    }

    /// A fresh dialog agrees; with any key changed it does not.
    void everyChangeIsSeen()
    {
        DialogFixture fixture(Unit::Mil, Opened::ByTheStrip);
        const QVariantMap record = fixture.record();
        QCOMPARE(fixture.agreement->faultOf(record), QString());
        for (const AgreementTable::Field& field : AgreementTable::fields()) {
            QVariantMap changed = record;
            changed[field.key] = "77";
            const QString name = field.names.first();
            // A pitch is "0": not acceptable to its own validator.
            const bool isPitch = name == "m_pDrilDxLE" || name == "m_pDrilDyLE";
            QVERIFY2(
                resultOf(fixture, changed, name) == (isPitch ? Result::Unfinished : Result::Broken),
                qPrintable(name));
        }
    }

    void lostEntry()
    {
        DialogFixture fixture(Unit::Mil, Opened::ByTheStrip);
        fixture.click("m_pTextTB");
        const QVariantMap before = fixture.record();
        fixture.type("m_pTextLE", "abc");
        QVERIFY(resultOf(fixture, before, "m_pTextLE") == Result::Unfinished);
        fixture.leave();
        QVERIFY(resultOf(fixture, before, "m_pTextLE") == Result::Broken);
        QVERIFY(resultOf(fixture, fixture.record(), "m_pTextLE") == Result::Holds);
    }

    void sixDigits()
    {
        DialogFixture fixture(Unit::Mil, Opened::ByTheStrip);
        fixture.click("m_pTextTB");
        fixture.type("m_pXSizeLE", "123.4567");
        fixture.leave();
        QVariantMap record = fixture.record();
        QCOMPARE(record.value(RecordKeys::stringXSize), QVariant("3135.8"));
        QVERIFY(resultOf(fixture, record, "m_pXSizeLE") == Result::Holds);
        record[RecordKeys::stringXSize] = "3135.9";
        QVERIFY(resultOf(fixture, record, "m_pXSizeLE") == Result::Broken);
        fixture.setUnit(Unit::Metric);
        QVERIFY(resultOf(fixture, fixture.record(), "m_pXSizeLE") == Result::Holds);
    }

    void symbolExceptions()
    {
        DialogFixture fixture(Unit::Mil, Opened::ByTheStrip);
        const QString symbol = "m_pSymbolTextLE";
        fixture.click("m_pPadTB");
        fixture.type(symbol, "r10_45");
        fixture.leave();
        QVERIFY(resultOf(fixture, fixture.record(), symbol) == Result::Excepted);
        QVERIFY(resultOf(fixture, fixture.record(), "m_pAngleValueSB") == Result::Excepted);

        // Emptied by typing, the field must not keep a symbol; emptied by a refusal, it may.
        QVariantMap record = fixture.record();
        fixture.type(symbol, "");
        fixture.leave();
        QVERIFY(resultOf(fixture, record, symbol) == Result::Broken);
        fixture.find<QLineEdit>(symbol).setText("r60000");
        fixture.dialog->getChangeCurrentTool();
        QCOMPARE(fixture.boxes.take().size(), 1);
        QVERIFY(resultOf(fixture, record, symbol) == Result::Excepted);

        fixture.open();
        fixture.type(symbol, "s5");
        fixture.dialog->close();
        QVERIFY(resultOf(fixture, fixture.record(), symbol) == Result::Excepted);
        fixture.open();
        fixture.type(symbol, "s6");
        fixture.leave();
        QVERIFY(resultOf(fixture, fixture.record(), symbol) == Result::Holds);
    }
};

CTS_TEST(TestAgreement);
#include "test_agreement.moc"
