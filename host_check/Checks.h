#pragma once

#include <QString>

class Canvas_Tool_Strip;
class QWidget;
class Report;

/// What the host is set to and where it is used. None of it can be set through its interface.
struct Situation {
    bool isMetric = false;
    QString job;  ///< empty: none is known
    QString step;
    QWidget* context = nullptr;  ///< the widget that holds the module
    Canvas_Tool_Strip* strip = nullptr;
};

void checkPluginManager(Report& report);
void checkCamApi(Report& report, const Situation& situation);
void checkUiApi(Report& report, const Situation& situation);
void checkLineEdit(Report& report, const Situation& situation);
/// The attribute window and the measure popup, and what is true of all four widgets.
void checkCommonWidgets(Report& report, const Situation& situation);
/// The windows from which a name is chosen.
void checkChoosers(Report& report, const Situation& situation);
