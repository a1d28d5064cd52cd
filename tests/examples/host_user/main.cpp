// Calls something in each library of a host.

#include <PluginMetaData.h>
#include <QTpluginsManger4CAM.h>
#include <cam_api.h>
#include <common_widgets.h>
#include <ui_api.h>

#include <QApplication>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QTpluginsManger4CAM::instance()->recMegToPlugin(nullptr, PluginMetaData("A.dll", "B.dll"));
    ZENTRA::API::symbol_type type{};
    int a = 0;
    int b = 0;
    const bool isKnown = ZENTRA::API::identify_symbol("r10", type, a, b, true);
    const bool isMetric = ZENTRA::UIAPI::getUnit(nullptr) != 0;
    QWidget parent;
    const Widget_listpopup popup(17, "job", &parent);
    return isKnown && isMetric && popup.isWindow() ? EXIT_SUCCESS : EXIT_FAILURE;
}
