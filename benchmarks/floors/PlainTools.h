#pragma once

#include <QString>

#include <array>
#include <vector>

/// What a plain button needs to look and act like a tool; everything is prepared in advance.
struct PlainTool {
    QString name;
    const char* tip;
    const char* note;  ///< disambiguation of the tip; null: none
    QString sheet;
    bool enabled;
    int code;
};

/// The tools, in grid order.
const std::vector<PlainTool>& plainTools();

/// The sheets of Select By Net: polyline, layer net, board net.
const std::array<QString, 3>& plainNetSheets();
