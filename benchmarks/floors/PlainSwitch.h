#pragma once

#include "PlainRecord.h"
#include "PlainStrip.h"
#include "plugin/ExtraWord.h"
#include "plugin/PayloadKeys.h"

#include <common_widgets.h>

#include <QLineEdit>

#include <map>

/// Floor of the incoming messages: a plain strip, what its Add Feature opens, and one switch over
/// the codes behind a function pointer. The panel owns it.
class PlainSwitch : public QObject {
    Q_OBJECT
public:
    PlainSwitch(QWidget* panel, const QMap<QString, QVariant>& entries, Receiver& receiver)
        : QObject(panel),
          m_panel(panel),
          m_receiver(receiver),
          m_strip(new PlainStrip(panel, receiver)),
          m_dialog(new QWidget(panel, Qt::Window)),
          m_symbol(new QLineEdit(m_dialog)),
          m_record(entries, receiver)
    {
        panel->setLayout(m_strip);
    }

    /// The entry point; `instance` is a PlainSwitch.
    static void receive(void* instance, PluginMetaData message)
    {
        static_cast<PlainSwitch*>(instance)->handle(message);
    }

Q_SIGNALS:
    void attributesPicked(std::vector<std::pair<std::string, std::string>> attributes);
    void unitChanged(bool isMetric);
    void userSymbolsChanged();
    void languageChanged();
    void symbolsPicked(std::map<int, std::string> symbols);
    void jobOpened(const std::string& job, const std::string& step);

private:
    void handle(const PluginMetaData& message);

    void check(Tool tool) { m_strip->checkOnly(m_strip->button(tool)); }

    void activate(Tool tool, int code)
    {
        check(tool);
        m_strip->send(code);
    }

    void selectByNet(int code)
    {
        check(Tool::SelectByNet);
        m_netMode = code;
        m_strip->button(Tool::SelectByNet)->setStyleSheet(m_netSheets[code]);
        m_strip->send(code);
    }

    static QMap<int, QString> netSheets()
    {
        QMap<int, QString> sheets;
        for (const ToolTable::MenuEntry& entry : ToolTable::menu(ToolMenu::Net).entries) {
            sheets[entry.variant->code] = ToolTable::styleSheet(entry.variant->pictures) +
                                          QLatin1String(entry.variant->trailingStyle);
        }
        return sheets;
    }

    void measure()
    {
        if (!m_popup) {
            m_popup = new Grc_Tbe_measurepopup(nullptr, m_panel);
        }
        m_popup->raise();
        m_popup->show();
        check(Tool::Measure);
        m_popup->onMeasureButtonClicked();
    }

    void addFeature()
    {
        PluginMetaData message(ModuleNames::toolStrip, ModuleNames::jobTree);
        message.code = MessageCodes::Sent::AddFeatureStarted;
        m_receiver.receive(std::move(message));
        check(Tool::AddFeature);
        m_record.send(m_symbol->text());
        m_dialog->raise();
        m_dialog->show();
    }

    void keepJob(const PluginMetaData& message, const QString& stepKey)
    {
        m_job = message.payload.value(PayloadKeys::jobName).toString().toStdString();
        m_step = message.payload.value(stepKey).toString().toStdString();
    }

    QWidget* m_panel;
    Receiver& m_receiver;
    PlainStrip* m_strip;
    QWidget* m_dialog;
    QLineEdit* m_symbol;
    PlainRecord m_record;
    Grc_Tbe_measurepopup* m_popup = nullptr;
    std::string m_job;
    std::string m_step;
    int m_netMode = 0;
    const QMap<int, QString> m_netSheets = netSheets();
};

inline void PlainSwitch::handle(const PluginMetaData& message)
{
    namespace Accepted = MessageCodes::Accepted;
    namespace Sent = MessageCodes::Sent;
    using Attributes = std::map<std::string, std::string>;
    using Symbols = std::map<int, std::string>;
    // clang-format off
    switch (message.code) {
        case Accepted::ReleaseAll: return m_strip->checkOnly(nullptr);
        case Accepted::AreaZoom: return activate(Tool::AreaZoom, Sent::AreaZoom);
        case Accepted::FeatureSelection: return activate(Tool::FeatureSelection, Sent::FeatureSelection);
        case Accepted::RectangleSelection: return activate(Tool::RectangleSelection, Sent::RectangleSelection);
        case Accepted::PolygonSelection: return activate(Tool::PolygonSelection, Sent::PolygonSelection);
        case Accepted::AddFeatureActive:
            return m_strip->button(Tool::AddFeature)->isChecked() ? void() : check(Tool::AddFeature);
        case Accepted::SelectPolyline:
        case Accepted::SelectLayerNet:
        case Accepted::SelectBoardNet: return selectByNet(message.code);
        case Accepted::CheckAndMeasure:
        case Accepted::Measure: return measure();
        case Accepted::AddFeature: return addFeature();
        case Accepted::DeleteFeature: return activate(Tool::DeleteFeature, Sent::DeleteFeature);
        case Accepted::MoveFeature: return activate(Tool::MoveFeature, Sent::MoveFeature);
        case Accepted::CloseDialogs: return m_strip->send(MessageCodes::Sent::DialogsClosed);
        case Accepted::JobAndStep: return keepJob(message, PayloadKeys::step);
        case Accepted::JobName: m_job = *ExtraWord::object<std::string>(message.extra); return;
        case Accepted::JobOpened:
            keepJob(message, PayloadKeys::stepName);
            return jobOpened(m_job, m_step);
        case Accepted::AttributesPicked: {
            const auto& picked = *ExtraWord::object<Attributes>(message.extra);
            return attributesPicked({picked.begin(), picked.end()});
        }
        case Accepted::SymbolsPicked:
            return symbolsPicked(*ExtraWord::object<Symbols>(message.extra));
        case Accepted::UserSymbolsChanged: return userSymbolsChanged();
        case Accepted::UnitChanged:
            return unitChanged(ZENTRA::UIAPI::getUnitString(m_panel) == QLatin1String("MM"));
        case Accepted::LanguageChanged: Q_EMIT languageChanged(); return m_strip->retranslate();
        default: return;
    }
    // clang-format on
}
