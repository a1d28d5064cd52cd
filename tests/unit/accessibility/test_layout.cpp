// Nothing of the dialog is cut off or covered, with small and large letters, in both languages.

#include "DialogFixture.h"
#include "Main.h"
#include "PageSteps.h"

#include <QAbstractButton>
#include <QFile>
#include <QFont>
#include <QLabel>
#include <QLayout>
#include <QSpinBox>
#include <QToolButton>
#include <QTranslator>

#include <algorithm>

using namespace PageSteps;

namespace {

QList<QWidget*> visibleControls(const QWidget& dialog)
{
    QList<QWidget*> controls;
    for (QWidget* const widget : dialog.findChildren<QWidget*>()) {
        const bool isControl =
            qobject_cast<QLabel*>(widget) || qobject_cast<QAbstractButton*>(widget) ||
            qobject_cast<QComboBox*>(widget) || qobject_cast<QSpinBox*>(widget) ||
            (qobject_cast<QLineEdit*>(widget) && !qobject_cast<QSpinBox*>(widget->parentWidget()));
        if (isControl && widget->isVisibleTo(&dialog) && widget->window() == &dialog) {
            controls.append(widget);
        }
    }
    return controls;
}

/// The object names row by row from the top, each from left to right. A row is what overlaps
/// vertically.
QStringList rowsOf(const QWidget& dialog)
{
    QList<QPair<QRect, QString>> places;
    for (const QWidget* const control : visibleControls(dialog)) {
        places.append(
            {{control->mapTo(&dialog, QPoint()), control->size()}, control->objectName()});
    }
    std::sort(places.begin(), places.end(), [](const auto& a, const auto& b) {
        return a.first.center().y() < b.first.center().y();
    });
    QStringList rows;
    while (!places.isEmpty()) {
        const int middle = places.first().first.center().y();
        QMap<int, QString> row;
        while (!places.isEmpty() && places.first().first.top() < middle) {
            const auto place = places.takeFirst();
            row.insert(place.first.left(), place.second);
        }
        rows.append(QStringList(row.values()).join(' '));
    }
    return rows;
}

/// The file's sections: a line "[name]", then the lines that belong to it.
QMap<QString, QStringList> readParts(const QString& file)
{
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly)) {
        qFatal("%s: %s", qPrintable(file), qPrintable(source.errorString()));
    }
    QMap<QString, QStringList> parts;
    QString part;
    for (const QString& line : QString::fromUtf8(source.readAll()).split('\n')) {
        if (line.startsWith('[')) {
            part = line.mid(1, line.size() - 2);
        } else if (!line.isEmpty() && !line.startsWith('#')) {
            parts[part].append(line);
        }
    }
    return parts;
}

}  // namespace

class TestLayout : public QObject {
    Q_OBJECT

    QTranslator m_chinese;

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_chinese.load("Canvas_Tool_Strip_zh_CN", TRANSLATION_DIR)); }

    void everythingFits_data()
    {
        QTest::addColumn<int>("points");
        QTest::addColumn<bool>("isChinese");
        QTest::addColumn<QString>("type");
        for (const int points : {8, 10, 14}) {
            for (const bool isChinese : {false, true}) {
                for (const char* const type :
                     {"m_pLineTB", "m_pPadTB", "m_pSurfaceTB", "m_pArcTB", "m_pTextTB"}) {
                    QTest::addRow("%s %d%s", type, points, isChinese ? " zh" : "")
                        << points << isChinese << type;
                }
            }
        }
    }

    void everythingFits()
    {
        QFETCH(int, points);
        QFETCH(bool, isChinese);
        QFETCH(QString, type);
        const QFont before = QApplication::font();
        QFont font = before;
        font.setPointSize(points);
        QApplication::setFont(font);
        if (isChinese) {
            QCoreApplication::installTranslator(&m_chinese);
        }
        {
            DialogFixture fixture;
            fixture.find<QAbstractButton>("m_pAttributesCB").setChecked(true);
            fixture.click(type);
            QTest::qWait(20);
            compare(*fixture.dialog);
        }
        QCoreApplication::removeTranslator(&m_chinese);
        QApplication::setFont(before);
    }

    void everythingHasItsPlace_data() { addPages(); }

    void everythingHasItsPlace()
    {
        DialogFixture fixture;
        showPage(fixture);
        const QStringList rows = rowsOf(*fixture.dialog);
        const QStringList expected = readParts(ROWS_FILE).value(QTest::currentDataTag());
        for (int row = 0; row < qMin(rows.size(), expected.size()); ++row) {
            QCOMPARE(rows[row], expected[row]);
        }
        QCOMPARE(rows.size(), expected.size());
    }

    /// Fields below each other are aligned, and so are their units.
    void columnsAreAligned_data() { addPages(); }

    void columnsAreAligned()
    {
        DialogFixture fixture;
        showPage(fixture);
        // For each column of labels: where the labels' fields start.
        QMap<QPair<QWidget*, int>, QSet<int>> columns;
        for (const QLabel* const label : fixture.dialog->findChildren<QLabel*>()) {
            if (label->isVisibleTo(fixture.dialog) && label->buddy()) {
                columns[{label->parentWidget(), label->x()}].insert(
                    label->buddy()->mapTo(fixture.dialog, QPoint()).x());
            }
        }
        for (auto column = columns.begin(); column != columns.end(); ++column) {
            QCOMPARE(column->size(), 1);
        }
    }

    /// Every row starts where the window's margin ends, and none goes beyond it on the right.
    void rowsKeepTheMargins_data() { addPages(); }

    void rowsKeepTheMargins()
    {
        DialogFixture fixture;
        showPage(fixture);
        const QMargins margins = fixture.dialog->layout()->contentsMargins();
        for (const QString& row : rowsOf(*fixture.dialog)) {
            const QWidget& first = fixture.find(row.section(' ', 0, 0));
            const QWidget& last = fixture.find(row.section(' ', -1, -1));
            const int left = first.mapTo(fixture.dialog, QPoint()).x();
            // The fixed angle is indented below the direction that it belongs to.
            const bool isIndented = first.objectName() == QLatin1String("m_pAngleLB");
            QVERIFY2(isIndented ? left > margins.left() : left == margins.left(), qPrintable(row));
            const int right = last.mapTo(fixture.dialog, QPoint(last.width(), 0)).x();
            QVERIFY2(right <= fixture.dialog->width() - margins.right(), qPrintable(row));
        }
    }

    /// Only the window has margins: a page within a page would be indented more than others.
    void pagesHaveNoMargins()
    {
        const DialogFixture fixture;
        int pages = 0;
        for (const QWidget* const widget : fixture.dialog->findChildren<QWidget*>()) {
            if (widget->objectName().endsWith("Page") && widget->layout()) {
                ++pages;
                QVERIFY2(widget->layout()->contentsMargins().isNull(),
                         qPrintable(widget->objectName()));
            }
        }
        QCOMPARE(pages, 9);
    }

    void typeButtonsAreFlat()
    {
        const DialogFixture fixture;
        for (const char* const type :
             {"m_pLineTB", "m_pPadTB", "m_pSurfaceTB", "m_pArcTB", "m_pTextTB"}) {
            QVERIFY(fixture.find<QToolButton>(type).autoRaise());
        }
    }

    /// What may grow takes the space that is left; the rest stays on its side.
    void fieldsTakeTheRoom_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("field");
        QTest::addColumn<int>("minimum");
        QTest::newRow("symbol") << "m_pLineTB"
                                << "m_pSymbolTextLE" << 180;
        QTest::newRow("polarity") << "m_pLineTB"
                                  << "m_pPolarityCMB" << 320;
        QTest::newRow("text") << "m_pTextTB"
                              << "m_pTextLE" << 220;
        QTest::newRow("size") << "m_pTextTB"
                              << "m_pXSizeLE" << 170;
        QTest::newRow("count") << "m_pPadTB"
                               << "m_pDrilNxLE" << 60;
    }
    void fieldsTakeTheRoom()
    {
        QFETCH(QString, type);
        QFETCH(QString, field);
        QFETCH(int, minimum);
        DialogFixture fixture;
        fixture.click(type);
        QTest::qWait(20);
        const int width = fixture.find(field).width();
        QVERIFY2(width >= minimum, qPrintable(QString::number(width)));
    }

private:
    /// A row for each state of the dialog that shows different controls.
    static void addPages()
    {
        QTest::addColumn<Steps>("reach");
        QTest::newRow("single line") << line + Choose("m_pLineCMB", "Single Line");
        QTest::newRow("rectangle") << rectangle;
        QTest::newRow("slot") << slot;
        QTest::newRow("pad") << pad;
        QTest::newRow("surface") << surface;
        QTest::newRow("arc") << arc;
        QTest::newRow("string") << text + Choose("m_pTextFormatCMB", "String");
        QTest::newRow("barcode") << barcode;
        QTest::newRow("plot stamp") << plotStamp;
        QTest::newRow("canned text") << cannedText;
    }

    /// Brings the dialog into the state of the current row.
    static void showPage(const DialogFixture& fixture)
    {
        QFETCH(Steps, reach);
        fixture.find<QAbstractButton>("m_pAttributesCB").setChecked(true);
        fixture.perform(reach);
        QTest::qWait(20);
    }

    static void compare(const QWidget& dialog)
    {
        const QList<QWidget*> controls = visibleControls(dialog);
        QVERIFY(controls.size() > 8);
        QCOMPARE(dialog.width(), 350);
        for (const QWidget* const control : controls) {
            const QSize needed = control->minimumSizeHint();
            const QRect place(control->mapTo(&dialog, QPoint()), control->size());
            const QByteArray name = control->objectName().toUtf8();
            // The pick button is 25 by 25, exactly its picture.
            if (name != "m_pSelectFromEditorPB") {
                QVERIFY2(place.width() >= needed.width(), name.constData());
                QVERIFY2(place.height() >= needed.height(), name.constData());
            }
            QVERIFY2(dialog.rect().contains(place), name.constData());
            for (const QWidget* const other : controls) {
                const QRect otherPlace(other->mapTo(&dialog, QPoint()), other->size());
                const QByteArray both = name + " and " + other->objectName().toUtf8();
                QVERIFY2(other == control || !otherPlace.intersects(place), both.constData());
            }
        }
    }
};

CTS_TEST(TestLayout);
#include "test_layout.moc"
