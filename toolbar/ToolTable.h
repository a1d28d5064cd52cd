#pragma once

#include <QString>

#include <array>

/// The tools in list and grid order; the values are the indices of isToolButtonChecked().
enum class Tool : int {
    AreaZoom,
    OpenPopView,
    Measure,
    FeatureHighLight,
    AddFeature,
    DeleteFeature,
    MoveFeature,
    CopyFeature,
    ChangeLineAngle,
    StretchLine,
    RotateFeature,
    MirrorFeature,
    InvertFeature,
    BreakLine,
    RoutDimension,
    ContourEditor,
    PullLine,
    MoveJunction,
    MoveTriplet,
    RerouteTrace,
    FeatureSelection,
    RectangleSelection,
    PolygonSelection,
    SelectByNet,
    Mark,
    Eq,
};

namespace ToolTable {

constexpr int toolCount = 26;

/// What the start does to a button's enabled state.
enum class Start { Untouched, Enabled, Disabled };

/// A text to translate.
struct Tip {
    const char* text;
    const char* note;  ///< disambiguation; null: none
};

/// One tool.
struct Row {
    const char* objectName;
    Tip tip;            ///< tool tip at construction
    const char* image;  ///< file names in the resource tree
    const char* checkedImage;
    Start start;
    const char* clickSlot;  ///< SLOT(…) that clicked() is connected to
    int onCode;             ///< sent by a standard handler while the button is checked; Unset:
                            ///< the tool's handler is its own
    int offCode;            ///< sent otherwise; equal to onCode for a tool with one code
    const char* imageProperty = "background-image";  ///< of the style sheet
};

const std::array<Row, toolCount>& rows();
const Row& row(Tool tool);

/// The sheet that shows `image`, and `checkedImage` while the button is checked, as `property`.
QString styleSheet(const char* image, const char* checkedImage,
                   const char* property = "background-image");

}  // namespace ToolTable
