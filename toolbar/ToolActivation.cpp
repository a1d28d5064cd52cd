// What a click on a tool does.

#include "addfeature/AddFeature.h"
#include "plugin/MessageCodes.h"
#include "plugin/ModuleNames.h"
#include "toolbar/Canvas_Tool_Strip.h"

#include <QTpluginsManger4CAM.h>
#include <common_widgets.h>

#include <QToolButton>

#include <utility>

namespace Sent = MessageCodes::Sent;

QToolButton* Canvas_Tool_Strip::button(Tool tool) const
{
    return m_buttons[static_cast<int>(tool)];
}

void Canvas_Tool_Strip::SetAllButtonchecked(bool checked, QToolButton* except)
{
    for (QToolButton* const tool : std::as_const(m_buttons)) {
        if (tool) {
            tool->setChecked(checked || tool == except);
        }
    }
}

bool Canvas_Tool_Strip::isToolButtonChecked(int index) const
{
    const bool isKnown = index >= 0 && index < m_buttons.size() && m_buttons[index];
    return isKnown && m_buttons[index]->isChecked();
}

namespace {

PluginMetaData envelope(const QString& sender, const QString& receiver, int code, qint64 extra)
{
    PluginMetaData message(sender, receiver);
    message.code = code;
    message.extra = extra;
    return message;
}

}  // namespace

void Canvas_Tool_Strip::sendAs(const QString& sender, const QString& receiver, int code,
                               qint64 extra)
{
    QTpluginsManger4CAM::instance()->recMegToPlugin(m_parent,
                                                    envelope(sender, receiver, code, extra));
}

void Canvas_Tool_Strip::send(int code, qint64 extra)
{
    sendAs(ModuleNames::toolStrip, ModuleNames::viewer, code, extra);
}

void Canvas_Tool_Strip::activate(Tool tool)
{
    SetAllButtonchecked(false, button(tool));
    const ToolTable::Row& row = ToolTable::row(tool);
    const bool isChecked = isToolButtonChecked(static_cast<int>(tool));
    sendAs(*row.sender, ModuleNames::viewer, isChecked ? row.onCode : row.offCode);
}

void Canvas_Tool_Strip::On_AreaZoom_Clicked()
{
    activate(Tool::AreaZoom);
}

void Canvas_Tool_Strip::On_OpenPopView_Clicked()
{
    activate(Tool::OpenPopView);
}

void Canvas_Tool_Strip::On_FeatHighLight_Clicked()
{
    activate(Tool::FeatureHighLight);
}

void Canvas_Tool_Strip::On_DeleteFeat_Clicked()
{
    activateVariant(ToolMenu::Delete);
}

void Canvas_Tool_Strip::On_MoveFeature_Clicked()
{
    activate(Tool::MoveFeature);
}

void Canvas_Tool_Strip::On_CopyFeature_Clicked()
{
    activate(Tool::CopyFeature);
}

void Canvas_Tool_Strip::On_ChangeLAngle_Clicked()
{
    activate(Tool::ChangeLineAngle);
}

void Canvas_Tool_Strip::On_StretchLine_Clicked()
{
    activate(Tool::StretchLine);
}

void Canvas_Tool_Strip::On_RotateFeature_Clicked()
{
    activate(Tool::RotateFeature);
}

void Canvas_Tool_Strip::On_MirrorFeature_Clicked()
{
    activate(Tool::MirrorFeature);
}

void Canvas_Tool_Strip::On_InvertFeature_Clicked()
{
    activate(Tool::InvertFeature);
}

void Canvas_Tool_Strip::On_BreakLine_Clicked()
{
    activate(Tool::BreakLine);
}

void Canvas_Tool_Strip::On_Dimension_Clicked()
{
    activate(Tool::RoutDimension);
}

void Canvas_Tool_Strip::On_ContourEditor_Clicked()
{
    activate(Tool::ContourEditor);
}

void Canvas_Tool_Strip::On_PullLine_Clicked()
{
    activate(Tool::PullLine);
}

void Canvas_Tool_Strip::On_MoveJunction_Clicked()
{
    activate(Tool::MoveJunction);
}

void Canvas_Tool_Strip::On_MoveTriplet_Clicked()
{
    activate(Tool::MoveTriplet);
}

void Canvas_Tool_Strip::On_RerouteTrace_Clicked()
{
    activate(Tool::RerouteTrace);
}

void Canvas_Tool_Strip::On_FeatureSelection_Clicked()
{
    activate(Tool::FeatureSelection);
}

void Canvas_Tool_Strip::On_RectSelection_Clicked()
{
    activate(Tool::RectangleSelection);
}

void Canvas_Tool_Strip::On_PolygonSelection_Clicked()
{
    activate(Tool::PolygonSelection);
}

void Canvas_Tool_Strip::on_mark_clicked()
{
    activateVariant(ToolMenu::Mark);
}

void Canvas_Tool_Strip::on_m_pEqTB_clecked()
{
    activate(Tool::Eq);
}

void Canvas_Tool_Strip::On_SelectPolyline_Clicked()
{
    // Chosen again: at first the button does not show the variant that is in force.
    const ToolTable::Variant* const variant = variantOf(ToolMenu::Net);
    On_SelectPolyline_Clicked(variant ? variant->code : Sent::Unset);
}

void Canvas_Tool_Strip::On_SelectPolyline_Clicked(int datatype)
{
    chooseVariant(ToolMenu::Net, datatype);
}

void Canvas_Tool_Strip::On_AddFeature_Clicked()
{
    sendAs(ModuleNames::toolStrip, ModuleNames::jobTree, Sent::AddFeatureStarted);
    SetAllButtonchecked(false, button(Tool::AddFeature));
    if (m_addFeature) {
        Q_EMIT reselect_Add_feature();
    } else {
        createAddFeatureDialog();
    }
    // A receiver of what was just sent may have deleted it.
    if (m_addFeature) {
        m_addFeature->raise();
        m_addFeature->show();
    }
}

void Canvas_Tool_Strip::createAddFeatureDialog()
{
    m_addFeature = new AddFeature(m_parent, m_job, m_step, m_parent);
    m_addFeature->setToolStrip(this);

    struct Connection {
        const char* signal;
        const char* slot;
    };
    static const Connection connections[] = {
        {SIGNAL(Current_Unit_Changed(bool)), SLOT(change_current_units(bool))},
        {SIGNAL(refresh_user_list()), SLOT(refresh_symbolselection_user_list())},
        {SIGNAL(reselect_Add_feature()), SLOT(getChangeCurrentTool())},
        {SIGNAL(language_changed()), SLOT(change_language())},
        {SIGNAL(send_Symbol_Info(std::map<int, std::string>)),
         SLOT(get_ChangeSymbol_Info(std::map<int, std::string>))},
        {SIGNAL(send_Attribute_Info(std::vector<std::pair<std::string, std::string>>)),
         SLOT(forward_Attribute_Info(std::vector<std::pair<std::string, std::string>>))},
        {SIGNAL(send_job_info(const std::string&, const std::string&)),
         SLOT(set_job_info(const std::string&, const std::string&))},
    };
    for (const Connection& connection : connections) {
        connect(this, connection.signal, m_addFeature, connection.slot);
    }
    connect(m_addFeature, SIGNAL(Select_symbol()), this, SLOT(on_m_pAddfeature_Select_symbol()));

    send(Sent::AddFeature);
    if (m_addFeature) {
        connect(m_addFeature, SIGNAL(change_viewtool()), this, SLOT(On_AreaZoom_Clicked()));
    }
}

void Canvas_Tool_Strip::on_m_pAddfeature_Select_symbol()
{
    send(Sent::SelectSymbol);
}

void Canvas_Tool_Strip::On_Measure_Clicked()
{
    if (!m_measurePopup) {
        m_measurePopup = new Grc_Tbe_measurepopup(this, m_parent);
        connect(this, SIGNAL(language_changed()), m_measurePopup, SLOT(change_language()));
        connect(this, SIGNAL(GetRulerinfo()), m_measurePopup, SLOT(onMeasureButtonClicked()));
    }
    m_measurePopup->raise();
    m_measurePopup->show();
    SetAllButtonchecked(false, button(Tool::Measure));
    Q_EMIT GetRulerinfo();
}

void Canvas_Tool_Strip::get_right_click_zoom_area()
{
    SetAllButtonchecked(false, button(Tool::AreaZoom));
    if (QToolButton* const areaZoom = button(Tool::AreaZoom)) {
        areaZoom->toggle();
    }
    send(Sent::AreaZoom);
}

void Canvas_Tool_Strip::close_all_Dialogs()
{
    if (m_addFeature) {
        m_addFeature->close();
    }
    if (m_measurePopup) {
        m_measurePopup->close();
    }
    send(Sent::DialogsClosed);
}
