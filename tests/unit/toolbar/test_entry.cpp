// The module's entry points, called as a host calls them.

#include "Main.h"
#include "StripFixture.h"
#include "plugin/MessageCodes.h"
#include "plugin/PayloadKeys.h"
#include "plugin/PluginEntry.h"

#include <cstdlib>
#include <new>

namespace Sent = MessageCodes::Sent;
namespace Accepted = MessageCodes::Accepted;

namespace {
bool noMemory = false;
}

void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept
{
    return noMemory ? nullptr : ::operator new(size);
}

class TestEntry : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void eachCallMakesANewStrip()
    {
        QWidget one;
        QWidget other;
        void* const first = GetPluginInstance(&one);
        void* const second = GetPluginInstance(&other);
        QVERIFY(first && second && first != second);
        one.setLayout(static_cast<Canvas_Tool_Strip*>(first));
        other.setLayout(static_cast<Canvas_Tool_Strip*>(second));
        QCOMPARE(one.findChildren<QToolButton*>().size(), ToolTable::toolCount);
        QCOMPARE(other.findChildren<QToolButton*>().size(), ToolTable::toolCount);
    }

    void noMemoryGivesNull()
    {
        QWidget parent;
        parent.setFocusPolicy(Qt::StrongFocus);
        noMemory = true;
        void* const strip = GetPluginInstance(&parent);
        noMemory = false;
        QVERIFY(!strip);
        QCOMPARE(parent.focusPolicy(), Qt::StrongFocus);  // nothing was constructed
        QVERIFY(parent.children().isEmpty());
    }

    void deliversACopy()
    {
        StripFixture fixture;
        PluginMetaData message("Sibling.dll", "Canvas_Tool_Strip.dll");
        message.code = Accepted::MoveFeature;
        message.payload = {{PayloadKeys::jobName, "a"}};
        recMsgFromManager(fixture.strip, message);
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::MoveFeature});
        QCOMPARE(message.payload, (QMap<QString, QVariant>{{PayloadKeys::jobName, "a"}}));
        QCOMPARE(message.code, Accepted::MoveFeature);
    }

    void deletedAsAnObject()
    {
        QWidget parent;
        auto* const strip = static_cast<Canvas_Tool_Strip*>(GetPluginInstance(&parent));
        parent.setLayout(strip);
        delete static_cast<QObject*>(strip);
        // The buttons stay with their parent widget.
        QCOMPARE(parent.findChildren<QToolButton*>().size(), ToolTable::toolCount);
    }
};

CTS_TEST(TestEntry);
#include "test_entry.moc"
