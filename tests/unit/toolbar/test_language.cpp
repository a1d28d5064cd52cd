// The strip's texts in another language.

#include "Main.h"
#include "StripFixture.h"
#include "ToolRows.h"
#include "plugin/MessageCodes.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTimer>
#include <QTranslator>

namespace Accepted = MessageCodes::Accepted;

namespace {

/// Marks every text, so that a text shows whether it was translated, and in which context.
class MarkingTranslator : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char* note,
                      int /*count*/) const override
    {
        return QStringLiteral("%1|%2|%3").arg(context, source, note ? note : "");
    }
};

QString marked(const QString& source, const QString& note = {})
{
    return QStringLiteral("Canvas_Tool_Strip|%1|%2").arg(source, note);
}

}  // namespace

class TestLanguage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void toolTips()
    {
        StripFixture fixture;
        MarkingTranslator translator;
        QApplication::installTranslator(&translator);
        QString tipAtSignal;
        connect(fixture.strip, &Canvas_Tool_Strip::language_changed, fixture.strip,
                [&] { tipAtSignal = fixture.button(Tool::AreaZoom)->toolTip(); });
        fixture.receive(Accepted::LanguageChanged);
        QApplication::removeTranslator(&translator);
        QCOMPARE(tipAtSignal, QString("Area Zoom"));  // the signal comes first
        QStringList expected;
        for (const ToolRow& tool : toolRows()) {
            const QString tip = tool.laterTip.value_or(tool.tip);
            expected.append(tip.isEmpty() ? tool.tip : marked(tip, tool.note));
        }
        for (const Tool tool : allTools()) {
            QCOMPARE(fixture.button(tool)->toolTip(), expected[int(tool)]);
        }
    }

    void menusThatExist()
    {
        StripFixture fixture;
        fixture.window.show();
        for (const Tool tool : {Tool::DeleteFeature, Tool::SelectByNet, Tool::Mark}) {
            QTimer::singleShot(0, [] { QApplication::activePopupWidget()->close(); });
            QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(3, 3));
            QApplication::sendEvent(fixture.button(tool), &event);
        }
        MarkingTranslator translator;
        QApplication::installTranslator(&translator);
        fixture.receive(Accepted::LanguageChanged);
        QApplication::removeTranslator(&translator);
        const auto texts = [&](const char* menu) {
            QStringList list;
            for (const QAction* const action : fixture.window.findChild<QMenu*>(menu)->actions()) {
                list.append(action->text());
            }
            return list;
        };
        QCOMPARE(texts("m_pDeleteMenu"), (QStringList{"Delete Feature", "Delete to Intersection"}));
        QCOMPARE(texts("m_pNetMenu"),
                 (QStringList{marked("Select Layer Net"), marked("Select Board Net"),
                              marked("Select_Polyline")}));
        QCOMPARE(texts("m_pMarkMenu"), (QStringList{marked("Mark Orthogonal"),
                                                    marked("Mark Point to Point"), "Setting"}));
    }

    void beforeTheMenusExist()
    {
        StripFixture fixture;
        fixture.receive(Accepted::LanguageChanged);
        QCOMPARE(fixture.button(Tool::SelectByNet)->toolTip(), QString("Select By Net"));
        QVERIFY(fixture.window.findChildren<QMenu*>().isEmpty());
    }
};

CTS_TEST(TestLanguage);
#include "test_language.moc"
