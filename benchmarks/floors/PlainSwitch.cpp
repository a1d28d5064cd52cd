#include "PlainSwitch.h"

#include "PlainTools.h"
#include "plugin/ExtraWord.h"
#include "plugin/MessageCodes.h"
#include "plugin/ModuleNames.h"
#include "plugin/PayloadKeys.h"

#include <common_widgets.h>
#include <ui_api.h>

#include <QLineEdit>
#include <QToolButton>

namespace Accepted = MessageCodes::Accepted;
namespace Sent = MessageCodes::Sent;

namespace {

enum Index { Zoom, Measure = 2, Add = 4, Delete, Move, Feature = 20, Rectangle, Polygon, Net };

std::string text(const PluginMetaData& message, const QString& key)
{
    return message.payload.value(key).toString().toStdString();
}

}  // namespace

PlainSwitch::PlainSwitch(QWidget* panel, Receiver& receiver)
    : m_panel(panel), m_receiver(receiver), m_strip(new PlainStrip(panel, receiver))
{
}

void PlainSwitch::setDialog(QWidget* dialog, QLineEdit* symbol, PlainRecord* record)
{
    m_dialog = dialog;
    m_symbol = symbol;
    m_record = record;
}

void PlainSwitch::receive(void* instance, PluginMetaData message)
{
    static_cast<PlainSwitch*>(instance)->handle(message);
}

void PlainSwitch::activate(int index)
{
    m_strip->checkOnly(m_strip->buttons()[index]);
    m_strip->send(plainTools()[static_cast<size_t>(index)].code);
}

void PlainSwitch::selectByNet(int code, int sheet)
{
    m_strip->checkOnly(m_strip->buttons()[Net]);
    m_netMode = code;
    m_strip->buttons()[Net]->setStyleSheet(plainNetSheets()[static_cast<size_t>(sheet)]);
    m_strip->send(code);
}

void PlainSwitch::measure()
{
    if (!m_popup) {
        m_popup = new Grc_Tbe_measurepopup(nullptr, m_panel);
    }
    m_popup->raise();
    m_popup->show();
    m_strip->checkOnly(m_strip->buttons()[Measure]);
    m_popup->onMeasureButtonClicked();
}

void PlainSwitch::addFeature()
{
    PluginMetaData message(ModuleNames::toolStrip, ModuleNames::jobTree);
    message.code = Sent::AddFeatureStarted;
    m_receiver.receive(std::move(message));
    m_strip->checkOnly(m_strip->buttons()[Add]);
    m_record->send(m_symbol->text());
    m_dialog->raise();
    m_dialog->show();
}

void PlainSwitch::handle(const PluginMetaData& message)
{
    switch (message.code) {
        case Accepted::ReleaseAll:
            return m_strip->checkOnly(nullptr);
        case Accepted::AreaZoom:
            return activate(Zoom);
        case Accepted::FeatureSelection:
            return activate(Feature);
        case Accepted::RectangleSelection:
            return activate(Rectangle);
        case Accepted::PolygonSelection:
            return activate(Polygon);
        case Accepted::AddFeatureActive:
            if (!m_strip->buttons()[Add]->isChecked()) {
                m_strip->checkOnly(m_strip->buttons()[Add]);
            }
            return;
        case Accepted::SelectPolyline:
            return selectByNet(message.code, 0);
        case Accepted::SelectLayerNet:
            return selectByNet(message.code, 1);
        case Accepted::SelectBoardNet:
            return selectByNet(message.code, 2);
        case Accepted::CheckAndMeasure:
        case Accepted::Measure:
            return measure();
        case Accepted::AddFeature:
            return addFeature();
        case Accepted::DeleteFeature:
            return activate(Delete);
        case Accepted::MoveFeature:
            return activate(Move);
        case Accepted::CloseDialogs:
            return m_strip->send(Sent::DialogsClosed);
        default:
            handleData(message);
    }
}

void PlainSwitch::handleData(const PluginMetaData& message)
{
    switch (message.code) {
        case Accepted::JobAndStep:
            m_job = text(message, PayloadKeys::jobName);
            m_step = text(message, PayloadKeys::step);
            return;
        case Accepted::AttributesPicked: {
            const auto& picked =
                *ExtraWord::object<std::map<std::string, std::string>>(message.extra);
            return attributesPicked({picked.begin(), picked.end()});
        }
        case Accepted::SymbolsPicked:
            return symbolsPicked(*ExtraWord::object<std::map<int, std::string>>(message.extra));
        case Accepted::UserSymbolsChanged:
            return userSymbolsChanged();
        case Accepted::JobName:
            m_job = *ExtraWord::object<std::string>(message.extra);
            return;
        case Accepted::UnitChanged:
            return unitChanged(ZENTRA::UIAPI::getUnitString(m_panel) == QLatin1String("MM"));
        case Accepted::LanguageChanged:
            Q_EMIT languageChanged();
            return m_strip->retranslate();
        case Accepted::JobOpened:
            m_job = text(message, PayloadKeys::jobName);
            m_step = text(message, PayloadKeys::stepName);
            return jobOpened(m_job, m_step);
        default:
            return;
    }
}
