#pragma once

#include "plugin/Export.h"
#include "toolbar/ToolTable.h"

#include <PluginMetaData.h>

#include <QGridLayout>
#include <QList>
#include <QPointer>
#include <QString>

#include <array>
#include <map>
#include <string>
#include <utility>
#include <vector>

class AddFeature;
class Grc_Tbe_measurepopup;
class QMenu;
class QPoint;
class QToolButton;

/// The edit toolbar: a grid of checkable buttons, one for each tool. It tells the canvas which tool
/// is active, and opens the Add Feature dialog and the measure popup; the canvas does the rest.
///
/// It is a layout, which the host places in the widget that it passed to the constructor. The
/// buttons, menus and windows are children of that widget and are deleted with it. GUI thread only.
class CANVAS_TOOL_STRIP_EXPORT Canvas_Tool_Strip : public QGridLayout {
    Q_OBJECT

public:
    /// `parent` holds the buttons. It is also the sender pointer of every message, the parent of
    /// the windows, and the context of the host's unit functions. Not owned.
    explicit Canvas_Tool_Strip(QWidget* parent);
    ~Canvas_Tool_Strip() override;

    /// Handles a message from a sibling module; an unknown code does nothing.
    void recMsgFromManager(PluginMetaData message);

    /// Sets every button's checked state to `checked`, except that of `except` (if not null), which
    /// is checked.
    void SetAllButtonchecked(bool checked, QToolButton* except);

    /// Whether the tool at `index` (from 0, grid order) is checked; false outside.
    bool isToolButtonChecked(int index) const;

    /// Starts area zoom from the canvas's right-click; no button is checked afterwards.
    void get_right_click_zoom_area();

    /// Closes the Add Feature dialog and the measure popup if they exist, and tells the canvas.
    void close_all_Dialogs();

Q_SIGNALS:
    /// The measure tool was started; for the measure popup.
    void GetRulerinfo();
    /// Attributes were picked on the board: names and values, by name.
    void send_Attribute_Info(std::vector<std::pair<std::string, std::string>> attributes);
    /// The host's unit may have changed; true if it is metric.
    void Current_Unit_Changed(bool isMM);
    /// The job's own symbols have changed.
    void refresh_user_list();
    /// Add Feature was clicked again: the dialog sends its record once more.
    void reselect_Add_feature();
    /// Texts must be read again in the language that is set now.
    void language_changed();
    /// Symbols were picked on the board: their names.
    void send_Symbol_Info(std::map<int, std::string> symbols);
    /// A step of a job was opened.
    void send_job_info(const std::string& job, const std::string& step);

public Q_SLOTS:
    // The tools, in grid order
    void On_AreaZoom_Clicked();
    void On_OpenPopView_Clicked();
    void On_Measure_Clicked();
    void On_FeatHighLight_Clicked();
    void On_AddFeature_Clicked();
    void On_DeleteFeat_Clicked();
    void On_MoveFeature_Clicked();
    void On_CopyFeature_Clicked();
    void On_ChangeLAngle_Clicked();
    void On_StretchLine_Clicked();
    void On_RotateFeature_Clicked();
    void On_MirrorFeature_Clicked();
    void On_InvertFeature_Clicked();
    void On_BreakLine_Clicked();
    void On_Dimension_Clicked();
    void On_ContourEditor_Clicked();
    void On_PullLine_Clicked();
    void On_MoveJunction_Clicked();
    void On_MoveTriplet_Clicked();
    void On_RerouteTrace_Clicked();
    void On_FeatureSelection_Clicked();
    void On_RectSelection_Clicked();
    void On_PolygonSelection_Clicked();
    void On_SelectPolyline_Clicked();
    /// Selects by net in the mode `datatype`: the code SelectPolyline, SelectLayerNet or
    /// SelectBoardNet. Any other value is stored too, and sent as Unset.
    void On_SelectPolyline_Clicked(int datatype);
    void on_mark_clicked();
    void on_m_pEqTB_clecked();  // deliberate spelling: hosts know it by this name
    /// The dialog asks for a symbol: the canvas lets the user pick one. No button changes.
    void on_m_pAddfeature_Select_symbol();

    // The right-click menus and their entries
    void On_DeleteFeat_customContextMenuRequested(QPoint pos);
    void on_m_delete_feature_clicked();
    void on_m_delete_to_intersection_clicked();
    void On_SelectPolyline_customContextMenuRequested(QPoint pos);
    void On_pSelect_layer_net_triggered();
    void On_pSelect_board_net_triggered();
    void On_Select_polyline_triggered();
    void on_mark_customContextMenuRequested(QPoint pos);
    void on_m_mark_horizontalandvertical_clicked();
    void on_m_mark_point2point_clicked();
    void on_m_mark_setting_clicked();

private:
    void createButtons();
    void forgetParent();
    void createAddFeatureDialog();

    QToolButton* button(Tool tool) const;  // null for Area Zoom when the parent widget is gone
    void activate(Tool tool);
    /// The variant that is in force in the menu.
    void activateVariant(ToolMenu menu);
    /// Puts the variant with that code and mode in force, and activates it. Without such a variant
    /// the tool keeps its pictures, and sends Unset.
    void chooseVariant(ToolMenu menu, int code, int mode = 0);
    const ToolTable::Variant*& variantOf(ToolMenu menu);
    void send(int code, qint64 extra = 0);
    void sendAs(const QString& sender, const QString& receiver, int code, qint64 extra = 0);
    QMenu* createMenu(const ToolTable::Menu& row);
    void openMenu(ToolMenu which);
    void retitleMenus();

    // Incoming messages
    void checkAndRun(Tool tool, void (Canvas_Tool_Strip::*handler)());
    void selectByNet(int mode);
    void showAddFeatureActive();
    /// Stores job and step for the dialog that is created next; tells nobody.
    void setJobAndStep(const PluginMetaData& message);
    /// Stores job and step, and tells the dialog when both have a name.
    void update_job_info(const PluginMetaData& message);
    /// Takes the job's name from the extra word; the step stays, and nobody is told.
    void get_job_name(const PluginMetaData& message);
    /// Hands symbols that were picked on the board to the dialog, whose symbol field shows one.
    void set_symbolLE_text(const PluginMetaData& message);
    /// Hands attributes that were picked on the board to the dialog.
    void send_AttributePoint_Info(const PluginMetaData& message);
    /// Asks the host for the unit, and tells the dialog whether it is metric.
    void change_unit();
    /// Reads every text again in the language that is set now, the dialog's before its own.
    void setText();

    // The parent widget may be deleted before this object, and its children with it.
    QPointer<QWidget> m_parent;
    QList<QToolButton*> m_buttons;  // in the order of Tool; see forgetParent()
    // Both in the order of ToolMenu. Each menu is created on its first right-click. No variant: the
    // one that was asked for does not exist.
    std::array<QPointer<QMenu>, ToolTable::menuCount> m_menus;
    std::array<const ToolTable::Variant*, ToolTable::menuCount> m_variants{};
    QPointer<AddFeature> m_addFeature;
    QPointer<Grc_Tbe_measurepopup> m_measurePopup;
    std::string m_job = " ";
    std::string m_step;
};
