// However often tools are clicked and records sent, the heap holds no more than before.

#include "FindChild.h"
#include "Heap.h"
#include "Main.h"
#include "StripFixture.h"
#include "addfeature/AddFeature.h"
#include "plugin/MessageCodes.h"

#include <QLineEdit>
#include <QLoggingCategory>

class TestHeldMemory : public QObject {
    Q_OBJECT

    /// Every tool in turn, and a record after each.
    static void clickAndSend(StripFixture& user, AddFeature& dialog, int times)
    {
        constexpr int betweenPaints = 1000;
        for (int i = 0; i < times; ++i) {
            user.button(Tool(i % ToolTable::toolCount))->click();
            user.recorder.clear();
            dialog.on_m_pPolarityCMB_ComboBox_Changed();
            QCOMPARE(user.recorder.codes(), QVector<int>{MessageCodes::Sent::Record});
            if (i % betweenPaints == 0) {
                QApplication::processEvents();
            }
        }
    }

    /// With the same tool checked and everything painted.
    static double heldBytes(StripFixture& user, AddFeature& dialog)
    {
        user.button(Tool::AddFeature)->click();
        dialog.on_m_pPolarityCMB_ComboBox_Changed();
        user.recorder.clear();
        QApplication::processEvents();
        return Heap::heldBytes();
    }

private Q_SLOTS:
    // Otherwise each record is logged.
    void initTestCase() { QLoggingCategory::setFilterRules("canvastoolstrip.*=false"); }

    /// What allocator and platform may keep for themselves counts as held. Leaking the smallest
    /// block in each click would cost several times as much.
    void clicksAndSends()
    {
#ifdef __SANITIZE_ADDRESS__
        QSKIP("the sanitizers' allocator counts differently, and looks for leaks itself");
#endif
        constexpr double allocatorCaches = 65536;
        const int all = TestProgram::isFull() ? 1000000 : 20000;
        const int first = all / 20;
        StripFixture user;
        user.window.show();
        user.button(Tool::AddFeature)->click();
        auto& dialog = findNamed<AddFeature>(user.window, "AddFeature");
        findNamed<QLineEdit>(dialog, "m_pSymbolTextLE").setText("r10");
        clickAndSend(user, dialog, first);
        const double before = heldBytes(user, dialog);
        clickAndSend(user, dialog, all - first);
        const double held = heldBytes(user, dialog) - before;
        QVERIFY2(held < allocatorCaches, qPrintable(QString("%1 bytes").arg(held)));
    }
};

CTS_TEST(TestHeldMemory);
#include "test_held_memory.moc"
