// How the rows of dialog and pages are composed, where the widgets do not show it.

#include "DialogFixture.h"
#include "Main.h"

#include <QLayout>
#include <QWidget>

namespace {

QStringList namesIn(QLayout* layout)
{
    QStringList names;
    for (int i = 0; layout && i < layout->count(); ++i) {
        names.append(layout->itemAt(i)->widget() ? layout->itemAt(i)->widget()->objectName() : "");
    }
    return names;
}

}  // namespace

class TestRows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// First row, four sub-pages, spacer, font row, text row.
    void textPage()
    {
        const DialogFixture fixture;
        QLayout* const rows = fixture.find("m_pTextPage").layout();
        QCOMPARE(rows->count(), 8);
        QCOMPARE(namesIn(rows->itemAt(0)->layout()),
                 (QStringList{"m_pTextFormatCMB", "m_pUPCCMB"}));
        QCOMPARE(namesIn(rows).mid(1, 4), (QStringList{"m_pStringPage", "m_pBarcodePage",
                                                       "m_pPlotStampPage", "m_pCannedTextPage"}));
        QSpacerItem* const spacer = rows->itemAt(5)->spacerItem();
        QVERIFY(spacer);
        QCOMPARE(spacer->sizeHint(), QSize(1, 2));
        QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
        QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
        QCOMPARE(namesIn(rows->itemAt(6)->layout()), (QStringList{"m_pFontPB", "m_pFontLE"}));
        QCOMPARE(namesIn(rows->itemAt(7)->layout()), (QStringList{"m_pTextPB", "m_pTextLE"}));
    }

    /// Two separate rows, whose fields are aligned on both sides.
    void fieldsOfTheTextPageStandInLine()
    {
        const DialogFixture fixture;
        fixture.click("m_pTextTB");
        QCoreApplication::processEvents();
        QCOMPARE(fixture.find("m_pFontLE").x(), fixture.find("m_pTextLE").x());
        QCOMPARE(fixture.find("m_pFontLE").width(), fixture.find("m_pTextLE").width());
        QVERIFY(fixture.find("m_pFontLE").width() > fixture.find("m_pFontPB").width());
    }

    void rowsHaveNoMargins_data()
    {
        QTest::addColumn<QString>("row");
        for (const char* const row :
             {"m_pSymbolWidget", "m_pAttributesWidget", "m_pLinePage", "m_pPadPage",
              "m_pSurfacePage", "m_pArcPage", "m_pTextPage", "m_pStringPage", "m_pBarcodePage",
              "m_pPlotStampPage", "m_pCannedTextPage"}) {
            QTest::newRow(row) << row;
        }
    }

    void rowsHaveNoMargins()
    {
        QFETCH(QString, row);
        const DialogFixture fixture;
        QCOMPARE(fixture.find(row).layout()->contentsMargins(), QMargins());
    }
};

CTS_TEST(TestRows);
#include "test_rows.moc"
