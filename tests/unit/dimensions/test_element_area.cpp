// The element area of the Dimensions popup: its contents, their names, and what it leaves to the
// buttons below.

#include "FindChild.h"
#include "Main.h"
#include "Popup.h"
#include "QuotingTranslator.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>

namespace {

QStringList namesOf(const QList<QRadioButton*>& choices)
{
    QStringList names;
    for (const QRadioButton* const button : choices) {
        names.append(button->objectName());
    }
    return names;
}

}  // namespace

class TestElementArea : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void accessibleNames_data()
    {
        QTest::addColumn<QString>("name");
        for (const auto& [widget, name] :
             {std::pair("m_pMode1CMB", "Mode"), std::pair("m_pMode2CMB", "Mode"),
              std::pair("m_pSel1LE", "Element"), std::pair("m_pSel2LE", "Element"),
              std::pair("m_pFilterCMB", "Filter"), std::pair("m_pSymbolCMB", "Symbols"),
              std::pair("m_pOverlapCMB", "Overlap"), std::pair("m_pPrecisionCMB", "Precision")}) {
            QTest::newRow(widget) << QString(name);
        }
    }

    void accessibleNames()
    {
        QFETCH(QString, name);
        const auto popup = createPopup();
        const QWidget& widget = findNamed(*popup, QTest::currentDataTag());
        QCOMPARE(widget.accessibleName(), name);
        const QuotingTranslator translator("m_pDimensions");
        popup->retranslate();
        QCOMPARE(widget.accessibleName(), '<' + name + '>');
    }

    void radioButtons()
    {
        const auto popup = createPopup();
        const auto& sources = findNamed<QGroupBox>(*popup, "m_pSourceElementGB");
        QCOMPARE(namesOf(sources.findChildren<QRadioButton*>()),
                 (QStringList{"m_pSingleSource1RB", "m_pSingleSource2RB"}));
        const auto& destination = findNamed<QGroupBox>(*popup, "m_pDestElementGB");
        QCOMPARE(namesOf(destination.findChildren<QRadioButton*>()),
                 (QStringList{"m_pYesRB", "m_pNoRB"}));
        QCOMPARE(popup->findChild<QButtonGroup*>("m_pSourcesRBGroup")->buttons().size(), 2);
        QCOMPARE(popup->findChild<QButtonGroup*>("m_pCreateNewEleRBGroup")->buttons().size(), 2);
    }

    /// Wherever it covers a button, a click goes to the button.
    void buttonsKeepTheirClicks()
    {
        const auto popup = createPopup();
        popup->show();
        QCoreApplication::processEvents();
        const QWidget& area = findNamed(*popup, "m_pElementWidget");
        int covered = 0;
        for (QPushButton* const button : popup->findChildren<QPushButton*>()) {
            if (button->parentWidget() != popup.get()) {
                continue;
            }
            const QRect common = button->geometry() & area.geometry();
            if (common.isEmpty()) {
                continue;
            }
            ++covered;
            for (const QPoint& place : {common.center(), common.topLeft(), common.bottomRight()}) {
                QCOMPARE(popup->childAt(place), static_cast<QWidget*>(button));
            }
            bool isClicked = false;
            connect(button, &QPushButton::clicked, this, [&] { isClicked = true; });
            QTest::mouseClick(popup->windowHandle(), Qt::LeftButton, {}, common.center());
            QVERIFY2(isClicked, qPrintable(button->objectName()));
        }
        QVERIFY(covered > 0);
    }
};

CTS_TEST(TestElementArea);
#include "test_element_area.moc"
