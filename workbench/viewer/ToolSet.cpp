#include "viewer/ToolSet.h"

#include "plugin/MessageCodes.h"
#include "viewer/tools/EditTools.h"
#include "viewer/tools/SelectionTools.h"
#include "viewer/tools/ViewTools.h"

namespace Sent = MessageCodes::Sent;

namespace {

using Tool = std::unique_ptr<CanvasTool>;
using Edit = ClickEditTool::Edit;
using Net = NetSelectionTool::Mode;

struct Row {
    int code;
    Tool (*create)(Canvas& canvas, qint64 mode);
};

template <Edit edit>
Tool clickEdit(Canvas& canvas, qint64 /*mode*/)
{
    return std::make_unique<ClickEditTool>(canvas, edit);
}

template <Net net>
Tool netSelection(Canvas& canvas, qint64 /*mode*/)
{
    return std::make_unique<NetSelectionTool>(canvas, net);
}

template <MoveTool::Way way>
Tool moving(Canvas& canvas, qint64 /*mode*/)
{
    return std::make_unique<MoveTool>(canvas, way);
}

template <LineEndTool::Way way>
Tool lineEnd(Canvas& canvas, qint64 /*mode*/)
{
    return std::make_unique<LineEndTool>(canvas, way);
}

template <class Plain>
Tool plain(Canvas& canvas, qint64 /*mode*/)
{
    return std::make_unique<Plain>(canvas);
}

Tool deleting(Canvas& canvas, qint64 mode)
{
    return std::make_unique<ClickEditTool>(canvas,
                                           mode == 0 ? Edit::Delete : Edit::DeleteToIntersection);
}

Tool marking(Canvas& canvas, qint64 mode)
{
    return std::make_unique<MarkTool>(canvas, mode == 0);
}

constexpr Row rows[] = {
    {Sent::AreaZoom, plain<AreaZoomTool>},
    {Sent::FeatureHighLight, plain<HighlightTool>},
    {Sent::DeleteFeature, deleting},
    {Sent::MoveFeature, moving<MoveTool::Way::Move>},
    {Sent::CopyFeature, moving<MoveTool::Way::Copy>},
    {Sent::ChangeLineAngle, lineEnd<LineEndTool::Way::Angle>},
    {Sent::StretchLine, lineEnd<LineEndTool::Way::Stretch>},
    {Sent::RotateFeature, clickEdit<Edit::Rotate>},
    {Sent::MirrorFeature, clickEdit<Edit::Mirror>},
    {Sent::InvertFeature, clickEdit<Edit::Invert>},
    {Sent::BreakLine, clickEdit<Edit::Break>},
    {Sent::FeatureSelection, plain<FeatureSelectionTool>},
    {Sent::RectangleSelection, plain<RectangleSelectionTool>},
    {Sent::PolygonSelection, plain<PolygonSelectionTool>},
    {Sent::SelectLayerNet, netSelection<Net::Layer>},
    {Sent::SelectBoardNet, netSelection<Net::Board>},
    {Sent::SelectPolyline, netSelection<Net::Polyline>},
    {Sent::Mark, marking},
};

}  // namespace

Tool ToolSet::create(int code, qint64 mode, Canvas& canvas)
{
    for (const Row& row : rows) {
        if (row.code == code) {
            return row.create(canvas, mode);
        }
    }
    return nullptr;
}
