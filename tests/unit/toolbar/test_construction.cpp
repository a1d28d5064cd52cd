// What the constructor builds.

#include "Main.h"
#include "StripFixture.h"

#include <UiApiStandIn.h>

#include <QImage>
#include <QMenu>

namespace {

enum class Start { Enabled, Grey };

struct Expected {
    const char* objectName;
    const char* tip;
    Start start;
    const char* image;
    const char* checkedImage;
};

const Expected expectedTools[] = {
    {"m_pAreaZoomTB", "Area Zoom", Start::Enabled, "Area zoom2.jpg", "Area zoom3.jpg"},
    {"m_pOpenPopViewTB", "Open a Popview", Start::Enabled, "Open a popview-1.jpg",
     "Open a popview-2.jpg"},
    {"m_pMeasureTB", "Measure", Start::Enabled, "ruler.jpg", "ruler1.jpg"},
    {"m_pFeatHighLightTB", "Feature HighLight", Start::Enabled, "Feature highlight-2.jpg",
     "Feature highlight-3.jpg"},
    {"m_pAddFeatureTB", "Add Feature", Start::Enabled, "Add Feature.jpg", "Add Feature1.jpg"},
    {"m_pDeleteFeatTB", "Delete Feature", Start::Enabled, "delete1-gry.jpg", "delete1-gre.jpg"},
    {"m_pMoveFeatureTB", "Move Feature", Start::Enabled, "Move Feature-1.jpg",
     "Move Feature-2.jpg"},
    {"m_pCopyFeatureTB", "Copy Feature", Start::Enabled, "Copy feature-1.jpg",
     "Copy feature-2.jpg"},
    {"m_pChangeLAngleTB", "Change Line Angle", Start::Enabled, "Change line angle1.jpg",
     "Change line angle2.jpg"},
    {"m_pStretchLineTB", "Stretch Line", Start::Enabled, "Stretch line3.jpg", "Stretch line4.jpg"},
    {"m_pRotateFeatureTB", "Rotate", Start::Grey, "Rotate feature-grey.jpg",
     "Rotate feature-grey.jpg"},
    {"m_pMirrorFeatureTB", "Mirror", Start::Grey, "Mirror feature-grey.jpg",
     "Mirror feature-grey.jpg"},
    {"m_pInvertFeatureTB", "Invert Feature", Start::Enabled, "Invert feature-3.jpg",
     "Invert feature-4.jpg"},
    {"m_pBreakLineTB", "Break Line", Start::Enabled, "Break line1.jpg", "Break line2.jpg"},
    {"m_pDimensionTB", "Rout Dimension Editor", Start::Grey, "Rout dimension editor-grey.jpg",
     "Rout dimension editor-grey.jpg"},
    {"m_pContourEditorTB", "Contour Editor", Start::Grey, "Contour editor-grey.jpg",
     "Contour editor-grey.jpg"},
    {"m_pPullLineTB", "Pull Line", Start::Grey, "Pull line-grey.jpg", "Pull line-grey.jpg"},
    {"m_pMoveJunctionTB", "Move Junction", Start::Grey, "Move junction-grey.jpg",
     "Move junction-grey.jpg"},
    {"m_pMoveTripletTB", "Move Triplet(Angle)", Start::Enabled, "Move triplet1.jpg",
     "Move triplet2.jpg"},
    {"m_pRerouteTraceTB", "Reroute Trace(Fix Point)", Start::Enabled, "ReRoute trace1.jpg",
     "ReRoute trace2.jpg"},
    {"m_pFeatureSelectionTB", "Feature Selection", Start::Enabled, "Feature selection1.jpg",
     "Feature selection2.jpg"},
    {"m_pRectSelectionTB", "Rectangle Selection", Start::Enabled, "Frame selection2.jpg",
     "Frame selection3.jpg"},
    {"m_pPolygonSelectionTB", "Polygon Selection", Start::Enabled, "Polygon selection2.jpg",
     "Polygon selection3.jpg"},
    {"m_pSelectPolylineTB", "Select By net", Start::Enabled, "Net selection2.jpg",
     "Net selection1.jpg"},
    {"m_pMarkTB", "Mark", Start::Enabled, "markgry.png", "markgre.png"},
    {"m_pEqTB", "EQ", Start::Enabled, "EQ-1.jpg", "EQ-2.jpg"},
};
static_assert(std::size(expectedTools) == ToolTable::toolCount, "one row a tool");

QString resource(const char* file)
{
    return QStringLiteral(":/Canvas_Tool_Strip/Resources/") + QLatin1String(file);
}

/// How far the inside of `shown` is from `picture` drawn at (frame, frame), in colour levels on
/// average.
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
        QTest::addColumn<Tool>("tool");
        for (const Tool tool : allTools()) {
            QTest::newRow(expectedTools[int(tool)].objectName) << tool;
        }
    }
    void button()
    {
        QFETCH(Tool, tool);
        StripFixture fixture;
        const Expected& expected = expectedTools[int(tool)];
        QToolButton* const button = fixture.button(tool);
        QVERIFY(button);
        QCOMPARE(button->objectName(), QString(expected.objectName));
        QCOMPARE(button->toolTip(), QString(expected.tip));
        QCOMPARE(button->isEnabled(), expected.start == Start::Enabled);
        QVERIFY(button->isCheckable());
        QCOMPARE(button->minimumSize(), QSize(40, 40));
        QCOMPARE(button->maximumSize(), QSize(40, 40));
        const QString property =
            tool == Tool::Eq ? QStringLiteral("border-image") : QStringLiteral("background-image");
        QCOMPARE(button->styleSheet(),
                 QStringLiteral("QToolButton{%1:url(%2);}QToolButton::checked{%1:url(%3);}")
                     .arg(property, resource(expected.image), resource(expected.checkedImage)));
        const bool hasMenu =
            tool == Tool::DeleteFeature || tool == Tool::SelectByNet || tool == Tool::Mark;
        QCOMPARE(button->contextMenuPolicy() == Qt::CustomContextMenu, hasMenu);

        int row = 0;
        int column = 0;
        int rowSpan = 0;
        int columnSpan = 0;
        fixture.strip->getItemPosition(int(tool), &row, &column, &rowSpan, &columnSpan);
        QCOMPARE(row, int(tool) / 4);
        QCOMPARE(column, int(tool) % 4);
        QCOMPARE(rowSpan, 1);
        QCOMPARE(columnSpan, 1);
    }

    void picture_data() { button_data(); }
    void picture()
    {
        QFETCH(Tool, tool);
        StripFixture fixture;
        fixture.window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&fixture.window));
        QToolButton* const button = fixture.button(tool);
        const QImage image(resource(expectedTools[int(tool)].image));
        const QImage checkedImage(resource(expectedTools[int(tool)].checkedImage));
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
        for (const Expected& other : expectedTools) {
            if (&other != &expectedTools[int(tool)]) {
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
        QCOMPARE(fixture.checked(), QList<Tool>{Tool::AreaZoom});
        QVERIFY(fixture.recorder.messages().isEmpty());
        QCOMPARE(fixture.window.focusPolicy(), Qt::NoFocus);
        QVERIFY(fixture.window.findChildren<QMenu*>().isEmpty());
    }

    void eqIsHiddenButKeepsItsPlace()
    {
        CanvasHost::setEQVisible(false);
        StripFixture fixture;
        fixture.window.show();
        QVERIFY(fixture.button(Tool::Eq)->isHidden());
        QVERIFY(fixture.button(Tool::Mark)->isVisible());
        QCOMPARE(fixture.strip->count(), ToolTable::toolCount);
        QVERIFY(!fixture.strip->isToolButtonChecked(int(Tool::Eq)));
        fixture.button(Tool::Eq)->setChecked(true);
        QVERIFY(fixture.strip->isToolButtonChecked(int(Tool::Eq)));
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
        fixture.strip->SetAllButtonchecked(false, fixture.button(Tool::CopyFeature));
        QCOMPARE(fixture.checked(), QList<Tool>{Tool::CopyFeature});
        fixture.strip->SetAllButtonchecked(true, fixture.button(Tool::CopyFeature));
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
        // The buttons now belong to the panel, and are deleted with it.
        QCOMPARE(panel.findChildren<QToolButton*>().size(), 2 * ToolTable::toolCount);
    }
};

CTS_TEST(TestConstruction);
#include "test_construction.moc"
