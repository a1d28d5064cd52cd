// What the dialog's frame contains, and what a feature type shows.

#include "DialogFixture.h"
#include "Expect.h"
#include "Main.h"
#include "RaiseCounter.h"
#include "plugin/MessageCodes.h"
#include "plugin/RecordKeys.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGuiApplication>
#include <QPushButton>
#include <QRegExpValidator>
#include <QSpinBox>
#include <QToolButton>
#include <QWindow>

namespace Sent = MessageCodes::Sent;

namespace {

const QStringList pages = {"m_pLinePage", "m_pPadPage", "m_pSurfacePage", "m_pArcPage",
                           "m_pTextPage"};
const QStringList symbolControls = {"m_pSymbolPB", "m_pSymbolTextLE", "m_pSelectFromEditorPB"};
const QStringList placementControls = {"m_pMirrorCMB", "m_pAngleValueSB"};

QImage picture(const QIcon& icon)
{
    return icon.pixmap(32, 32).toImage();
}

}  // namespace

class TestFrame : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void window()
    {
        DialogFixture fixture;
        QCOMPARE(fixture.dialog->objectName(), QString("AddFeature"));
        QCOMPARE(fixture.dialog->width(), 350);
        QCOMPARE(fixture.dialog->minimumWidth(), 350);
        QCOMPARE(fixture.dialog->QWidget::maximumWidth(), 350);
        QCOMPARE(fixture.dialog->windowTitle(), QString("Add Feature"));
        QVERIFY(fixture.dialog->isWindow());
        QCOMPARE(fixture.dialog->parentWidget(), &fixture.window);
    }

    void buildingSendsNothing()
    {
        DialogFixture fixture;
        QVERIFY(fixture.recorder.messages().isEmpty());
        QVERIFY(fixture.boxes.take().isEmpty());
    }

    void typeButtons()
    {
        DialogFixture fixture;
        const struct {
            const char* button;
            const char* icon;
        } types[] = {{"m_pLineTB", "Line1.jpg"},
                     {"m_pPadTB", "Pad1.jpg"},
                     {"m_pSurfaceTB", "Surf1.jpg"},
                     {"m_pArcTB", "Arc1.jpg"},
                     {"m_pTextTB", "Text1.jpg"}};
        int id = 0;
        for (const auto& type : types) {
            auto& button = fixture.find<QToolButton>(type.button);
            QVERIFY(button.isCheckable());
            QCOMPARE(button.isChecked(), id == 0);
            QVERIFY(button.group() && button.group()->exclusive());
            QCOMPARE(button.group()->id(&button), id++);
            const QIcon expected(QString(":/Canvas_Tool_Strip/Resources/") + type.icon);
            QVERIFY(!picture(expected).isNull());
            QCOMPARE(picture(button.icon()), picture(expected));
        }
    }

    void startsWithALine()
    {
        DialogFixture fixture;
        for (const QString& page : pages) {
            QCOMPARE(fixture.isShown(page), page == "m_pLinePage");
        }
    }

    void commonRows()
    {
        DialogFixture fixture;
        auto& box = fixture.find<QCheckBox>("m_pAttributesCB");
        QCOMPARE(box.text(), QString("Attributes"));
        QVERIFY(!box.isChecked());
        QCOMPARE(fixture.find<QPushButton>("m_pValuesPB").text(), QString("Values..."));
        QVERIFY(!fixture.isShown("m_pValuesPB"));
        QCOMPARE(fixture.find<QPushButton>("m_pFillPB").text(), QString("Fill..."));
        QVERIFY(!fixture.find("m_pFillPB").isEnabled());

        auto& polarity = fixture.find<QComboBox>("m_pPolarityCMB");
        QCOMPARE(itemTexts(polarity), (QStringList{"Positive", "Negative"}));
        QCOMPARE(polarity.currentText(), QString("Positive"));
        auto& mirror = fixture.find<QComboBox>("m_pMirrorCMB");
        QCOMPARE(itemTexts(mirror), (QStringList{"Mir", "No Mir"}));
        QCOMPARE(mirror.currentText(), QString("No Mir"));
        QVERIFY(!fixture.isShown("m_pMirrorCMB"));
        auto& rotation = fixture.find<QSpinBox>("m_pAngleValueSB");
        QCOMPARE(rotation.value(), 0);
        QCOMPARE(rotation.minimum(), 0);
        QCOMPARE(rotation.maximum(), 360);
        QVERIFY(!fixture.isShown("m_pAngleValueSB"));

        QCOMPARE(fixture.find<QPushButton>("m_pSymbolPB").text(), QString("Symbol"));
        QCOMPARE(fixture.symbol().text(), QString());
        auto& pick = fixture.find<QPushButton>("m_pSelectFromEditorPB");
        QCOMPARE(pick.size(), QSize(25, 25));
        QVERIFY(!picture(pick.icon()).isNull());
        for (const QString& name : symbolControls) {
            QVERIFY2(fixture.isShown(name), qPrintable(name));
        }
    }

    void rowsStandInOrder()
    {
        DialogFixture fixture;
        fixture.click("m_pPadTB");
        int bottom = -1;
        for (const char* const name :
             {"m_pLineTB", "m_pAttributesCB", "m_pPolarityCMB", "m_pMirrorCMB", "m_pAngleValueSB",
              "m_pSymbolTextLE", "m_pPadPage"}) {
            const QWidget& widget = fixture.find(name);
            const int top = widget.mapTo(fixture.dialog, QPoint()).y();
            QVERIFY2(top > bottom, name);
            bottom = top + widget.height() - 1;
        }
    }

    void type_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("page");
        QTest::addColumn<QStringList>("shown");
        QTest::addColumn<QString>("pattern");
        const QString line("^[rs]?|[rs][0-9]+(\\.[0-9]+)?$");
        QTest::newRow("line") << "m_pLineTB" << FeatureKind::line << "m_pLinePage" << symbolControls
                              << line;
        QTest::newRow("pad") << "m_pPadTB" << FeatureKind::pad << "m_pPadPage"
                             << symbolControls + placementControls << "^[a-z0-9_.+-]*$";
        QTest::newRow("surface") << "m_pSurfaceTB" << FeatureKind::surface << "m_pSurfacePage"
                                 << QStringList() << line;
        QTest::newRow("arc") << "m_pArcTB" << FeatureKind::arc << "m_pArcPage" << symbolControls
                             << "[r]?|[r][0-9]+(\\.[0-9]+)?$";
        QTest::newRow("text") << "m_pTextTB" << FeatureKind::text << "m_pTextPage"
                              << placementControls << line;
    }

    void type()
    {
        QFETCH(QString, button);
        QFETCH(QString, kind);
        QFETCH(QString, page);
        QFETCH(QStringList, shown);
        QFETCH(QString, pattern);
        DialogFixture fixture;
        Expect::holds(fixture, {Expect::record(RecordKeys::features, FeatureKind::line)});
        QVariant featureAtAttributes;
        fixture.recorder.setOnMessage([&](const Recorder::Entry& sent) {
            if (sent.message.code == Sent::AttributeMap) {
                featureAtAttributes = fixture.value(RecordKeys::features);
            }
        });
        fixture.click(button);
        QCOMPARE(fixture.recorder.codes(), (QVector<int>{Sent::AttributeMap, Sent::Record}));
        QCOMPARE(featureAtAttributes, QVariant(FeatureKind::line));
        Expect::holds(fixture, {Expect::record(RecordKeys::features, kind.toInt()),
                                Expect::shown("m_pAttributesCB"), Expect::shown("m_pPolarityCMB"),
                                Expect::shown(page)});
        for (const QString& name : symbolControls + placementControls) {
            QCOMPARE(fixture.isShown(name), shown.contains(name));
        }
        QCOMPARE(fixture.find("m_pFillPB").isEnabled(), kind == FeatureKind::surface);
        for (const QString& other : pages) {
            QCOMPARE(fixture.isShown(other), other == page);
        }
        const auto* const validator =
            qobject_cast<const QRegExpValidator*>(fixture.symbol().validator());
        QVERIFY(validator);
        QCOMPARE(validator->regExp().pattern(), pattern);
        QCOMPARE(validator->regExp().caseSensitivity(), Qt::CaseSensitive);

        // Clicking the chosen type again: the same, but the type is now an integer.
        fixture.recorder.clear();
        fixture.click(button);
        QCOMPARE(fixture.recorder.codes(), (QVector<int>{Sent::AttributeMap, Sent::Record}));
        QCOMPARE(featureAtAttributes, QVariant(kind.toInt()));
    }

    /// Only a program can leave no type chosen. The page stays.
    void withoutATypeTheRecordIsSent()
    {
        DialogFixture fixture;
        fixture.click("m_pPadTB");
        fixture.recorder.clear();
        auto& pad = fixture.find<QToolButton>("m_pPadTB");
        pad.group()->setExclusive(false);
        pad.setChecked(false);
        fixture.dialog->onFeatureButtonClicked(nullptr);
        QCOMPARE(fixture.recorder.codes(), (QVector<int>{Sent::AttributeMap, Sent::Record}));
        Expect::holds(fixture, {Expect::record(RecordKeys::features, 0),
                                Expect::shown("m_pPadPage"), Expect::hidden("m_pMirrorCMB"),
                                Expect::hidden("m_pAngleValueSB"), Expect::shown("m_pSymbolPB")});
    }

    void keepsTheOtherPagesKeys()
    {
        DialogFixture fixture;
        fixture.click("m_pTextTB");
        fixture.dialog->get_Special_TEXT("JOB");
        fixture.click("m_pLineTB");
        const QVariantMap sent = fixture.recorder.last(Sent::Record).message.payload;
        QCOMPARE(sent.value(RecordKeys::textContains), QVariant(QString("$$JOB")));
        QCOMPARE(sent.value(RecordKeys::features), QVariant(FeatureKind::line.toInt()));
        QCOMPARE(sent.size(), 45);
    }

    void languageChange()
    {
        DialogFixture fixture;
        fixture.choose("m_pPolarityCMB", "Negative");
        fixture.recorder.clear();
        const QuotingTranslator translator("AddFeature");
        fixture.dialog->change_language();
        QCOMPARE(fixture.dialog->windowTitle(), QString("<Add Feature>"));
        QCOMPARE(fixture.find<QPushButton>("m_pSymbolPB").text(), QString("<Symbol>"));
        QCOMPARE(fixture.find<QPushButton>("m_pValuesPB").text(), QString("<Values...>"));
        QCOMPARE(fixture.find<QPushButton>("m_pFillPB").text(), QString("<Fill...>"));
        QCOMPARE(fixture.find<QCheckBox>("m_pAttributesCB").text(), QString("<Attributes>"));
        QCOMPARE(itemTexts(fixture.find<QComboBox>("m_pPolarityCMB")),
                 (QStringList{"<Positive>", "<Negative>"}));
        QCOMPARE(fixture.chosen("m_pPolarityCMB"), QString("<Negative>"));
        QCOMPARE(itemTexts(fixture.find<QComboBox>("m_pMirrorCMB")),
                 (QStringList{"<Mir>", "<No Mir>"}));
        QVERIFY(fixture.recorder.messages().isEmpty());
    }

    /// The host's window becomes active: the dialog comes in front of it, unless it is hidden.
    void staysBeforeTheHostsWindow()
    {
        DialogFixture fixture;
        QWidget other;
        other.show();
        const auto raisedBy = [&fixture](const QWidget& active) {
            RaiseCounter counter;
            fixture.dialog->installEventFilter(&counter);
            Q_EMIT qGuiApp->focusWindowChanged(active.windowHandle());
            fixture.dialog->removeEventFilter(&counter);
            return counter.count;
        };
        QCOMPARE(raisedBy(fixture.window), 1);
        QCOMPARE(raisedBy(other), 0);
        fixture.dialog->hide();
        QCOMPARE(raisedBy(fixture.window), 0);
    }

    /// The host's window is active already: a press raises it, and other events do not.
    void staysBeforeAPressedWindow()
    {
        DialogFixture fixture;
        RaiseCounter counter;
        fixture.dialog->installEventFilter(&counter);
        QTest::mouseMove(fixture.window.windowHandle(), QPoint(3, 3));
        QTest::keyClick(fixture.window.windowHandle(), Qt::Key_Shift);
        QCOMPARE(counter.count, 0);
        QTest::mousePress(fixture.window.windowHandle(), Qt::LeftButton, {}, QPoint(3, 3));
        QCOMPARE(counter.count, 1);
        QTest::mouseRelease(fixture.window.windowHandle(), Qt::LeftButton, {}, QPoint(3, 3));
        QCOMPARE(counter.count, 1);
    }

    void everyWidgetHasAName()
    {
        DialogFixture fixture;
        for (const QWidget* const widget : fixture.dialog->findChildren<QWidget*>()) {
            const QByteArray type = widget->metaObject()->className();
            const bool isQtsOwn = widget->objectName().startsWith("qt_") ||
                                  type.startsWith("QComboBoxPrivate") ||
                                  type == "QComboBoxListView" || type == "QScrollBar";
            QVERIFY2(isQtsOwn || !widget->objectName().isEmpty(), type.constData());
        }
    }

    void controlsWithoutALabelSayWhatTheyAre()
    {
        const DialogFixture fixture;
        const QStringList controls = {
            "m_pPolarityCMB",  "m_pMirrorCMB", "m_pAngleValueSB",     "m_pSymbolTextLE",
            "m_pLineCMB",      "m_pArcCMB",    "m_pArcAndCircleCMB",  "m_pCircleCMB",
            "m_pSurfShapeCMB", "m_pUPCCMB",    "m_pCannedHoleSizeLE", "m_pSlotPlatedCMB"};
        for (const QString& control : controls) {
            const QWidget& widget = fixture.find(control);
            QVERIFY2(!widget.accessibleName().isEmpty(), qPrintable(control));
            QCOMPARE(widget.toolTip(), widget.accessibleName());
        }
    }
};

CTS_TEST(TestFrame);
#include "test_frame.moc"
