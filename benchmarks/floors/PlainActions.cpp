#include "PlainActions.h"

#include "Canvas.h"
#include "PlainTools.h"
#include "plugin/ModuleNames.h"

#include <QAction>
#include <QActionGroup>
#include <QToolBar>

#include <utility>

PlainActions::PlainActions(Receiver& receiver)
{
    auto* const bar = addToolBar(QString());
    auto* const group = new QActionGroup(this);
    group->setExclusive(true);
    for (const PlainTool& tool : plainTools()) {
        QAction* const action = bar->addAction(tr(tool.tip, tool.note));
        action->setCheckable(true);
        group->addAction(action);
        m_actions.append(action);
        connect(action, &QAction::triggered, this, [&receiver, code = tool.code] {
            PluginMetaData message(ModuleNames::toolStrip, ModuleNames::viewer);
            message.code = code;
            receiver.receive(std::move(message));
        });
    }
}
