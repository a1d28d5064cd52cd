#include "Ways.h"

#include "plugin/ExtraWord.h"
#include "plugin/MessageCodes.h"
#include "plugin/PayloadKeys.h"
#include "plugin/RecordKeys.h"

#include <QApplication>
#include <QTest>

namespace Accepted = MessageCodes::Accepted;

namespace {

QVector<Way> handWays()
{
    return {
        Way("Tab", [](DialogFixture& f) { f.leave(By::Tab); }),
        Way("Enter", [](DialogFixture& f) { f.leave(By::Enter); }),
        Way("mouse on another field", [](DialogFixture& f) { f.leave(By::Mouse); }),
        Way("host's window", [](DialogFixture& f) { QApplication::setActiveWindow(&f.window); }),
        Way("close and open",
            [](DialogFixture& f) {
                f.dialog->close();
                f.open();
            })
            .closesTheDialog(),
        Way("host's box", [](DialogFixture& f) { f.openHostBox(); })
            .opensBox({"Host", "Elsewhere"}),
    };
}

void clickWhatIsSeen(const DialogFixture& fixture, const QString& control)
{
    if (fixture.find(control).isVisible()) {
        fixture.click(control);
    }
}

/// With the focus staying where it is, and with the focus moving to what is clicked: which happens
/// depends on style and platform.
QVector<Way> clicksOn(const QString& control, const QString& type = {}, const QString& key = {})
{
    return {
        Way("click " + control, [=](DialogFixture& f) { clickWhatIsSeen(f, control); })
            .onlyOn(type)
            .sets(key),
        Way("focus and click " + control,
            [=](DialogFixture& f) {
                f.find(control).setFocus(Qt::MouseFocusReason);
                clickWhatIsSeen(f, control);
            })
            .onlyOn(type)
            .sets(key),
    };
}

QVector<Way> clickWays()
{
    return clicksOn("m_pLineTB") + clicksOn("m_pPadTB") + clicksOn("m_pSurfaceTB") +
           clicksOn("m_pArcTB") + clicksOn("m_pTextTB") +
           clicksOn("m_pAttributesCB", {}, RecordKeys::attributes) +
           clicksOn("m_pVerticalRB", "m_pLineTB", RecordKeys::angleGroup) +
           clicksOn("m_pClockWiseCB", "m_pArcTB", RecordKeys::clockWise) +
           clicksOn("m_pAddStringCB", "m_pTextTB", RecordKeys::addString) +
           clicksOn("m_pBackgroundCB", "m_pTextTB", RecordKeys::addBackground) +
           clicksOn("m_pSymbolPB") + clicksOn("m_pSelectFromEditorPB") +
           clicksOn("m_pFontPB", "m_pTextTB") + clicksOn("m_pTextPB", "m_pTextTB") +
           QVector<Way>{Way("open the attributes", [](DialogFixture& f) {
                            f.find<QAbstractButton>("m_pAttributesCB").setChecked(true);
                            clickWhatIsSeen(f, "m_pValuesPB");
                        }).sets(RecordKeys::attributes)};
}

/// A way for each item.
QVector<Way> choicesFrom(const QString& combo, const QStringList& items, const QString& key,
                         const QString& type = {})
{
    QVector<Way> ways;
    for (const QString& item : items) {
        ways.append(Way(QStringLiteral("%1 %2").arg(combo, item),
                        [=](DialogFixture& f) { f.choose(combo, item); })
                        .onlyOn(type)
                        .sets(key));
    }
    return ways;
}

QVector<Way> comboWays()
{
    return choicesFrom("m_pPolarityCMB", {"Positive", "Negative"}, RecordKeys::polarity) +
           choicesFrom("m_pLineCMB", {"Single Line", "Polyline", "Rectangle", "Slot"},
                       RecordKeys::line, "m_pLineTB") +
           choicesFrom("m_pCornerTypeCMB", {"Straight", "Round", "Chamfer", "Oblong"},
                       RecordKeys::cornerType, "m_pLineTB") +
           choicesFrom("m_pArcAndCircleCMB", {"Arc", "Circle"}, RecordKeys::arcAndCircle,
                       "m_pArcTB") +
           choicesFrom("m_pTextFormatCMB",
                       {"String", "Barcode", "Orbotech Plot Stamp", "Canned Text"},
                       RecordKeys::textFormat, "m_pTextTB") +
           choicesFrom("m_pUPCCMB", {"UPC39", "UPC39 ascii", "CODE128B", "CODE128C", "ECC-200"},
                       RecordKeys::barcodeMode, "m_pTextTB");
}

QVector<Way> stripWays()
{
    QVector<Way> ways;
    for (const Tool tool :
         {Tool::AreaZoom, Tool::AddFeature, Tool::InvertFeature, Tool::PolygonSelection}) {
        const QString name = ToolTable::row(tool).objectName;
        const auto click = [tool](DialogFixture& f) {
            QTest::mouseClick(f.button(tool), Qt::LeftButton);
        };
        ways.append(Way("tool " + name + ", no focus", click));
        ways.append(Way("tool " + name, [click](DialogFixture& f) {
            QApplication::setActiveWindow(&f.window);
            click(f);
        }));
    }
    return ways;
}

QVector<Way> messageWays()
{
    static const std::map<std::string, std::string> attributes{{".net", "gnd"}};
    const QVariantMap job{{PayloadKeys::jobName, "job"}, {PayloadKeys::stepName, "step"}};
    return {
        Way("UnitChanged, metric", [](DialogFixture& f) { f.setUnit(Unit::Metric); }),
        Way("LanguageChanged", [](DialogFixture& f) { f.receive(Accepted::LanguageChanged); }),
        Way("JobOpened", [job](DialogFixture& f) { f.receive(Accepted::JobOpened, job); }),
        Way("AttributesPicked",
            [](DialogFixture& f) {
                f.receive(Accepted::AttributesPicked, {}, ExtraWord::pointingAt(attributes));
            }),
        Way("SymbolsPicked", [](DialogFixture& f) { f.pick("r7"); }).putsASymbol(),
        Way("SymbolsPicked, refused", [](DialogFixture& f) { f.pick("s5"); })
            .onlyOn("m_pArcTB")
            .opensBox(BoxTexts::pickedSymbol("s5")),
        Way("UserSymbolsChanged",
            [](DialogFixture& f) { f.receive(Accepted::UserSymbolsChanged); }),
        Way("AddFeature", [](DialogFixture& f) { f.receive(Accepted::AddFeature); }),
        Way("CloseDialogs", [](DialogFixture& f) { f.receive(Accepted::CloseDialogs); })
            .closesTheDialog(),
    };
}

}  // namespace

const QVector<Way>& allWays()
{
    static const QVector<Way> all =
        handWays() + clickWays() + comboWays() + stripWays() + messageWays();
    return all;
}
