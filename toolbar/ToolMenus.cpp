// The right-click menus of Delete Feature, Select By Net and Mark.

#include "plugin/MessageCodes.h"
#include "toolbar/Canvas_Tool_Strip.h"

#include <QAction>
#include <QCursor>
#include <QMenu>
#include <QToolButton>

namespace Sent = MessageCodes::Sent;

/// An entry of a menu.
struct Canvas_Tool_Strip::MenuEntry {
    const char* objectName;
    QString text;
    const char* slot;  ///< SLOT(…) that triggered(bool) is connected to
};

/// A variant of a tool: its pictures, and the mode that goes out in the extra word.
struct Canvas_Tool_Strip::Variant {
    int mode;
    const char* image;
    const char* checkedImage;
};

QMenu* Canvas_Tool_Strip::createMenu(Tool owner, const char* objectName,
                                     std::initializer_list<MenuEntry> entries)
{
    auto* const menu = new QMenu(button(owner));
    menu->setObjectName(QLatin1String(objectName));
    for (const MenuEntry& entry : entries) {
        QAction* const action = menu->addAction(entry.text);
        action->setObjectName(QLatin1String(entry.objectName));
        connect(action, SIGNAL(triggered(bool)), this, entry.slot);
    }
    return menu;
}

void Canvas_Tool_Strip::On_DeleteFeat_customContextMenuRequested(QPoint /*pos*/)
{
    if (!m_deleteMenu) {
        // A child of Select By Net, like the net menu: deliberate.
        m_deleteMenu = createMenu(
            Tool::SelectByNet, "m_pDeleteMenu",
            {{"m_pDeleteFeatureAct", tr("Delete Feature"), SLOT(on_m_delete_feature_clicked())},
             {"m_pDeleteToIntersectionAct", tr("Delete to Intersection"),
              SLOT(on_m_delete_to_intersection_clicked())}});
    }
    m_deleteMenu->exec(QCursor::pos());
}

void Canvas_Tool_Strip::On_SelectPolyline_customContextMenuRequested(QPoint /*pos*/)
{
    if (!m_netMenu) {
        m_netMenu = createMenu(Tool::SelectByNet, "m_pNetMenu",
                               {{"m_pSelectLayerNetAct", tr("Select Layer Net"),
                                 SLOT(On_pSelect_layer_net_triggered())},
                                {"m_pSelectBoardNetAct", tr("Select Board Net"),
                                 SLOT(On_pSelect_board_net_triggered())},
                                {"m_pSelectPolylineAct", tr("Select Polyline"),
                                 SLOT(On_Select_polyline_triggered())}});
    }
    m_netMenu->exec(QCursor::pos());
}

void Canvas_Tool_Strip::on_mark_customContextMenuRequested(QPoint /*pos*/)
{
    if (!m_markMenu) {
        m_markMenu =
            createMenu(Tool::Mark, "m_pMarkMenu",
                       {{"m_pMarkOrthogonalAct", tr("Mark Orthogonal"),
                         SLOT(on_m_mark_horizontalandvertical_clicked())},
                        {"m_pMarkPointToPointAct", tr("Mark Point to Point"),
                         SLOT(on_m_mark_point2point_clicked())},
                        {"m_pMarkSettingAct", tr("Setting"), SLOT(on_m_mark_setting_clicked())}});
    }
    m_markMenu->exec(QCursor::pos());
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
