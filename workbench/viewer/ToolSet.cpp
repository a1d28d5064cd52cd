#include "viewer/ToolSet.h"

#include "plugin/MessageCodes.h"
#include "plugin/ToolModes.h"
#include "viewer/tools/EditTools.h"
#include "viewer/tools/SelectionTools.h"
#include "viewer/tools/ViewTools.h"

#include <QCoreApplication>

#include <algorithm>

namespace Accepted = MessageCodes::Accepted;
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

/// A name that its code does not say in words.
struct Name {
    int code;
    const char* text;
};
constexpr Name names[] = {
    {Sent::FeatureHighLight, QT_TRANSLATE_NOOP("MessageNames", "Feature highlight")},
    {Sent::OpenPopView, QT_TRANSLATE_NOOP("MessageNames", "Open a pop view")},
    {Sent::Eq, QT_TRANSLATE_NOOP("MessageNames", "EQ")},
};

template <class Rows>
auto findIn(const Rows& rows, int code)
{
    const auto found = std::find_if(std::begin(rows), std::end(rows),
                                    [=](const auto& row) { return row.code == code; });
    return found == std::end(rows) ? nullptr : found;
}

/// Of any code of the tool strip's. The host's measure window, whose tool no message to the canvas
/// announces, is started by a code that the strip accepts.
QByteArray nameOf(int code)
{
    const char* const name = Sent::nameOf(code);
    return name ? name : Accepted::nameOf(code);
}

/// "Add feature" for "AddFeature".
QByteArray inWords(const QByteArray& name)
{
    QByteArray words = name.left(1);
    for (const char letter : name.mid(1)) {
        const bool isInitial = letter >= 'A' && letter <= 'Z';
        words += isInitial ? QByteArray(" ") + char(letter - 'A' + 'a') : QByteArray(1, letter);
    }
    return words;
}

}  // namespace

bool ToolSet::isEnd(int code)
{
    return nameOf(code).endsWith("Off");
}

std::unique_ptr<CanvasTool> ToolSet::create(int code, Canvas& canvas, qint64 mode)
{
    const Row* const row = findIn(rows, code);
    return row ? row->create(canvas, mode) : nullptr;
}

QString ToolSet::text(int code)
{
    const Name* const name = findIn(names, code);
    // The monitor calls it the same, so the texts of the monitor are its translations.
    return QCoreApplication::translate("MessageNames",
                                       name ? name->text : inWords(nameOf(code)).constData());
}
