#pragma once

#include "Recorder.h"
#include "toolbar/Canvas_Tool_Strip.h"

#include <QLayoutItem>
#include <QToolButton>
#include <QWidget>

/// A tool strip placed in a widget, with a recording canvas and job tree.
struct StripFixture {
    Recorder recorder;
    QWidget panel;
    Canvas_Tool_Strip* strip = new Canvas_Tool_Strip(&panel);

    StripFixture() { panel.setLayout(strip); }

    QToolButton* button(int index) const
    {
        return qobject_cast<QToolButton*>(strip->itemAt(index)->widget());
    }

    /// The indices of the checked tools.
    QList<int> checked() const
    {
        QList<int> indices;
        for (int index = 0; index < ToolTable::toolCount; ++index) {
            if (strip->isToolButtonChecked(index)) {
                indices.append(index);
            }
        }
        return indices;
    }

    void receive(int code, const QMap<QString, QVariant>& payload = {}, qint64 extra = 0) const
    {
        PluginMetaData message(QStringLiteral("Sibling.dll"), QStringLiteral("Anything.dll"));
        message.code = code;
        message.payload = payload;
        message.extra = extra;
        strip->recMsgFromManager(message);
    }
};
