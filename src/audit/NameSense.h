#pragma once

#include "audit/Bindings.h"
#include "naming/TagName.h"

#include <string>
#include <string_view>

// What the name of a tag says against the variable that is bound to it. Each gives the reason for people, and
// the empty text where the name says nothing against it: a name that says nothing never does.
namespace gfc::audit {

// The letters are those by which registers are called, and not of an instrument.
[[nodiscard]] bool AreOfRegisters(std::string_view letters);

// The letters of the instrument and the words: another quantity than the variable's.
[[nodiscard]] std::string QuantityAgainst(const Bound& bound, const naming::TagName& name);

// A unit that the name ends with or holds as a word of its own, and that is another one of the same quantity.
// Empty, too, for a variable without a unit.
[[nodiscard]] std::string UnitAgainst(const Bound& bound, const naming::TagName& name,
                                      const config::StationConfig& station);

} // namespace gfc::audit
