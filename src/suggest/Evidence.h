#pragma once

#include <string_view>

namespace gfc::suggest {

// What speaks for a tag, or against it.
enum class Evidence {
    IsaLetters,
    KksLetters,
    Word,
    CutWord,
    ExtraWord,
    UnknownWord,
    ValueWord,
    SelectedWord,
    LowOrHigh,
    LoopSuffix,
    SameDirection,
    OtherDirection,
    TotalOfLoop,
    ModuleWord,
    PhysicalModule,
    RunWord,
    RunDigit,
    RunModule,
    RunLoopBound,
    RunLikeBound,
    RunOnly,
    RunAnalyser,
    RunPrefix,
    RunOrder,
    RunNeighbours,
    OtherStation,
    Count,
};

struct EvidenceRow {
    Evidence Kind;
    int Weight;
    bool MakesSure;         // of the run: mere order and the like never do
    std::string_view Words; // for people; % stands for what was found. Empty for what need not be said
};

[[nodiscard]] const EvidenceRow& RowOf(Evidence kind);

// From which sum on a tag is suggested at all.
constexpr int LeastWeight = 30;
// By how much a sure one must stand out from the next.
constexpr int ClearMargin = 3;

} // namespace gfc::suggest
