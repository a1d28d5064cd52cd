#pragma once

#include <QString>

#include <string>
#include <utility>
#include <vector>

class Canvas_Tool_Strip;
class QWidget;
class Report;

/// What the host is set to and where it is used. None of it can be set through its interface.
struct Situation {
    bool isMetric = false;
    QString job;  ///< empty: none is known
    QString step;
    /// Attributes that the job knows, name and value; two at least, or none are known.
    std::vector<std::pair<std::string, std::string>> attributes;
    QWidget* context = nullptr;          ///< the widget that holds the module
    Canvas_Tool_Strip* strip = nullptr;  ///< null: the host let none be made
};

void checkManager(Report& report);
/// Symbols, special symbols and fonts of the job, conversions of names.
void checkNames(Report& report, const Situation& situation);
/// The unit, and what is legal in it.
void checkUnits(Report& report, const Situation& situation);
void checkLegal(Report& report, const Situation& situation);
void checkLineEdit(Report& report, const Situation& situation);
/// The attribute window and the measure popup, and what is true of all windows.
void checkWindows(Report& report, const Situation& situation);
/// The windows from which a name is chosen.
void checkChoosers(Report& report, const Situation& situation);
