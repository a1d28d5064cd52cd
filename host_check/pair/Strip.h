#pragma once

#include "Driver.h"
#include "plugin/PluginEntry.h"

#include <QLibrary>

#include <memory>

class Dialog;

/// What the program is told.
struct PairOptions {
    QString module;
    bool isMetric = false;
    QString job;
    QString step;
    QString switchUnit;         ///< empty: none
    QStringList hostLibraries;  ///< that stay loaded when the module goes, as in a host
};

/// The module in a window of its own, from opening to unloading.
class Strip {
public:
    Strip(Driver& driver, const PairOptions& options);

    void run();

private:
    bool open();
    bool create();
    void keepHostLibraries();
    void deliver(int code, const QMap<QString, QVariant>& payload = {});
    void tryPictures();
    void tryTools();
    void tryMenus();
    void tryMeasure();
    void tryDialog();
    void tryUnits(Dialog& dialog);
    void judgeChooser(const QString& symbol, const QString& inOtherUnit);
    void switchUnit(bool isMetric);
    void end();

    Driver& m_driver;
    const PairOptions m_options;
    QLibrary m_library;
    decltype(&GetPluginInstance) m_create = nullptr;
    decltype(&recMsgFromManager) m_deliver = nullptr;
    std::unique_ptr<QWidget> m_window = std::make_unique<QWidget>();
    void* m_strip = nullptr;
};
