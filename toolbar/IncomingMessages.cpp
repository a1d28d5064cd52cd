// What a message of a sibling module does.

#include "plugin/ExtraWord.h"
#include "plugin/MessageCodes.h"
#include "plugin/PayloadKeys.h"
#include "toolbar/Canvas_Tool_Strip.h"

#include <QToolButton>

namespace Accepted = MessageCodes::Accepted;

namespace {

std::string payloadText(const PluginMetaData& message, const QString& key)
{
    const auto found = message.payload.constFind(key);
    return found == message.payload.constEnd() ? std::string() : found->toString().toStdString();
}

}  // namespace

void Canvas_Tool_Strip::recMsgFromManager(PluginMetaData message)
{
    using Strip = Canvas_Tool_Strip;
    // clang-format off
    switch (message.code) {
        case Accepted::ReleaseAll: SetAllButtonchecked(false, nullptr); break;
        case Accepted::AreaZoom: On_AreaZoom_Clicked(); break;
        case Accepted::FeatureSelection: checkAndRun(Tool::FeatureSelection, &Strip::On_FeatureSelection_Clicked); break;
        case Accepted::RectangleSelection: checkAndRun(Tool::RectangleSelection, &Strip::On_RectSelection_Clicked); break;
        case Accepted::PolygonSelection: checkAndRun(Tool::PolygonSelection, &Strip::On_PolygonSelection_Clicked); break;
        case Accepted::AddFeatureActive: showAddFeatureActive(); break;
        case Accepted::SelectPolyline:
        case Accepted::SelectLayerNet:
        case Accepted::SelectBoardNet: selectByNet(message.code); break;
        case Accepted::CheckAndMeasure: checkAndRun(Tool::Measure, &Strip::On_Measure_Clicked); break;
        case Accepted::JobAndStep: setJobAndStep(message); break;
        case Accepted::Measure: On_Measure_Clicked(); break;
        case Accepted::AttributesPicked: send_AttributePoint_Info(message); break;
        case Accepted::SymbolsPicked: set_symbolLE_text(message); break;
        case Accepted::UserSymbolsChanged: Q_EMIT refresh_user_list(); break;
        case Accepted::JobName: get_job_name(message); break;
        case Accepted::UnitChanged: change_unit(); break;
        case Accepted::LanguageChanged: setText(); break;
        case Accepted::JobOpened: update_job_info(message); break;
        case Accepted::CloseDialogs: close_all_Dialogs(); break;
        case Accepted::AddFeature: On_AddFeature_Clicked(); break;
        case Accepted::DeleteFeature: On_DeleteFeat_Clicked(); break;
        case Accepted::MoveFeature: On_MoveFeature_Clicked(); break;
        default: break;
    }
    // clang-format on
}

void Canvas_Tool_Strip::checkAndRun(Tool tool, void (Canvas_Tool_Strip::*handler)())
{
    button(tool)->setChecked(true);
    (this->*handler)();
}

void Canvas_Tool_Strip::selectByNet(int mode)
{
    button(Tool::SelectByNet)->setChecked(true);
    On_SelectPolyline_Clicked(mode);
}

void Canvas_Tool_Strip::showAddFeatureActive()
{
    if (!button(Tool::AddFeature)->isChecked()) {
        SetAllButtonchecked(false, button(Tool::AddFeature));
    }
}

void Canvas_Tool_Strip::setJobAndStep(const PluginMetaData& message)
{
    m_job = payloadText(message, PayloadKeys::jobName);
    m_step = payloadText(message, PayloadKeys::step);
}

void Canvas_Tool_Strip::update_job_info(const PluginMetaData& message)
{
    m_job = payloadText(message, PayloadKeys::jobName);
    m_step = payloadText(message, PayloadKeys::stepName);
    if (!m_job.empty() && !m_step.empty()) {
        Q_EMIT send_job_info(m_job, m_step);
    }
}

void Canvas_Tool_Strip::get_job_name(const PluginMetaData& message)
{
    if (const auto* const job = ExtraWord::object<std::string>(message.extra)) {
        m_job = *job;
    }
}

void Canvas_Tool_Strip::set_symbolLE_text(const PluginMetaData& message)
{
    if (const auto* const symbols = ExtraWord::object<std::map<int, std::string>>(message.extra)) {
        Q_EMIT send_Symbol_Info(*symbols);
    }
}

void Canvas_Tool_Strip::send_AttributePoint_Info(const PluginMetaData& message)
{
    if (const auto* const attributes =
            ExtraWord::object<std::map<std::string, std::string>>(message.extra)) {
        Q_EMIT send_Attribute_Info(std::vector<std::pair<std::string, std::string>>(
            attributes->begin(), attributes->end()));
    }
}
