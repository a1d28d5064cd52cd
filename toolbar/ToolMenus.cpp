// The right-click menus of Delete Feature, Select By Net and Mark.

#include "plugin/MessageCodes.h"
#include "plugin/ToolModes.h"
#include "toolbar/Canvas_Tool_Strip.h"

#include <QAction>
#include <QCursor>
#include <QMenu>
#include <QToolButton>

namespace Sent = MessageCodes::Sent;

QMenu* Canvas_Tool_Strip::createMenu(const ToolTable::Menu& row)
{
    auto* const menu = new QMenu(button(row.parent));
    menu->setObjectName(QLatin1String(row.objectName));
    for (const ToolTable::MenuEntry& entry : row.entries) {
        QAction* const action = menu->addAction(tr(entry.text));
        action->setObjectName(QLatin1String(entry.objectName));
        connect(action, SIGNAL(triggered(bool)), this, entry.slot);
    }
    return menu;
}

void Canvas_Tool_Strip::openMenu(ToolMenu which)
{
    QPointer<QMenu>& menu = m_menus[static_cast<size_t>(which)];
    if (!menu) {
        menu = createMenu(ToolTable::menu(which));
    }
    menu->exec(QCursor::pos());
}

void Canvas_Tool_Strip::retitleMenus()
{
    for (size_t which = 0; which < m_menus.size(); ++which) {
        for (const ToolTable::MenuEntry& entry : ToolTable::menus()[which].entries) {
            if (m_menus[which] && entry.laterText) {
                m_menus[which]
                    ->findChild<QAction*>(QLatin1String(entry.objectName))
                    ->setText(tr(entry.laterText));
            }
        }
    }
}

void Canvas_Tool_Strip::On_DeleteFeat_customContextMenuRequested(QPoint /*pos*/)
{
    openMenu(ToolMenu::Delete);
}

void Canvas_Tool_Strip::On_SelectPolyline_customContextMenuRequested(QPoint /*pos*/)
{
    openMenu(ToolMenu::Net);
}

void Canvas_Tool_Strip::on_mark_customContextMenuRequested(QPoint /*pos*/)
{
    openMenu(ToolMenu::Mark);
}

const ToolTable::Variant*& Canvas_Tool_Strip::variantOf(ToolMenu menu)
{
    return m_variants[static_cast<size_t>(menu)];
}

void Canvas_Tool_Strip::activateVariant(ToolMenu menu)
{
    SetAllButtonchecked(false, button(ToolTable::menu(menu).owner));
    const ToolTable::Variant* const variant = variantOf(menu);
    send(variant ? variant->code : Sent::Unset, variant ? variant->mode : 0);
}

void Canvas_Tool_Strip::chooseVariant(ToolMenu menu, int code, int mode)
{
    const ToolTable::Variant* const variant = ToolTable::variant(menu, code, mode);
    variantOf(menu) = variant;
    if (variant) {
        button(ToolTable::menu(menu).owner)
            ->setStyleSheet(ToolTable::styleSheet(variant->pictures) +
                            QLatin1String(variant->trailingStyle));
    }
    activateVariant(menu);
}

void Canvas_Tool_Strip::on_m_delete_feature_clicked()
{
    chooseVariant(ToolMenu::Delete, Sent::DeleteFeature, DeleteMode::feature);
}

void Canvas_Tool_Strip::on_m_delete_to_intersection_clicked()
{
    chooseVariant(ToolMenu::Delete, Sent::DeleteFeature, DeleteMode::toIntersection);
}

void Canvas_Tool_Strip::On_pSelect_layer_net_triggered()
{
    On_SelectPolyline_Clicked(Sent::SelectLayerNet);
}

void Canvas_Tool_Strip::On_pSelect_board_net_triggered()
{
    On_SelectPolyline_Clicked(Sent::SelectBoardNet);
}

void Canvas_Tool_Strip::On_Select_polyline_triggered()
{
    On_SelectPolyline_Clicked(Sent::SelectPolyline);
}

void Canvas_Tool_Strip::on_m_mark_horizontalandvertical_clicked()
{
    chooseVariant(ToolMenu::Mark, Sent::Mark, MarkMode::orthogonal);
}

void Canvas_Tool_Strip::on_m_mark_point2point_clicked()
{
    chooseVariant(ToolMenu::Mark, Sent::Mark, MarkMode::pointToPoint);
}

void Canvas_Tool_Strip::on_m_mark_setting_clicked()
{
    send(Sent::MarkSettings);
}
