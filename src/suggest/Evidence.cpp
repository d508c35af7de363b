#include "suggest/Evidence.h"

#include <array>

namespace gfc::suggest {

namespace {

using enum Evidence;

// clang-format off
constexpr std::array<EvidenceRow, static_cast<std::size_t>(Evidence::Count)> Table = {{
    // what is measured
    {IsaLetters,      40, false, "ISA letters %"},
    {KksLetters,      36, false, "KKS letters %"},
    {Word,            40, false, "%"},
    {CutWord,        -12, false, "% is cut"},
    {ExtraWord,       -1, false, ""},
    {UnknownWord,     -6, false, "% is not known"},
    {ValueWord,        4, false, ""},
    {SelectedWord,    10, false, "the selected one"},
    {LowOrHigh,      -10, false, "one of stacked ranges"},
    {LoopSuffix,      -6, false, "one of several of its loop"},
    {SameDirection,    6, false, ""},
    {OtherDirection, -16, false, "register of the other direction"},
    {TotalOfLoop,      0, false, "its loop's total is %"},
    {ModuleWord,      -2, false, "in module %"},
    {PhysicalModule,  -2, false, ""},
    // of which run
    {RunWord,         14, true,  "run % in its name"},
    {RunDigit,        12, true,  "%"},
    {RunModule,       10, true,  "module %"},
    {RunLoopBound,    16, true,  "%"},
    {RunLikeBound,    16, true,  "like %"},
    {RunOnly,         10, true,  "the only one"},
    {RunAnalyser,     10, true,  "the station's only analyser"},
    {RunPrefix,        6, false, "% like others of the run"},
    {RunOrder,         4, false, "%"},
    {RunNeighbours,    3, false, "its register stands amid those of the run"},
    {OtherStation,    40, false, "station % binds the same name and register"},
}};
// clang-format on

consteval bool InOrder() {
    for (std::size_t i = 0; i < Table.size(); ++i)
        if (static_cast<std::size_t>(Table[i].Kind) != i)
            return false;
    return true;
}
static_assert(InOrder());

} // namespace

const EvidenceRow& RowOf(Evidence kind) {
    return Table[static_cast<std::size_t>(kind)];
}

} // namespace gfc::suggest
