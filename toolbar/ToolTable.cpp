#include "toolbar/ToolTable.h"

#include "plugin/MessageCodes.h"
#include "plugin/ToolModes.h"

#include <QObject>

#include <iterator>

namespace ToolTable {
namespace {

namespace Sent = MessageCodes::Sent;

constexpr Tip keepsItsTip{nullptr, nullptr};
constexpr const char* keepsItsText = nullptr;

// Of tools with variants, at first. Select By Net starts with the pictures of a variant that is not
// its first: deliberate.
constexpr Pictures deletesFeature{"delete1-gry.jpg", "delete1-gre.jpg"};
constexpr Pictures selectsPolyline{"Net selection2.jpg", "Net selection1.jpg"};
constexpr Pictures marksOrthogonal{"markgry.png", "markgre.png"};

// clang-format off
const Row theRows[] = {
    {"m_pAreaZoomTB", {QT_TRANSLATE_NOOP("Canvas_Tool_Strip", "Area Zoom"), nullptr},
     {"Area zoom2.jpg", "Area zoom3.jpg"}, Start::Enabled,
     SLOT(On_AreaZoom_Clicked()), Sent::AreaZoom, Sent::AreaZoom},
    {"m_pOpenPopViewTB", {QT_TRANSLATE_NOOP("Canvas_Tool_Strip", "Open a Popview"), nullptr},
     {"Open a popview-1.jpg", "Open a popview-2.jpg"}, Start::Untouched,
     SLOT(On_OpenPopView_Clicked()), Sent::OpenPopView, Sent::OpenPopView},
    {"m_pMeasureTB", QT_TRANSLATE_NOOP3("Canvas_Tool_Strip", "Measure", "tool_edit"),
     {"ruler.jpg", "ruler1.jpg"}, Start::Enabled,
     SLOT(On_Measure_Clicked()), Sent::Unset, Sent::Unset},
    {"m_pFeatHighLightTB", {QT_TRANSLATE_NOOP("Canvas_Tool_Strip", "Feature HighLight"), nullptr},
     {"Feature highlight-2.jpg", "Feature highlight-3.jpg"}, Start::Untouched,
     SLOT(On_FeatHighLight_Clicked()), Sent::FeatureHighLight, Sent::FeatureHighLight,
     std::nullopt, "background-image", &ModuleNames::bareToolStrip},
    {"m_pAddFeatureTB", {QT_TRANSLATE_NOOP("Canvas_Tool_Strip", "Add Feature"), nullptr},
     {"Add Feature.jpg", "Add Feature1.jpg"}, Start::Enabled,
     SLOT(On_AddFeature_Clicked()), Sent::Unset, Sent::Unset},
    {"m_pDeleteFeatTB", {QT_TRANSLATE_NOOP("Canvas_Tool_Strip", "Delete Feature"), nullptr},
     deletesFeature, Start::Enabled,
     SLOT(On_DeleteFeat_Clicked()), Sent::Unset, Sent::Unset},
    {"m_pMoveFeatureTB", {QT_TRANSLATE_NOOP("Canvas_Tool_Strip", "Move Feature"), nullptr},
     {"Move Feature-1.jpg", "Move Feature-2.jpg"}, Start::Untouched,
     SLOT(On_MoveFeature_Clicked()), Sent::MoveFeature, Sent::MoveFeature},
    {"m_pCopyFeatureTB", {QT_TRANSLATE_NOOP("Canvas_Tool_Strip", "Copy Feature"), nullptr},
     {"Copy feature-1.jpg", "Copy feature-2.jpg"}, Start::Untouched,
     SLOT(On_CopyFeature_Clicked()), Sent::CopyFeature, Sent::CopyFeature},
    {"m_pChangeLAngleTB", {QT_TRANSLATE_NOOP("Canvas_Tool_Strip", "Change Line Angle"), nullptr},
     {"Change line angle1.jpg", "Change line angle2.jpg"}, Start::Enabled,
     SLOT(On_ChangeLAngle_Clicked()), Sent::ChangeLineAngle, Sent::ChangeLineAngleOff},
    {"m_pStretchLineTB", {QT_TRANSLATE_NOOP("Canvas_Tool_Strip", "Stretch Line"), nullptr},
     {"Stretch line3.jpg", "Stretch line4.jpg"}, Start::Enabled,
     SLOT(On_StretchLine_Clicked()), Sent::StretchLine, Sent::StretchLineOff},
    {"m_pRotateFeatureTB", {QT_TRANSLATE_NOOP("Canvas_Tool_Strip", "Rotate"), nullptr},
     {"Rotate feature-grey.jpg", "Rotate feature-grey.jpg"}, Start::Disabled,
     SLOT(On_RotateFeature_Clicked()), Sent::RotateFeature, Sent::RotateFeatureOff},
    {"m_pMirrorFeatureTB", {QT_TRANSLATE_NOOP("Canvas_Tool_Strip", "Mirror"), nullptr},
     {"Mirror feature-grey.jpg", "Mirror feature-grey.jpg"}, Start::Disabled,
     SLOT(On_MirrorFeature_Clicked()), Sent::MirrorFeature, Sent::MirrorFeature},
    {"m_pInvertFeatureTB", {QT_TRANSLATE_NOOP("Canvas_Tool_Strip", "Invert Feature"), nullptr},
     {"Invert feature-3.jpg", "Invert feature-4.jpg"}, Start::Enabled,
     SLOT(On_InvertFeature_Clicked()), Sent::InvertFeature, Sent::InvertFeatureOff},
    {"m_pBreakLineTB", {QT_TRANSLATE_NOOP("Canvas_Tool_Strip", "Break Line"), nullptr},
     {"Break line1.jpg", "Break line2.jpg"}, Start::Enabled,
     SLOT(On_BreakLine_Clicked()), Sent::BreakLine, Sent::BreakLineOff},
    {"m_pDimensionTB", {QT_TRANSLATE_NOOP("Canvas_Tool_Strip", "Rout Dimension Editor"), nullptr},
     {"Rout dimension editor-grey.jpg", "Rout dimension editor-grey.jpg"}, Start::Disabled,
     SLOT(On_Dimension_Clicked()), Sent::RoutDimension, Sent::RoutDimension},
    {"m_pContourEditorTB", {QT_TRANSLATE_NOOP("Canvas_Tool_Strip", "Contour Editor"), nullptr},
     {"Contour editor-grey.jpg", "Contour editor-grey.jpg"}, Start::Disabled,
     SLOT(On_ContourEditor_Clicked()), Sent::ContourEditor, Sent::ContourEditor},
    {"m_pPullLineTB", {QT_TRANSLATE_NOOP("Canvas_Tool_Strip", "Pull Line"), nullptr},
     {"Pull line-grey.jpg", "Pull line-grey.jpg"}, Start::Disabled,
     SLOT(On_PullLine_Clicked()), Sent::PullLine, Sent::PullLine},
    {"m_pMoveJunctionTB", {QT_TRANSLATE_NOOP("Canvas_Tool_Strip", "Move Junction"), nullptr},
     {"Move junction-grey.jpg", "Move junction-grey.jpg"}, Start::Disabled,
     SLOT(On_MoveJunction_Clicked()), Sent::MoveJunction, Sent::MoveJunction},
    {"m_pMoveTripletTB", {QT_TRANSLATE_NOOP("Canvas_Tool_Strip", "Move Triplet(Angle)"), nullptr},
     {"Move triplet1.jpg", "Move triplet2.jpg"}, Start::Enabled,
     SLOT(On_MoveTriplet_Clicked()), Sent::MoveTriplet, Sent::MoveTripletOff},
    {"m_pRerouteTraceTB", {QT_TRANSLATE_NOOP("Canvas_Tool_Strip", "Reroute Trace(Fix Point)"), nullptr},
     {"ReRoute trace1.jpg", "ReRoute trace2.jpg"}, Start::Enabled,
     SLOT(On_RerouteTrace_Clicked()), Sent::RerouteTrace, Sent::RerouteTraceOff},
    {"m_pFeatureSelectionTB", {QT_TRANSLATE_NOOP("Canvas_Tool_Strip", "Feature Selection"), nullptr},
     {"Feature selection1.jpg", "Feature selection2.jpg"}, Start::Enabled,
     SLOT(On_FeatureSelection_Clicked()), Sent::FeatureSelection, Sent::FeatureSelectionOff},
    {"m_pRectSelectionTB", {QT_TRANSLATE_NOOP("Canvas_Tool_Strip", "Rectangle Selection"), nullptr},
     {"Frame selection2.jpg", "Frame selection3.jpg"}, Start::Enabled,
     SLOT(On_RectSelection_Clicked()), Sent::RectangleSelection, Sent::RectangleSelectionOff},
    {"m_pPolygonSelectionTB", {QT_TRANSLATE_NOOP("Canvas_Tool_Strip", "Polygon Selection"), nullptr},
     {"Polygon selection2.jpg", "Polygon selection3.jpg"}, Start::Enabled,
     SLOT(On_PolygonSelection_Clicked()), Sent::PolygonSelection, Sent::PolygonSelectionOff},
    {"m_pSelectPolylineTB", {QT_TRANSLATE_NOOP("Canvas_Tool_Strip", "Select By net"), nullptr},
     selectsPolyline, Start::Enabled,
     SLOT(On_SelectPolyline_Clicked()), Sent::Unset, Sent::Unset,
     // A capital N, unlike at first: deliberate.
     Tip{QT_TRANSLATE_NOOP("Canvas_Tool_Strip", "Select By Net"), nullptr}},
    {"m_pMarkTB", {QT_TRANSLATE_NOOP("Canvas_Tool_Strip", "Mark"), nullptr},
     marksOrthogonal, Start::Enabled,
     SLOT(on_mark_clicked()), Sent::Unset, Sent::Unset},
    {"m_pEqTB", {QT_TRANSLATE_NOOP("Canvas_Tool_Strip", "EQ"), nullptr},
     {"EQ-1.jpg", "EQ-2.jpg"}, Start::Untouched,
     SLOT(on_m_pEqTB_clecked()), Sent::Eq, Sent::Eq, keepsItsTip, "border-image"},
};
static_assert(std::size(theRows) == toolCount, "one row a tool");

const Menu theMenus[] = {
    // A child of Select By Net, like the net menu: deliberate.
    {"m_pDeleteMenu", Tool::DeleteFeature, Tool::SelectByNet,
     SLOT(On_DeleteFeat_customContextMenuRequested(QPoint)),
     {{"m_pDeleteFeatureAct", QT_TRANSLATE_NOOP("Canvas_Tool_Strip", "Delete Feature"), keepsItsText,
       SLOT(on_m_delete_feature_clicked()), Variant{Sent::DeleteFeature, DeleteMode::feature, deletesFeature}},
      {"m_pDeleteToIntersectionAct", QT_TRANSLATE_NOOP("Canvas_Tool_Strip", "Delete to Intersection"), keepsItsText,
       SLOT(on_m_delete_to_intersection_clicked()), Variant{Sent::DeleteFeature, DeleteMode::toIntersection, {"delete2-gry.jpg", "delete2-gre.jpg"}}}}},
    {"m_pNetMenu", Tool::SelectByNet, Tool::SelectByNet,
     SLOT(On_SelectPolyline_customContextMenuRequested(QPoint)),
     {{"m_pSelectLayerNetAct", QT_TRANSLATE_NOOP("Canvas_Tool_Strip", "Select Layer Net"), "Select Layer Net",
       SLOT(On_pSelect_layer_net_triggered()), Variant{Sent::SelectLayerNet, 0, {"Net selection6.jpg", "Net selection5.jpg"}}},
      {"m_pSelectBoardNetAct", QT_TRANSLATE_NOOP("Canvas_Tool_Strip", "Select Board Net"), "Select Board Net",
       SLOT(On_pSelect_board_net_triggered()), Variant{Sent::SelectBoardNet, 0, {"Net selection4.jpg", "Net selection3.jpg"}, "border:2px solid green"}},
      // It gains an underscore: deliberate. So is the style behind the rules, which no selector holds.
      {"m_pSelectPolylineAct", QT_TRANSLATE_NOOP("Canvas_Tool_Strip", "Select Polyline"),
       QT_TRANSLATE_NOOP("Canvas_Tool_Strip", "Select_Polyline"),
       SLOT(On_Select_polyline_triggered()), Variant{Sent::SelectPolyline, 0, selectsPolyline, "border:2px solid red"}}}},
    {"m_pMarkMenu", Tool::Mark, Tool::Mark,
     SLOT(on_mark_customContextMenuRequested(QPoint)),
     {{"m_pMarkOrthogonalAct", QT_TRANSLATE_NOOP("Canvas_Tool_Strip", "Mark Orthogonal"), "Mark Orthogonal",
       SLOT(on_m_mark_horizontalandvertical_clicked()), Variant{Sent::Mark, MarkMode::orthogonal, marksOrthogonal}},
      {"m_pMarkPointToPointAct", QT_TRANSLATE_NOOP("Canvas_Tool_Strip", "Mark Point to Point"), "Mark Point to Point",
       SLOT(on_m_mark_point2point_clicked()), Variant{Sent::Mark, MarkMode::pointToPoint, {"xie_grey.png", "xie_green.png"}}},
      {"m_pMarkSettingAct", QT_TRANSLATE_NOOP("Canvas_Tool_Strip", "Setting"), keepsItsText,
       SLOT(on_m_mark_setting_clicked())}}},
};
static_assert(std::size(theMenus) == menuCount, "one row a menu");
// clang-format on

}  // namespace

const Rows& rows()
{
    return theRows;
}

const Row& row(Tool tool)
{
    return theRows[static_cast<int>(tool)];
}

const Menus& menus()
{
    return theMenus;
}

const Menu& menu(ToolMenu menu)
{
    return theMenus[static_cast<int>(menu)];
}

const Variant* variant(ToolMenu which, int code, int mode)
{
    for (const MenuEntry& entry : menu(which).entries) {
        if (entry.variant && entry.variant->code == code && entry.variant->mode == mode) {
            return &*entry.variant;
        }
    }
    return nullptr;
}

QString styleSheet(const Pictures& pictures, const char* property)
{
    return QStringLiteral(
               "QToolButton{%1:url(:/Canvas_Tool_Strip/Resources/%2);}"
               "QToolButton::checked{%1:url(:/Canvas_Tool_Strip/Resources/%3);}")
        .arg(QLatin1String(property), QLatin1String(pictures.released),
             QLatin1String(pictures.checked));
}

}  // namespace ToolTable
