// The window used by keyboard: where Tab goes, what Escape closes, and what the wheel leaves alone.

#include "Main.h"
#include "WindowFixture.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QMenuBar>
#include <QRegularExpression>
#include <QTableView>
#include <QToolButton>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

class TestKeyboard : public QObject, private WindowFixture {
    Q_OBJECT

    QWidget& the(const char* name) const { return findNamed(*m_window, QLatin1String(name)); }

    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }

    /// The names of all that Tab reaches until it is back.
    static QStringList walk(Qt::Key key)
    {
        const QWidget* const first = QApplication::focusWidget();
        QStringList names;
        do {
            names.append(QApplication::focusWidget()->objectName());
            press(key);
        } while (QApplication::focusWidget() != first && names.size() < 200);
        return names;
    }

    /// In the order of `names`, with others in between.
    static bool areInOrder(const QStringList& walked, const QStringList& names)
    {
        int last = -1;
        for (const QString& name : names) {
            const int index = walked.indexOf(name);
            if (index <= last) {
                return false;
            }
            last = index;
        }
        return true;
    }

    /// The visible window of that name, active.
    static QWidget& shown(const QString& name)
    {
        QWidget& window = findShown(name);
        window.activateWindow();
        QApplication::processEvents();
        return window;
    }

    /// The texts that cannot all be reached by their key: another one has the same.
    static QStringList collisions(const QStringList& texts)
    {
        QMap<QString, QStringList> byKey;
        for (const QString& text : texts) {
            const QKeySequence key = QKeySequence::mnemonic(text);
            if (!key.isEmpty()) {
                byKey[key.toString()].append(text);
            }
        }
        QStringList all;
        for (const QStringList& same : std::as_const(byKey)) {
            if (same.size() > 1) {
                all.append(same.join(" and "));
            }
        }
        return all;
    }
    static QStringList textsOf(const QList<QAction*>& actions)
    {
        QStringList texts;
        for (const QAction* const action : actions) {
            texts.append(action->text());
        }
        return texts;
    }

    QWidget& openDialog(const char* page)
    {
        QTest::mouseClick(&the("m_pAddFeatureTB"), Qt::LeftButton);
        QWidget& dialog = the("AddFeature");
        QTest::mouseClick(&findNamed(dialog, QLatin1String(page)), Qt::LeftButton);
        findNamed<QCheckBox>(dialog, "m_pAttributesCB").setChecked(true);
        return dialog;
    }

private Q_SLOTS:
    void init()
    {
        restart({});
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }
    void cleanup() { end(); }

    void theCanvasHasTheFocusAtTheStart() { QVERIFY(the("m_pBoardView").hasFocus()); }

    void tabWalksTheWholeWindow_data()
    {
        QTest::addColumn<bool>("isMadeAnew");
        QTest::newRow("as it starts") << false;
        QTest::newRow("after the strip was made anew") << true;
    }
    void tabWalksTheWholeWindow()
    {
        QFETCH(bool, isMadeAnew);
        if (isMadeAnew) {
            auto& eq = findNamed<QCheckBox>(*m_window, "m_pHostEqCB");
            eq.click();
            eq.click();
        }
        the("m_pHostJobCMB").setFocus();
        const QStringList walked = walk(Qt::Key_Tab);
        QVERIFY2(areInOrder(walked, {"m_pHostJobCMB", "m_pHostEqCB", "m_pAreaZoomTB",
                                     "m_pAddFeatureTB", "m_pEqTB", "m_pBoardView", "m_pPositionLE",
                                     "m_pGridStepLE", "m_pRecordTW", "m_pAttributesTW",
                                     "m_pMonitorFilterLE", "m_pMonitorTV", "m_pMessageTW"}),
                 qPrintable(walked.join(' ')));
        for (const QWidget* const widget : m_window->findChildren<QWidget*>()) {
            const bool isStop = (widget->focusPolicy() & Qt::TabFocus) && widget->isEnabled() &&
                                widget->isVisible() && widget->window() == m_window.get();
            QVERIFY2(!isStop || walked.contains(widget->objectName()),
                     qPrintable(widget->objectName()));
        }
        QStringList back = walk(Qt::Key_Backtab);
        back.append(back.takeFirst());
        std::reverse(back.begin(), back.end());
        QCOMPARE(back, walked);
    }

    void everyMnemonicLeadsToOneThing_data()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("English") << "en";
        QTest::newRow("Chinese") << "zh_CN";
    }
    void everyMnemonicLeadsToOneThing()
    {
        QFETCH(QString, language);
        Options options;
        options.language = language;
        restart(options);
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        QStringList texts = textsOf(m_window->menuBar()->actions());
        for (const QWidget* const widget : m_window->findChildren<QWidget*>()) {
            const auto* const label = qobject_cast<const QLabel*>(widget);
            const bool hasKey =
                label ? label->buddy() : qobject_cast<const QAbstractButton*>(widget);
            if (hasKey && widget->window() == m_window.get() && widget->isVisible()) {
                texts.append(widget->property("text").toString());
            }
        }
        for (const char* const name : {"m_pHostStepLB", "m_pHostEqCB"}) {
            QVERIFY(texts.contains(the(name).property("text").toString()));
        }
        QCOMPARE(collisions(texts), QStringList());
        const QList<QMenu*> menus = m_window->findChildren<QMenu*>();
        QVERIFY(menus.contains(&findNamed<QMenu>(*m_window, "m_pFileMenu")));
        for (const QMenu* const menu : menus) {
            QCOMPARE(collisions(textsOf(menu->actions())), QStringList());
        }
    }

    void arrowsWalkTheRowsOfATable()
    {
        auto& messages = findNamed<QTableView>(*m_window, "m_pMonitorTV");
        messages.setFocus();
        messages.selectRow(0);
        press(Qt::Key_Down);
        QCOMPARE(messages.currentIndex().row(), 1);
        press(Qt::Key_Tab);
        QCOMPARE(messages.currentIndex().row(), 1);
        QVERIFY(!messages.hasFocus());
    }

    void theWheelTurnsOnlyWhatHasTheFocus()
    {
        for (const char* const name :
             {"m_pHostJobCMB", "m_pHostStepCMB", "m_pHostUnitCMB", "m_pHostLanguageCMB"}) {
            auto& combo = findNamed<QComboBox>(*m_window, name);
            const QString before = combo.currentText();
            const auto turn = [&] {
                const QPoint centre = combo.rect().center();
                QWheelEvent event(centre, combo.mapToGlobal(centre), {}, {0, -120}, Qt::NoButton,
                                  {}, Qt::NoScrollPhase, false);
                QApplication::sendEvent(&combo, &event);
            };
            the("m_pBoardView").setFocus();
            turn();
            QCOMPARE(combo.currentText(), before);
            QVERIFY(the("m_pBoardView").hasFocus());
            combo.setFocus();
            turn();
            QVERIFY2(combo.currentText() != before, name);
        }
    }

    void escapeCloses_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<QString>("opener");
        QTest::addColumn<QString>("window");
        QTest::addColumn<QString>("focus");
        const auto row = [](const char* window, const char* focus, const char* page,
                            const char* opener) {
            QTest::addRow("%s, the focus in %s", window, focus)
                << page << opener << window << focus;
        };
        row("Widget_SymbolSelection", "m_pFilterLE", "m_pPadTB", "m_pSymbolPB");
        row("Widget_SymbolSelection", "m_pSymbolLW", "m_pPadTB", "m_pSymbolPB");
        row("Widget_listpopup", "m_pFilterLE", "m_pTextTB", "m_pFontPB");
        row("Widget_listpopup", "m_pCancelPB", "m_pTextTB", "m_pFontPB");
        row("Widget_Attributes", "m_pAttributesTable", "m_pPadTB", "m_pValuesPB");
        row("Widget_Attributes", "m_pValueEditor1", "m_pPadTB", "m_pValuesPB");
        row("m_pDocumentation", "m_pPagesTE", "m_pPadTB", "m_pDocumentationAct");
        row("m_pDimensions", "m_pFilterCMB", "m_pPadTB", "m_pDimensionsAct");
        row("m_pDimensions", "m_pAddReferencePB", "m_pPadTB", "m_pDimensionsAct");
    }
    void escapeCloses()
    {
        QFETCH(QString, page);
        QFETCH(QString, opener);
        QFETCH(QString, window);
        QFETCH(QString, focus);
        const QWidget& dialog = openDialog(qPrintable(page));
        if (auto* const action = m_window->findChild<QAction*>(opener)) {
            action->trigger();
        } else {
            QTest::mouseClick(&findNamed(dialog, opener), Qt::LeftButton);
        }
        QWidget& opened = shown(window);
        (window == focus ? opened : findNamed(opened, focus)).setFocus();
        QCOMPARE(QApplication::focusWidget()->objectName(), focus);
        press(Qt::Key_Escape);
        QVERIFY(!opened.isVisible());
        QVERIFY(dialog.isVisible());
    }

    void cancelChoosesNothing()
    {
        const QWidget& dialog = openDialog("m_pPadTB");
        QTest::mouseClick(&findNamed(dialog, "m_pSymbolPB"), Qt::LeftButton);
        const QWidget& chooser = shown("Widget_SymbolSelection");
        QTest::keyClicks(&findNamed(chooser, "m_pFilterLE"), "r20");
        QTest::mouseClick(&findNamed(chooser, "m_pCancelPB"), Qt::LeftButton);
        QVERIFY(!chooser.isVisible());
        QCOMPARE(findNamed<QLineEdit>(dialog, "m_pSymbolTextLE").text(), QString());
    }

    void escapeInTheDialogIsTheCanvass()
    {
        const QWidget& dialog = openDialog("m_pPadTB");
        shown("AddFeature");
        for (const char* const name : {"m_pSymbolTextLE", "m_pPadTB"}) {
            findNamed(dialog, name).setFocus();
            press(Qt::Key_Escape);
            QVERIFY(dialog.isVisible());
        }
    }

    void deleteSaysWhatItDeletedInTheDialogAsWell()
    {
        const QWidget& dialog = openDialog("m_pPadTB");
        shown("AddFeature");
        findNamed(dialog, "m_pPadTB").setFocus();
        const auto said = [this] {
            return findNamed<QLabel>(*m_window, "m_pCanvasStatusLB").text();
        };
        press(Qt::Key_Delete);
        QCOMPARE(said(), QString("Nothing is selected."));
        press(Qt::Key_A, Qt::ControlModifier);
        press(Qt::Key_Delete);
        QVERIFY2(QRegularExpression("^Deleted \\d+ features\\.$").match(said()).hasMatch(),
                 qPrintable(said()));
    }
};

CTS_TEST(TestKeyboard);
#include "test_keyboard.moc"
