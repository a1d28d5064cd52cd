#include "RandomUser.h"

#include "DemoJobs.h"
#include "Invariants.h"
#include "Refusals.h"
#include "plugin/MessageCodes.h"
#include "plugin/ModuleNames.h"
#include "plugin/PluginEntry.h"

#include <PluginManagerStandIn.h>
#include <QTpluginsManger4CAM.h>
#include <UiApiStandIn.h>

#include <QApplication>
#include <QTest>

#include <utility>

namespace Accepted = MessageCodes::Accepted;

namespace {

using ToolTable::toolCount;

QString nameOfSent(int code)
{
    const char* const name = MessageCodes::Sent::nameOf(code);
    return name ? QString(name) : QStringLiteral("unknown code %1").arg(code);
}

}  // namespace

QString& RandomUser::complaint()
{
    static QString theComplaint;
    return theComplaint;
}

RandomUser::RandomUser(std::optional<int> forbiddenCode)
    : m_window(std::make_unique<QWidget>()), m_forbiddenCode(forbiddenCode)
{
    openDemoJobs();
    CanvasHost::setDisplayUnit(CanvasHost::DisplayUnit::Mil);

    m_strip = static_cast<Canvas_Tool_Strip*>(GetPluginInstance(m_window.get()));
    m_window->setLayout(m_strip);
    m_window->show();
    CanvasHost::addInstance(ModuleNames::toolStrip, m_strip, recMsgFromManager, m_window.get());
    m_recorder.setOnMessage([this](const Recorder::Entry& entry) {
        if (entry.sender != m_window.get()) {
            return;  // what this user sent to the module
        }
        if (entry.message.code == MessageCodes::Sent::AddFeature) {
            greetTheDialog();
        }
        receiveAnswer();
    });
    // A dialog that is created later starts in mil.
    QObject::connect(m_strip, &Canvas_Tool_Strip::Current_Unit_Changed, m_window.get(),
                     [this](bool isMM) { m_isMetric = isMM && dialog(); });
}

RandomUser::~RandomUser()
{
    CanvasHost::removeInstance(m_strip);
    m_recorder.setOnMessage({});
    m_window.reset();
    m_boxes.take();
}

AddFeature* RandomUser::dialog() const
{
    return m_window->findChild<AddFeature*>();
}

QString RandomUser::perform(quint32 number)
{
    m_random.seed(number);
    m_story.clear();
    const AddFeature* const before = dialog();
    m_mayRefuse = before && !Refusals::doubtfulField(*before, m_isMetric).isEmpty();
    act();
    QString found = fault();
    m_recorder.clear();
    return found;
}

QString RandomUser::fault()
{
    if (!complaint().isEmpty()) {
        return std::exchange(complaint(), {});
    }
    int checked = 0;
    for (int tool = 0; tool < toolCount; ++tool) {
        checked += m_strip->isToolButtonChecked(tool);
    }
    m_mayHaveAllTools = m_mayHaveAllTools && checked == toolCount;
    if (checked > 1 && !m_mayHaveAllTools) {
        return QStringLiteral("%1 checked tools").arg(checked);
    }
    QString found = faultOfBoxes();
    if (found.isEmpty() && dialog()) {
        found = faultOfFields();  // the record's own message is checked with the others
    }
    return found.isEmpty() ? faultOfMessages() : found;
}

QString RandomUser::faultOfBoxes()
{
    for (const BoxCatcher::Box& box : m_boxes.take()) {
        const QString words = box.title + ": " + box.text;
        ++m_boxCount;
        if (!Refusals::isKnown(box.title, box.text)) {
            return "an unknown box: " + words;
        }
        if (!m_mayRefuse) {
            return "a box without a reason: " + words;
        }
    }
    return {};
}

QString RandomUser::faultOfFields()
{
    bool isWhole = true;
    for (const Agreement::Finding& finding : m_agreement->look(record())) {
        Looks& looks = m_looks[finding.field];
        switch (finding.result) {
            case Agreement::Result::Holds:
                ++looks.held;
                break;
            case Agreement::Result::Unfinished:
                ++looks.unfinished;
                break;
            case Agreement::Result::Excepted:
                ++looks.excepted;
                break;
            case Agreement::Result::Broken:
                return finding.words;
        }
        isWhole = isWhole && finding.result == Agreement::Result::Holds;
    }
    ++m_steps;
    m_wholeSteps += isWhole;
    return {};
}

QString RandomUser::faultOfMessages()
{
    for (const Recorder::Entry& entry : m_recorder.messages()) {
        if (entry.message.sender == QLatin1String("Sibling.dll")) {
            continue;  // what this user sent to the module
        }
        ++m_sent[entry.message.code];
        if (entry.message.code == m_forbiddenCode) {
            return "the forbidden code " + nameOfSent(entry.message.code);
        }
        if (entry.sender != m_window.get()) {
            return nameOfSent(entry.message.code) + " with a different sender";
        }
        QString found = Invariants::faultOf(entry);
        if (!found.isEmpty()) {
            return found;
        }
    }
    return {};
}

/// The record as the next message would carry it: a DirectionRecord is sent whatever the symbol
/// field shows.
QVariantMap RandomUser::record()
{
    const std::optional<PluginMetaData> answer = std::exchange(m_answer, {});
    QMetaObject::invokeMethod(dialog(), "on_Line_Button_Clicked", Q_ARG(QAbstractButton*, nullptr));
    m_answer = answer;
    return m_recorder.messages().last().message.payload;
}

/// A new dialog takes lengths as mil until it is told.
void RandomUser::greetTheDialog()
{
    m_agreement = std::make_unique<Agreement>(*dialog());
    PluginMetaData unit("Sibling.dll", ModuleNames::toolStrip);
    unit.code = Accepted::UnitChanged;
    QTpluginsManger4CAM::instance()->recMegToPlugin(nullptr, unit);
}

/// What the canvas was told to answer to the next message, within the call.
void RandomUser::receiveAnswer()
{
    if (const std::optional<PluginMetaData> answer = std::exchange(m_answer, {})) {
        m_mayRefuse = m_mayRefuse || answer->code == Accepted::SymbolsPicked;
        deliver(*answer);
    }
}
