#include "viewer/ToolSet.h"

#include "plugin/MessageCodes.h"
#include "viewer/tools/EditTools.h"
#include "viewer/tools/SelectionTools.h"
#include "viewer/tools/ViewTools.h"

#include <algorithm>
#include <iterator>

namespace Sent = MessageCodes::Sent;

namespace {

using Tool = std::unique_ptr<CanvasTool>;
using Create = Tool (*)(Canvas& canvas, qint64 mode);
using ToolSet::Meaning;

struct Row {
    int code;
    Meaning meaning;
    Create create;  ///< null: the canvas does not perform it, or not by a tool that takes clicks
};

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

constexpr Row rows[] = {
    {Sent::AreaZoom, Meaning::Begins, plain<AreaZoomTool>},
    {Sent::OpenPopView, Meaning::Begins, nullptr},
    {Sent::FeatureHighLight, Meaning::Begins, plain<HighlightTool>},
    {Sent::AddFeature, Meaning::Begins, nullptr},
    {Sent::DeleteFeature, Meaning::Begins, deleting},
    {Sent::MoveFeature, Meaning::Begins, moving<Edits::move>},
    {Sent::CopyFeature, Meaning::Begins, moving<Edits::copy>},
    {Sent::ChangeLineAngle, Meaning::Begins, lineEnd<Edits::changeAngle>},
    {Sent::ChangeLineAngleOff, Meaning::Ends, nullptr},
    {Sent::StretchLine, Meaning::Begins, lineEnd<Edits::stretch>},
    {Sent::StretchLineOff, Meaning::Ends, nullptr},
    {Sent::RotateFeature, Meaning::Begins, clickEdit<Edits::rotate>},
    {Sent::RotateFeatureOff, Meaning::Ends, nullptr},
    {Sent::MirrorFeature, Meaning::Begins, clickEdit<Edits::mirror>},
    {Sent::InvertFeature, Meaning::Begins, clickEdit<Edits::invert>},
    {Sent::InvertFeatureOff, Meaning::Ends, nullptr},
    {Sent::BreakLine, Meaning::Begins, clickEdit<Edits::breakLine>},
    {Sent::BreakLineOff, Meaning::Ends, nullptr},
    {Sent::RoutDimension, Meaning::Begins, nullptr},
    {Sent::ContourEditor, Meaning::Begins, nullptr},
    {Sent::PullLine, Meaning::Begins, nullptr},
    {Sent::MoveJunction, Meaning::Begins, nullptr},
    {Sent::MoveTriplet, Meaning::Begins, nullptr},
    {Sent::MoveTripletOff, Meaning::Ends, nullptr},
    {Sent::RerouteTrace, Meaning::Begins, nullptr},
    {Sent::RerouteTraceOff, Meaning::Ends, nullptr},
    {Sent::FeatureSelection, Meaning::Begins, plain<FeatureSelectionTool>},
    {Sent::FeatureSelectionOff, Meaning::Ends, nullptr},
    {Sent::RectangleSelection, Meaning::Begins, plain<RectangleSelectionTool>},
    {Sent::RectangleSelectionOff, Meaning::Ends, nullptr},
    {Sent::PolygonSelection, Meaning::Begins, plain<PolygonSelectionTool>},
    {Sent::PolygonSelectionOff, Meaning::Ends, nullptr},
    {Sent::SelectLayerNet, Meaning::Begins, selecting<Groups::layerNet>},
    {Sent::SelectBoardNet, Meaning::Begins, selecting<Groups::boardNet>},
    {Sent::SelectPolyline, Meaning::Begins, selecting<Groups::polyline>},
    {Sent::Mark, Meaning::Begins, marking},
    {Sent::Eq, Meaning::Begins, nullptr},
};

const Row* find(int code)
{
    const auto row = std::find_if(std::begin(rows), std::end(rows),
                                  [code](const Row& candidate) { return candidate.code == code; });
    return row == std::end(rows) ? nullptr : row;
}

}  // namespace

Meaning ToolSet::meaningOf(int code)
{
    const Row* const row = find(code);
    return row ? row->meaning : Meaning::Nothing;
}

Tool ToolSet::create(int code, qint64 mode, Canvas& canvas)
{
    const Row* const row = find(code);
    return row && row->create ? row->create(canvas, mode) : nullptr;
}
