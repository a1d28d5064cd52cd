// What each message of the tool strip and of the host does on the canvas.

#include "board/Brush.h"
#include "plugin/ExtraWord.h"
#include "plugin/MessageCodes.h"
#include "plugin/ModuleNames.h"
#include "plugin/PayloadKeys.h"
#include "shared/Named.h"
#include "viewer/FileActions.h"
#include "viewer/Inspector.h"
#include "viewer/ToolSet.h"
#include "viewer/ViewerPane.h"
#include "viewer/tools/PlaceTool.h"
#include "viewer/tools/ViewTools.h"

#include <CommonWidgetsStandIn.h>
#include <PluginManagerStandIn.h>
#include <QTpluginsManger4CAM.h>
#include <TimeToWrite.h>

#include <QDateTime>
#include <QMessageBox>
#include <QPushButton>

namespace Sent = MessageCodes::Sent;
namespace Accepted = MessageCodes::Accepted;

void ViewerPane::receive(const PluginMetaData& message)
{
    switch (message.code) {
        case Sent::Record:
            takeRecord(message);
            break;
        case Sent::DirectionRecord:
            takeDirection(message);
            break;
        case Sent::AttributeMap:
            takeAttributes(message);
            break;
        case Sent::Fill:
            if (m_place) {
                m_place->fill();
                m_canvas.refresh();
            }
            break;
        case Sent::SelectSymbol:
            startPicking(tr("Click a feature to take its symbol."), &ViewerPane::sendSymbol);
            break;
        case Sent::SelectFromEditor:
            startPicking(tr("Click a feature to take its attributes."),
                         &ViewerPane::sendAttributes);
            break;
        case Sent::DialogsClosed:
            startTool(m_tool, m_mode);  // cancels what was started or asked for
            break;
        case Sent::MarkSettings:
            m_canvas.say(tr("This canvas has no settings for marks."));
            break;
        case Accepted::JobOpened:
            openStep(message);
            break;
        case Sent::Unset:
            startTool(Sent::Unset, 0);  // unknown mode: ends the previous tool, too
            break;
        default:
            followTool(message);
    }
    showTool();
    if (message.code == Sent::AddFeature) {
        // The dialog was made a moment ago and does not know in which unit the user works.
        send(Accepted::UnitChanged);
    }
}

void ViewerPane::takeRecord(const PluginMetaData& message)
{
    m_inspector->showRecord(message);
    m_record = message.payload;
    // The tool announces itself only once; later its record starts the drawing.
    const bool wasOther = m_tool != Sent::AddFeature;
    PlaceTool* const place = m_place ? m_place : startPlacing();
    if (wasOther) {
        // The dialog was used while the strip showed another tool.
        send(Accepted::AddFeatureActive);
    }
    place->setBrush(Pcb::readBrush(m_record, m_attributes));
    m_canvas.refresh();
}

void ViewerPane::takeDirection(const PluginMetaData& message)
{
    m_inspector->showRecord(message);
    m_record = message.payload;
    if (m_place) {
        m_place->setDirection(Pcb::readBrush(m_record));
        m_canvas.refresh();
    }
}

void ViewerPane::takeAttributes(const PluginMetaData& message)
{
    const auto* const map = ExtraWord::object<std::map<std::string, std::string>>(message.extra);
    if (!map) {
        return;
    }
    QMap<QString, QVariant> shown;
    m_attributes.clear();
    for (const auto& [name, value] : *map) {
        m_attributes.insert(QString::fromStdString(name), QString::fromStdString(value));
        shown.insert(QString::fromStdString(name), QString::fromStdString(value));
    }
    m_inspector->showAttributes(shown);
    if (m_place) {
        m_place->setBrush(Pcb::readBrush(m_record, m_attributes));
        m_canvas.refresh();
    }
}

bool ViewerPane::mayMakeStrip()
{
    QStringList losses;
    if (!m_record.isEmpty()) {
        losses.append(tr("The entries in Add Feature are lost."));
    }
    if (m_canvas.tool() && m_canvas.tool()->isBegun()) {
        losses.append(tr("What has been begun on the board is lost."));
    }
    if (losses.isEmpty() || !m_files->mayAsk()) {
        return true;
    }
    losses.prepend(tr("The edit tools are made anew."));
    QMessageBox box(QMessageBox::Warning, tr("EQ Tool"), losses.join(QLatin1Char('\n')),
                    QMessageBox::Cancel, window());
    box.setObjectName(QStringLiteral("m_pNewStripBox"));
    QPushButton* const goOn =
        named(box.addButton(tr("C&ontinue"), QMessageBox::AcceptRole), "m_pNewStripPB");
    box.setDefaultButton(QMessageBox::Cancel);
    box.exec();
    return box.clickedButton() == goOn;
}

void ViewerPane::stripWasMade()
{
    // A new dialog begins with entries of its own.
    m_record.clear();
    m_attributes.clear();
    startTool(Sent::AreaZoom, 0);
    showTool();
}

void ViewerPane::overhear(int code)
{
    if (code == Accepted::ReleaseAll) {
        startTool(Sent::Unset, 0);
    } else if ((code == Accepted::AddFeatureActive || code == Sent::AddFeatureStarted) &&
               m_tool != Sent::AddFeature) {
        startTool(Sent::AddFeature, 0);
    } else if (code == Accepted::UnitChanged) {
        showLengths();
    }
    showTool();
}

/// What else the tool strip sends announces a tool, known to this canvas or not, or ends one.
void ViewerPane::followTool(const PluginMetaData& message)
{
    if (ToolSet::isEnd(message.code)) {
        startTool(Sent::Unset, 0);
    } else if (Sent::nameOf(message.code)) {
        startTool(message.code, message.extra);
    }
}

/// Cancels what the previous tool was waiting for.
void ViewerPane::startTool(int code, qint64 mode)
{
    m_tool = code;
    m_mode = mode;
    m_place = nullptr;
    m_canvas.say({});
    if (code == Sent::AddFeature) {
        startPlacing()->setBrush(Pcb::readBrush(m_record, m_attributes));
    } else {
        m_canvas.setTool(ToolSet::create(code, m_canvas, mode));
    }
    if (code == Sent::OpenPopView) {
        openSecondView();
    }
}

PlaceTool* ViewerPane::startPlacing()
{
    m_tool = Sent::AddFeature;
    m_mode = 0;
    auto tool = std::make_unique<PlaceTool>(m_canvas);
    const Pcb::Board& board = m_canvas.document().board();
    const QDateTime now = CanvasHost::timeToWrite();
    tool->setSpecialTexts({{"JOB", board.job},
                           {"STEP", board.step},
                           {"LAYER", QStringLiteral("top")},
                           {"DATE", now.date().toString(Qt::ISODate)},
                           {"TIME", now.time().toString(QStringLiteral("HH:mm"))}});
    m_place = tool.get();
    m_canvas.say({});
    m_canvas.setTool(std::move(tool));
    return m_place;
}

void ViewerPane::startMeasuring()
{
    // No message says that the measure tool is active.
    m_tool = Accepted::Measure;
    m_mode = 0;
    m_place = nullptr;
    m_canvas.say({});
    m_canvas.setTool(std::make_unique<MeasureTool>(m_canvas, CanvasHost::reportMeasurement));
    showTool();
}

/// Picking takes one click; then the drawing goes on.
void ViewerPane::startPicking(const QString& hint, void (ViewerPane::*picked)(int))
{
    m_place = nullptr;
    m_canvas.setTool(std::make_unique<PickTool>(m_canvas, hint, [this, picked](int feature) {
        m_canvas.setTool(nullptr);
        (this->*picked)(feature);
        if (!m_canvas.tool()) {
            startTool(m_tool, m_mode);
        }
    }));
}

void ViewerPane::sendSymbol(int feature)
{
    std::map<int, std::string> symbols;
    const QString symbol =
        m_canvas.document().board().features[static_cast<size_t>(feature)].symbol();
    if (!symbol.isEmpty()) {
        symbols[feature] = symbol.toStdString();
    }
    send(Accepted::SymbolsPicked, ExtraWord::pointingAt(symbols));
}

void ViewerPane::sendAttributes(int feature)
{
    std::map<std::string, std::string> attributes;
    const auto picked =
        m_canvas.document().board().features[static_cast<size_t>(feature)].attributes();
    for (auto attribute = picked.begin(); attribute != picked.end(); ++attribute) {
        attributes[attribute.key().toStdString()] = attribute->toStdString();
    }
    send(Accepted::AttributesPicked, ExtraWord::pointingAt(attributes));
}

void ViewerPane::send(int code, qint64 extra)
{
    PluginMetaData message(ModuleNames::viewer, ModuleNames::toolStrip);
    message.code = code;
    message.extra = extra;
    QTpluginsManger4CAM::instance()->recMegToPlugin(m_parent, message);
}

void ViewerPane::askForStep(const QString& job, const QString& step)
{
    PluginMetaData message(ModuleNames::viewer, CanvasHost::hostName);
    message.code = Accepted::JobOpened;
    message.payload = {{PayloadKeys::jobName, job}, {PayloadKeys::stepName, step}};
    QTpluginsManger4CAM::instance()->recMegToPlugin(m_parent, message);
}

void ViewerPane::openStep(const PluginMetaData& message)
{
    m_canvas.openStep(message.payload.value(PayloadKeys::jobName).toString(),
                      message.payload.value(PayloadKeys::stepName).toString());
}
