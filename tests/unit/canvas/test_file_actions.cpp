// The board as a file: unsaved changes are not lost without a warning.

#include "BoxButton.h"
#include "CanvasFixture.h"
#include "ChosenFile.h"
#include "Main.h"
#include "board/BoardFile.h"
#include "shared/FileQuestion.h"
#include "shared/Settings.h"
#include "viewer/FileActions.h"

#include <QAbstractButton>
#include <QAction>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressDialog>
#include <QTemporaryDir>
#include <QTimer>

namespace {

class FileFixture : public CanvasFixture {
public:
    FileFixture() : CanvasFixture(twoPads()) {}

    FileActions& files() const { return *pane->findChild<FileActions*>(); }
    QAction& action(const char* name) const { return *pane->findChild<QAction*>(name); }
    QString path(const char* name) const { return directory.filePath(name); }
    void deleteAll() const
    {
        action("m_pSelectAllAct").trigger();
        action("m_pDeleteAct").trigger();
    }
    /// Saves the board as the file that is open from now on.
    bool save(const char* name) const
    {
        QDir(directory.path()).mkpath(QFileInfo(name).path());
        Pcb::writeBoardFile(document().board(), path(name));
        files().openAtOnce(path(name));
        return files().file() == path(name);
    }
    QByteArray saved(const char* name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir directory;
};

}  // namespace

class TestFileActions : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        Settings::keepIn({});
        LastFolder::remember(QDir::home().filePath("board.json"));
    }

    void onlyTheBoardCountsAsChanged()
    {
        const FileFixture fixture;
        QVERIFY(!fixture.files().isModified());
        fixture.action("m_pSelectAllAct").trigger();
        QCOMPARE(int(fixture.state().selected.size()), 2);
        QVERIFY(!fixture.files().isModified());
        fixture.action("m_pDeselectAct").trigger();
        QVERIFY(fixture.state().selected.empty());
        fixture.action("m_pDeleteAct").trigger();
        QCOMPARE(int(fixture.features().size()), 2);
        fixture.deleteAll();
        QVERIFY(fixture.features().empty());
        QVERIFY(fixture.files().isModified());
        fixture.document().history().undo();
        QVERIFY(!fixture.files().isModified());
    }

    void savingKeepsTheHistory()
    {
        const FileFixture fixture;
        const ChosenFile chosen(fixture.path("a"));
        fixture.deleteAll();
        fixture.action("m_pSaveBoardAct").trigger();  // nothing is open: asks for a name
        QCOMPARE(chosen.offered, QString("job-step.json"));
        QCOMPARE(fixture.files().file(), fixture.path("a.json"));
        QVERIFY(!fixture.files().isModified());
        fixture.document().history().undo();
        QCOMPARE(int(fixture.features().size()), 2);
        QVERIFY(fixture.files().isModified());
        const int before = fixture.saved("a.json").size();
        fixture.action("m_pSaveBoardAct").trigger();  // to the file that is open
        QVERIFY(fixture.saved("a.json").size() > before);
        QVERIFY(!fixture.files().isModified());
        QVERIFY(fixture.document().history().canRedo());
    }

    void dialogIsThatOfThePlatform()
    {
        const FileFixture fixture;
        const ChosenFile chosen(fixture.path("a"));
        fixture.action("m_pSaveBoardAct").trigger();
        QVERIFY(chosen.mayBeNative);
    }

    void openingAsksFirst()
    {
        const FileFixture fixture;
        QVERIFY(fixture.save("two.json"));
        fixture.deleteAll();
        {
            const BoxButton cancel(QMessageBox::Cancel);
            QVERIFY(!fixture.files().open(fixture.path("two.json")));
            QCOMPARE(
                cancel.texts,
                QStringList("Unsaved Changes|\"two.json\" has been changed. Save the changes?"));
        }
        QVERIFY(fixture.features().empty());
        {
            const BoxButton discard(QMessageBox::Discard);
            QVERIFY(fixture.files().open(fixture.path("two.json")));
            QCOMPARE(discard.texts.size(), 1);
        }
        QCOMPARE(int(fixture.features().size()), 2);
        fixture.deleteAll();
        const BoxButton save(QMessageBox::Save);
        QVERIFY(fixture.files().open(fixture.path("two.json")));
        QVERIFY(fixture.features().empty());  // as it was just saved
        QCOMPARE(save.texts.size(), 1);
    }

    void aNewBoardAsksFirst()
    {
        const FileFixture fixture;
        QVERIFY(fixture.save("two.json"));
        fixture.deleteAll();
        const BoxButton cancel(QMessageBox::Cancel);
        fixture.action("m_pNewBoardAct").trigger();
        QCOMPARE(cancel.texts.size(), 1);
        fixture.document().history().undo();
        fixture.action("m_pNewBoardAct").trigger();
        QCOMPARE(cancel.texts.size(), 1);
        QVERIFY(fixture.features().empty());
        QCOMPARE(fixture.files().file(), QString());
        QVERIFY(!fixture.document().board().outline.isEmpty());
    }

    void eachStepKeepsItsBoardAndItsFile()
    {
        const FileFixture fixture;
        CanvasController& canvas = fixture.pane->canvas();
        QVERIFY(fixture.save("two.json"));
        fixture.deleteAll();
        canvas.openStep("demo", "pcb");
        QCOMPARE(fixture.files().file(), QString());
        QVERIFY(!fixture.files().isModified());
        fixture.deleteAll();
        const BoxButton discard(QMessageBox::Discard);
        QVERIFY(fixture.files().mayClose());
        QCOMPARE(discard.texts, QStringList("Unsaved Changes|These boards have been changed:\n"
                                            "a board without a job (two.json)\n"
                                            "demo / pcb (in no file yet)\nSave the changes?"));
        canvas.openStep({}, {});
        QCOMPARE(fixture.files().file(), fixture.path("two.json"));
        QVERIFY(fixture.features().empty());
        QVERIFY(fixture.files().isModified());
    }

    void allChangedStepsAreSavedByOneAnswer()
    {
        const FileFixture fixture;
        QVERIFY(fixture.save("two.json"));
        fixture.deleteAll();
        fixture.pane->canvas().openStep("demo", "panel");  // has not changed
        fixture.pane->canvas().openStep("demo", "pcb");
        fixture.deleteAll();
        {
            const BoxButton cancel(QMessageBox::Cancel);
            QVERIFY(!fixture.files().mayClose());
            QCOMPARE(cancel.texts.size(), 1);
        }
        const BoxButton saveAll(QMessageBox::SaveAll);
        {
            const ChosenFile none;
            QVERIFY(!fixture.files().mayClose());  // one of them has no file
            QVERIFY(fixture.files().isModified());
        }
        fixture.pane->canvas().openStep({}, {});
        QVERIFY(!fixture.files().isModified());
        fixture.document().history().undo();
        const ChosenFile chosen(fixture.path("pcb.json"));
        QVERIFY(fixture.files().mayClose());
        QCOMPARE(chosen.offered, QString("demo-pcb.json"));
        QCOMPARE(saveAll.texts.size(), 2);
        QVERIFY(fixture.files().mayClose());  // nothing has changed any more
        QCOMPARE(saveAll.texts.size(), 2);
        QVERIFY(!fixture.saved("pcb.json").isEmpty());
    }

    void aBoardInNoFileIsNamedByItsStep()
    {
        const FileFixture fixture;
        fixture.pane->canvas().openStep("demo", "pcb");
        fixture.deleteAll();
        const BoxButton cancel(QMessageBox::Cancel);
        QVERIFY(!fixture.files().mayClose());
        QCOMPARE(cancel.texts,
                 QStringList("Unsaved Changes|demo / pcb has been changed and is in no file yet. "
                             "Save the changes?"));
    }

    void namesAreNoMarkupInTheQuestion()
    {
        const FileFixture fixture;
        fixture.pane->canvas().openStep("<b>demo</b>", "pcb");
        fixture.deleteAll();
        QVector<Qt::TextFormat> formats;
        QTimer looks;
        connect(&looks, &QTimer::timeout, [&] {
            if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                formats.append(box->textFormat());
                box->button(QMessageBox::Cancel)->click();
            }
        });
        looks.start(10);
        QVERIFY(!fixture.files().mayClose());
        QCOMPARE(formats, QVector<Qt::TextFormat>{Qt::PlainText});
    }

    void whatIsNotSavedKeepsTheWindowOpen()
    {
        const FileFixture fixture;
        QVERIFY(fixture.files().mayClose());
        fixture.deleteAll();
        {
            const BoxButton cancel(QMessageBox::Cancel);
            QVERIFY(!fixture.files().mayClose());
        }
        fixture.files().setMayAsk([] { return false; });
        QVERIFY(fixture.files().mayClose());
    }

    void aBoardThatFailsToBeSavedIsKept()
    {
        const FileFixture fixture;
        QVERIFY(fixture.save("folder/two.json"));
        fixture.deleteAll();
        QVERIFY(QDir(fixture.path("folder")).removeRecursively());
        const BoxButton boxes(QMessageBox::Save);
        QVERIFY(!fixture.files().mayClose());
        QCOMPARE(boxes.texts.size(), 2);
        QVERIFY2(boxes.texts[1].startsWith("Cannot save the board|"), qPrintable(boxes.texts[1]));
        QVERIFY(fixture.files().isModified());
    }

    void nothingIsToldOfBoardsThatEnd()
    {
        int told = 0;
        {
            const FileFixture fixture;
            fixture.deleteAll();
            fixture.pane->canvas().openStep("demo", "pcb");
            fixture.deleteAll();
            connect(&fixture.files(), &FileActions::changed, this, [&] { ++told; });
        }
        QCOMPARE(told, 0);
    }

    void exportsTakeTheSuffixOfTheirKind()
    {
        const FileFixture fixture;
        for (const auto& [filter, suffix] :
             {std::pair<int, QString>{0, "gbr"}, {1, "png"}, {2, "svg"}}) {
            const ChosenFile chosen(fixture.path("drawn"), filter);
            fixture.action("m_pExportBoardAct").trigger();
            QCOMPARE(chosen.offered, QString("job-step"));
            QVERIFY2(QFileInfo::exists(fixture.path("drawn") + "." + suffix), qPrintable(suffix));
        }
    }

    void aNameThatLacksItsSuffixAsksBeforeItReplacesAFile()
    {
        const FileFixture fixture;
        QFile file(fixture.path("a.gbr"));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("mine") == 4);
        file.close();
        QStringList asked;
        QTimer answers;
        connect(&answers, &QTimer::timeout, [&] {
            QWidget* const modal = QApplication::activeModalWidget();
            if (auto* const box = qobject_cast<QMessageBox*>(modal)) {
                asked.append(box->text());
                box->button(QMessageBox::No)->click();
            } else if (auto* const dialog = qobject_cast<QFileDialog*>(modal)) {
                auto& name = findNamed<QLineEdit>(*dialog, "fileNameEdit");
                name.setText(fixture.path("a"));
                asked.isEmpty() ? QTest::keyClick(&name, Qt::Key_Return) : dialog->reject();
            }
        });
        answers.start(20);
        fixture.action("m_pExportBoardAct").trigger();
        QCOMPARE(asked, QStringList("a.gbr already exists.\nDo you want to replace it?"));
        QCOMPARE(fixture.saved("a.gbr"), QByteArray("mine"));
    }

    void exportsOfANameWithADotTakeTheSuffixAsWell()
    {
        const FileFixture fixture;
        QVERIFY(fixture.save("board.v2.json"));
        ChosenFile chosen;
        fixture.action("m_pExportBoardAct").trigger();
        QCOMPARE(chosen.offered, QString("board.v2.gbr"));
    }

    void anErrorSaysWhatFailedAndWhy()
    {
        const FileFixture fixture;
        const BoxButton box(QMessageBox::Ok);
        QVERIFY(!fixture.files().open(fixture.path("absent.json")));
        QCOMPARE(box.texts, QStringList("Cannot open the board|No such file or directory\n\n" +
                                        QDir::toNativeSeparators(fixture.path("absent.json"))));
    }

    void dialogsBeginBesideTheFileThatIsShown()
    {
        const FileFixture fixture;
        Settings::keepIn(fixture.path("settings.ini"));
        QVERIFY(fixture.save("mine/two.json"));
        LastFolder::remember(fixture.path("other.json"));
        for (const char* const name :
             {"m_pOpenBoardAct", "m_pSaveBoardAsAct", "m_pExportBoardAct"}) {
            const ChosenFile chosen;
            fixture.action(name).trigger();
            QCOMPARE(chosen.folder, fixture.path("mine"));
        }
    }

    void dialogsBeginAtHomeWhenThereIsNoFolder()
    {
        const FileFixture fixture;
        QVERIFY(QDir(fixture.directory.path()).mkdir("gone"));
        LastFolder::remember(fixture.path("gone/two.json"));
        {
            const ChosenFile chosen;
            fixture.action("m_pOpenBoardAct").trigger();
            QCOMPARE(chosen.folder, fixture.path("gone"));
        }
        QVERIFY(QDir(fixture.path("gone")).removeRecursively());
        const ChosenFile chosen;
        fixture.action("m_pOpenBoardAct").trigger();
        QCOMPARE(chosen.folder, QDir::homePath());
    }

    void aFailedExportIsNotRemembered()
    {
        const FileFixture fixture;
        QVERIFY(QDir(fixture.directory.path()).mkdir("full"));
        LastFolder::remember(fixture.path("two.json"));
        Pcb::Board far = fixture.document().board();
        far.features = {Pcb::Feature(Pcb::padGeometry("r60", {2e7, 0}))};
        fixture.document().replace(far);
        {
            const ChosenFile chosen(fixture.path("full/far.gbr"));
            const BoxButton box(QMessageBox::Ok);
            fixture.action("m_pExportBoardAct").trigger();
            QCOMPARE(box.texts.size(), 1);
            QVERIFY(box.texts[0].startsWith("Cannot export the board|A coordinate is ten metres"));
        }
        QCOMPARE(LastFolder::path(), fixture.directory.path());
        const ChosenFile chosen(fixture.path("full/far.svg"), 2);
        fixture.action("m_pExportBoardAct").trigger();
        QCOMPARE(LastFolder::path(), fixture.path("full"));
    }

    void whatIsCancelledLeavesNoFile()
    {
        const FileFixture fixture;
        Pcb::Board board = fixture.document().board();
        for (int i = 0; i < 100000; ++i) {
            board.features.push_back(
                Pcb::Feature(Pcb::padGeometry("oval18x10", {i % 300 * 60.0, i / 300 * 40.0})));
        }
        fixture.document().replace(board);
        QStringList shown;
        QTimer cancels;
        connect(&cancels, &QTimer::timeout, [&] {
            if (auto* const dialog =
                    qobject_cast<QProgressDialog*>(QApplication::activeModalWidget())) {
                for (const QWidget* const window : QApplication::topLevelWidgets()) {
                    QVERIFY(!window->isVisible() || !qobject_cast<const QFileDialog*>(window));
                }
                shown.append(dialog->labelText());
                findNamed<QAbstractButton>(*dialog, "m_pProgressCancelPB").click();
            }
        });
        cancels.start(20);
        const ChosenFile chosen(fixture.path("drawn"), 2);
        fixture.action("m_pExportBoardAct").trigger();
        QCOMPARE(shown.value(0), QString("Exporting drawn.svg..."));
        QCOMPARE(fixture.text("m_pCanvasStatusLB"), QString("Cancelled."));
        QCOMPARE(QDir(fixture.directory.path()).entryList(QDir::Files), QStringList());
    }

    void folderAndRecentFilesAreRemembered()
    {
        const FileFixture fixture;
        Settings::keepIn(fixture.path("settings.ini"));
        QVERIFY(QDir(fixture.directory.path()).mkdir("boards"));
        const ChosenFile first(fixture.path("boards/one.json"));
        fixture.action("m_pSaveBoardAsAct").trigger();
        const ChosenFile second(fixture.path("boards/other.json"));
        fixture.action("m_pSaveBoardAsAct").trigger();
        QCOMPARE(second.folder, fixture.path("boards"));
        QCOMPARE(second.offered, QString("one.json"));
        const ChosenFile again;
        fixture.action("m_pOpenBoardAct").trigger();
        QCOMPARE(again.folder, fixture.path("boards"));
        QCOMPARE(Settings::value("files/recent").toStringList(),
                 QStringList({fixture.path("boards/other.json"), fixture.path("boards/one.json")}));
    }
};

CTS_TEST(TestFileActions);
#include "test_file_actions.moc"
