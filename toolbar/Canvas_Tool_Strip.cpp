#include "toolbar/Canvas_Tool_Strip.h"

#include "plugin/Guard.h"

#include <ui_api.h>

#include <QToolButton>

namespace {

constexpr int columns = 4;
constexpr int buttonSize = 40;

/// The tool tip of a button, and what a screen reader says.
void nameTool(QToolButton* button, const QString& name)
{
    if (button) {
        button->setToolTip(name);
        button->setAccessibleName(name);
    }
}

void applyStart(QToolButton* button, ToolTable::Start start)
{
    if (start != ToolTable::Start::Untouched) {
        button->setEnabled(start == ToolTable::Start::Enabled);
    }
}

}  // namespace

Canvas_Tool_Strip::Canvas_Tool_Strip(QWidget* parent) : m_parent(parent)
{
    if (m_parent) {
        m_parent->setFocusPolicy(Qt::NoFocus);
        connect(m_parent, &QObject::destroyed, this, &Canvas_Tool_Strip::forgetParent);
    }
    createButtons();
    for (int which = 0; which < ToolTable::menuCount; ++which) {
        const ToolTable::Menu& menu = ToolTable::menus()[which];
        variantOf(static_cast<ToolMenu>(which)) = &*menu.entries.front().variant;
        button(menu.owner)->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(button(menu.owner), SIGNAL(customContextMenuRequested(QPoint)), this,
                menu.openSlot);
    }
    SetAllButtonchecked(false, button(Tool::AreaZoom));
}

Canvas_Tool_Strip::~Canvas_Tool_Strip() = default;

void Canvas_Tool_Strip::createButtons()
{
    // Asked first: a host that throws leaves no button behind.
    const bool isEqVisible = ZENTRA::UIAPI::getEQVisible();
    for (const ToolTable::Row& row : ToolTable::rows()) {
        const int index = m_buttons.size();
        // The layout gives the others their parent when the host places it.
        auto* const tool = new QToolButton(index == 0 ? m_parent : nullptr);
        tool->setObjectName(QLatin1String(row.objectName));
        nameTool(tool, tr(row.tip.text, row.tip.note));
        tool->setFixedSize(buttonSize, buttonSize);
        tool->setCheckable(true);
        tool->setAutoRaise(true);  // the pictures bring their own frame
        applyStart(tool, row.start);
        tool->setStyleSheet(ToolTable::styleSheet(row.pictures, row.imageProperty));
        addWidget(tool, index / columns, index % columns);
        m_buttons.append(tool);
        connect(tool, SIGNAL(clicked()), this, row.clickSlot);
    }
    // Only ever hidden: showing a button that has no parent yet would open a window.
    if (!isEqVisible) {
        button(Tool::Eq)->hide();
    }
}

/// If the host never placed the strip, only the button that is the parent's own child gets deleted.
/// If it did, the strip is deleted before the buttons.
void Canvas_Tool_Strip::forgetParent()
{
    m_buttons[static_cast<int>(Tool::AreaZoom)] = nullptr;
}

void Canvas_Tool_Strip::setText()
{
    Q_EMIT language_changed();
    for (int tool = 0; tool < ToolTable::toolCount; ++tool) {
        const ToolTable::Row& row = ToolTable::rows()[tool];
        const ToolTable::Tip tip = row.laterTip.value_or(row.tip);
        if (tip.text) {
            nameTool(m_buttons[tool], tr(tip.text, tip.note));
        }
    }
    retitleMenus();
}

void Canvas_Tool_Strip::change_unit()
{
    QString unit;
    const bool known =
        guarded({"Canvas_Tool_Strip", QT_TRANSLATE_NOOP("Canvas_Tool_Strip", "Information"),
                 "Canvas_Tool_Strip.cpp", __LINE__},
                [&] { unit = ZENTRA::UIAPI::getUnitString(m_parent); });
    if (known) {
        Q_EMIT Current_Unit_Changed(unit == QLatin1String("MM"));
    }
}
