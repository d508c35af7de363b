#pragma once

#include "scenarios/Moves.h"
#include "scenarios/Scenario.h"

#include <utility>

namespace gfc::test {

// A whole pass over runs 1 and 2, saved; editor acts stand in the place of the first run's editor and of the
// second's.
[[nodiscard]] Scenario TwoRuns(const std::string& name, const moves::Choices& choices,
                               std::function<void(Story&)> first, std::function<void(Story&)> second,
                               std::function<void(FakeProgram&)> after);

// That the section of station North's file has these values.
[[nodiscard]] std::function<void(FakeProgram&)> Holds(const std::string& section,
                                                      std::vector<std::pair<std::string, std::string>> keys);

} // namespace gfc::test
