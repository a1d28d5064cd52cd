// The dialog's named slots, each a forward to the page or row that owns the control. They stand in
// the order of the header; the frame's own handlers are in AddFeature.cpp.

#include "addfeature/AddFeature.h"
#include "addfeature/AttributeRow.h"
#include "addfeature/SymbolEntry.h"
#include "addfeature/pages/ArcPage.h"
#include "addfeature/pages/BarcodePage.h"
#include "addfeature/pages/CannedTextPage.h"
#include "addfeature/pages/LinePage.h"
#include "addfeature/pages/PadPage.h"
#include "addfeature/pages/PlotStampPage.h"
#include "addfeature/pages/StringPage.h"
#include "addfeature/pages/SurfacePage.h"
#include "addfeature/pages/TextPage.h"

#include <utility>

void AddFeature::receive_text(QString symbolName)
{
    m_symbol->chosen(symbolName);
}

void AddFeature::forward_Attribute_Info(std::vector<std::pair<std::string, std::string>> att)
{
    Q_EMIT send_attributeinfo_list(std::move(att));
}

void AddFeature::refresh_symbolselection_user_list()
{
    m_symbol->readChooser();
}

void AddFeature::get_ChangeSymbol_Info(std::map<int, std::string> symbols)
{
    m_symbol->picked(symbols);
}

void AddFeature::on_Line_Button_Clicked(QAbstractButton* /*button*/)
{
    m_line->directionChosen();
}

void AddFeature::on_Text_clicked()
{
    m_text->specialTextClicked();
}

void AddFeature::get_font_name(QString name)
{
    m_text->setFont(name);
}

void AddFeature::get_Special_TEXT(QString s)
{
    m_text->setSpecialText(s);
}

void AddFeature::on_Line_ComboBox_Changed()
{
    m_line->lineKindChanged();
}

void AddFeature::on_CornerTypre_ComboBox_Changed()
{
    m_line->cornerTypeChanged();
}

void AddFeature::on_m_pSlotPlatedCMB_ComboBox_Changed()
{
    m_line->slotPlatedChanged();
}

void AddFeature::on_SurfShape_ComboBox_Changed()
{
    m_surface->shapeChanged();
}

void AddFeature::on_ArcAndCircle_ComboBox_Changed()
{
    m_arc->arcOrCircleChanged();
}

void AddFeature::on_Arc_ComboBox_Changed()
{
    m_arc->arcMethodChanged();
}

void AddFeature::on_Circle_ComboBox_Changed()
{
    m_arc->circleMethodChanged();
}

void AddFeature::on_Textformart_ComboBox_Changed()
{
    m_text->formatChanged();
}

void AddFeature::on_UPC_ComboBox_Changed()
{
    m_text->barcode().barcodeTypeChanged();
}

void AddFeature::on_m_pPositionCMB_ComboBox_Changed()
{
    m_text->barcode().positionChanged();
}

void AddFeature::on_m_pOrbotechTypeCMB_ComboBox_Changed()
{
    m_text->plotStamp().typeChanged();
}

void AddFeature::on_m_pOrbotechFontSizeCMB_ComboBox_Changed()
{
    m_text->plotStamp().fontSizeChanged();
}

void AddFeature::on_m_pOrbotechZoomCMB_ComboBox_Changed()
{
    m_text->plotStamp().zoomChanged();
}

void AddFeature::on_m_pCannedHoleSizeCMB_ComboBox_Changed()
{
    m_text->cannedText().holeModeChanged();
}

void AddFeature::on_ClockWise_CheckState_Changed(int /*arg1*/)
{
    m_arc->clockWiseChanged();
}

void AddFeature::on_Attribute_CheckState_Changed(int /*arg1*/)
{
    m_attributes->stateChanged();
}

void AddFeature::on_m_pClosedCB_CheckState_Changed(int /*arg1*/)
{
    m_line->closedChanged();
}

void AddFeature::on_AddString_CheckState_Changed(int /*arg1*/)
{
    m_text->barcode().addStringChanged();
}

void AddFeature::on_m_pBackgroundCB_CheckState_Changed(int /*arg1*/)
{
    m_text->barcode().backgroundChanged();
}

void AddFeature::on_m_pAddMarkersCB_CheckState_Changed(int /*arg1*/)
{
    m_text->barcode().addMarkersChanged();
}

void AddFeature::on_m_pValuesPB_clicked()
{
    m_attributes->openValues();
}

void AddFeature::on_m_pSymbolPB_clicked()
{
    m_symbol->openChooser();
}

void AddFeature::on_m_pFontPB_clicked()
{
    m_text->fontClicked();
}

void AddFeature::on_m_pTextPB_clicked()
{
    // Not connected: the text button opens the special texts by on_Text_clicked().
}

void AddFeature::on_m_pMatrixPB_clicked()
{
    // The matrix has no chooser.
}

void AddFeature::Enter_Symbol_Text()
{
    m_symbol->enterText();
}

void AddFeature::on_m_pAngleLE_editingFinished()
{
    finish("m_pAngleLE", m_line, &LinePage::angleEdited);
}

void AddFeature::on_m_pCornerRadiusLE_editingFinished()
{
    finish("m_pCornerRadiusLE", m_line, &LinePage::cornerRadiusEdited);
}

void AddFeature::on_m_pLengthLE_editingFinished()
{
    finish("m_pLengthLE", m_line, &LinePage::slotLengthEdited);
}

void AddFeature::on_m_pSlotAngleLE_editingFinished()
{
    finish("m_pSlotAngleLE", m_line, &LinePage::slotAngleEdited);
}

void AddFeature::on_m_pSlotDecodeLE_editingFinished()
{
    finish("m_pSlotDecodeLE", m_line, &LinePage::slotDecodeEdited);
}

void AddFeature::on_m_pDrilNxLE_editingFinished(const QString& text)
{
    m_refusals.run(findChild<QObject*>(QStringLiteral("m_pDrilNxLE")),
                   [&] { m_pad->nxChanged(text); });
}

void AddFeature::on_m_pDrilDxLE_editingFinished()
{
    finish("m_pDrilDxLE", m_pad, &PadPage::dxEdited);
}

void AddFeature::on_m_pDrilXsclLE_editingFinished(const QString& text)
{
    m_refusals.run(findChild<QObject*>(QStringLiteral("m_pDrilXsclLE")),
                   [&] { m_pad->xsclChanged(text); });
}

void AddFeature::on_m_pDrilNyLE_editingFinished(const QString& text)
{
    m_refusals.run(findChild<QObject*>(QStringLiteral("m_pDrilNyLE")),
                   [&] { m_pad->nyChanged(text); });
}

void AddFeature::on_m_pDrilDyLE_editingFinished()
{
    finish("m_pDrilDyLE", m_pad, &PadPage::dyEdited);
}

void AddFeature::on_m_pDrilYsclLE_editingFinished(const QString& text)
{
    m_refusals.run(findChild<QObject*>(QStringLiteral("m_pDrilYsclLE")),
                   [&] { m_pad->ysclChanged(text); });
}

void AddFeature::on_m_pFontLE_editingFinished()
{
    finish("m_pFontLE", m_text, &TextPage::fontEdited);
}

void AddFeature::on_m_pTextLE_editingFinished()
{
    finish("m_pTextLE", m_text, &TextPage::textEdited);
}

void AddFeature::on_m_pXSizeLE_editingFinished()
{
    finish("m_pXSizeLE", &m_text->strings(), &StringPage::xSizeEdited);
}

void AddFeature::on_m_pYSizeLE_editingFinished()
{
    finish("m_pYSizeLE", &m_text->strings(), &StringPage::ySizeEdited);
}

void AddFeature::on_m_pLineWidthLE_editingFinished()
{
    finish("m_pLineWidthLE", &m_text->strings(), &StringPage::lineWidthEdited);
}

void AddFeature::on_m_pHeightLE_editingFinished()
{
    finish("m_pHeightLE", &m_text->barcode(), &BarcodePage::heightEdited);
}

void AddFeature::on_m_pMatrixLE_editingFinished()
{
    finish("m_pMatrixLE", &m_text->barcode(), &BarcodePage::matrixEdited);
}

void AddFeature::on_m_pCannedHoleSizeLE_editingFinished()
{
    finish("m_pCannedHoleSizeLE", &m_text->cannedText(), &CannedTextPage::holeSizeEdited);
}

void AddFeature::on_m_pSymbolTextLE_returnPressed()
{
    m_refusals.run(findChild<QObject*>(QStringLiteral("m_pSymbolTextLE")),
                   [&] { m_symbol->returnPressed(); });
}

void AddFeature::on_m_pFillPB_clicked()
{
    m_canvas.sendFill();
}

void AddFeature::set_attribute_color()
{
    m_attributes->setColor();
}

void AddFeature::reset_attribute_color()
{
    m_attributes->resetColor();
}

void AddFeature::get_attribute_list(std::vector<std::pair<std::string, std::string>> attr_list)
{
    m_attributes->setList(std::move(attr_list));
}

void AddFeature::on_m_pSelectFromEditorPB_clicked()
{
    m_symbol->togglePick();
    Q_EMIT Select_symbol();
}

void AddFeature::get_attribute_signal()
{
    m_canvas.sendSelectFromEditor();
}
