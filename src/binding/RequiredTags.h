#pragma once

#include "binding/BindingStage.h"
#include "config/VarINIFile.h"

// How many free tags a run needs.
namespace gfc::binding {

struct TagCounts {
    int Float = 0;
    int Analog = 0;
    int Digital = 0;
    int Long = 0;

    [[nodiscard]] int Total() const { return Float + Analog + Digital + Long; }
    bool operator==(const TagCounts&) const = default;
};

// kind 1 run inputs, 2 run outputs, 3 gas inputs, 4 gas outputs (the last two the reverse of the stages'
// numbers), 5 all of them; any other counts nothing. element is that of the run arrays.
//
// This arithmetic is deliberately its own and not that of the tree: for an Accelabar run it does not look at
// ExtMechParam, so that one left over from another standard makes count and tree differ by two.
[[nodiscard]] TagCounts CountRequiredTags(const config::StationConfig& station, int element, int kind);

// What one showing of TagRuns needs. The common inputs do not go through the count: always one float.
[[nodiscard]] TagCounts NeededTags(BindingStage stage, const config::StationConfig& station, int element);

} // namespace gfc::binding
