#include "messages/MessageNames.h"

#include "plugin/MessageCodes.h"
#include "plugin/ModuleNames.h"

#include <PluginManagerStandIn.h>

#include <QCoreApplication>

#include <algorithm>

namespace Sent = MessageCodes::Sent;
namespace Accepted = MessageCodes::Accepted;

namespace MessageNames {
namespace {

constexpr bool tool = true;

/// The rows with the names that the protocol's header gives their codes.
std::vector<Row> named(const char* (*nameOf)(int code), std::vector<Row> rows)
{
    for (Row& row : rows) {
        row.name = nameOf(row.code);
    }
    return rows;
}

// clang-format off
const std::vector<Row> acceptedRows = named(Accepted::nameOf, {
    {Accepted::JobOpened, QT_TRANSLATE_NOOP("MessageNames", "Job and step opened")},
    {Accepted::JobAndStep, QT_TRANSLATE_NOOP("MessageNames", "Job and step")},
    {Accepted::JobName, QT_TRANSLATE_NOOP("MessageNames", "Job name"), Extra::String},
    {Accepted::UnitChanged, QT_TRANSLATE_NOOP("MessageNames", "Unit changed")},
    {Accepted::LanguageChanged, QT_TRANSLATE_NOOP("MessageNames", "Language changed")},
    {Accepted::SymbolsPicked, QT_TRANSLATE_NOOP("MessageNames", "Symbols picked"), Extra::Symbols},
    {Accepted::AttributesPicked, QT_TRANSLATE_NOOP("MessageNames", "Attributes picked"), Extra::Attributes},
    {Accepted::UserSymbolsChanged, QT_TRANSLATE_NOOP("MessageNames", "User symbols changed")},
    {Accepted::ReleaseAll, QT_TRANSLATE_NOOP("MessageNames", "Release all tools")},
    {Accepted::AreaZoom, QT_TRANSLATE_NOOP("MessageNames", "Area zoom"), Extra::Number, tool},
    {Accepted::FeatureSelection, QT_TRANSLATE_NOOP("MessageNames", "Feature selection"), Extra::Number, tool},
    {Accepted::RectangleSelection, QT_TRANSLATE_NOOP("MessageNames", "Rectangle selection"), Extra::Number, tool},
    {Accepted::PolygonSelection, QT_TRANSLATE_NOOP("MessageNames", "Polygon selection"), Extra::Number, tool},
    {Accepted::SelectPolyline, QT_TRANSLATE_NOOP("MessageNames", "Select polyline"), Extra::Number, tool},
    {Accepted::SelectLayerNet, QT_TRANSLATE_NOOP("MessageNames", "Select layer net"), Extra::Number, tool},
    {Accepted::SelectBoardNet, QT_TRANSLATE_NOOP("MessageNames", "Select board net"), Extra::Number, tool},
    {Accepted::CheckAndMeasure, QT_TRANSLATE_NOOP("MessageNames", "Check and measure"), Extra::Number, tool},
    {Accepted::Measure, QT_TRANSLATE_NOOP("MessageNames", "Measure"), Extra::Number, tool},
    {Accepted::AddFeatureActive, QT_TRANSLATE_NOOP("MessageNames", "Add feature is active"), Extra::Number, tool},
    {Accepted::AddFeature, QT_TRANSLATE_NOOP("MessageNames", "Add feature"), Extra::Number, tool},
    {Accepted::DeleteFeature, QT_TRANSLATE_NOOP("MessageNames", "Delete feature"), Extra::Number, tool},
    {Accepted::MoveFeature, QT_TRANSLATE_NOOP("MessageNames", "Move feature"), Extra::Number, tool},
    {Accepted::CloseDialogs, QT_TRANSLATE_NOOP("MessageNames", "Close dialogs")},
});

const std::vector<Row> sentRows = named(Sent::nameOf, {
    {Sent::Unset, QT_TRANSLATE_NOOP("MessageNames", "No code")},
    {Sent::AreaZoom, QT_TRANSLATE_NOOP("MessageNames", "Area zoom"), Extra::Number, tool},
    {Sent::FeatureSelection, QT_TRANSLATE_NOOP("MessageNames", "Feature selection"), Extra::Number, tool},
    {Sent::RectangleSelection, QT_TRANSLATE_NOOP("MessageNames", "Rectangle selection"), Extra::Number, tool},
    {Sent::FeatureSelectionOff, QT_TRANSLATE_NOOP("MessageNames", "Feature selection off")},
    {Sent::RectangleSelectionOff, QT_TRANSLATE_NOOP("MessageNames", "Rectangle selection off")},
    {Sent::DeleteFeature, QT_TRANSLATE_NOOP("MessageNames", "Delete feature"), Extra::Number, tool},
    {Sent::MoveFeature, QT_TRANSLATE_NOOP("MessageNames", "Move feature"), Extra::Number, tool},
    {Sent::CopyFeature, QT_TRANSLATE_NOOP("MessageNames", "Copy feature"), Extra::Number, tool},
    {Sent::ChangeLineAngle, QT_TRANSLATE_NOOP("MessageNames", "Change line angle"), Extra::Number, tool},
    {Sent::StretchLine, QT_TRANSLATE_NOOP("MessageNames", "Stretch line"), Extra::Number, tool},
    {Sent::RotateFeature, QT_TRANSLATE_NOOP("MessageNames", "Rotate feature"), Extra::Number, tool},
    {Sent::MirrorFeature, QT_TRANSLATE_NOOP("MessageNames", "Mirror feature"), Extra::Number, tool},
    {Sent::InvertFeature, QT_TRANSLATE_NOOP("MessageNames", "Invert feature"), Extra::Number, tool},
    {Sent::BreakLine, QT_TRANSLATE_NOOP("MessageNames", "Break line"), Extra::Number, tool},
    {Sent::RoutDimension, QT_TRANSLATE_NOOP("MessageNames", "Rout dimension"), Extra::Number, tool},
    {Sent::ContourEditor, QT_TRANSLATE_NOOP("MessageNames", "Contour editor"), Extra::Number, tool},
    {Sent::PullLine, QT_TRANSLATE_NOOP("MessageNames", "Pull line"), Extra::Number, tool},
    {Sent::MoveJunction, QT_TRANSLATE_NOOP("MessageNames", "Move junction"), Extra::Number, tool},
    {Sent::MoveTriplet, QT_TRANSLATE_NOOP("MessageNames", "Move triplet"), Extra::Number, tool},
    {Sent::RerouteTrace, QT_TRANSLATE_NOOP("MessageNames", "Reroute trace"), Extra::Number, tool},
    {Sent::PolygonSelection, QT_TRANSLATE_NOOP("MessageNames", "Polygon selection"), Extra::Number, tool},
    {Sent::OpenPopView, QT_TRANSLATE_NOOP("MessageNames", "Open a pop view"), Extra::Number, tool},
    {Sent::FeatureHighLight, QT_TRANSLATE_NOOP("MessageNames", "Feature highlight"), Extra::Number, tool},
    {Sent::PolygonSelectionOff, QT_TRANSLATE_NOOP("MessageNames", "Polygon selection off")},
    {Sent::InvertFeatureOff, QT_TRANSLATE_NOOP("MessageNames", "Invert feature off")},
    {Sent::BreakLineOff, QT_TRANSLATE_NOOP("MessageNames", "Break line off")},
    {Sent::ChangeLineAngleOff, QT_TRANSLATE_NOOP("MessageNames", "Change line angle off")},
    {Sent::StretchLineOff, QT_TRANSLATE_NOOP("MessageNames", "Stretch line off")},
    {Sent::RotateFeatureOff, QT_TRANSLATE_NOOP("MessageNames", "Rotate feature off")},
    {Sent::AddFeature, QT_TRANSLATE_NOOP("MessageNames", "Add feature"), Extra::Number, tool},
    {Sent::SelectPolyline, QT_TRANSLATE_NOOP("MessageNames", "Select polyline"), Extra::Number, tool},
    {Sent::SelectLayerNet, QT_TRANSLATE_NOOP("MessageNames", "Select layer net"), Extra::Number, tool},
    {Sent::SelectBoardNet, QT_TRANSLATE_NOOP("MessageNames", "Select board net"), Extra::Number, tool},
    {Sent::AddFeatureStarted, QT_TRANSLATE_NOOP("MessageNames", "Add feature started")},
    {Sent::MoveTripletOff, QT_TRANSLATE_NOOP("MessageNames", "Move triplet off")},
    {Sent::RerouteTraceOff, QT_TRANSLATE_NOOP("MessageNames", "Reroute trace off")},
    {Sent::Mark, QT_TRANSLATE_NOOP("MessageNames", "Mark"), Extra::Number, tool},
    {Sent::MarkSettings, QT_TRANSLATE_NOOP("MessageNames", "Mark settings")},
    {Sent::SelectSymbol, QT_TRANSLATE_NOOP("MessageNames", "Select a symbol on the board")},
    {Sent::DialogsClosed, QT_TRANSLATE_NOOP("MessageNames", "Dialogs closed")},
    {Sent::Eq, QT_TRANSLATE_NOOP("MessageNames", "EQ"), Extra::Number, tool},
    {Sent::Record, QT_TRANSLATE_NOOP("MessageNames", "Feature record")},
    {Sent::AttributeMap, QT_TRANSLATE_NOOP("MessageNames", "Attributes"), Extra::Attributes},
    {Sent::DirectionRecord, QT_TRANSLATE_NOOP("MessageNames", "Feature record (direction)")},
    {Sent::Fill, QT_TRANSLATE_NOOP("MessageNames", "Fill")},
    {Sent::SelectFromEditor, QT_TRANSLATE_NOOP("MessageNames", "Select attributes on the board")},
});

// What the canvas is told by the host, not by the tool strip.
const std::vector<Row> canvasRows = named(Accepted::nameOf, {
    {Accepted::JobOpened, QT_TRANSLATE_NOOP("MessageNames", "Job and step opened")},
});

// What a sibling may ask of the host itself.
const std::vector<Row> hostRows = named(Accepted::nameOf, {
    {Accepted::JobOpened, QT_TRANSLATE_NOOP("MessageNames", "Open job and step")},
});
// clang-format on

const std::vector<Row>& rowsOf(const QString& receiver)
{
    if (receiver == ModuleNames::toolStrip) {
        return acceptedRows;
    }
    return receiver == CanvasHost::hostName ? hostRows : sentRows;
}

const Row* findIn(const std::vector<Row>& rows, int code)
{
    const auto found =
        std::find_if(rows.begin(), rows.end(), [=](const Row& row) { return row.code == code; });
    return found == rows.end() ? nullptr : &*found;
}

}  // namespace

const std::vector<Row>& accepted()
{
    return acceptedRows;
}

const std::vector<Row>& sent()
{
    return sentRows;
}

const Row* find(const QString& receiver, int code)
{
    const Row* const row = findIn(rowsOf(receiver), code);
    return row || receiver != ModuleNames::viewer ? row : findIn(canvasRows, code);
}

QString name(const QString& receiver, int code)
{
    const Row* const row = find(receiver, code);
    return row ? QString::fromLatin1(row->name) : QString();
}

QString text(const QString& receiver, int code)
{
    const Row* const row = find(receiver, code);
    return row ? text(*row) : QString();
}

QString text(const Row& row)
{
    return QCoreApplication::translate("MessageNames", row.text);
}

}  // namespace MessageNames
