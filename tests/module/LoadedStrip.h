#pragma once

#include "FindChild.h"
#include "plugin/ModuleNames.h"

#include <PluginManagerStandIn.h>

#include <QLayout>
#include <QTest>
#include <QToolButton>
#include <QWidget>

/// A host's window with a strip of the built library in it. The strip is removed from the manager
/// before it is deleted.
struct LoadedStrip {
    QWidget window;
    void* instance =
        CanvasHost::loadModule(ModuleNames::toolStrip, QStringLiteral(MODULE_DIR), &window);

    LoadedStrip()
    {
        window.setLayout(qobject_cast<QLayout*>(static_cast<QObject*>(instance)));
        window.show();
    }
    ~LoadedStrip() { CanvasHost::removeInstance(instance); }

    QToolButton& tool(const char* name) const
    {
        return findNamed<QToolButton>(window, QLatin1String(name));
    }
    bool isChecked(const char* name) const { return tool(name).isChecked(); }
    void click(const char* name) const { QTest::mouseClick(&tool(name), Qt::LeftButton); }
    /// Null until it is opened.
    QWidget* dialog() const { return window.findChild<QWidget*>("AddFeature"); }
};
