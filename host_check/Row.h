#pragma once

#include <vector>

/// What the module relies on in a host, each statement by a name.
enum class Row : int {
    ManagerIsOne,
    ManagerReturns,
    ManagerDeliversAtOnce,
    ManagerNests,
    SymbolsAccepted,
    SymbolsForArcs,
    SymbolsRefused,
    SpecialSymbols,
    Fonts,
    EqVisible,
    UnitString,
    Unit,
    ShowPara,
    BoundInUnit,
    NamesToMetric,
    NamesToStored,
    NamesOfOthers,
    NamesComeBack,
    NumberAnswer,
    NumberBox,
    SymbolAnswer,
    SymbolExceptions,
    SymbolBox,
    EditStartsInUnit,
    EditConverts,
    EditConvertsOnce,
    EditComesBack,
    EditDecimalPoint,
    EditIsQuiet,
    EditKeepsText,
    EditTakesRefused,
    EditIsReported,
    EditParent,
    EditValidator,
    AttributesSignals,
    AttributesPicked,
    AttributesColour,
    AttributesApplied,
    ChooserSignals,
    ChooserSends,
    ChooserView,
    ChooserRefreshes,
    ChooserUnit,
    FontsSend,
    FontsKnown,
    TextsSend,
    MeasureSlots,
    WindowsShow,
    WindowsBelong,
    WindowsDelete,
    PairStarts,
    PairPictures,
    PairWindows,
    PairRecords,
    PairBoxes,
    PairWarnings,
    PairSurvives,
    PairUnloads,
    PairUnitSwitch,
    Count  ///< not a row: their number
};

/// What judges a row.
enum class JudgedBy {
    Calls,       ///< host_check itself
    Pair,        ///< the module at work in the host
    PairInBoth,  ///< the same, if the unit can be switched
    Nothing,     ///< nothing that has no access to the running host
};

/// A function of the module.
struct Place {
    const char* file;
    const char* function;
};

/// A row of the table.
struct Reliance {
    Row row;
    const char* subject;  ///< function or window
    const char* statement;
    std::vector<Place> places;  ///< that rely on it
    const char* seen;           ///< by the user, if it is not so
    JudgedBy judgedBy = JudgedBy::Calls;
};

const Reliance& reliance(Row row);
