#include "Checks.h"
#include "Report.h"

#include <QTpluginsManger4CAM.h>

void checkPluginManager(Report& report)
{
    QTpluginsManger4CAM* manager = nullptr;
    const QString instance = QStringLiteral("QTpluginsManger4CAM::instance()");
    report.run(instance, [&] {
        manager = QTpluginsManger4CAM::instance();
        report.expect(instance + QStringLiteral(" is there"), true, manager != nullptr);
        report.expect(instance + QStringLiteral(" is always the same"), true,
                      manager == QTpluginsManger4CAM::instance());
    });
    if (!manager) {
        report.untried(QStringLiteral("recMegToPlugin()"), QStringLiteral("there is no manager"));
        return;
    }

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
