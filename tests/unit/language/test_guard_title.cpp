// The title of a guard's box is translated with the class whose slot is guarded.

#include "DialogFixture.h"
#include "Main.h"
#include "plugin/MessageCodes.h"

#include <UiApiStandIn.h>

#include <stdexcept>

namespace {

enum class Thrown { Text, Exception };

int fail(Thrown thrown)
{
    if (thrown == Thrown::Text) {
        throw "failed";
    }
    throw std::runtime_error("failed");
}

}  // namespace

class TestGuardTitle : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void title_data()
    {
        QTest::addColumn<bool>("isDialogs");
        QTest::addColumn<int>("thrown");
        QTest::addColumn<QByteArray>("context");
        QTest::addColumn<QString>("title");
        for (const Thrown thrown : {Thrown::Text, Thrown::Exception}) {
            const int how = int(thrown);
            for (const char* const context : {"AddFeature", "Canvas_Tool_Strip", "Guard", ""}) {
                const QByteArray name = context;
                QTest::addRow("dialog, %s, %d", context, how)
                    << true << how << name
                    << (name == "AddFeature" ? "<Information>" : "Information");
                QTest::addRow("strip, %s, %d", context, how)
                    << false << how << name
                    << (name == "Canvas_Tool_Strip" ? "<Information>" : "Information");
            }
        }
    }

    void title()
    {
        QFETCH(bool, isDialogs);
        QFETCH(int, thrown);
        QFETCH(QByteArray, context);
        QFETCH(QString, title);
        DialogFixture fixture;
        const QuotingTranslator translator(context.constData());
        if (isDialogs) {
            CanvasHost::uiApiOverrides().getUnit = [thrown](void*) { return fail(Thrown(thrown)); };
            fixture.symbol().setText("r10");
        } else {
            CanvasHost::uiApiOverrides().getUnitString = [thrown](void*) {
                return QString::number(fail(Thrown(thrown)));
            };
            fixture.receive(MessageCodes::Accepted::UnitChanged);
        }
        QCOMPARE(fixture.boxes.takeTexts(), (BoxTextList{{title, "failed"}}));
    }
};

CTS_TEST(TestGuardTitle);
#include "test_guard_title.moc"
