#pragma once

#include "binding/RequiredTags.h"

#include <string>
#include <string_view>

// What assigning tags goes by, apart from the window: the numbering of the tree's nodes, the list that a
// variable draws from, and the arithmetic of the automatic assignment.
namespace gfc::binding {

constexpr std::string_view NotConfigured = "Not Configured";

// The nodes of the variable at zero-based position p; the root is node 1. Every routine counts on this.
namespace node {
constexpr int Root = 1;
constexpr int PerVariable = 7;
constexpr int Variable(int p) {
    return PerVariable * p + 2;
}
constexpr int AddressValue(int p) {
    return PerVariable * p + 6;
}
constexpr int TypeValue(int p) {
    return PerVariable * p + 7;
}
constexpr int NameValue(int p) {
    return PerVariable * p + 8;
}
// A child or a value of a variable stands for the variable; -1 for the root and for no node.
constexpr int PositionOf(int node) {
    return node <= Root ? -1 : (node - Variable(0)) / PerVariable;
}
} // namespace node

// The three lists of free tags.
enum class OfferList { Float, Long, AnalogDig };

// By position alone, since a stage has its floats first, then its longs, then the rest.
[[nodiscard]] OfferList OfferListOf(int position, const TagCounts& needed);
// How many variables of the stage draw from the list; analog and digital share one.
[[nodiscard]] int NeededFrom(OfferList list, const TagCounts& needed);

// Rows from the clicked one (counted from 1) to the end; may be 0 or less.
constexpr int RowsFrom(int clickedRow, int rowCount) {
    return rowCount - clickedRow + 1;
}

struct FreeRows {
    int Float = 0;
    int Long = 0;
    int AnalogDig = 0;
};

// A class that is not needed never stands in the way.
[[nodiscard]] bool CanAutoAssign(const TagCounts& needed, const FreeRows& free);
// Names every class that is needed, whether it is short or not.
[[nodiscard]] std::string AutoAssignShortage(const TagCounts& needed);

} // namespace gfc::binding
