#include "Checks.h"
#include "Report.h"

#include <QTpluginsManger4CAM.h>

void checkPluginManager(Report& report)
{
    auto* const manager = QTpluginsManger4CAM::instance();
    if (!report.expect(QStringLiteral("QTpluginsManger4CAM::instance() is there"), true,
                       manager != nullptr)) {
        return;
    }
    report.expect(QStringLiteral("QTpluginsManger4CAM::instance() is always the same"), true,
                  manager == QTpluginsManger4CAM::instance());

    // The sender pointer may no longer be a widget: it is compared, never followed.
    int noWidget = 0;
    for (void* const sender : {static_cast<void*>(&noWidget), static_cast<void*>(nullptr)}) {
        const QString what = QStringLiteral("recMegToPlugin() to a module that is not loaded, %1")
                                 .arg(sender ? "sent by no widget" : "without a sender");
        report.run(what, [&] {
            PluginMetaData message(QString::fromLatin1("Canvas_Tool_Strip.dll"),
                                   QString::fromLatin1("Canvas_No_Such_Module.dll"));
            message.code = 1;
            manager->recMegToPlugin(sender, message);
        });
    }
}
