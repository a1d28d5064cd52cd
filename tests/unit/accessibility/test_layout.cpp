// Nothing of the dialog is cut off or covered, with small and large letters, in both languages.

#include "DialogFixture.h"
#include "Main.h"

#include <QAbstractButton>
#include <QFont>
#include <QLabel>
#include <QSpinBox>
#include <QTranslator>

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

private:
    static void compare(const QWidget& dialog)
    {
        const QList<QWidget*> controls = visibleControls(dialog);
        QVERIFY(controls.size() > 8);
        QCOMPARE(dialog.width(), 350);
        for (const QWidget* const control : controls) {
            const QSize needed = control->minimumSizeHint();
            const QRect place(control->mapTo(&dialog, QPoint()), control->size());
            const QByteArray name = control->objectName().toUtf8();
            // The pick button is 25 by 25, which is just its picture.
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

CTS_MAIN(TestLayout)
#include "test_layout.moc"
