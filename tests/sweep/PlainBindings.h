#pragma once

#include "Choice.h"
#include "PlainStation.h"

#include <map>
#include <string>

// Which tags the automatic assignment gives to which variables.
namespace gfc::test::sweep {

// By the stem of the variable's keys.
using Bindings = std::map<std::string, PlainTag>;

[[nodiscard]] PlainTag TakeFirst(std::deque<PlainTag>& pool);
// Of the next run, stage by stage; what it takes is free no more.
[[nodiscard]] Bindings BindRun(const Choice& choice, Pools& pools);

} // namespace gfc::test::sweep
