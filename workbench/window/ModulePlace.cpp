#include "window/ModulePlace.h"

#include <FileError.h>
#include <PluginManagerStandIn.h>

#include <QCoreApplication>
#include <QLayout>
#include <QVBoxLayout>
#include <QWidget>

#include <memory>

ModulePlace::ModulePlace(const QString& moduleName, QWidget* holder)
    : m_moduleName(moduleName), m_holder(holder)
{
}

ModulePlace::~ModulePlace()
{
    clear();
}

void ModulePlace::fill(const QString& directory)
{
    clear();
    auto panel = std::make_unique<QWidget>(m_holder);
    panel->setObjectName(m_holder->objectName() + QStringLiteral("Panel"));
    m_instance = CanvasHost::loadModule(m_moduleName, directory, panel.get());
    m_panel = panel.release();
    // A module is a layout to be placed, or a widget.
    if (auto* const layout = qobject_cast<QLayout*>(instance())) {
        m_panel->setLayout(layout);
        m_holder->layout()->addWidget(m_panel);
        m_holder->layout()->setAlignment(m_panel, Qt::AlignTop | Qt::AlignLeft);
    } else if (auto* const widget = qobject_cast<QWidget*>(instance())) {
        auto* const around = new QVBoxLayout(m_panel);
        around->setContentsMargins(0, 0, 0, 0);
        around->addWidget(widget);
        m_holder->layout()->addWidget(m_panel);
    } else {
        clear();
        throw CanvasHost::FileError{
            m_moduleName, 0,
            QCoreApplication::translate("FileErrors", "is neither a layout nor a widget")};
    }
    m_panel->show();
}

void ModulePlace::clear()
{
    CanvasHost::removeInstance(m_instance);
    m_instance = nullptr;
    delete m_panel;
}
