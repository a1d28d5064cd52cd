// The Dimensions popup as a form: what is where, with which text and size.

#include "FindChild.h"
#include "Main.h"
#include "Popup.h"
#include "QuotingTranslator.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QVBoxLayout>

namespace {

/// A button of at least 40 by 40, unless it hides something.
struct Button {
    Button(const char* itsName, const QString& itsText) : name(itsName), text(itsText) {}
    Button& tip(const QString& itsTip) { return toolTip = itsTip, *this; }
    /// Of that size exactly.
    Button& hides() { return minimum = maximum = QSize(41, 41), *this; }
    Button& fixed() { return isFixed = true, *this; }

    const char* name;
    QString text;
    QString toolTip;
    QSize minimum{40, 40};
    QSize maximum{QWIDGETSIZE_MAX, QWIDGETSIZE_MAX};
    bool isFixed = false;
};
const Button buttons[] = {
    Button("m_pAddReferencePB", "Ref").tip("Add reference point"),
    Button("m_pAddDimensionLinkPB", "Dimen").tip("Add Dimension Link"),
    Button("m_pEditDimensionLinkPB", "E Dim").tip("Edit Dimension Link"),
    Button("m_pDeleteDimensionLinkPB", "Del..").tip("Delete Dimension Link"),
    Button("m_pConnectReferePB", "Con").tip("Connect Reference point"),
    Button("m_pEraseAllDimenPB", "Erase").tip("Erase All Dimensions"),
    Button("m_pHideDLinePB", "H..L").tip("Hide DLine").hides().fixed(),
    Button("m_pHideDPointPB", "H.P.").tip("HideDPoint").hides().fixed(),
    Button("m_pHideDimenLinkPB", "HLink").tip("Hide Dimensions Link").hides(),
    Button("m_pHideAngleDimenPB", "Angle").tip("Hide Angle Dimensions").hides(),
    Button("m_pHideIndicatePB", "Hid d").tip("Hide distance indications").hides().fixed(),
};

struct Combo {
    const char* name;
    QStringList items;
};
const Combo combos[] = {
    {"m_pFilterCMB", {"Filter", "None"}},     {"m_pSymbolCMB", {"Sym", "No sym"}},
    {"m_pOverlapCMB", {"Overlap", "Opaque"}}, {"m_pPrecisionCMB", {"1", "2", "3", "4", "5"}},
    {"m_pMode1CMB", {"All", "Ps", "Pe"}},     {"m_pMode2CMB", {"All", "Ps", "Pe"}},
};

}  // namespace

class TestDimensions : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void popup()
    {
        const auto popup = createPopup();
        QCOMPARE(popup->objectName(), QString("m_pDimensions"));
        QCOMPARE(popup->windowTitle(), QString("Dimensions Popup"));
        QCOMPARE(popup->size(), QSize(357, 625));
        QCOMPARE(popup->minimumSize(), QSize(0, 625));
        QCOMPARE(popup->layout()->objectName(), QString("m_pMainLayoutVL"));
    }

    void button_data()
    {
        QTest::addColumn<int>("row");
        for (int i = 0; i < int(std::size(buttons)); ++i) {
            QTest::newRow(buttons[i].name) << i;
        }
    }

    void button()
    {
        QFETCH(int, row);
        const auto popup = createPopup();
        const Button& expected = buttons[row];
        const auto& button = findNamed<QPushButton>(*popup, expected.name);
        QCOMPARE(button.toolTip(), expected.toolTip);
        QCOMPARE(button.text(), expected.text);
        QCOMPARE(button.minimumSize(), expected.minimum);
        QCOMPARE(button.maximumSize(), expected.maximum);
        const bool isFixed = button.sizePolicy().horizontalPolicy() == QSizePolicy::Fixed &&
                             button.sizePolicy().verticalPolicy() == QSizePolicy::Fixed;
        QCOMPARE(isFixed, expected.isFixed);
    }

    void combo_data()
    {
        QTest::addColumn<int>("row");
        for (int i = 0; i < int(std::size(combos)); ++i) {
            QTest::newRow(combos[i].name) << i;
        }
    }

    void combo()
    {
        QFETCH(int, row);
        const auto popup = createPopup();
        auto& combo = findNamed<QComboBox>(*popup, combos[row].name);
        QCOMPARE(itemTexts(combo), combos[row].items);
        QCOMPARE(combo.currentIndex(), 0);
        combo.setCurrentIndex(1);
        popup->retranslate();
        popup->retranslate();
        QCOMPARE(itemTexts(combo), combos[row].items);
        QCOMPARE(combo.currentIndex(), 0);
    }

    void rows_data()
    {
        QTest::addColumn<QString>("layout");
        QTest::addColumn<QStringList>("widgets");
        QTest::addColumn<QSize>("spacer");
        QTest::newRow("actions") << "m_pCommonHL" << QStringList{"m_pAddReferencePB",
                                                                 "m_pAddDimensionLinkPB",
                                                                 "m_pEditDimensionLinkPB",
                                                                 "m_pDeleteDimensionLinkPB",
                                                                 "m_pConnectReferePB",
                                                                 "m_pEraseAllDimenPB"}
                                 << QSize(40, 37);
        QTest::newRow("filters") << "horizontalLayout_2"
                                 << QStringList{"m_pFilterCMB", "m_pSymbolCMB", "m_pOverlapCMB"}
                                 << QSize();
        QTest::newRow("hide") << "horizontalLayout_3"
                              << QStringList{"m_pHideDLinePB", "m_pHideDPointPB",
                                             "m_pHideDimenLinkPB", "m_pHideAngleDimenPB",
                                             "m_pHideIndicatePB"}
                              << QSize(40, 20);
        QTest::newRow("precision")
            << "horizontalLayout_4" << QStringList{"m_pPrecisionLB", "m_pPrecisionCMB"}
            << QSize(40, 20);
    }

    void rows()
    {
        QFETCH(QString, layout);
        QFETCH(QStringList, widgets);
        QFETCH(QSize, spacer);
        const auto popup = createPopup();
        const auto* const row = popup->findChild<QHBoxLayout*>(layout);
        QVERIFY(row);
        QCOMPARE(row->count(), widgets.size() + (spacer.isValid() ? 1 : 0));
        for (int i = 0; i < widgets.size(); ++i) {
            QCOMPARE(row->itemAt(i)->widget()->objectName(), widgets[i]);
        }
        if (spacer.isValid()) {
            QSpacerItem* const item = row->itemAt(widgets.size())->spacerItem();
            QVERIFY(item);
            QCOMPARE(item->sizeHint(), spacer);
            QCOMPARE(item->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
            QCOMPARE(item->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
        }
    }

    void mainLayout()
    {
        const auto popup = createPopup();
        const QLayout* const main = popup->layout();
        QCOMPARE(main->count(), 3);
        QCOMPARE(main->itemAt(0)->layout()->objectName(), QString("m_pCommonHL"));
        QCOMPARE(main->itemAt(1)->widget()->objectName(), QString("m_pDisplayFilterWidget"));
        QSpacerItem* const spacer = main->itemAt(2)->spacerItem();
        QVERIFY(spacer);
        QCOMPARE(spacer->sizeHint(), QSize(1, 2));
        QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    }

    void displayFilter()
    {
        const auto popup = createPopup();
        const auto& filter = findNamed<QGroupBox>(*popup, "m_pDisplayFilterGB");
        QCOMPARE(filter.title(), QString("Display filter"));
        QCOMPARE(filter.layout()->objectName(), QString("verticalLayout"));
        auto* const grid = qobject_cast<QGridLayout*>(filter.parentWidget()->layout());
        QCOMPARE(grid->objectName(), QString("gridLayout"));
        int row = -1;
        int column = -1;
        int rowSpan = 0;
        int columnSpan = 0;
        grid->getItemPosition(0, &row, &column, &rowSpan, &columnSpan);
        QCOMPARE((QVector<int>{row, column, rowSpan, columnSpan}), (QVector<int>{0, 0, 1, 1}));
        QCOMPARE(findNamed<QLabel>(*popup, "m_pPrecisionLB").text(),
                 QString("<html><head/><body><p>Precision\t:</p></body></html>"));
    }

    void elementArea()
    {
        const auto popup = createPopup();
        popup->show();
        const QWidget& area = findNamed(*popup, "m_pElementWidget");
        QCOMPARE(area.parentWidget(), popup.get());
        QCOMPARE(popup->layout()->indexOf(const_cast<QWidget*>(&area)), -1);
        QCOMPARE(area.layout()->count(), 3);
        QCOMPARE(area.layout()->itemAt(0)->widget()->objectName(), QString("m_pSourceElementGB"));
        QCOMPARE(area.layout()->itemAt(1)->widget()->objectName(), QString("m_pDestElementGB"));
        QCOMPARE(area.layout()->itemAt(2)->spacerItem()->sizeHint(), QSize(1, 2));
        for (const char* const name : {"m_pSourceElementGB", "m_pDestElementGB"}) {
            QVERIFY(findNamed(*popup, name).isHidden());
            QCOMPARE(findNamed<QGroupBox>(*popup, name).alignment(),
                     Qt::Alignment(Qt::AlignCenter));
        }
        // It covers the first buttons, and must not take their clicks.
        auto& button = findNamed<QPushButton>(*popup, "m_pAddReferencePB");
        QCOMPARE(popup->childAt(button.geometry().center()), &button);
    }

    void sourceElement()
    {
        const auto popup = createPopup();
        const auto& group = findNamed<QGroupBox>(*popup, "m_pSourceElementGB");
        QCOMPARE(group.title(), QString("Source Element"));
        auto* const grid = qobject_cast<QGridLayout*>(group.layout());
        const struct {
            const char* name;
            QVector<int> place;
        } places[] = {
            {"m_pSingleSource1RB", {0, 0, 1, 2}}, {"m_pSingleSource2RB", {0, 2, 1, 2}},
            {"m_pSel1PB", {1, 0, 1, 1}},          {"m_pSel1LE", {1, 1, 1, 1}},
            {"m_pMode1LB", {1, 2, 1, 1}},         {"m_pMode1CMB", {1, 3, 1, 1}},
            {"m_pSel2PB", {1, 0, 1, 1}},          {"m_pSel2LE", {1, 1, 1, 1}},
            {"m_pMode2LB", {1, 2, 1, 1}},         {"m_pMode2CMB", {1, 3, 1, 1}},
        };
        for (const auto& place : places) {
            QVector<int> found(4);
            const int index = grid->indexOf(&findNamed(*popup, place.name));
            QVERIFY2(index >= 0, place.name);
            grid->getItemPosition(index, &found[0], &found[1], &found[2], &found[3]);
            QVERIFY2(found == place.place, place.name);
        }
        auto& first = findNamed<QRadioButton>(*popup, "m_pSingleSource1RB");
        auto& second = findNamed<QRadioButton>(*popup, "m_pSingleSource2RB");
        QCOMPARE(first.text(), QString("Single Source"));
        QCOMPARE(second.text(), QString("Single Source"));
        QVERIFY(first.isChecked() && !second.isChecked());
        QCOMPARE(first.group()->id(&first), 0);
        QCOMPARE(first.group()->id(&second), 1);
        QCOMPARE(findNamed<QPushButton>(*popup, "m_pSel1PB").text(), QString("Sel"));
        QCOMPARE(findNamed<QPushButton>(*popup, "m_pSel2PB").text(), QString("sel"));
        QCOMPARE(findNamed<QLabel>(*popup, "m_pMode1LB").text(), QString("Mode:"));
        second.click();
        QVERIFY(second.isChecked());
    }

    void destElement()
    {
        const auto popup = createPopup();
        const auto& group = findNamed<QGroupBox>(*popup, "m_pDestElementGB");
        QCOMPARE(group.title(), QString("Dest Element"));
        QVERIFY(qobject_cast<QVBoxLayout*>(group.layout()));
        QCOMPARE(group.layout()->count(), 0);
        QCOMPARE(findNamed<QLabel>(group, "m_pCreateNewEleLB").text(),
                 QString("Create New Element"));
        auto& yes = findNamed<QRadioButton>(group, "m_pYesRB");
        auto& no = findNamed<QRadioButton>(group, "m_pNoRB");
        QCOMPARE(yes.text(), QString("Yes"));
        QCOMPARE(no.text(), QString("No"));
        QVERIFY(!yes.isChecked() && !no.isChecked());
        QCOMPARE(yes.group()->id(&yes), 0);
        QCOMPARE(yes.group()->id(&no), 1);
    }

    void clicksChangeNothing()
    {
        const auto popup = createPopup();
        popup->show();
        for (const Button& button : buttons) {
            QTest::mouseClick(&findNamed(*popup, button.name), Qt::LeftButton);
        }
        for (const Combo& combo : combos) {
            QCOMPARE(findNamed<QComboBox>(*popup, combo.name).currentIndex(), 0);
        }
        QVERIFY(findNamed(*popup, "m_pSourceElementGB").isHidden());
        QCOMPARE(popup->size(), QSize(357, 625));
    }

    void debugLine()
    {
        const auto popup = createPopup();
        QTest::ignoreMessage(QtDebugMsg, "button clicked!");
        popup->on_pushButton_clicked();
    }

    /// The form has slots that a later host may connect; they change nothing.
    void slotsThatDoNothing()
    {
        const auto popup = createPopup();
        const QImage before = popup->grab().toImage();
        QAbstractButton* const none = nullptr;
        for (const char* const slot :
             {"on_m_pSourcesRBGroup_clicked", "on_m_pCreateNewEleRBGroup_clicked"}) {
            QVERIFY2(QMetaObject::invokeMethod(popup.get(), slot, Q_ARG(QAbstractButton*, none)),
                     slot);
        }
        for (const char* const slot :
             {"on_m_pLinePBGroup_clicked", "on_m_pRectPBGroup_buttonClicked",
              "on_m_pSlotPBGroup_buttonClicked"}) {
            QVERIFY2(QMetaObject::invokeMethod(popup.get(), slot, Q_ARG(int, 1)), slot);
        }
        QVERIFY(QMetaObject::invokeMethod(popup.get(), "on_m_pAddDstEleShapeCMB_ComboBox_Changed"));
        QCOMPARE(popup->grab().toImage(), before);
    }

    void language()
    {
        const auto popup = createPopup();
        const QuotingTranslator translator("m_pDimensions");
        QCoreApplication::sendPostedEvents();
        QCOMPARE(popup->windowTitle(), QString("<Dimensions Popup>"));
        for (const Button& button : buttons) {
            QCOMPARE(findNamed<QPushButton>(*popup, button.name).text(), '<' + button.text + '>');
            QCOMPARE(findNamed<QPushButton>(*popup, button.name).toolTip(),
                     '<' + button.toolTip + '>');
        }
        for (const Combo& combo : combos) {
            QCOMPARE(
                itemTexts(findNamed<QComboBox>(*popup, combo.name)),
                QStringList(combo.items).replaceInStrings(QRegularExpression("^(.*)$"), "<\\1>"));
        }
        QCOMPARE(findNamed<QGroupBox>(*popup, "m_pDestElementGB").title(),
                 QString("<Dest Element>"));
        QCOMPARE(findNamed<QRadioButton>(*popup, "m_pYesRB").text(), QString("<Yes>"));
    }
};

CTS_TEST(TestDimensions);
#include "test_dimensions.moc"
