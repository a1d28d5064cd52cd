#pragma once

#include "plugin/MessageCodes.h"

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

#define PICTURE(file) "url(:/Canvas_Tool_Strip/Resources/" file ");"
#define SHEET(property, image, checkedImage)            \
    QStringLiteral("QToolButton{" property ":" PICTURE( \
        image) "}"                                      \
               "QToolButton::checked{" property ":" PICTURE(checkedImage) "}")

/// The tools, in grid order.
inline const std::vector<PlainTool>& plainTools()
{
    namespace Sent = MessageCodes::Sent;
    static const std::vector<PlainTool> tools = {
#include "PlainToolRows.inc"  // made from tests/contract/tools.txt
    };
    return tools;
}

/// The sheets of Select By Net: polyline, layer net, board net.
inline const std::array<QString, 3>& plainNetSheets()
{
    static const std::array<QString, 3> sheets = {
        SHEET("background-image", "Net selection2.jpg", "Net selection1.jpg") +
            QStringLiteral("border:2px solid red"),
        SHEET("background-image", "Net selection6.jpg", "Net selection5.jpg"),
        SHEET("background-image", "Net selection4.jpg", "Net selection3.jpg") +
            QStringLiteral("border:2px solid green"),
    };
    return sheets;
}

#undef SHEET
#undef PICTURE
