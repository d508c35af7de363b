#pragma once

#include "config/VarINIFile.h"

#include <array>
#include <optional>
#include <span>
#include <string_view>

// The gases for which the standards hold, in mole fractions, and the published reference gases.
namespace gfc::audit {

constexpr double None = -1;

// A component, or those that count together.
struct ComponentRange {
    std::string_view Name;
    std::string_view Key; // of the first of them
    std::array<config::GasSlot, 5> Slots;
    std::size_t Count;
    double Least, Most;       // where the standard's own uncertainty holds
    double FarLeast, FarMost; // the outer range; None for one that no figure bounds
};

// AGA Report No. 8, 1992 and 1994, table 1: normal and expanded range.
[[nodiscard]] std::span<const ComponentRange> RangesOfAGA8();
// ISO 12213-2:1997, 4.4.1 and 4.4.2. What it does not name, the outer ranges of AGA-8 bound.
[[nodiscard]] std::span<const ComponentRange> RangesOfISO12213();

// AGA Report No. 8, 1992: the compositions of the five reference gases, in mole percent.
struct ReferenceGas {
    std::string_view Name;
    std::array<double, config::Components> Percent; // in the order of GasSlot
};
[[nodiscard]] std::span<const ReferenceGas> ReferenceGases();

} // namespace gfc::audit
