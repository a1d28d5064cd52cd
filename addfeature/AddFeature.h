#pragma once

#include "addfeature/record/CanvasLink.h"
#include "addfeature/record/DialogDoor.h"
#include "addfeature/record/FeatureRecord.h"
#include "addfeature/record/HostUnits.h"
#include "addfeature/record/RefusalGuard.h"
#include "addfeature/record/ValueChecks.h"

#include <QList>
#include <QPointer>
#include <QWidget>

#include <map>
#include <string>
#include <utility>
#include <vector>

class ArcPage;
class AttributeRow;
class Canvas_Tool_Strip;
class ChoiceField;
class LinePage;
class PadPage;
class Page;
class QAbstractButton;
class QSpinBox;
class QVBoxLayout;
class RadioField;
class SurfacePage;
class SymbolEntry;
class TextPage;

/// The Add Feature dialog, in which a feature is described before it is placed on the canvas.
///
/// It keeps one parameter record and sends it to the canvas after each change. The frame holds what
/// is common to all features; each feature type has a page of its own. GUI thread only.
class AddFeature : public QWidget, private DialogDoor {
    Q_OBJECT

public:
    /// `ownerContext` is the host widget that holds the toolbar: sender pointer of every message,
    /// context of the host's unit functions, parent of the symbol chooser. Not owned. Job and step
    /// are UTF-8.
    AddFeature(void* ownerContext, std::string job, std::string step, QWidget* parent);
    ~AddFeature() override;

    /// The toolbar that is asked whether Add Feature is the active tool. Not owned; without one,
    /// edits of the symbol are kept but not sent.
    void setToolStrip(Canvas_Tool_Strip* toolStrip);

Q_SIGNALS:
    void unit_changed();
    void Select_symbol();
    void send_attributeinfo_list(std::vector<std::pair<std::string, std::string>> attributes);
    void change_viewtool();

public Q_SLOTS:
    // Driven by the toolbar and the choosers
    void receive_text(QString symbolName);
    void change_current_units(bool isMM);
    void forward_Attribute_Info(std::vector<std::pair<std::string, std::string>> att);
    void refresh_symbolselection_user_list();
    void getChangeCurrentTool();
    void change_language();
    void get_ChangeSymbol_Info(std::map<int, std::string> symbols);
    void set_job_info(const std::string& job, const std::string& step);

    // Buttons of the frame and of the pages
    void onFeatureButtonClicked(QAbstractButton* button);
    void on_Line_Button_Clicked(QAbstractButton* button);
    void on_Text_clicked();
    void get_font_name(QString name);
    void get_Special_TEXT(QString s);

    // Frame
    void on_m_pPolarityCMB_ComboBox_Changed();
    void on_m_pMirrorCMB_ComboBox_Changed();
    void on_m_pAngleValueSB_editingFinished();

    // Combo boxes: line, surface, arc, text, barcode, plot stamp, canned text
    void on_Line_ComboBox_Changed();
    void on_CornerTypre_ComboBox_Changed();  // deliberate spelling, as of others below
    void on_m_pSlotPlatedCMB_ComboBox_Changed();
    void on_SurfShape_ComboBox_Changed();
    void on_ArcAndCircle_ComboBox_Changed();
    void on_Arc_ComboBox_Changed();
    void on_Circle_ComboBox_Changed();
    void on_Textformart_ComboBox_Changed();
    void on_UPC_ComboBox_Changed();
    void on_m_pPositionCMB_ComboBox_Changed();
    void on_m_pOrbotechTypeCMB_ComboBox_Changed();
    void on_m_pOrbotechFontSizeCMB_ComboBox_Changed();
    void on_m_pOrbotechZoomCMB_ComboBox_Changed();
    void on_m_pCannedHoleSizeCMB_ComboBox_Changed();

    // Check boxes
    void on_ClockWise_CheckState_Changed(int arg1);
    void on_Attribute_CheckState_Changed(int arg1);
    void on_m_pClosedCB_CheckState_Changed(int arg1);
    void on_AddString_CheckState_Changed(int arg1);
    void on_m_pBackgroundCB_CheckState_Changed(int arg1);
    void on_m_pAddMarkersCB_CheckState_Changed(int arg1);

    // Push buttons
    void on_m_pValuesPB_clicked();
    void on_m_pSymbolPB_clicked();
    void on_m_pFontPB_clicked();
    void on_m_pTextPB_clicked();
    void on_m_pMatrixPB_clicked();

    // Fields: symbol, line, pad, text, barcode, canned text
    void Enter_Symbol_Text();
    void on_m_pSymbolTextLE_editingFinished();
    void on_m_pAngleLE_editingFinished();
    void on_m_pCornerRadiusLE_editingFinished();
    void on_m_pLengthLE_editingFinished();
    void on_m_pSlotAngleLE_editingFinished();
    void on_m_pSlotDecodeLE_editingFinished();
    // Four of the pad's slots follow textChanged, whatever their names say.
    void on_m_pDrilNxLE_editingFinished(const QString& text);
    void on_m_pDrilDxLE_editingFinished();
    void on_m_pDrilXsclLE_editingFinished(const QString& text);
    void on_m_pDrilNyLE_editingFinished(const QString& text);
    void on_m_pDrilDyLE_editingFinished();
    void on_m_pDrilYsclLE_editingFinished(const QString& text);
    void on_m_pFontLE_editingFinished();
    void on_m_pTextLE_editingFinished();
    void on_m_pXSizeLE_editingFinished();
    void on_m_pYSizeLE_editingFinished();
    void on_m_pLineWidthLE_editingFinished();
    void on_m_pHeightLE_editingFinished();
    void on_m_pMatrixLE_editingFinished();
    void on_m_pCannedHoleSizeLE_editingFinished();

    // Symbol, fill, attributes, pick from the board
    void on_m_pSymbolTextLE_textChanged(QString text);
    void on_m_pSymbolTextLE_returnPressed();
    void on_m_pFillPB_clicked();
    void set_attribute_color();
    void reset_attribute_color();
    void get_attribute_list(std::vector<std::pair<std::string, std::string>> attr_list);
    void on_m_pSelectFromEditorPB_clicked();
    void get_attribute_signal();

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // The door
    FeatureRecord& record() override { return m_record; }
    RefusalGuard& refusals() override { return m_refusals; }
    const HostUnits& units() const override { return m_units; }
    const ValueChecks& checks() const override { return m_checks; }
    QWidget* hostWidget() const override { return m_hostWidget; }
    const std::string& job() const override { return m_job; }
    const std::string& step() const override { return m_step; }
    FeatureType featureType() const override;
    int rotation() const override;
    bool isToolActive() const override;
    void sendRecord() override { getChangeCurrentTool(); }
    void sendDirection() override { m_canvas.sendDirection(m_record.map()); }
    void sendAttributes(const std::map<std::string, std::string>& attributes) override;
    bool restoreCommonRows() override;
    void hideAttributeRows() override;
    void hidePlacementRows() override;
    void connectToSlot(QObject* sender, const char* signal, const char* slot) override;
    void disconnectFromSlot(QObject* sender, const char* signal, const char* slot) override;
    void connectSignal(const char* signal, QObject* receiver, const char* slot) override;

    void buildTypeRow(QVBoxLayout* layout);
    void buildCommonRows(QVBoxLayout* layout);
    void buildPages(QVBoxLayout* layout);
    void retranslateFrame();
    void showPage(const Page* chosen);
    void stayAbove(const QObject* active);
    bool hasSymbol() const;
    void storeRotation();

    QWidget* m_hostWidget;
    QPointer<Canvas_Tool_Strip> m_toolStrip;
    std::string m_job;
    std::string m_step;
    bool m_closing = false;
    FeatureRecord m_record;
    CanvasLink m_canvas;
    RefusalGuard m_refusals;
    HostUnits m_units;
    ValueChecks m_checks;

    RadioField* m_pFeatureBG = nullptr;  // in the order of FeatureType
    AttributeRow* m_attributes = nullptr;
    ChoiceField* m_pPolarityCMB = nullptr;
    ChoiceField* m_pMirrorCMB = nullptr;
    QSpinBox* m_pAngleValueSB = nullptr;
    SymbolEntry* m_symbol = nullptr;
    LinePage* m_line = nullptr;
    PadPage* m_pad = nullptr;
    SurfacePage* m_surface = nullptr;
    ArcPage* m_arc = nullptr;
    TextPage* m_text = nullptr;
    QList<Page*> m_pages;  // in the order of FeatureType
};
