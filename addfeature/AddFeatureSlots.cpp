// The dialog's named slots, in the order of the header: each forwards to a field, or to a rule of a
// page or row. The frame's own handlers are in AddFeature.cpp.

#include "addfeature/AddFeature.h"
#include "addfeature/AttributeRow.h"
#include "addfeature/SymbolEntry.h"
#include "addfeature/SymbolField.h"
#include "addfeature/pages/ArcPage.h"
#include "addfeature/pages/LinePage.h"
#include "addfeature/pages/PadPage.h"
#include "addfeature/pages/SurfacePage.h"
#include "addfeature/pages/TextPage.h"

#include <utility>

// clang-format off
// Driven by the toolbar and the choosers
void AddFeature::receive_text(QString symbolName) { m_symbol->m_pSymbolTextLE->choose(symbolName); }
void AddFeature::forward_Attribute_Info(std::vector<std::pair<std::string, std::string>> att)
    { Q_EMIT send_attributeinfo_list(std::move(att)); }
void AddFeature::refresh_symbolselection_user_list() { m_symbol->readChooser(); }
void AddFeature::get_ChangeSymbol_Info(std::map<int, std::string> symbols) { m_symbol->picked(symbols); }

// Buttons of the pages
void AddFeature::on_Line_Button_Clicked(QAbstractButton* /*button*/) { m_line->m_pDirectionBG->change(); }
void AddFeature::on_Text_clicked() { m_text->openSpecialTexts(); }
void AddFeature::get_font_name(QString name) { m_text->m_pFontLE->enter(name); }
void AddFeature::get_Special_TEXT(QString s) { m_text->m_pTextLE->enter(QStringLiteral("$$") + s); }

// Combo boxes
void AddFeature::on_m_pPolarityCMB_ComboBox_Changed() { m_pPolarityCMB->change(); }
void AddFeature::on_m_pMirrorCMB_ComboBox_Changed() { m_pMirrorCMB->change(); }
void AddFeature::on_Line_ComboBox_Changed() { m_line->chooseKind(); }
void AddFeature::on_CornerTypre_ComboBox_Changed() { m_line->m_pCornerTypeCMB->change(); }
void AddFeature::on_m_pSlotPlatedCMB_ComboBox_Changed() { m_line->m_pSlotPlatedCMB->change(); }
void AddFeature::on_SurfShape_ComboBox_Changed() { m_surface->m_pSurfShapeCMB->change(); }
void AddFeature::on_ArcAndCircle_ComboBox_Changed() { m_arc->m_pArcAndCircleCMB->change(); }
void AddFeature::on_Arc_ComboBox_Changed() { m_arc->m_pArcCMB->change(); }
void AddFeature::on_Circle_ComboBox_Changed() { m_arc->m_pCircleCMB->change(); }
void AddFeature::on_Textformart_ComboBox_Changed() { m_text->chooseFormat(); }
void AddFeature::on_UPC_ComboBox_Changed() { m_text->m_barcode->m_pUPCCMB->change(); }
void AddFeature::on_m_pPositionCMB_ComboBox_Changed() { m_text->m_barcode->m_pPositionCMB->change(); }
void AddFeature::on_m_pOrbotechTypeCMB_ComboBox_Changed() { m_text->m_plotStamp->m_pOrbotechTypeCMB->change(); }
void AddFeature::on_m_pOrbotechFontSizeCMB_ComboBox_Changed() { m_text->m_plotStamp->m_pOrbotechFontSizeCMB->change(); }
void AddFeature::on_m_pOrbotechZoomCMB_ComboBox_Changed() { m_text->m_plotStamp->m_pOrbotechZoomCMB->change(); }
void AddFeature::on_m_pCannedHoleSizeCMB_ComboBox_Changed() { m_text->m_cannedText->chooseHoleMode(); }

// Check boxes
void AddFeature::on_ClockWise_CheckState_Changed(int /*arg1*/) { m_arc->m_pClockWiseCB->change(); }
void AddFeature::on_Attribute_CheckState_Changed(int /*arg1*/) { m_attributes->stateChanged(); }
void AddFeature::on_m_pClosedCB_CheckState_Changed(int /*arg1*/) { m_line->m_pClosedCB->change(); }
void AddFeature::on_AddString_CheckState_Changed(int /*arg1*/) { m_text->m_barcode->m_pAddStringCB->change(); }
void AddFeature::on_m_pBackgroundCB_CheckState_Changed(int /*arg1*/) { m_text->m_barcode->chooseBackground(); }
void AddFeature::on_m_pAddMarkersCB_CheckState_Changed(int /*arg1*/) { m_text->m_barcode->m_pAddMarkersCB->change(); }

// Push buttons
void AddFeature::on_m_pValuesPB_clicked() { m_attributes->openValues(); }
void AddFeature::on_m_pSymbolPB_clicked() { m_symbol->openChooser(); }
void AddFeature::on_m_pFontPB_clicked() { m_text->openFonts(); }
// Not connected: the text button opens the special texts by on_Text_clicked().
void AddFeature::on_m_pTextPB_clicked() {}
// The matrix has no chooser.
void AddFeature::on_m_pMatrixPB_clicked() {}

// Fields
void AddFeature::Enter_Symbol_Text() { m_symbol->m_pSymbolTextLE->enterText(); }
void AddFeature::on_m_pAngleLE_editingFinished() { m_line->m_pAngleLE->finish(); }
void AddFeature::on_m_pCornerRadiusLE_editingFinished() { m_line->m_pCornerRadiusLE->finish(); }
void AddFeature::on_m_pLengthLE_editingFinished() { m_line->m_pLengthLE->finish(); }
void AddFeature::on_m_pSlotAngleLE_editingFinished() { m_line->m_pSlotAngleLE->finish(); }
void AddFeature::on_m_pSlotDecodeLE_editingFinished() { m_line->m_pSlotDecodeLE->finish(); }
void AddFeature::on_m_pDrilNxLE_editingFinished(const QString& text) { m_pad->m_pDrilNxLE->change(text); }
void AddFeature::on_m_pDrilDxLE_editingFinished() { m_pad->m_pDrilDxLE->finish(); }
void AddFeature::on_m_pDrilXsclLE_editingFinished(const QString& text) { m_pad->m_pDrilXsclLE->change(text); }
void AddFeature::on_m_pDrilNyLE_editingFinished(const QString& text) { m_pad->m_pDrilNyLE->change(text); }
void AddFeature::on_m_pDrilDyLE_editingFinished() { m_pad->m_pDrilDyLE->finish(); }
void AddFeature::on_m_pDrilYsclLE_editingFinished(const QString& text) { m_pad->m_pDrilYsclLE->change(text); }
void AddFeature::on_m_pFontLE_editingFinished() { m_text->m_pFontLE->finish(); }
void AddFeature::on_m_pTextLE_editingFinished() { m_text->m_pTextLE->finish(); }
void AddFeature::on_m_pXSizeLE_editingFinished() { m_text->m_strings->m_pXSizeLE->finish(); }
void AddFeature::on_m_pYSizeLE_editingFinished() { m_text->m_strings->m_pYSizeLE->finish(); }
void AddFeature::on_m_pLineWidthLE_editingFinished() { m_text->m_strings->m_pLineWidthLE->finish(); }
void AddFeature::on_m_pHeightLE_editingFinished() { m_text->m_barcode->m_pHeightLE->finish(); }
void AddFeature::on_m_pMatrixLE_editingFinished() { m_text->m_barcode->m_pMatrixLE->finish(); }
void AddFeature::on_m_pCannedHoleSizeLE_editingFinished() { m_text->m_cannedText->m_pCannedHoleSizeLE->finish(); }
void AddFeature::on_m_pSymbolTextLE_returnPressed() { m_symbol->m_pSymbolTextLE->cutAtCursor(); }

// Fill, attributes, pick from the board
void AddFeature::on_m_pFillPB_clicked() { m_canvas.sendFill(); }
void AddFeature::set_attribute_color() { m_attributes->setColor(); }
void AddFeature::reset_attribute_color() { m_attributes->resetColor(); }
void AddFeature::get_attribute_list(std::vector<std::pair<std::string, std::string>> attr_list)
    { m_attributes->setList(attr_list); }
void AddFeature::on_m_pSelectFromEditorPB_clicked() { m_symbol->togglePick(); Q_EMIT Select_symbol(); }
void AddFeature::get_attribute_signal() { m_canvas.sendSelectFromEditor(); }
// clang-format on
