// What the constructor builds.

#include "Main.h"
#include "StripFixture.h"

#include <UiApiStandIn.h>

#include <QImage>

namespace {

struct Expected {
    const char* objectName;
    const char* tip;
    bool enabled;
    const char* image;
    const char* checkedImage;
};

const Expected tools[] = {
    {"m_pAreaZoomTB", "Area Zoom", true, "Area zoom2.jpg", "Area zoom3.jpg"},
    {"m_pOpenPopViewTB", "Open a Popview", true, "Open a popview-1.jpg", "Open a popview-2.jpg"},
    {"m_pMeasureTB", "Measure", true, "ruler.jpg", "ruler1.jpg"},
    {"m_pFeatHighLightTB", "Feature HighLight", true, "Feature highlight-2.jpg",
     "Feature highlight-3.jpg"},
    {"m_pAddFeatureTB", "Add Feature", true, "Add Feature.jpg", "Add Feature1.jpg"},
    {"m_pDeleteFeatTB", "Delete Feature", true, "delete1-gry.jpg", "delete1-gre.jpg"},
    {"m_pMoveFeatureTB", "Move Feature", true, "Move Feature-1.jpg", "Move Feature-2.jpg"},
    {"m_pCopyFeatureTB", "Copy Feature", true, "Copy feature-1.jpg", "Copy feature-2.jpg"},
    {"m_pChangeLAngleTB", "Change Line Angle", true, "Change line angle1.jpg",
     "Change line angle2.jpg"},
    {"m_pStretchLineTB", "Stretch Line", true, "Stretch line3.jpg", "Stretch line4.jpg"},
    {"m_pRotateFeatureTB", "Rotate", false, "Rotate feature-grey.jpg", "Rotate feature-grey.jpg"},
    {"m_pMirrorFeatureTB", "Mirror", false, "Mirror feature-grey.jpg", "Mirror feature-grey.jpg"},
    {"m_pInvertFeatureTB", "Invert Feature", true, "Invert feature-3.jpg", "Invert feature-4.jpg"},
    {"m_pBreakLineTB", "Break Line", true, "Break line1.jpg", "Break line2.jpg"},
    {"m_pDimensionTB", "Rout Dimension Editor", false, "Rout dimension editor-grey.jpg",
     "Rout dimension editor-grey.jpg"},
    {"m_pContourEditorTB", "Contour Editor", false, "Contour editor-grey.jpg",
     "Contour editor-grey.jpg"},
    {"m_pPullLineTB", "Pull Line", false, "Pull line-grey.jpg", "Pull line-grey.jpg"},
    {"m_pMoveJunctionTB", "Move Junction", false, "Move junction-grey.jpg",
     "Move junction-grey.jpg"},
    {"m_pMoveTripletTB", "Move Triplet(Angle)", true, "Move triplet1.jpg", "Move triplet2.jpg"},
    {"m_pRerouteTraceTB", "Reroute Trace(Fix Point)", true, "ReRoute trace1.jpg",
     "ReRoute trace2.jpg"},
    {"m_pFeatureSelectionTB", "Feature Selection", true, "Feature selection1.jpg",
     "Feature selection2.jpg"},
    {"m_pRectSelectionTB", "Rectangle Selection", true, "Frame selection2.jpg",
     "Frame selection3.jpg"},
    {"m_pPolygonSelectionTB", "Polygon Selection", true, "Polygon selection2.jpg",
     "Polygon selection3.jpg"},
    {"m_pSelectPolylineTB", "Select By net", true, "Net selection2.jpg", "Net selection1.jpg"},
    {"m_pMarkTB", "Mark", true, "markgry.png", "markgre.png"},
    {"m_pEqTB", "EQ", true, "EQ-1.jpg", "EQ-2.jpg"},
};
static_assert(std::size(tools) == ToolTable::toolCount, "one row a tool");

QString resource(const char* file)
{
    return QStringLiteral(":/Canvas_Tool_Strip/Resources/") + QLatin1String(file);
}

/// How far the inside of `shown` is from `picture` drawn at (frame, frame), in levels of a colour
/// on average.
double differenceAt(const QImage& shown, const QImage& picture, int frame)
{
    double sum = 0;
    for (int y = 3; y < 33; ++y) {
        for (int x = 3; x < 33; ++x) {
            const QRgb p = shown.pixel(x + frame, y + frame);
            const QRgb q = picture.pixel(x, y);
            sum +=
                qAbs(qRed(p) - qRed(q)) + qAbs(qGreen(p) - qGreen(q)) + qAbs(qBlue(p) - qBlue(q));
        }
    }
    return sum / (30 * 30 * 3);
}

/// The same for a button, whose frame depends on style and state.
double difference(QToolButton* button, const QImage& picture)
{
    const QImage shown = button->grab().toImage().convertToFormat(QImage::Format_RGB32);
    double least = differenceAt(shown, picture, 0);
    for (int frame = 1; frame <= 3; ++frame) {
        least = qMin(least, differenceAt(shown, picture, frame));
    }
    return least;
}

}  // namespace

class TestConstruction : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { CanvasHost::setEQVisible(true); }

    void button_data()
    {
        QTest::addColumn<int>("index");
        for (int index = 0; index < ToolTable::toolCount; ++index) {
            QTest::newRow(tools[index].objectName) << index;
        }
    }
    void button()
    {
        QFETCH(int, index);
        StripFixture fixture;
        const Expected& expected = tools[index];
        QToolButton* const button = fixture.button(index);
        QVERIFY(button);
        QCOMPARE(button->objectName(), QString(expected.objectName));
        QCOMPARE(button->toolTip(), QString(expected.tip));
        QCOMPARE(button->isEnabled(), expected.enabled);
        QVERIFY(button->isCheckable());
        QCOMPARE(button->minimumSize(), QSize(40, 40));
        QCOMPARE(button->maximumSize(), QSize(40, 40));
        const QString property =
            index == 25 ? QStringLiteral("border-image") : QStringLiteral("background-image");
        QCOMPARE(button->styleSheet(),
                 QStringLiteral("QToolButton{%1:url(%2);}QToolButton::checked{%1:url(%3);}")
                     .arg(property, resource(expected.image), resource(expected.checkedImage)));
        const bool hasMenu = index == 5 || index == 23 || index == 24;
        QCOMPARE(button->contextMenuPolicy() == Qt::CustomContextMenu, hasMenu);

        int row = 0;
        int column = 0;
        int rowSpan = 0;
        int columnSpan = 0;
        fixture.strip->getItemPosition(index, &row, &column, &rowSpan, &columnSpan);
        QCOMPARE(row, index / 4);
        QCOMPARE(column, index % 4);
        QCOMPARE(rowSpan, 1);
        QCOMPARE(columnSpan, 1);
    }

    void picture_data() { button_data(); }
    void picture()
    {
        QFETCH(int, index);
        StripFixture fixture;
        fixture.panel.show();
        QVERIFY(QTest::qWaitForWindowExposed(&fixture.panel));
        QToolButton* const button = fixture.button(index);
        const QImage image(resource(tools[index].image));
        const QImage checkedImage(resource(tools[index].checkedImage));
        QVERIFY(!image.isNull() && !checkedImage.isNull());

        button->setChecked(false);
        const double plain = difference(button, image);
        QVERIFY2(plain < 8, qPrintable(QString::number(plain)));
        button->setChecked(true);
        const double checked = difference(button, checkedImage);
        QVERIFY2(checked < 8, qPrintable(QString::number(checked)));
        if (button->isEnabled()) {
            QVERIFY(difference(button, image) > 8);
        }
        // No other tool's picture is nearer.
        for (const Expected& other : tools) {
            if (&other != &tools[index]) {
                button->setChecked(false);
                QVERIFY2(difference(button, QImage(resource(other.image))) > plain,
                         other.objectName);
            }
        }
    }

    void startsWithAreaZoomAlone()
    {
        StripFixture fixture;
        QCOMPARE(fixture.strip->count(), ToolTable::toolCount);
        QCOMPARE(fixture.checked(), QList<int>{0});
        QVERIFY(fixture.recorder.messages().isEmpty());
        QCOMPARE(fixture.panel.focusPolicy(), Qt::NoFocus);
        QVERIFY(fixture.panel.findChildren<QMenu*>().isEmpty());
    }

    void eqIsHiddenButKeepsItsPlace()
    {
        CanvasHost::setEQVisible(false);
        StripFixture fixture;
        fixture.panel.show();
        QVERIFY(fixture.button(25)->isHidden());
        QVERIFY(fixture.button(24)->isVisible());
        QCOMPARE(fixture.strip->count(), ToolTable::toolCount);
        QVERIFY(!fixture.strip->isToolButtonChecked(25));
        fixture.button(25)->setChecked(true);
        QVERIFY(fixture.strip->isToolButtonChecked(25));
    }

    void opensNoWindowOfItsOwn()
    {
        QWidget panel;
        Canvas_Tool_Strip* const strip = new Canvas_Tool_Strip(&panel);
        for (const QWidget* const window : QApplication::topLevelWidgets()) {
            QVERIFY2(!window->isVisible(), qPrintable(window->objectName()));
        }
        panel.setLayout(strip);
    }

    void onlyTheFirstButtonStartsInTheParent()
    {
        QWidget panel;
        Canvas_Tool_Strip* const strip = new Canvas_Tool_Strip(&panel);
        for (int index = 0; index < ToolTable::toolCount; ++index) {
            QCOMPARE(strip->itemAt(index)->widget()->parentWidget(), index == 0 ? &panel : nullptr);
        }
        panel.setLayout(strip);
    }

    void indicesOutsideAreNotChecked()
    {
        StripFixture fixture;
        fixture.strip->SetAllButtonchecked(true, nullptr);
        QCOMPARE(fixture.checked().size(), ToolTable::toolCount);
        for (const int index : {-1, ToolTable::toolCount, 1000, -2147483647 - 1, 2147483647}) {
            QVERIFY(!fixture.strip->isToolButtonChecked(index));
        }
    }

    void exceptedButtonIsCheckedWhateverTheOthersAre()
    {
        StripFixture fixture;
        fixture.strip->SetAllButtonchecked(false, fixture.button(7));
        QCOMPARE(fixture.checked(), QList<int>{7});
        fixture.strip->SetAllButtonchecked(true, fixture.button(7));
        QCOMPARE(fixture.checked().size(), ToolTable::toolCount);
        fixture.strip->SetAllButtonchecked(false, nullptr);
        QVERIFY(fixture.checked().isEmpty());
    }

    void isDeletedThroughItsBases()
    {
        QWidget panel;
        QLayout* const asLayout = new Canvas_Tool_Strip(&panel);
        panel.setLayout(asLayout);
        delete asLayout;
        QObject* const asObject = new Canvas_Tool_Strip(&panel);
        panel.setLayout(qobject_cast<QLayout*>(asObject));
        delete asObject;
        QVERIFY(!panel.layout());
        // The buttons are the panel's own by now, and go with it.
        QCOMPARE(panel.findChildren<QToolButton*>().size(), 2 * ToolTable::toolCount);
    }
};

CTS_TEST(TestConstruction);
#include "test_construction.moc"
