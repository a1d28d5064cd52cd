#include "window/ModulePlace.h"

#include <PluginManagerStandIn.h>

#include <QLayout>
#include <QVBoxLayout>
#include <QWidget>

ModulePlace::ModulePlace(const QString& moduleName, QWidget* holder)
    : m_moduleName(moduleName), m_holder(holder)
{
}

ModulePlace::~ModulePlace()
{
    clear();
}

bool ModulePlace::fill(const QString& directory, QString* error)
{
    clear();
    m_panel = new QWidget(m_holder);
    m_panel->setObjectName(m_holder->objectName() + QStringLiteral("Panel"));
    // A module is a layout to be placed, or a widget.
    m_instance = CanvasHost::loadModule(m_moduleName, directory, m_panel, error);
    auto* const object = static_cast<QObject*>(m_instance);
    if (auto* const layout = qobject_cast<QLayout*>(object)) {
        m_panel->setLayout(layout);
        m_holder->layout()->addWidget(m_panel);
        m_holder->layout()->setAlignment(m_panel, Qt::AlignTop | Qt::AlignLeft);
    } else if (auto* const widget = qobject_cast<QWidget*>(object)) {
        auto* const around = new QVBoxLayout(m_panel);
        around->setContentsMargins(0, 0, 0, 0);
        around->addWidget(widget);
        m_holder->layout()->addWidget(m_panel);
    } else {
        if (object) {
            *error = QStringLiteral("%1: is neither a layout nor a widget").arg(m_moduleName);
        }
        clear();
        return false;
    }
    m_panel->show();
    return true;
}

void ModulePlace::clear()
{
    CanvasHost::removeInstance(m_instance);
    m_instance = nullptr;
    delete m_panel;
}
