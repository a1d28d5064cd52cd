#include "PlainTools.h"

#include "plugin/MessageCodes.h"

namespace Sent = MessageCodes::Sent;

#define PICTURE(file) "url(:/Canvas_Tool_Strip/Resources/" file ");"
#define SHEET(property, image, checkedImage)            \
    QStringLiteral("QToolButton{" property ":" PICTURE( \
        image) "}"                                      \
               "QToolButton::checked{" property ":" PICTURE(checkedImage) "}")

const std::vector<PlainTool>& plainTools()
{
    static const std::vector<PlainTool> tools = {
#include "PlainToolRows.inc"  // made from tests/contract/tools.txt
    };
    return tools;
}

const std::array<QString, 3>& plainNetSheets()
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
