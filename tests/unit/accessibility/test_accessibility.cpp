// What a screen reader finds, and where the Tab key leads.

#include "DialogFixture.h"
#include "Main.h"
#include "dimensions/Dimensious.h"
#include "plugin/MessageCodes.h"

#include <QAccessible>
#include <QLabel>
#include <QRegularExpression>

namespace Accepted = MessageCodes::Accepted;

namespace {

bool needsName(QAccessible::Role role)
{
    switch (role) {
        case QAccessible::Button:
        case QAccessible::CheckBox:
        case QAccessible::RadioButton:
        case QAccessible::ComboBox:
        case QAccessible::EditableText:
        case QAccessible::SpinBox:
            return true;
        default:
            return false;
    }
}

/// Counts the controls below `parent`, and collects those without a name. The parts that Qt builds
/// a control from belong to it.
int walk(QAccessibleInterface* parent, QStringList* nameless)
{
    int controls = 0;
    for (int i = 0; i < parent->childCount(); ++i) {
        QAccessibleInterface* const child = parent->child(i);
        if (!child) {
            continue;
        }
        if (needsName(child->role())) {
            ++controls;
            if (child->text(QAccessible::Name).trimmed().isEmpty()) {
                nameless->append(child->object()->objectName() + " (" +
                                 child->object()->metaObject()->className() + ")");
            }
        } else {
            controls += walk(child, nameless);
        }
    }
    return controls;
}

int walk(QWidget* root, QStringList* nameless)
{
    return walk(QAccessible::queryAccessibleInterface(root), nameless);
}

/// The controls that Tab leads to, in order, from the first.
QList<QWidget*> tabOrder(QWidget& window)
{
    QList<QWidget*> order;
    for (QWidget* next = window.nextInFocusChain(); next != &window;
         next = next->nextInFocusChain()) {
        if ((next->focusPolicy() & Qt::TabFocus) && next->isVisibleTo(&window) &&
            next->isEnabled() && next->focusProxy() == nullptr && next->window() == &window) {
            order.append(next);
        }
    }
    return order;
}

}  // namespace

class TestAccessibility : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyControlHasAName()
    {
        DialogFixture fixture;
        QStringList nameless;
        QCOMPARE(walk(&fixture.window, &nameless), ToolTable::toolCount);
        QVERIFY(walk(fixture.dialog, &nameless) > 60);
        QCOMPARE(nameless, QStringList());
    }

    /// Controls without a label or text say what they are for.
    void controlsAreNamedForWhatTheyDo_data()
    {
        QTest::addColumn<QString>("name");
        for (const auto& [control, name] :
             {std::pair("m_pPolarityCMB", "Polarity"), std::pair("m_pMirrorCMB", "Mirror"),
              std::pair("m_pAngleValueSB", "Rotation"), std::pair("m_pSymbolTextLE", "Symbol"),
              std::pair("m_pSelectFromEditorPB", "Select from editor"),
              std::pair("m_pCannedHoleSizeLE", "Hole size"),
              std::pair("m_pPositionCMB", "Position of the string"),
              std::pair("m_pMatrixLE", "Matrix"), std::pair("m_pSurfShapeCMB", "Surface shape"),
              std::pair("m_pArcAndCircleCMB", "Arc or circle"),
              std::pair("m_pArcCMB", "Arc method"), std::pair("m_pCircleCMB", "Circle method"),
              std::pair("m_pTextFormatCMB", "Text format"), std::pair("m_pUPCCMB", "Barcode type"),
              std::pair("m_pFontLE", "Font"), std::pair("m_pTextLE", "Text"),
              std::pair("m_pLineCMB", "Kind of line"), std::pair("m_pSlotPlatedCMB", "Plating")}) {
            QTest::newRow(control) << name;
        }
    }
    void controlsAreNamedForWhatTheyDo()
    {
        QFETCH(QString, name);
        const DialogFixture fixture;
        QCOMPARE(fixture.find(QTest::currentDataTag()).accessibleName(), name);
    }

    void everyControlOfThePopupHasAName()
    {
        for (int slot = 0; slot < 7; ++slot) {
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("connectSlotsByName"));
        }
        Dimensious popup;
        QStringList nameless;
        QVERIFY(walk(&popup, &nameless) > 20);
        QCOMPARE(nameless, QStringList());
    }

    void namesFollowTheLanguage()
    {
        DialogFixture fixture;
        const QuotingTranslator translator("Canvas_Tool_Strip");
        fixture.receive(Accepted::LanguageChanged);
        QCOMPARE(fixture.button(Tool::CopyFeature)->accessibleName(), QString("<Copy Feature>"));
        QCOMPARE(fixture.button(Tool::Eq)->accessibleName(), QString("EQ"));
    }

    void labelsLeadToTheirFields()
    {
        DialogFixture fixture;
        for (const QLabel* const label : fixture.dialog->findChildren<QLabel*>()) {
            const bool isUnit = label->objectName().endsWith("UnitLB");
            QVERIFY2(isUnit || label->buddy(), qPrintable(label->objectName()));
        }
    }

    void tabFollowsTheEye_data()
    {
        QTest::addColumn<QString>("type");
        for (const char* const type :
             {"m_pLineTB", "m_pPadTB", "m_pSurfaceTB", "m_pArcTB", "m_pTextTB"}) {
            QTest::newRow(type) << type;
        }
    }

    void tabFollowsTheEye()
    {
        QFETCH(QString, type);
        DialogFixture fixture;
        fixture.click("m_pAttributesCB");
        fixture.click(type);
        QCoreApplication::processEvents();
        const QList<QWidget*> order = tabOrder(*fixture.dialog);
        QVERIFY(order.size() > 4);
        for (int i = 1; i < order.size(); ++i) {
            const QPoint before = order[i - 1]->mapTo(fixture.dialog, QPoint());
            const QPoint after = order[i]->mapTo(fixture.dialog, QPoint());
            const QByteArray names =
                (order[i - 1]->objectName() + " -> " + order[i]->objectName()).toUtf8();
            // Each step leads to the right or down.
            const bool isRight = after.x() > before.x();
            const bool isDown = after.y() > before.y() + order[i - 1]->height() / 2;
            QVERIFY2(isRight || isDown, names.constData());
        }
    }
};

CTS_TEST(TestAccessibility);
#include "test_accessibility.moc"
