#include "messages/HostState.h"

#include "plugin/ExtraWord.h"
#include "plugin/MessageCodes.h"
#include "plugin/ModuleNames.h"
#include "plugin/PayloadKeys.h"

#include <CamApiStandIn.h>
#include <PluginManagerStandIn.h>
#include <QTpluginsManger4CAM.h>

#include <QWidget>

#include <type_traits>

namespace Accepted = MessageCodes::Accepted;

namespace {

QMap<QString, QVariant> jobPayload(const QString& job, const QString& stepKey, const QString& step)
{
    return {{PayloadKeys::jobName, job}, {stepKey, step}};
}

}  // namespace

HostState::HostState(QWidget* window) : QObject(window), m_window(window) {}

void HostState::send(const HostMessage& message)
{
    sendTo(ModuleNames::toolStrip, message);
}

void HostState::sendTo(const QString& module, const HostMessage& message)
{
    PluginMetaData envelope(message.sender.isEmpty() ? CanvasHost::hostName : message.sender,
                            module);
    envelope.code = message.code;
    envelope.payload = message.payload;
    envelope.extra = std::visit(
        [](const auto& extra) -> qint64 {
            if constexpr (std::is_same_v<std::decay_t<decltype(extra)>, qint64>) {
                return extra;
            } else {
                return ExtraWord::pointingAt(extra);
            }
        },
        message.extra);
    QTpluginsManger4CAM::instance()->recMegToPlugin(m_window, envelope);
}

void HostState::sendSample(int code)
{
    switch (code) {
        case Accepted::JobOpened:
            announceJob();
            break;
        case Accepted::JobAndStep:
            send({code, jobPayload(m_job, PayloadKeys::step, m_step), 0});
            break;
        case Accepted::JobName:
            send({code, {}, m_job.toStdString()});
            break;
        case Accepted::SymbolsPicked:
            send({code, {}, HostMessage::Symbols{{1, "r20"}}});
            break;
        case Accepted::AttributesPicked:
            send({code, {}, HostMessage::Attributes{{".drill", "via"}}});
            break;
        default:
            send({code, {}, 0});
    }
}

void HostState::openStep(const QString& job, const QString& step)
{
    if (!CanvasHost::setCurrentJob(job.toStdString())) {
        return;
    }
    const auto& steps = CanvasHost::currentJob()->steps;
    const bool jobChanged = job != m_job;
    m_job = job;
    m_step = step.isEmpty() && !steps.empty() ? QString::fromStdString(steps.front()) : step;
    if (jobChanged) {
        sendSample(Accepted::JobName);
    }
    announceJob();
    if (!jobChanged) {
        sendSample(Accepted::JobAndStep);
    }
    Q_EMIT stepOpened(m_job, m_step);
}

void HostState::closeJob()
{
    m_job.clear();
    m_step.clear();
}

void HostState::announceJob()
{
    const HostMessage opened{Accepted::JobOpened, jobPayload(m_job, PayloadKeys::stepName, m_step),
                             0};
    send(opened);
    sendTo(ModuleNames::viewer, opened);
    sendTo(ModuleNames::jobTree, opened);
}

void HostState::setUnit(CanvasHost::DisplayUnit unit)
{
    CanvasHost::setDisplayUnit(unit);
    send({Accepted::UnitChanged, {}, 0});
}
