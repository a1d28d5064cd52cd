// The right-click menus of Delete Feature, Select By Net and Mark.

#include "plugin/MessageCodes.h"
#include "toolbar/Canvas_Tool_Strip.h"

#include <QAction>
#include <QCursor>
#include <QMenu>
#include <QToolButton>

namespace Sent = MessageCodes::Sent;

/// A variant of a tool: its pictures, and the mode that goes out in the extra word.
struct Canvas_Tool_Strip::Variant {
    int mode;
    const char* image;
    const char* checkedImage;
};

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

void Canvas_Tool_Strip::activateVariant(Tool tool, const Variant& variant)
{
    button(tool)->setStyleSheet(ToolTable::styleSheet(variant.image, variant.checkedImage));
    activate(tool, variant.mode);
}

void Canvas_Tool_Strip::on_m_delete_feature_clicked()
{
    m_deleteMode = 0;
    activateVariant(Tool::DeleteFeature, {m_deleteMode, "delete1-gry.jpg", "delete1-gre.jpg"});
}

void Canvas_Tool_Strip::on_m_delete_to_intersection_clicked()
{
    m_deleteMode = 1;
    activateVariant(Tool::DeleteFeature, {m_deleteMode, "delete2-gry.jpg", "delete2-gre.jpg"});
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
    m_markMode = 0;
    activateVariant(Tool::Mark, {m_markMode, "markgry.png", "markgre.png"});
}

void Canvas_Tool_Strip::on_m_mark_point2point_clicked()
{
    m_markMode = 1;
    activateVariant(Tool::Mark, {m_markMode, "xie_grey.png", "xie_green.png"});
}

void Canvas_Tool_Strip::on_m_mark_setting_clicked()
{
    send(Sent::MarkSettings);
}
