#include "viewer/ToolSet.h"

#include "plugin/MessageCodes.h"
#include "viewer/tools/EditTools.h"
#include "viewer/tools/SelectionTools.h"
#include "viewer/tools/ViewTools.h"

#include <QCoreApplication>

#include <algorithm>

namespace Accepted = MessageCodes::Accepted;
namespace Sent = MessageCodes::Sent;

namespace {

using ToolSet::Row;

using Tool = std::unique_ptr<CanvasTool>;

template <const ClickEdit& edit>
Tool clickEdit(Canvas& canvas, qint64 /*mode*/)
{
    return std::make_unique<ClickEditTool>(canvas, edit);
}

template <const MoveEdit& edit>
Tool moving(Canvas& canvas, qint64 /*mode*/)
{
    return std::make_unique<MoveTool>(canvas, edit);
}

template <const LineEndEdit& edit>
Tool lineEnd(Canvas& canvas, qint64 /*mode*/)
{
    return std::make_unique<LineEndTool>(canvas, edit);
}

template <const Group& group>
Tool selecting(Canvas& canvas, qint64 /*mode*/)
{
    return std::make_unique<GroupSelectionTool>(canvas, group);
}

template <class Plain>
Tool plain(Canvas& canvas, qint64 /*mode*/)
{
    return std::make_unique<Plain>(canvas);
}

Tool deleting(Canvas& canvas, qint64 mode)
{
    return std::make_unique<ClickEditTool>(canvas,
                                           mode == 0 ? Edits::remove : Edits::removeToIntersection);
}

Tool marking(Canvas& canvas, qint64 mode)
{
    return std::make_unique<MarkTool>(canvas, mode == 0);
}

// clang-format off
constexpr Row rows[] = {
    {Sent::AreaZoom, 0, QT_TRANSLATE_NOOP("ToolSet", "Area zoom"), plain<AreaZoomTool>},
    {Sent::FeatureSelection, Sent::FeatureSelectionOff, QT_TRANSLATE_NOOP("ToolSet", "Feature selection"), plain<FeatureSelectionTool>},
    {Sent::RectangleSelection, Sent::RectangleSelectionOff, QT_TRANSLATE_NOOP("ToolSet", "Rectangle selection"), plain<RectangleSelectionTool>},
    {Sent::PolygonSelection, Sent::PolygonSelectionOff, QT_TRANSLATE_NOOP("ToolSet", "Polygon selection"), plain<PolygonSelectionTool>},
    {Sent::SelectPolyline, 0, QT_TRANSLATE_NOOP("ToolSet", "Select polyline"), selecting<Groups::polyline>},
    {Sent::SelectLayerNet, 0, QT_TRANSLATE_NOOP("ToolSet", "Select layer net"), selecting<Groups::layerNet>},
    {Sent::SelectBoardNet, 0, QT_TRANSLATE_NOOP("ToolSet", "Select board net"), selecting<Groups::boardNet>},
    {Sent::FeatureHighLight, 0, QT_TRANSLATE_NOOP("ToolSet", "Feature highlight"), plain<HighlightTool>},
    {Sent::AddFeature, 0, QT_TRANSLATE_NOOP("ToolSet", "Add feature"), nullptr},
    {Sent::DeleteFeature, 0, QT_TRANSLATE_NOOP("ToolSet", "Delete feature"), deleting},
    {Sent::MoveFeature, 0, QT_TRANSLATE_NOOP("ToolSet", "Move feature"), moving<Edits::move>},
    {Sent::CopyFeature, 0, QT_TRANSLATE_NOOP("ToolSet", "Copy feature"), moving<Edits::copy>},
    {Sent::ChangeLineAngle, Sent::ChangeLineAngleOff, QT_TRANSLATE_NOOP("ToolSet", "Change line angle"), lineEnd<Edits::changeAngle>},
    {Sent::StretchLine, Sent::StretchLineOff, QT_TRANSLATE_NOOP("ToolSet", "Stretch line"), lineEnd<Edits::stretch>},
    {Sent::RotateFeature, Sent::RotateFeatureOff, QT_TRANSLATE_NOOP("ToolSet", "Rotate feature"), clickEdit<Edits::rotate>},
    {Sent::MirrorFeature, 0, QT_TRANSLATE_NOOP("ToolSet", "Mirror feature"), clickEdit<Edits::mirror>},
    {Sent::InvertFeature, Sent::InvertFeatureOff, QT_TRANSLATE_NOOP("ToolSet", "Invert feature"), clickEdit<Edits::invert>},
    {Sent::BreakLine, Sent::BreakLineOff, QT_TRANSLATE_NOOP("ToolSet", "Break line"), clickEdit<Edits::breakLine>},
    {Sent::Mark, 0, QT_TRANSLATE_NOOP("ToolSet", "Mark"), marking},
    {Sent::OpenPopView, 0, QT_TRANSLATE_NOOP("ToolSet", "Open a pop view"), nullptr},
    {Sent::RoutDimension, 0, QT_TRANSLATE_NOOP("ToolSet", "Rout dimension"), nullptr},
    {Sent::ContourEditor, 0, QT_TRANSLATE_NOOP("ToolSet", "Contour editor"), nullptr},
    {Sent::PullLine, 0, QT_TRANSLATE_NOOP("ToolSet", "Pull line"), nullptr},
    {Sent::MoveJunction, 0, QT_TRANSLATE_NOOP("ToolSet", "Move junction"), nullptr},
    {Sent::MoveTriplet, Sent::MoveTripletOff, QT_TRANSLATE_NOOP("ToolSet", "Move triplet"), nullptr},
    {Sent::RerouteTrace, Sent::RerouteTraceOff, QT_TRANSLATE_NOOP("ToolSet", "Reroute trace"), nullptr},
    {Sent::Eq, 0, QT_TRANSLATE_NOOP("ToolSet", "EQ"), nullptr},
};
constexpr Row measureRow = {Accepted::Measure, 0, QT_TRANSLATE_NOOP("ToolSet", "Measure"), nullptr};
// clang-format on

const Row* findBy(int Row::*code, int wanted)
{
    const auto found = std::find_if(std::begin(rows), std::end(rows),
                                    [=](const Row& row) { return row.*code == wanted; });
    return found == std::end(rows) ? nullptr : found;
}

}  // namespace

const Row* ToolSet::find(int code)
{
    return findBy(&Row::code, code);
}

const Row* ToolSet::ended(int code)
{
    return code == 0 ? nullptr : findBy(&Row::offCode, code);
}

const Row& ToolSet::measuring()
{
    return measureRow;
}

QString ToolSet::text(const Row& row)
{
    return QCoreApplication::translate("ToolSet", row.text);
}
