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

// clang-format off
const std::vector<Row> acceptedRows = {
    {Accepted::JobOpened, "JobOpened", QT_TRANSLATE_NOOP("MessageNames", "Job and step opened")},
    {Accepted::JobAndStep, "JobAndStep", QT_TRANSLATE_NOOP("MessageNames", "Job and step")},
    {Accepted::JobName, "JobName", QT_TRANSLATE_NOOP("MessageNames", "Job name"), Extra::String},
    {Accepted::UnitChanged, "UnitChanged", QT_TRANSLATE_NOOP("MessageNames", "Unit changed")},
    {Accepted::LanguageChanged, "LanguageChanged", QT_TRANSLATE_NOOP("MessageNames", "Language changed")},
    {Accepted::SymbolsPicked, "SymbolsPicked", QT_TRANSLATE_NOOP("MessageNames", "Symbols picked"), Extra::Symbols},
    {Accepted::AttributesPicked, "AttributesPicked", QT_TRANSLATE_NOOP("MessageNames", "Attributes picked"), Extra::Attributes},
    {Accepted::UserSymbolsChanged, "UserSymbolsChanged", QT_TRANSLATE_NOOP("MessageNames", "User symbols changed")},
    {Accepted::ReleaseAll, "ReleaseAll", QT_TRANSLATE_NOOP("MessageNames", "Release all tools")},
    {Accepted::AreaZoom, "AreaZoom", QT_TRANSLATE_NOOP("MessageNames", "Area zoom"), Extra::Number, tool},
    {Accepted::FeatureSelection, "FeatureSelection", QT_TRANSLATE_NOOP("MessageNames", "Feature selection"), Extra::Number, tool},
    {Accepted::RectangleSelection, "RectangleSelection", QT_TRANSLATE_NOOP("MessageNames", "Rectangle selection"), Extra::Number, tool},
    {Accepted::PolygonSelection, "PolygonSelection", QT_TRANSLATE_NOOP("MessageNames", "Polygon selection"), Extra::Number, tool},
    {Accepted::SelectPolyline, "SelectPolyline", QT_TRANSLATE_NOOP("MessageNames", "Select polyline"), Extra::Number, tool},
    {Accepted::SelectLayerNet, "SelectLayerNet", QT_TRANSLATE_NOOP("MessageNames", "Select layer net"), Extra::Number, tool},
    {Accepted::SelectBoardNet, "SelectBoardNet", QT_TRANSLATE_NOOP("MessageNames", "Select board net"), Extra::Number, tool},
    {Accepted::CheckAndMeasure, "CheckAndMeasure", QT_TRANSLATE_NOOP("MessageNames", "Check and measure"), Extra::Number, tool},
    {Accepted::Measure, "Measure", QT_TRANSLATE_NOOP("MessageNames", "Measure"), Extra::Number, tool},
    {Accepted::AddFeatureActive, "AddFeatureActive", QT_TRANSLATE_NOOP("MessageNames", "Add feature is active"), Extra::Number, tool},
    {Accepted::AddFeature, "AddFeature", QT_TRANSLATE_NOOP("MessageNames", "Add feature"), Extra::Number, tool},
    {Accepted::DeleteFeature, "DeleteFeature", QT_TRANSLATE_NOOP("MessageNames", "Delete feature"), Extra::Number, tool},
    {Accepted::MoveFeature, "MoveFeature", QT_TRANSLATE_NOOP("MessageNames", "Move feature"), Extra::Number, tool},
    {Accepted::CloseDialogs, "CloseDialogs", QT_TRANSLATE_NOOP("MessageNames", "Close dialogs")},
};

const std::vector<Row> sentRows = {
    {Sent::Unset, "Unset", QT_TRANSLATE_NOOP("MessageNames", "No code")},
    {Sent::AreaZoom, "AreaZoom", QT_TRANSLATE_NOOP("MessageNames", "Area zoom"), Extra::Number, tool},
    {Sent::FeatureSelection, "FeatureSelection", QT_TRANSLATE_NOOP("MessageNames", "Feature selection"), Extra::Number, tool},
    {Sent::RectangleSelection, "RectangleSelection", QT_TRANSLATE_NOOP("MessageNames", "Rectangle selection"), Extra::Number, tool},
    {Sent::FeatureSelectionOff, "FeatureSelectionOff", QT_TRANSLATE_NOOP("MessageNames", "Feature selection off")},
    {Sent::RectangleSelectionOff, "RectangleSelectionOff", QT_TRANSLATE_NOOP("MessageNames", "Rectangle selection off")},
    {Sent::DeleteFeature, "DeleteFeature", QT_TRANSLATE_NOOP("MessageNames", "Delete feature"), Extra::Number, tool},
    {Sent::MoveFeature, "MoveFeature", QT_TRANSLATE_NOOP("MessageNames", "Move feature"), Extra::Number, tool},
    {Sent::CopyFeature, "CopyFeature", QT_TRANSLATE_NOOP("MessageNames", "Copy feature"), Extra::Number, tool},
    {Sent::ChangeLineAngle, "ChangeLineAngle", QT_TRANSLATE_NOOP("MessageNames", "Change line angle"), Extra::Number, tool},
    {Sent::StretchLine, "StretchLine", QT_TRANSLATE_NOOP("MessageNames", "Stretch line"), Extra::Number, tool},
    {Sent::RotateFeature, "RotateFeature", QT_TRANSLATE_NOOP("MessageNames", "Rotate feature"), Extra::Number, tool},
    {Sent::MirrorFeature, "MirrorFeature", QT_TRANSLATE_NOOP("MessageNames", "Mirror feature"), Extra::Number, tool},
    {Sent::InvertFeature, "InvertFeature", QT_TRANSLATE_NOOP("MessageNames", "Invert feature"), Extra::Number, tool},
    {Sent::BreakLine, "BreakLine", QT_TRANSLATE_NOOP("MessageNames", "Break line"), Extra::Number, tool},
    {Sent::RoutDimension, "RoutDimension", QT_TRANSLATE_NOOP("MessageNames", "Rout dimension"), Extra::Number, tool},
    {Sent::ContourEditor, "ContourEditor", QT_TRANSLATE_NOOP("MessageNames", "Contour editor"), Extra::Number, tool},
    {Sent::PullLine, "PullLine", QT_TRANSLATE_NOOP("MessageNames", "Pull line"), Extra::Number, tool},
    {Sent::MoveJunction, "MoveJunction", QT_TRANSLATE_NOOP("MessageNames", "Move junction"), Extra::Number, tool},
    {Sent::MoveTriplet, "MoveTriplet", QT_TRANSLATE_NOOP("MessageNames", "Move triplet"), Extra::Number, tool},
    {Sent::RerouteTrace, "RerouteTrace", QT_TRANSLATE_NOOP("MessageNames", "Reroute trace"), Extra::Number, tool},
    {Sent::PolygonSelection, "PolygonSelection", QT_TRANSLATE_NOOP("MessageNames", "Polygon selection"), Extra::Number, tool},
    {Sent::OpenPopView, "OpenPopView", QT_TRANSLATE_NOOP("MessageNames", "Open a pop view"), Extra::Number, tool},
    {Sent::FeatureHighLight, "FeatureHighLight", QT_TRANSLATE_NOOP("MessageNames", "Feature highlight"), Extra::Number, tool},
    {Sent::PolygonSelectionOff, "PolygonSelectionOff", QT_TRANSLATE_NOOP("MessageNames", "Polygon selection off")},
    {Sent::InvertFeatureOff, "InvertFeatureOff", QT_TRANSLATE_NOOP("MessageNames", "Invert feature off")},
    {Sent::BreakLineOff, "BreakLineOff", QT_TRANSLATE_NOOP("MessageNames", "Break line off")},
    {Sent::ChangeLineAngleOff, "ChangeLineAngleOff", QT_TRANSLATE_NOOP("MessageNames", "Change line angle off")},
    {Sent::StretchLineOff, "StretchLineOff", QT_TRANSLATE_NOOP("MessageNames", "Stretch line off")},
    {Sent::RotateFeatureOff, "RotateFeatureOff", QT_TRANSLATE_NOOP("MessageNames", "Rotate feature off")},
    {Sent::AddFeature, "AddFeature", QT_TRANSLATE_NOOP("MessageNames", "Add feature"), Extra::Number, tool},
    {Sent::SelectPolyline, "SelectPolyline", QT_TRANSLATE_NOOP("MessageNames", "Select polyline"), Extra::Number, tool},
    {Sent::SelectLayerNet, "SelectLayerNet", QT_TRANSLATE_NOOP("MessageNames", "Select layer net"), Extra::Number, tool},
    {Sent::SelectBoardNet, "SelectBoardNet", QT_TRANSLATE_NOOP("MessageNames", "Select board net"), Extra::Number, tool},
    {Sent::AddFeatureStarted, "AddFeatureStarted", QT_TRANSLATE_NOOP("MessageNames", "Add feature started")},
    {Sent::MoveTripletOff, "MoveTripletOff", QT_TRANSLATE_NOOP("MessageNames", "Move triplet off")},
    {Sent::RerouteTraceOff, "RerouteTraceOff", QT_TRANSLATE_NOOP("MessageNames", "Reroute trace off")},
    {Sent::Mark, "Mark", QT_TRANSLATE_NOOP("MessageNames", "Mark"), Extra::Number, tool},
    {Sent::MarkSettings, "MarkSettings", QT_TRANSLATE_NOOP("MessageNames", "Mark settings")},
    {Sent::SelectSymbol, "SelectSymbol", QT_TRANSLATE_NOOP("MessageNames", "Select a symbol on the board")},
    {Sent::DialogsClosed, "DialogsClosed", QT_TRANSLATE_NOOP("MessageNames", "Dialogs closed")},
    {Sent::Eq, "Eq", QT_TRANSLATE_NOOP("MessageNames", "EQ"), Extra::Number, tool},
    {Sent::Record, "Record", QT_TRANSLATE_NOOP("MessageNames", "Feature record")},
    {Sent::AttributeMap, "AttributeMap", QT_TRANSLATE_NOOP("MessageNames", "Attributes"), Extra::Attributes},
    {Sent::DirectionRecord, "DirectionRecord", QT_TRANSLATE_NOOP("MessageNames", "Feature record (direction)")},
    {Sent::Fill, "Fill", QT_TRANSLATE_NOOP("MessageNames", "Fill")},
    {Sent::SelectFromEditor, "SelectFromEditor", QT_TRANSLATE_NOOP("MessageNames", "Select attributes on the board")},
};

// What the canvas is told by the host, not by the tool strip.
const Row canvasJobOpened = {Accepted::JobOpened, "JobOpened",
                             QT_TRANSLATE_NOOP("MessageNames", "Job and step opened")};

// What a sibling may ask of the host itself.
const std::vector<Row> hostRows = {
    {Accepted::JobOpened, "JobOpened", QT_TRANSLATE_NOOP("MessageNames", "Open job and step")},
};
// clang-format on

const std::vector<Row>& rowsOf(const QString& receiver)
{
    if (receiver == ModuleNames::toolStrip) {
        return acceptedRows;
    }
    return receiver == CanvasHost::hostName ? hostRows : sentRows;
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
    if (receiver == ModuleNames::viewer && code == canvasJobOpened.code) {
        return &canvasJobOpened;
    }
    const std::vector<Row>& rows = rowsOf(receiver);
    const auto found =
        std::find_if(rows.begin(), rows.end(), [=](const Row& row) { return row.code == code; });
    return found == rows.end() ? nullptr : &*found;
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
