#include "BoxCounter.h"
#include "Checks.h"
#include "Report.h"

#include <QTpluginsManger4CAM.h>

void checkManager(Report& report)
{
    QTpluginsManger4CAM* manager = nullptr;
    const QString instance = QStringLiteral("instance()");
    report.run(Row::ManagerIsOne, instance, [&] {
        manager = QTpluginsManger4CAM::instance();
        report.expect(Row::ManagerIsOne, instance + QStringLiteral(" is there"), true,
                      manager != nullptr);
        report.expect(Row::ManagerIsOne, instance + QStringLiteral(" is the same again"), true,
                      manager == QTpluginsManger4CAM::instance());
    });
    if (!manager) {
        report.untried(Row::ManagerReturns, QStringLiteral("there is no manager"));
        return;
    }

    // The sender pointer may no longer be a widget: it is compared, never followed.
    int noWidget = 0;
    for (void* const sender : {static_cast<void*>(&noWidget), static_cast<void*>(nullptr)}) {
        const QString what = QStringLiteral("a message to a module that is not loaded, %1")
                                 .arg(sender ? "sent by no widget" : "without a sender");
        report.run(Row::ManagerReturns, what, [&] {
            PluginMetaData message(QString::fromLatin1("Canvas_Tool_Strip.dll"),
                                   QString::fromLatin1("Canvas_No_Such_Module.dll"));
            message.code = 1;
            BoxCounter boxes;
            manager->recMegToPlugin(sender, message);
            report.expect(Row::ManagerReturns, what + QStringLiteral(": boxes"), 0, boxes.take());
        });
    }
}
