// What a message of a sibling module does.

#include "plugin/MessageCodes.h"
#include "toolbar/Canvas_Tool_Strip.h"

#include <QToolButton>

#include <cstddef>
#include <cstdint>

namespace Accepted = MessageCodes::Accepted;

namespace {

std::string payloadText(const PluginMetaData& message, const QString& key)
{
    const auto found = message.payload.constFind(key);
    return found == message.payload.constEnd() ? std::string() : found->toString().toStdString();
}

/// The object whose address the extra word holds; null for a message without one.
template <class T>
const T* passedObject(const PluginMetaData& message)
{
    return reinterpret_cast<const T*>(static_cast<quintptr>(message.extra));
}

/// Where the rows of a table of codes stand, for a look-up in one step: the codes are multiplied by
/// a number that lets no two of them fall into one slot.
template <size_t Count>
class CodeIndex {
public:
    /// The number is looked for at compile time.
    template <class Row>
    constexpr explicit CodeIndex(const Row (&rows)[Count])
    {
        while (!fill(rows)) {
            m_factor += 2;
        }
    }

    /// The one row that may be that of `code`.
    constexpr size_t candidate(int code) const { return m_rows[slot(code)]; }

private:
    static constexpr int bits = 7;

    constexpr size_t slot(int code) const { return (uint32_t(code) * m_factor) >> (32 - bits); }

    template <class Row>
    constexpr bool fill(const Row (&rows)[Count])
    {
        bool taken[size_t(1) << bits] = {};
        for (size_t row = 0; row < Count; ++row) {
            const size_t at = slot(rows[row].code);
            if (taken[at]) {
                return false;
            }
            taken[at] = true;
            m_rows[at] = uint8_t(row);
        }
        return true;
    }

    uint32_t m_factor = 0x9E3779B1;  // spreads well, and is odd
    uint8_t m_rows[size_t(1) << bits] = {};
};

}  // namespace

/// What each accepted code does.
struct Canvas_Tool_Strip::Incoming {
    using Strip = Canvas_Tool_Strip;
    using Message = const PluginMetaData&;

    int code;
    void (*act)(Strip& strip, Message message);

    static const Incoming* find(int code);
};

const Canvas_Tool_Strip::Incoming* Canvas_Tool_Strip::Incoming::find(int code)
{
    // clang-format off
    static constexpr Incoming rows[] = {
        {Accepted::ReleaseAll, [](Strip& strip, Message) { strip.SetAllButtonchecked(false, nullptr); }},
        {Accepted::AreaZoom, [](Strip& strip, Message) { strip.On_AreaZoom_Clicked(); }},
        {Accepted::FeatureSelection, [](Strip& strip, Message) { strip.checkAndRun(Tool::FeatureSelection, &Strip::On_FeatureSelection_Clicked); }},
        {Accepted::RectangleSelection, [](Strip& strip, Message) { strip.checkAndRun(Tool::RectangleSelection, &Strip::On_RectSelection_Clicked); }},
        {Accepted::PolygonSelection, [](Strip& strip, Message) { strip.checkAndRun(Tool::PolygonSelection, &Strip::On_PolygonSelection_Clicked); }},
        {Accepted::AddFeatureActive, [](Strip& strip, Message) { strip.showAddFeatureActive(); }},
        {Accepted::SelectPolyline, [](Strip& strip, Message message) { strip.selectByNet(message); }},
        {Accepted::SelectLayerNet, [](Strip& strip, Message message) { strip.selectByNet(message); }},
        {Accepted::SelectBoardNet, [](Strip& strip, Message message) { strip.selectByNet(message); }},
        {Accepted::CheckAndMeasure, [](Strip& strip, Message) { strip.checkAndRun(Tool::Measure, &Strip::On_Measure_Clicked); }},
        {Accepted::JobAndStep, [](Strip& strip, Message message) { strip.setJobAndStep(message); }},
        {Accepted::Measure, [](Strip& strip, Message) { strip.On_Measure_Clicked(); }},
        {Accepted::AttributesPicked, [](Strip& strip, Message message) { strip.send_AttributePoint_Info(message); }},
        {Accepted::SymbolsPicked, [](Strip& strip, Message message) { strip.set_symbolLE_text(message); }},
        {Accepted::UserSymbolsChanged, [](Strip& strip, Message) { Q_EMIT strip.refresh_user_list(); }},
        {Accepted::JobName, [](Strip& strip, Message message) { strip.get_job_name(message); }},
        {Accepted::UnitChanged, [](Strip& strip, Message) { strip.change_unit(); }},
        {Accepted::LanguageChanged, [](Strip& strip, Message) { strip.setText(); }},
        {Accepted::JobOpened, [](Strip& strip, Message message) { strip.update_job_info(message); }},
        {Accepted::CloseDialogs, [](Strip& strip, Message) { strip.close_all_Dialogs(); }},
        {Accepted::AddFeature, [](Strip& strip, Message) { strip.On_AddFeature_Clicked(); }},
        {Accepted::DeleteFeature, [](Strip& strip, Message) { strip.On_DeleteFeat_Clicked(); }},
        {Accepted::MoveFeature, [](Strip& strip, Message) { strip.On_MoveFeature_Clicked(); }},
    };
    // clang-format on
    static constexpr CodeIndex index(rows);
    const Incoming& row = rows[index.candidate(code)];
    return row.code == code ? &row : nullptr;
}

void Canvas_Tool_Strip::recMsgFromManager(PluginMetaData message)
{
    if (const Incoming* const incoming = Incoming::find(message.code)) {
        incoming->act(*this, message);
    }
}

void Canvas_Tool_Strip::checkAndRun(Tool tool, void (Canvas_Tool_Strip::*handler)())
{
    button(tool)->setChecked(true);
    (this->*handler)();
}

void Canvas_Tool_Strip::selectByNet(const PluginMetaData& message)
{
    button(Tool::SelectByNet)->setChecked(true);
    On_SelectPolyline_Clicked(message.code);
}

void Canvas_Tool_Strip::showAddFeatureActive()
{
    if (!button(Tool::AddFeature)->isChecked()) {
        SetAllButtonchecked(false, button(Tool::AddFeature));
    }
}

void Canvas_Tool_Strip::setJobAndStep(const PluginMetaData& message)
{
    m_job = payloadText(message, QStringLiteral("JobName"));
    m_step = payloadText(message, QStringLiteral("Step"));
}

void Canvas_Tool_Strip::update_job_info(const PluginMetaData& message)
{
    m_job = payloadText(message, QStringLiteral("JobName"));
    m_step = payloadText(message, QStringLiteral("StepName"));
    if (!m_job.empty() && !m_step.empty()) {
        Q_EMIT send_job_info(m_job, m_step);
    }
}

void Canvas_Tool_Strip::get_job_name(const PluginMetaData& message)
{
    if (const auto* const job = passedObject<std::string>(message)) {
        m_job = *job;
    }
}

void Canvas_Tool_Strip::set_symbolLE_text(const PluginMetaData& message)
{
    if (const auto* const symbols = passedObject<std::map<int, std::string>>(message)) {
        Q_EMIT send_Symbol_Info(*symbols);
    }
}

void Canvas_Tool_Strip::send_AttributePoint_Info(const PluginMetaData& message)
{
    if (const auto* const attributes = passedObject<std::map<std::string, std::string>>(message)) {
        std::vector<std::pair<std::string, std::string>> list;
        list.reserve(attributes->size());  // else the map is walked once only to be counted
        for (const auto& attribute : *attributes) {
            list.emplace_back(attribute);
        }
        Q_EMIT send_Attribute_Info(std::move(list));
    }
}
