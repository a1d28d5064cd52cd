// What the constructor builds.

#include "Main.h"
#include "StripFixture.h"
#include "ToolRows.h"

#include <UiApiStandIn.h>

#include <QImage>
#include <QMenu>

namespace {

QString resource(const QString& file)
{
    return ":/Canvas_Tool_Strip/Resources/" + file;
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
    double minimum = differenceAt(shown, picture, 0);
    for (int frame = 1; frame <= 3; ++frame) {
        minimum = qMin(minimum, differenceAt(shown, picture, frame));
    }
    return minimum;
}

}  // namespace

class TestConstruction : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { CanvasHost::setEQVisible(true); }

    void theHostsWidgetTakesNoFocus()
    {
        QWidget host;
        host.setFocusPolicy(Qt::StrongFocus);
        const Canvas_Tool_Strip strip(&host);
        QCOMPARE(host.focusPolicy(), Qt::NoFocus);
    }

    void button_data()
    {
        QTest::addColumn<Tool>("tool");
        for (const Tool tool : allTools()) {
            QTest::newRow(qPrintable(toolRows()[int(tool)].objectName)) << tool;
        }
    }
    void button()
    {
        QFETCH(Tool, tool);
        StripFixture fixture;
        const ToolRow& expected = toolRows()[int(tool)];
        QToolButton* const button = fixture.button(tool);
        QVERIFY(button);
        QCOMPARE(button->objectName(), expected.objectName);
        QCOMPARE(button->toolTip(), expected.tip);
        QCOMPARE(button->isEnabled(), expected.isEnabled);
        QVERIFY(button->isCheckable());
        QCOMPARE(button->minimumSize(), QSize(40, 40));
        QCOMPARE(button->maximumSize(), QSize(40, 40));
        QCOMPARE(button->styleSheet(), expected.styleSheet());
        QCOMPARE(button->contextMenuPolicy() == Qt::CustomContextMenu, expected.hasMenu);

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
        const QImage image(resource(toolRows()[int(tool)].picture));
        const QImage checkedImage(resource(toolRows()[int(tool)].checkedPicture));
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
        for (const ToolRow& other : toolRows()) {
            if (&other != &toolRows()[int(tool)]) {
                button->setChecked(false);
                QVERIFY2(difference(button, QImage(resource(other.picture))) > plain,
                         qPrintable(other.objectName));
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
