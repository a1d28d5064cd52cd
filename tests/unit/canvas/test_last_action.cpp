// The line under the board speaks of the last action only.

#include "CanvasFixture.h"
#include "Main.h"
#include "plugin/MessageCodes.h"
#include "plugin/ToolModes.h"

#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace Sent = MessageCodes::Sent;

namespace {

/// Clicks delete, and one beside the pad has just said that there is nothing.
class DeletingFixture : public CanvasFixture {
public:
    DeletingFixture() : CanvasFixture({Pcb::Feature(Pcb::padGeometry("r60", {5000, 5000}))})
    {
        receive(Sent::DeleteFeature, DeleteMode::feature);
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window)) {
            qFatal("the window does not become active");
        }
        miss();
    }

    void miss() const { click(15000, 10000); }
    QString line() const { return text("m_pCanvasStatusLB"); }
    void typePlace(const QString& text) const
    {
        auto& position = findNamed<QLineEdit>(*pane, "m_pPositionLE");
        position.setFocus();
        position.selectAll();
        QTest::keyClicks(&position, text);
        QTest::keyClick(&position, Qt::Key_Return);
    }
};

const QString nothingHere = QStringLiteral("No feature here.");

}  // namespace

class TestLastAction : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aClickEndsWhatTheLastOneSaid()
    {
        const DeletingFixture fixture;
        QCOMPARE(fixture.line(), nothingHere);
        fixture.click(5000, 5000);
        QVERIFY(fixture.features().empty());
        QCOMPARE(fixture.line(), QString());
        fixture.miss();
        QCOMPARE(fixture.line(), nothingHere);
        QTest::mouseClick(&findNamed(*fixture.pane, "m_pFitTB"), Qt::LeftButton);
        QCOMPARE(fixture.line(), QString());
        fixture.miss();
        fixture.rightClick(5000, 5000);
        QCOMPARE(fixture.line(), QString());
    }

    void movingTheMouseIsNoAction()
    {
        const DeletingFixture fixture;
        fixture.move(5000, 5000);
        QCOMPARE(fixture.line(), nothingHere);
    }

    void aKeyEndsIt_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifier");
        QTest::addColumn<QString>("line");
        const auto row = [](const char* name, Qt::Key key, Qt::KeyboardModifier modifier,
                            const QString& line) {
            QTest::newRow(name) << int(key) << int(modifier) << line;
        };
        row("zoom", Qt::Key_Plus, Qt::ControlModifier, {});
        row("select all", Qt::Key_A, Qt::ControlModifier, {});
        row("undo when there is nothing to undo", Qt::Key_Z, Qt::ControlModifier, {});
        row("cancel", Qt::Key_Escape, Qt::NoModifier, {});
        row("snap", Qt::Key_F9, Qt::NoModifier, "Points snap.");
        row("any", Qt::Key_Q, Qt::NoModifier, {});
        row("modifier alone", Qt::Key_Control, Qt::NoModifier, nothingHere);
        row("another one", Qt::Key_Shift, Qt::NoModifier, nothingHere);
    }
    void aKeyEndsIt()
    {
        QFETCH(int, key);
        QFETCH(int, modifier);
        QFETCH(QString, line);
        const DeletingFixture fixture;
        QTest::keyClick(&fixture.view(), Qt::Key(key), Qt::KeyboardModifier(modifier));
        QCOMPARE(fixture.line(), line);
    }

    void undoAndRedoSayWhatTheyDid()
    {
        const DeletingFixture fixture;
        fixture.click(5000, 5000);
        fixture.miss();
        QTest::keyClick(&fixture.view(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(fixture.features().size(), size_t(1));
        QCOMPARE(fixture.line(), QString("Undone: Delete feature."));
        QTest::mouseClick(&findNamed(*fixture.pane, "m_pRedoTB"), Qt::LeftButton);
        QVERIFY(fixture.features().empty());
        QCOMPARE(fixture.line(), QString("Redone: Delete feature."));
        fixture.move(6000, 5000);
        QCOMPARE(fixture.line(), QString("Redone: Delete feature."));
    }

    void anAcceptedPositionEndsThatOneWasRefused()
    {
        const DeletingFixture fixture;
        fixture.typePlace("here");
        QVERIFY(fixture.line().startsWith("\"here\" is not a position"));
        fixture.typePlace("5mm 5mm");
        QVERIFY(fixture.features().empty());
        QCOMPARE(fixture.line(), QString());
    }

    void anotherWindowCountsToo()
    {
        const DeletingFixture fixture;
        QWidget other(fixture.pane->parentWidget(), Qt::Window);
        auto* const layout = new QVBoxLayout(&other);
        auto* const button = new QPushButton(&other);
        layout->addWidget(button);
        other.show();
        QVERIFY(QTest::qWaitForWindowExposed(&other));
        QCOMPARE(fixture.line(), nothingHere);
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(fixture.line(), QString());
    }
};

CTS_TEST(TestLastAction);
#include "test_last_action.moc"
