#include "Ways.h"

#include "FocusFixture.h"
#include "plugin/ExtraWord.h"
#include "plugin/MessageCodes.h"
#include "plugin/PayloadKeys.h"
#include "plugin/RecordKeys.h"

#include <QApplication>
#include <QtTest>

namespace Accepted = MessageCodes::Accepted;

namespace {

QVector<Way> handWays()
{
    return {
        {"Tab", "", [](FocusFixture& f) { f.key(Qt::Key_Tab); }},
        {"Enter", "", [](FocusFixture& f) { f.key(Qt::Key_Return); }},
        {"mouse on another field", "", [](FocusFixture& f) { f.leave(); }},
        {"host's window", "", [](FocusFixture& f) { QApplication::setActiveWindow(&f.window); }},
        {"close and open", "",
         [](FocusFixture& f) {
             f.dialog->close();
             f.open();
         },
         Way::Closes},
        {"host's box", "", [](FocusFixture& f) { f.openHostBox(); }, 0, "", "Host|Elsewhere"},
    };
}

/// Each with the focus staying where it is, and with the focus moving to what is clicked: that
/// differs by style and platform.
QVector<Way> clickWays()
{
    const struct {
        const char* control;
        const char* type;
        QString sets;
    } controls[] = {
        {"m_pLineTB", "", ""},
        {"m_pPadTB", "", ""},
        {"m_pSurfaceTB", "", ""},
        {"m_pArcTB", "", ""},
        {"m_pTextTB", "", ""},
        {"m_pAttributesCB", "", RecordKeys::attributes},
        {"m_pVerticalRB", "m_pLineTB", RecordKeys::angleGroup},
        {"m_pClockWiseCB", "m_pArcTB", RecordKeys::clockWise},
        {"m_pAddStringCB", "m_pTextTB", RecordKeys::addString},
        {"m_pBackgroundCB", "m_pTextTB", RecordKeys::addBackground},
        {"m_pSymbolPB", "", ""},
        {"m_pSelectFromEditorPB", "", ""},
        {"m_pFontPB", "m_pTextTB", ""},
        {"m_pTextPB", "m_pTextTB", ""},
    };
    QVector<Way> ways;
    for (const auto& control : controls) {
        const QString name = QLatin1String(control.control);
        ways.append({"click " + name, control.type, [name](FocusFixture& f) { f.click(name); }, 0,
                     control.sets});
        ways.append({"focus and click " + name, control.type,
                     [name](FocusFixture& f) {
                         f.find(name).setFocus(Qt::MouseFocusReason);
                         f.click(name);
                     },
                     0, control.sets});
    }
    ways.append({"open the attributes", "",
                 [](FocusFixture& f) {
                     f.find<QAbstractButton>("m_pAttributesCB").setChecked(true);
                     f.click("m_pValuesPB");
                 },
                 0, RecordKeys::attributes});
    return ways;
}

QVector<Way> comboWays()
{
    const struct {
        const char* combo;
        const char* type;
        QString sets;
        int items;
    } combos[] = {
        {"m_pPolarityCMB", "", RecordKeys::polarity, 2},
        {"m_pLineCMB", "m_pLineTB", RecordKeys::line, 4},
        {"m_pCornerTypeCMB", "m_pLineTB", RecordKeys::cornerType, 4},
        {"m_pArcAndCircleCMB", "m_pArcTB", RecordKeys::arcAndCircle, 2},
        {"m_pTextFormatCMB", "m_pTextTB", RecordKeys::textFormat, 4},
        {"m_pUPCCMB", "m_pTextTB", RecordKeys::barcodeMode, 5},
    };
    QVector<Way> ways;
    for (const auto& combo : combos) {
        for (int item = 0; item < combo.items; ++item) {
            const QString name = QLatin1String(combo.combo);
            ways.append({QStringLiteral("%1 item %2").arg(name).arg(item), combo.type,
                         [name, item](FocusFixture& f) { f.choose(name, item); }, 0, combo.sets});
        }
    }
    return ways;
}

QVector<Way> stripWays()
{
    QVector<Way> ways;
    for (const int tool : {0, 4, 12, 22}) {
        for (const bool isActivated : {false, true}) {
            ways.append({QStringLiteral("tool %1%2").arg(tool).arg(isActivated ? "" : ", no focus"),
                         "", [tool, isActivated](FocusFixture& f) {
                             if (isActivated) {
                                 QApplication::setActiveWindow(&f.window);
                             }
                             QTest::mouseClick(f.strip->itemAt(tool)->widget(), Qt::LeftButton);
                         }});
        }
    }
    return ways;
}

QVector<Way> messageWays()
{
    static const std::map<std::string, std::string> attributes{{".net", "gnd"}};
    const QVariantMap job{{PayloadKeys::jobName, "job"}, {PayloadKeys::stepName, "step"}};
    return {
        {"20002200, metric", "", [](FocusFixture& f) { f.setMetric(true); }},
        {"20002201", "", [](FocusFixture& f) { f.receive(Accepted::LanguageChanged); }},
        {"20002400", "", [job](FocusFixture& f) { f.receive(Accepted::JobOpened, 0, job); }},
        {"20001807", "",
         [](FocusFixture& f) {
             f.receive(Accepted::AttributesPicked, ExtraWord::pointingAt(attributes));
         }},
        {"20001811", "", [](FocusFixture& f) { f.pick("r7"); }, Way::SetsSymbol},
        {"20001811, refused", "m_pArcTB", [](FocusFixture& f) { f.pick("s5"); }, 0, "",
         "Dialog Box|Illegal symbol name: s5"},
        {"20001824", "", [](FocusFixture& f) { f.receive(Accepted::UserSymbolsChanged); }},
        {"20004602", "", [](FocusFixture& f) { f.receive(Accepted::AddFeature); }},
        {"20002403", "", [](FocusFixture& f) { f.receive(Accepted::CloseDialogs); }, Way::Closes},
    };
}

}  // namespace

const QVector<Way>& allWays()
{
    static const QVector<Way> all =
        handWays() + clickWays() + comboWays() + stripWays() + messageWays();
    return all;
}
