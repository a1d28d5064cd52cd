// How the program looks: edges in the dark palette, large fonts, the texts from files and from Qt.

#include "ErrorOf.h"
#include "FindChild.h"
#include "Main.h"
#include "StartWorkbench.h"
#include "window/Language.h"
#include "window/Look.h"

#include <CamApiStandIn.h>
#include <Files.h>
#include <Json.h>

#include <QAction>
#include <QCheckBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTableView>
#include <QToolBar>
#include <QVBoxLayout>

#include <cmath>
#include <memory>

namespace {

double luminance(const QColor& colour)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

/// The contrast ratio of the accessibility guidelines: a part that must be seen has 3 or more.
double contrast(const QColor& one, const QColor& other)
{
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return qMax(a, b) / qMin(a, b);
}

bool isChinese(const QString& text)
{
    return std::any_of(text.begin(), text.end(),
                       [](QChar c) { return c.unicode() >= 0x4e00 && c.unicode() < 0xa000; });
}

}  // namespace

class TestLook : public QObject {
    Q_OBJECT

    static std::unique_ptr<WorkbenchWindow> startAtItsSmallest(MessageLog& log, int points)
    {
        Options options;
        options.fontSize = points;
        Look::dress(options);
        std::unique_ptr<WorkbenchWindow> window = startWorkbench(log, options);
        window->resize(window->minimumSizeHint());
        window->show();
        return window;
    }

private Q_SLOTS:
    void darkFieldsHaveEdges()
    {
        Options options;
        options.isDark = true;
        Look::dress(options);
        QWidget window;
        QVBoxLayout layout(&window);
        QLineEdit line;
        QSpinBox spin;
        QComboBox combo;
        QPushButton button("Push");
        QCheckBox check;
        QRadioButton radio;
        QGroupBox group("Group");
        QTableView table;
        const QList<QWidget*> all{&line, &spin, &combo, &button, &check, &radio, &group, &table};
        for (QWidget* const widget : all) {
            layout.addWidget(widget);
        }
        window.show();
        const QImage picture = window.grab().toImage();
        const QColor desk = window.palette().color(QPalette::Window);
        for (const QWidget* const widget : all) {
            // Across the widget's left edge there is a contrasting pixel.
            double best = 0;
            const QRect place = widget->geometry();
            for (int x = place.left(); x < place.left() + 5; ++x) {
                best = qMax(best, contrast(picture.pixelColor(x, place.center().y()), desk));
            }
            QVERIFY2(
                best > 3,
                qPrintable(QString("%1: %2").arg(widget->metaObject()->className()).arg(best)));
        }
    }

    void textsOfQtAndOfFiles()
    {
        Language language(MODULE_DIR);
        language.set("zh_CN");
        QMessageBox box(QMessageBox::Warning, {}, {},
                        QMessageBox::Ok | QMessageBox::Save | QMessageBox::Discard |
                            QMessageBox::Cancel | QMessageBox::Yes | QMessageBox::No);
        for (const QAbstractButton* const button : box.buttons()) {
            QVERIFY2(isChinese(button->text()), qPrintable(button->text()));
        }
        const QString absent = errorOf([] { CanvasHost::readWhole("/no/such.file"); });
        QVERIFY2(absent.startsWith("/no/such.file: ") && isChinese(absent), qPrintable(absent));
        for (const char* const text : {"{ \"a\": 1", "", "{ \"format\": 1 }", "[]",
                                       "{ \"format\": 1.5 }", "{ \"wrong\": 1 }"}) {
            const QString error = errorOf([&] {
                const CanvasHost::JsonDocument document(text, "file");
                document.root().requireObject({"format"});
                document.root().member("format").integer(2, 2);
            });
            QVERIFY2(error.startsWith("file:") && isChinese(error), qPrintable(error));
        }
        language.set("en");
        QCOMPARE(errorOf([] { CanvasHost::readWhole("/no/such.file"); }),
                 QString("/no/such.file: No such file or directory"));
    }

    /// What a bar has no room for goes behind an arrow, and a text field is not even there.
    static void verifyBarsShowAll(const QWidget& window)
    {
        int looked = 0;
        for (const QToolBar* const bar : window.findChildren<QToolBar*>()) {
            for (QAction* const action : bar->actions()) {
                const QWidget* const shown = bar->widgetForAction(action);
                QVERIFY2(shown->isVisible() && bar->rect().contains(shown->geometry()),
                         qPrintable(bar->objectName() + ' ' + shown->objectName()));
                ++looked;
            }
        }
        QVERIFY(looked > 15);
    }

    void barsWrapAndUnwrap()
    {
        Options options;
        options.fontSize = 14;
        Look::dress(options);
        MessageLog log;
        const auto window = startWorkbench(log, options);
        window->show();
        const auto top = [&](const char* name) {
            auto& part = findNamed(*window, name);
            return part.mapTo(window.get(), QPoint()).y();
        };
        const auto verify = [&](int width, bool areInOneLine) {
            window->resize(width, 800);
            QTRY_COMPARE(top("m_pHostTB") == top("m_pSettingsTB"), areInOneLine);
            QTRY_COMPARE(top("m_pCanvasBar") == top("m_pSnapBar"), areInOneLine);
            verifyBarsShowAll(*window);
        };
        verify(1400, true);
        verify(window->minimumSizeHint().width(), false);
        verify(1400, true);
    }

    void theRecordGivesWayBeforeTheBoard()
    {
        Options options;
        options.fontSize = 10;
        Look::dress(options);
        MessageLog log;
        const auto window = startWorkbench(log, options);
        window->resize(1366, 740);
        window->show();
        const QWidget& board = findNamed(*window, "m_pBoardView");
        const QWidget& record = findNamed(*window, "m_pInspectorSplitter");
        QTRY_VERIFY(board.width() > 500);
        const int wide = record.width();
        window->resize(window->minimumSizeHint());
        QTRY_VERIFY(record.width() < wide);
        QVERIFY2(
            board.width() >= 420 && board.width() > 2 * record.width() && board.height() >= 180,
            qPrintable(QString("%1 x %2, record %3")
                           .arg(board.width())
                           .arg(board.height())
                           .arg(record.width())));
    }

    void filterAndCountAreReadAtTheSmallestSize()
    {
        MessageLog log;
        const auto window = startAtItsSmallest(log, 10);
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        const QWidget& filter = findNamed(*window, "m_pMonitorFilterLE");
        const QWidget& count = findNamed(*window, "m_pMonitorCountLB");
        QVERIFY(filter.width() >= filter.fontMetrics().horizontalAdvance("Canvas"));
        QVERIFY(count.width() >= count.sizeHint().width());
    }

    void hintAndPositionAreReadAtTheSmallestSize_data()
    {
        QTest::addColumn<int>("points");
        QTest::newRow("10 points") << 10;
        QTest::newRow("20 points") << 20;
    }
    void hintAndPositionAreReadAtTheSmallestSize()
    {
        QFETCH(int, points);
        MessageLog log;
        const auto window = startAtItsSmallest(log, points);
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        const QWidget& hint = findNamed(*window, "m_pPickHintLB");
        const QWidget& position = findNamed(*window, "m_pPositionLE");
        QVERIFY(position.width() >= position.fontMetrics().horizontalAdvance("175.00, 540.00"));
        QVERIFY(hint.width() >= hint.fontMetrics().horizontalAdvance("Click the new"));
    }

    void nothingIsCutInLargeFonts_data()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("English") << "en";
        QTest::newRow("Chinese") << "zh_CN";
    }
    void nothingIsCutInLargeFonts()
    {
        QFETCH(QString, language);
        Options options;
        options.fontSize = 20;
        options.language = language;
        Look::dress(options);
        MessageLog log;
        const auto started = startWorkbench(log, options);
        WorkbenchWindow& window = *started;
        window.resize(1366, 760);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        int looked = 0;
        verifyBarsShowAll(window);
        for (const QWidget* const widget : window.findChildren<QWidget*>()) {
            const auto* const label = qobject_cast<const QLabel*>(widget);
            const bool isButton = qobject_cast<const QPushButton*>(widget) ||
                                  qobject_cast<const QCheckBox*>(widget) ||
                                  qobject_cast<const QComboBox*>(widget);
            const bool mayBeCut = !label || label->wordWrap() ||
                                  label->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored;
            if (widget->isVisible() && (isButton || !mayBeCut)) {
                QVERIFY2(widget->width() >= widget->minimumSizeHint().width() &&
                             widget->height() >= widget->minimumSizeHint().height(),
                         qPrintable(widget->objectName()));
                ++looked;
            }
        }
        QVERIFY(looked > 10);
        for (const QHeaderView* const header : window.findChildren<QHeaderView*>()) {
            for (int column = 0; header->isVisible() && column < header->count(); ++column) {
                const QString text = header->model()->headerData(column, Qt::Horizontal).toString();
                if (header->orientation() == Qt::Horizontal) {
                    QVERIFY2(header->sectionSize(column) >=
                                 header->fontMetrics().horizontalAdvance(text),
                             qPrintable(text));
                }
            }
        }
    }
};

CTS_TEST(TestLook);
#include "test_look.moc"
