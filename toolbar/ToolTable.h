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

/// What a button shows: file names in the resource tree.
struct Pictures {
    const char* released;
    const char* checked;
};

/// One tool.
struct Row {
    const char* objectName;
    Tip tip;  ///< tool tip at construction
    Pictures pictures;
    Start start;
    const char* clickSlot;  ///< SLOT(...) that clicked() is connected to
    int onCode;             ///< sent by a standard handler while the button is checked; Unset:
                            ///< the tool's handler is its own, or its variants have the codes
    int offCode;            ///< sent otherwise; equal to onCode for a tool with one code
    /// The tip after a language change, unless it is `tip` again; one without a text leaves the
    /// button alone.
    std::optional<Tip> laterTip = std::nullopt;
    const char* imageProperty = "background-image";   ///< of the style sheet
    const QString* sender = &ModuleNames::toolStrip;  ///< the name that its messages go under
};

/// A way in which a tool works from the choice of a menu entry on.
struct Variant {
    int code;  ///< that the tool sends
    int mode;  ///< in the extra word of that message
    Pictures pictures;
    const char* trailingStyle = "";  ///< behind the rules of the style sheet
};

/// An entry of a menu.
struct MenuEntry {
    const char* objectName;
    const char* text;
    const char* laterText;  ///< after a language change; null: it keeps its text
    const char* slot;       ///< SLOT(...) that triggered(bool) is connected to
    std::optional<Variant> variant = std::nullopt;  ///< none: it leaves the tool as it is
};

/// A right-click menu.
struct Menu {
    const char* objectName;
    Tool owner;            ///< whose button opens it
    Tool parent;           ///< whose button it is a child of
    const char* openSlot;  ///< SLOT(...) that customContextMenuRequested(QPoint) is connected to
    std::vector<MenuEntry> entries;  ///< the first is in force until another is chosen
};

using Rows = Row[toolCount];
using Menus = Menu[menuCount];

/// In the order of Tool.
const Rows& rows();
const Row& row(Tool tool);
/// In the order of ToolMenu.
const Menus& menus();
const Menu& menu(ToolMenu menu);
/// The variant in that menu with that code and mode; null if there is none.
const Variant* variant(ToolMenu menu, int code, int mode);

/// The style sheet that shows the pictures as `property`.
QString styleSheet(const Pictures& pictures, const char* property = "background-image");

}  // namespace ToolTable
