#pragma once

#include "PlainRecord.h"
#include "PlainStrip.h"

#include <PluginMetaData.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

class Grc_Tbe_measurepopup;
class QLineEdit;

/// Floor of the incoming messages: a plain strip, and one switch over the codes behind a function
/// pointer.
class PlainSwitch : public QObject {
    Q_OBJECT
public:
    PlainSwitch(QWidget* panel, Receiver& receiver);

    PlainStrip* strip() const { return m_strip; }
    /// What Add Feature opens, checks and resends; null until then.
    void setDialog(QWidget* dialog, QLineEdit* symbol, PlainRecord* record);

    /// The entry point; `instance` is a PlainSwitch.
    static void receive(void* instance, PluginMetaData message);

Q_SIGNALS:
    void attributesPicked(std::vector<std::pair<std::string, std::string>> attributes);
    void unitChanged(bool isMetric);
    void userSymbolsChanged();
    void languageChanged();
    void symbolsPicked(std::map<int, std::string> symbols);
    void jobOpened(const std::string& job, const std::string& step);

private:
    void handle(const PluginMetaData& message);
    void handleData(const PluginMetaData& message);
    void activate(int index);
    void selectByNet(int code, int sheet);
    void measure();
    void addFeature();

    QWidget* m_panel;
    Receiver& m_receiver;
    PlainStrip* m_strip;
    QWidget* m_dialog = nullptr;
    QLineEdit* m_symbol = nullptr;
    PlainRecord* m_record = nullptr;
    Grc_Tbe_measurepopup* m_popup = nullptr;
    std::string m_job;
    std::string m_step;
    int m_netMode = 0;
};
