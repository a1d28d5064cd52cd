#pragma once

#include "plugin/ModuleNames.h"

#include <QString>

#include <optional>
#include <vector>

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
    Count  ///< not a tool: their number
};

/// The right-click menus.
enum class ToolMenu : int { Delete, Net, Mark, Count };

/// Everything in which the tools differ. The texts are translated in the context
/// "Canvas_Tool_Strip".
namespace ToolTable {

constexpr int toolCount = static_cast<int>(Tool::Count);
constexpr int menuCount = static_cast<int>(ToolMenu::Count);

/// Whether a button is enabled at first.
enum class Start { Untouched, Enabled, Disabled };

/// A text to translate.
struct Tip {
    const char* text;  ///< null: none
    const char* note;  ///< disambiguation; null: none
};

/// One tool.
struct Row {
    const char* objectName;
    Tip tip;            ///< tool tip at construction
    const char* image;  ///< file names in the resource tree
    const char* checkedImage;
    Start start;
    const char* clickSlot;  ///< SLOT(...) that clicked() is connected to
    int onCode;             ///< sent by a standard handler while the button is checked; Unset:
                            ///< the tool's handler is its own
    int offCode;            ///< sent otherwise; equal to onCode for a tool with one code
    /// The tip after a language change, unless it is `tip` again; one without a text leaves the
    /// button alone.
    std::optional<Tip> laterTip = std::nullopt;
    const char* imageProperty = "background-image";   ///< of the style sheet
    const QString* sender = &ModuleNames::toolStrip;  ///< the name that its messages go under
};

/// An entry of a menu.
struct MenuEntry {
    const char* objectName;
    const char* text;
    const char* laterText;  ///< after a language change; null: it keeps its text
    const char* slot;       ///< SLOT(...) that triggered(bool) is connected to
};

/// A right-click menu.
struct Menu {
    const char* objectName;
    Tool owner;            ///< whose button opens it
    Tool parent;           ///< whose button it is a child of
    const char* openSlot;  ///< SLOT(...) that customContextMenuRequested(QPoint) is connected to
    std::vector<MenuEntry> entries;
};

using Rows = Row[toolCount];
using Menus = Menu[menuCount];

/// In the order of Tool.
const Rows& rows();
const Row& row(Tool tool);
/// In the order of ToolMenu.
const Menus& menus();
const Menu& menu(ToolMenu menu);

/// The style sheet that shows `image`, and `checkedImage` while the button is checked, as
/// `property`.
QString styleSheet(const char* image, const char* checkedImage,
                   const char* property = "background-image");

}  // namespace ToolTable
