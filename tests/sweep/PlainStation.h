#pragma once

#include <deque>
#include <string>
#include <vector>

// The station on which all combinations are configured, and by hand which of its tags are free.
namespace gfc::test::sweep {

struct PlainTag {
    std::string Name;
    std::string Address;
    std::string Type;
    std::string Module;
    std::string ModuleType;
};

// In the order in which the library delivers them. Enough for five runs of the largest need, to the register.
[[nodiscard]] const std::vector<PlainTag>& StationTags();

// What is offered once the working modules are set aside, in the order of the lists.
struct Pools {
    std::deque<PlainTag> Floats, Longs, Analogs, Digitals;
};
[[nodiscard]] const Pools& FreeTags();

} // namespace gfc::test::sweep
