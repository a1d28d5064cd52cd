// The built library is loaded, used and unloaded many times; nothing grows. Two strips in two
// windows never touch each other.

#include "BoxCatcher.h"
#include "Heap.h"
#include "LoadedStrip.h"
#include "Main.h"
#include "Recorder.h"
#include "plugin/MessageCodes.h"
#include "plugin/RecordKeys.h"

#include <QTpluginsManger4CAM.h>

#include <QComboBox>
#include <QFileInfo>
#include <QLineEdit>
#include <QLoggingCategory>

namespace Sent = MessageCodes::Sent;

namespace {

// The sanitizers' allocator counts differently, and looks for leaks itself.
#ifdef __SANITIZE_ADDRESS__
constexpr bool isSanitized = true;
#else
constexpr bool isSanitized = false;
#endif

/// What a user does with it: tools, the dialog, a typed symbol, a count, closing.
void use(const LoadedStrip& host)
{
    host.click("m_pMeasureTB");
    host.click("m_pFeatHighLightTB");
    host.click("m_pAddFeatureTB");
    host.click("m_pPadTB");
    chooseItem(findNamed<QComboBox>(*host.dialog(), "m_pPolarityCMB"), "Negative");
    QTest::keyClicks(&findNamed<QLineEdit>(*host.dialog(), "m_pSymbolTextLE"), "r10");
    QTest::keyClick(&findNamed<QLineEdit>(*host.dialog(), "m_pSymbolTextLE"), Qt::Key_Return);
    QTest::keyClicks(&findNamed<QLineEdit>(*host.dialog(), "m_pDrilNxLE"), "2");
    host.dialog()->close();
}

/// Its pictures are registered for as long as the library is in memory.
bool isInMemory()
{
    return QFileInfo::exists(QStringLiteral(":/Canvas_Tool_Strip"));
}

}  // namespace

class TestLifeCycle : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Otherwise the record is logged each time.
    void initTestCase() { QLoggingCategory::setFilterRules("canvastoolstrip.*=false"); }

    /// Qt keeps the functions of a type that it has once come to know: those of a library that is
    /// gone are a crash.
    void leavesNoTypesBehind()
    {
        {
            const LoadedStrip host;
            use(host);
        }
        QVERIFY(CanvasHost::unloadModule(ModuleNames::toolStrip));
        QVERIFY(!isInMemory());
        QVERIFY(QMetaType::isRegistered(QMetaType::User));
        for (int type = QMetaType::User; QMetaType::isRegistered(type); ++type) {
            QMetaType::destroy(type, QMetaType::create(type));
        }
    }

    void manyLives()
    {
        constexpr int warmUp = 200;
        const int lives = TestProgram::isFull() ? 1000 : 2 * warmUp;
        double before = 0;
        int sent = 0;
        for (int life = 0; life < lives; ++life) {
            if (life == warmUp) {
                before = Heap::heldBytes();
            }
            Recorder recorder;
            {
                const LoadedStrip host;
                use(host);
                QVERIFY(isInMemory());
            }
            sent += recorder.last(Sent::Record).message.payload.value(RecordKeys::padNx) ==
                    QVariant("12");
            QVERIFY(CanvasHost::unloadModule(ModuleNames::toolStrip));
            QVERIFY(!isInMemory());
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
        QCOMPARE(sent, lives);
        const double grown = Heap::heldBytes() - before;
        QVERIFY2(isSanitized || grown < 64 * (lives - warmUp),
                 qPrintable(QStringLiteral("%1 bytes").arg(grown)));
    }

    void twoStripsNeverTouch()
    {
        Recorder recorder;
        const LoadedStrip one;
        const LoadedStrip two;
        use(one);
        for (const Recorder::Entry& entry : recorder.messages()) {
            QCOMPARE(entry.sender, const_cast<QWidget*>(&one.window));
        }
        QVERIFY(two.isChecked("m_pAreaZoomTB"));
        QVERIFY(!two.dialog());
        recorder.clear();
        two.click("m_pAddFeatureTB");
        two.click("m_pArcTB");
        QVERIFY(!one.isChecked("m_pAddFeatureTB"));
        QVERIFY(one.tool("m_pPadTB").isChecked());
        QVERIFY(!one.dialog()->isVisible());
        QCOMPARE(recorder.last(Sent::Record).sender, const_cast<QWidget*>(&two.window));
        QCOMPARE(recorder.last(Sent::Record).message.payload.value(RecordKeys::padNx),
                 QVariant("1"));
    }
};

CTS_TEST(TestLifeCycle);
#include "test_life_cycle.moc"
