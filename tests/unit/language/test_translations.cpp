// Every visible text in Chinese, switched while the program runs, and back.

#include "DialogFixture.h"
#include "Main.h"
#include "dimensions/Dimensious.h"
#include "plugin/MessageCodes.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QRegularExpression>
#include <QTimer>

namespace Accepted = MessageCodes::Accepted;

namespace {

/// What reads the same in every language: numbers, units, names of codes and matrices.
bool isUniversal(const QString& text)
{
    static const QRegularExpression pattern(QRegularExpression::anchoredPattern(
        "[0-9 X]*|mil|mm|\u03bcm|\"|UPC39( ascii)?|CODE128[BC]|ECC-200|EQ"));
    return pattern.match(text).hasMatch();
}

bool isChinese(const QString& text)
{
    return std::any_of(text.begin(), text.end(),
                       [](QChar c) { return c.unicode() >= 0x4e00 && c.unicode() < 0xa000; });
}

/// All texts that a widget and its children show or have read out, each with its place.
QMap<QString, QString> textsOf(const QWidget& root)
{
    QMap<QString, QString> texts;
    QList<const QWidget*> widgets{&root};
    for (const QWidget* const child : root.findChildren<QWidget*>()) {
        widgets.append(child);
    }
    for (const QWidget* const widget : widgets) {
        const QString name = widget->objectName();
        texts[name + " title"] = widget->windowTitle();
        texts[name + " tip"] = widget->toolTip();
        texts[name + " name"] = widget->accessibleName();
        if (const auto* const label = qobject_cast<const QLabel*>(widget)) {
            texts[name] = label->text();
        } else if (const auto* const button = qobject_cast<const QAbstractButton*>(widget)) {
            texts[name] = button->text();
        } else if (const auto* const group = qobject_cast<const QGroupBox*>(widget)) {
            texts[name] = group->title();
        } else if (const auto* const combo = qobject_cast<const QComboBox*>(widget)) {
            texts[name] = itemTexts(*combo).join('|');
        }
    }
    return texts;
}

QStringList untranslated(const QMap<QString, QString>& texts)
{
    QStringList found;
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        for (const QString& part : text->split('|')) {
            if (!isUniversal(part) && !isChinese(part)) {
                found.append(text.key() + ": " + part);
            }
        }
    }
    return found;
}

/// Opens a tool's menu and dismisses it.
void openMenu(const DialogFixture& fixture, Tool tool)
{
    QTimer::singleShot(0, [] { QApplication::activePopupWidget()->close(); });
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(3, 3));
    QApplication::sendEvent(fixture.button(tool), &event);
}

}  // namespace

class TestTranslations : public QObject {
    Q_OBJECT

    QTranslator m_chinese;

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_chinese.load("Canvas_Tool_Strip_zh_CN", TRANSLATION_DIR)); }

    void everythingAndBack()
    {
        DialogFixture fixture;
        connect(fixture.strip, SIGNAL(language_changed()), fixture.dialog, SLOT(change_language()));
        for (const Tool tool : {Tool::SelectByNet, Tool::Mark}) {
            openMenu(fixture, tool);
        }
        fixture.receive(Accepted::LanguageChanged);  // "Select By Net" has its capital from now on
        const auto english = textsOf(fixture.window);
        QVERIFY(untranslated(english).size() > 100);
        fixture.recorder.clear();

        QCoreApplication::installTranslator(&m_chinese);
        fixture.receive(Accepted::LanguageChanged);
        const QStringList left = untranslated(textsOf(fixture.window));
        QVERIFY2(left == QStringList{"m_pFontLE: standard"} || left.isEmpty(),
                 qPrintable(left.join('\n')));
        QStringList entries;
        for (const char* const menu : {"m_pNetMenu", "m_pMarkMenu"}) {
            for (const QAction* const action : fixture.window.findChild<QMenu*>(menu)->actions()) {
                entries.append(action->text());
            }
        }
        QCOMPARE(std::count_if(entries.begin(), entries.end(), isChinese), 5);
        QCOMPARE(entries.last(), QString("Setting"));  // created before, and never retitled

        QCoreApplication::removeTranslator(&m_chinese);
        fixture.receive(Accepted::LanguageChanged);
        QCOMPARE(textsOf(fixture.window), english);
        QVERIFY(fixture.recorder.messages().isEmpty());
    }

    void menusMadeInChinese()
    {
        QCoreApplication::installTranslator(&m_chinese);
        DialogFixture fixture;
        for (const Tool tool : {Tool::DeleteFeature, Tool::SelectByNet, Tool::Mark}) {
            openMenu(fixture, tool);
        }
        for (const QMenu* const menu : fixture.window.findChildren<QMenu*>()) {
            for (const QAction* const action : menu->actions()) {
                QVERIFY2(isChinese(action->text()), qPrintable(action->text()));
            }
        }
        QCoreApplication::removeTranslator(&m_chinese);
    }

    void refusals()
    {
        QCoreApplication::installTranslator(&m_chinese);
        DialogFixture fixture;
        fixture.chooseType("m_pPadTB");
        fixture.enter("m_pSymbolTextLE", "foo");
        fixture.enter("m_pDrilDxLE", "100001");
        const BoxTextList boxes = fixture.boxes.takeTexts();
        QCOMPARE(boxes.size(), 2);
        QVERIFY(untranslated({{"symbol title", boxes[0].title},
                              {"symbol", boxes[0].text},
                              {"step title", boxes[1].title},
                              {"step", boxes[1].text}})
                    .isEmpty());
        QVERIFY(boxes[1].text.endsWith("-100000 to 100000"));
        QCoreApplication::removeTranslator(&m_chinese);
    }

    void dimensions()
    {
        for (int slot = 0; slot < 7; ++slot) {
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("connectSlotsByName"));
        }
        const Dimensious popup;
        const auto english = textsOf(popup);
        QCoreApplication::installTranslator(&m_chinese);
        QCoreApplication::sendPostedEvents();
        QCOMPARE(untranslated(textsOf(popup)), QStringList());
        QCoreApplication::removeTranslator(&m_chinese);
        QCoreApplication::sendPostedEvents();
        QCOMPARE(textsOf(popup), english);
    }
};

CTS_TEST(TestTranslations);
#include "test_translations.moc"
