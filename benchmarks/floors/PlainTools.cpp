#include "PlainTools.h"

#include "plugin/MessageCodes.h"

namespace Sent = MessageCodes::Sent;

#define PICTURE(file) "url(:/Canvas_Tool_Strip/Resources/" file ");"
#define SHEET(property, image, checkedImage)            \
    QStringLiteral("QToolButton{" property ":" PICTURE( \
        image) "}"                                      \
               "QToolButton::checked{" property ":" PICTURE(checkedImage) "}")

const std::vector<PlainTool>& plainTools()
{
    // clang-format off
    static const std::vector<PlainTool> tools = {
        {QStringLiteral("m_pAreaZoomTB"), "Area Zoom", nullptr, SHEET("background-image", "Area zoom2.jpg", "Area zoom3.jpg"), true, Sent::AreaZoom},
        {QStringLiteral("m_pOpenPopViewTB"), "Open a Popview", nullptr, SHEET("background-image", "Open a popview-1.jpg", "Open a popview-2.jpg"), true, Sent::OpenPopView},
        {QStringLiteral("m_pMeasureTB"), "Measure", "tool_edit", SHEET("background-image", "ruler.jpg", "ruler1.jpg"), true, Sent::Unset},
        {QStringLiteral("m_pFeatHighLightTB"), "Feature HighLight", nullptr, SHEET("background-image", "Feature highlight-2.jpg", "Feature highlight-3.jpg"), true, Sent::FeatureHighLight},
        {QStringLiteral("m_pAddFeatureTB"), "Add Feature", nullptr, SHEET("background-image", "Add Feature.jpg", "Add Feature1.jpg"), true, Sent::AddFeature},
        {QStringLiteral("m_pDeleteFeatTB"), "Delete Feature", nullptr, SHEET("background-image", "delete1-gry.jpg", "delete1-gre.jpg"), true, Sent::DeleteFeature},
        {QStringLiteral("m_pMoveFeatureTB"), "Move Feature", nullptr, SHEET("background-image", "Move Feature-1.jpg", "Move Feature-2.jpg"), true, Sent::MoveFeature},
        {QStringLiteral("m_pCopyFeatureTB"), "Copy Feature", nullptr, SHEET("background-image", "Copy feature-1.jpg", "Copy feature-2.jpg"), true, Sent::CopyFeature},
        {QStringLiteral("m_pChangeLAngleTB"), "Change Line Angle", nullptr, SHEET("background-image", "Change line angle1.jpg", "Change line angle2.jpg"), true, Sent::ChangeLineAngle},
        {QStringLiteral("m_pStretchLineTB"), "Stretch Line", nullptr, SHEET("background-image", "Stretch line3.jpg", "Stretch line4.jpg"), true, Sent::StretchLine},
        {QStringLiteral("m_pRotateFeatureTB"), "Rotate", nullptr, SHEET("background-image", "Rotate feature-grey.jpg", "Rotate feature-grey.jpg"), false, Sent::RotateFeature},
        {QStringLiteral("m_pMirrorFeatureTB"), "Mirror", nullptr, SHEET("background-image", "Mirror feature-grey.jpg", "Mirror feature-grey.jpg"), false, Sent::MirrorFeature},
        {QStringLiteral("m_pInvertFeatureTB"), "Invert Feature", nullptr, SHEET("background-image", "Invert feature-3.jpg", "Invert feature-4.jpg"), true, Sent::InvertFeature},
        {QStringLiteral("m_pBreakLineTB"), "Break Line", nullptr, SHEET("background-image", "Break line1.jpg", "Break line2.jpg"), true, Sent::BreakLine},
        {QStringLiteral("m_pDimensionTB"), "Rout Dimension Editor", nullptr, SHEET("background-image", "Rout dimension editor-grey.jpg", "Rout dimension editor-grey.jpg"), false, Sent::RoutDimension},
        {QStringLiteral("m_pContourEditorTB"), "Contour Editor", nullptr, SHEET("background-image", "Contour editor-grey.jpg", "Contour editor-grey.jpg"), false, Sent::ContourEditor},
        {QStringLiteral("m_pPullLineTB"), "Pull Line", nullptr, SHEET("background-image", "Pull line-grey.jpg", "Pull line-grey.jpg"), false, Sent::PullLine},
        {QStringLiteral("m_pMoveJunctionTB"), "Move Junction", nullptr, SHEET("background-image", "Move junction-grey.jpg", "Move junction-grey.jpg"), false, Sent::MoveJunction},
        {QStringLiteral("m_pMoveTripletTB"), "Move Triplet(Angle)", nullptr, SHEET("background-image", "Move triplet1.jpg", "Move triplet2.jpg"), true, Sent::MoveTriplet},
        {QStringLiteral("m_pRerouteTraceTB"), "Reroute Trace(Fix Point)", nullptr, SHEET("background-image", "ReRoute trace1.jpg", "ReRoute trace2.jpg"), true, Sent::RerouteTrace},
        {QStringLiteral("m_pFeatureSelectionTB"), "Feature Selection", nullptr, SHEET("background-image", "Feature selection1.jpg", "Feature selection2.jpg"), true, Sent::FeatureSelection},
        {QStringLiteral("m_pRectSelectionTB"), "Rectangle Selection", nullptr, SHEET("background-image", "Frame selection2.jpg", "Frame selection3.jpg"), true, Sent::RectangleSelection},
        {QStringLiteral("m_pPolygonSelectionTB"), "Polygon Selection", nullptr, SHEET("background-image", "Polygon selection2.jpg", "Polygon selection3.jpg"), true, Sent::PolygonSelection},
        {QStringLiteral("m_pSelectPolylineTB"), "Select By net", nullptr, SHEET("background-image", "Net selection2.jpg", "Net selection1.jpg"), true, Sent::SelectLayerNet},
        {QStringLiteral("m_pMarkTB"), "Mark", nullptr, SHEET("background-image", "markgry.png", "markgre.png"), true, Sent::Mark},
        {QStringLiteral("m_pEqTB"), "EQ", nullptr, SHEET("border-image", "EQ-1.jpg", "EQ-2.jpg"), true, Sent::Eq},
    };
    // clang-format on
    return tools;
}

const std::array<QString, 3>& plainNetSheets()
{
    static const std::array<QString, 3> sheets = {
        SHEET("background-image", "Net selection2.jpg", "Net selection1.jpg") +
            QStringLiteral("border:2px solid red"),
        SHEET("background-image", "Net selection6.jpg", "Net selection5.jpg"),
        SHEET("background-image", "Net selection4.jpg", "Net selection3.jpg") +
            QStringLiteral("border:2px solid green"),
    };
    return sheets;
}
