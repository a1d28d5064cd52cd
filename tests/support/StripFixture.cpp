#include "StripFixture.h"

#include "plugin/PluginEntry.h"

StripFixture::StripFixture()
{
    window.setLayout(strip);
}

QToolButton* StripFixture::button(Tool tool) const
{
    return qobject_cast<QToolButton*>(strip->itemAt(int(tool))->widget());
}

QList<Tool> StripFixture::checked() const
{
    QList<Tool> tools;
    for (const Tool tool : allTools()) {
        if (strip->isToolButtonChecked(int(tool))) {
            tools.append(tool);
        }
    }
    return tools;
}

void StripFixture::receive(int code, const QVariantMap& payload, qint64 extra) const
{
    PluginMetaData message(QStringLiteral("Sibling.dll"), QStringLiteral("Anything.dll"));
    message.code = code;
    message.payload = payload;
    message.extra = extra;
    recMsgFromManager(strip, message);
}

QList<Tool> allTools()
{
    QList<Tool> tools;
    for (int index = 0; index < ToolTable::toolCount; ++index) {
        tools.append(Tool(index));
    }
    return tools;
}

char* toString(Tool tool)
{
    return qstrdup(ToolTable::row(tool).objectName);
}
