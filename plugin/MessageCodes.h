#pragma once

#include <QObject>
#include <QVector>

/// Every message code that this module sends or accepts; the numbers appear nowhere else. Both
/// enumerations are registered with Qt, so that programs can show a code by its name.
namespace MessageCodes {

/// To "Canvas_Viewer.dll" (AddFeatureStarted alone goes to "Canvas_JobTree.dll"). A tool with a
/// second code, ...Off, sends it when its button is not checked at the moment of sending.
namespace Sent {
Q_NAMESPACE

enum Code : int {
    Unset = -1,  ///< a message that was built but given no code

    AreaZoom = 20000201,
    FeatureSelection = 20000202,
    RectangleSelection = 20000203,
    FeatureSelectionOff = 20000204,
    RectangleSelectionOff = 20000205,
    DeleteFeature = 20000206,  ///< extra: DeleteMode
    MoveFeature = 20000207,
    CopyFeature = 20000208,
    ChangeLineAngle = 20000211,
    StretchLine = 20000212,
    RotateFeature = 20000213,
    MirrorFeature = 20000214,
    InvertFeature = 20000215,
    BreakLine = 20000216,
    RoutDimension = 20000217,
    ContourEditor = 20000218,
    PullLine = 20000219,
    MoveJunction = 20000220,
    MoveTriplet = 20000221,
    RerouteTrace = 20000222,
    PolygonSelection = 20000223,
    OpenPopView = 20000225,
    FeatureHighLight = 20000227,  ///< sent under the name "Canvas_Tool_Strip", without ".dll"
    PolygonSelectionOff = 20000228,
    InvertFeatureOff = 20000236,
    BreakLineOff = 20000237,
    ChangeLineAngleOff = 20000238,
    StretchLineOff = 20000239,
    RotateFeatureOff = 20000240,
    AddFeature = 20000241,  ///< once, on the click that creates the dialog
    SelectPolyline = 20000242,
    SelectLayerNet = 20000244,
    SelectBoardNet = 20000245,
    AddFeatureStarted = 20000246,  ///< to "Canvas_JobTree.dll", on every click
    MoveTripletOff = 20000249,
    RerouteTraceOff = 20000250,
    Mark = 20000266,  ///< extra: MarkMode
    MarkSettings = 20000268,
    SelectSymbol = 20001405,  ///< the dialog asks for a symbol picked on the board
    DialogsClosed = 20003950,
    Eq = 20004801,

    Record = 50,                  ///< payload: the whole feature parameter record
    AttributeMap = 51,            ///< extra: address of a std::map<std::string, std::string>
    DirectionRecord = 52,         ///< as Record, from the line-direction controls
    Fill = 53,                    ///< fill the surface that is being drawn
    SelectFromEditor = 20002838,  ///< asks for attributes; sent under "Canvas_RuleMenu.dll"
};
Q_ENUM_NS(Code)

/// The name of `code` as above; null for any other number.
const char* nameOf(int code);
/// All codes, in the order above.
QVector<int> all();
}  // namespace Sent

/// From siblings, through the exported recMsgFromManager. Any other code is ignored.
namespace Accepted {
Q_NAMESPACE

enum Code : int {
    ReleaseAll = 10000205,
    AreaZoom = 20000201,
    FeatureSelection = 20000202,
    RectangleSelection = 20000203,
    PolygonSelection = 20000223,
    AddFeatureActive = 20000241,  ///< makes Add Feature the only checked tool, sends nothing
    SelectPolyline = 20000242,
    SelectLayerNet = 20000244,
    SelectBoardNet = 20000245,
    CheckAndMeasure = 20000247,
    JobAndStep = 20001637,  ///< payload "JobName", "Step" (text)
    Measure = 20001715,
    AttributesPicked = 20001807,  ///< extra: address of a std::map<std::string, std::string>
    SymbolsPicked = 20001811,     ///< extra: address of a std::map<int, std::string>
    UserSymbolsChanged = 20001824,
    JobName = 20002003,  ///< extra: address of a std::string
    UnitChanged = 20002200,
    LanguageChanged = 20002201,
    JobOpened = 20002400,  ///< payload "JobName", "StepName" (text)
    CloseDialogs = 20002403,
    AddFeature = 20004602,
    DeleteFeature = 20004603,
    MoveFeature = 20004604,
};
Q_ENUM_NS(Code)

/// The name of `code` as above; null for any other number.
const char* nameOf(int code);
/// All codes, in the order above.
QVector<int> all();
}  // namespace Accepted

}  // namespace MessageCodes
