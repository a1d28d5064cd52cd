#include "viewer/ToolSet.h"

#include "plugin/MessageCodes.h"
#include "plugin/ToolModes.h"
#include "shared/CodeTexts.h"
#include "viewer/tools/EditTools.h"
#include "viewer/tools/SelectionTools.h"
#include "viewer/tools/ViewTools.h"

#include <QCoreApplication>

#include <algorithm>

namespace Sent = MessageCodes::Sent;

namespace {

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
    return std::make_unique<ClickEditTool>(
        canvas, mode == DeleteMode::feature ? Edits::remove : Edits::removeToIntersection);
}

Tool marking(Canvas& canvas, qint64 mode)
{
    return std::make_unique<MarkTool>(canvas, mode == MarkMode::orthogonal);
}

/// Stands for what does nothing on the board.
class IdleTool : public CanvasTool {
    Q_DECLARE_TR_FUNCTIONS(ToolSet)

public:
    IdleTool(Canvas& canvas, int code) : CanvasTool(canvas), m_code(code) {}

    void press(const QPointF& /*point*/, bool /*extends*/) override {}
    QString hint() const override
    {
        switch (m_code) {
            case Sent::Unset:
                return tr("No tool is active: clicks do nothing.");
            case Sent::OpenPopView:
                return tr("The popview is open; choose a tool to work in either.");
            default:
                return tr("\"%1\" does nothing on this canvas.").arg(ToolSet::text(m_code));
        }
    }

private:
    int m_code;
};

struct Row {
    int code;
    Tool (*create)(Canvas& canvas, qint64 mode);
};

// The other tools are known by name only.
constexpr Row rows[] = {
    {Sent::AreaZoom, plain<AreaZoomTool>},
    {Sent::FeatureSelection, plain<FeatureSelectionTool>},
    {Sent::RectangleSelection, plain<RectangleSelectionTool>},
    {Sent::PolygonSelection, plain<PolygonSelectionTool>},
    {Sent::SelectPolyline, selecting<Groups::polyline>},
    {Sent::SelectLayerNet, selecting<Groups::layerNet>},
    {Sent::SelectBoardNet, selecting<Groups::boardNet>},
    {Sent::FeatureHighLight, plain<HighlightTool>},
    {Sent::DeleteFeature, deleting},
    {Sent::MoveFeature, moving<Edits::move>},
    {Sent::CopyFeature, moving<Edits::copy>},
    {Sent::ChangeLineAngle, lineEnd<Edits::changeAngle>},
    {Sent::StretchLine, lineEnd<Edits::stretch>},
    {Sent::RotateFeature, clickEdit<Edits::rotate>},
    {Sent::MirrorFeature, clickEdit<Edits::mirror>},
    {Sent::InvertFeature, clickEdit<Edits::invert>},
    {Sent::BreakLine, clickEdit<Edits::breakLine>},
    {Sent::Mark, marking},
};

}  // namespace

bool ToolSet::isEnd(int code)
{
    return QByteArray(Sent::nameOf(code)).endsWith("Off");
}

std::unique_ptr<CanvasTool> ToolSet::create(int code, Canvas& canvas, qint64 mode)
{
    const Row* const row = std::find_if(std::begin(rows), std::end(rows),
                                        [code](const Row& known) { return known.code == code; });
    return row == std::end(rows) ? std::make_unique<IdleTool>(canvas, code)
                                 : row->create(canvas, mode);
}

QString ToolSet::text(int code)
{
    // The host's measure window, whose tool no message to the canvas announces, is started by a
    // code that the strip accepts.
    return Sent::nameOf(code) ? CodeTexts::sent(code) : CodeTexts::accepted(code);
}
