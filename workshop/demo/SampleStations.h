// The stations of the sample project, as tables that can be checked line by line.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace gfc::workshop {

struct SampleModule {
    std::string_view Name;
    std::string_view Type;
    std::string_view Class;
    std::int32_t Register; ///< of its first tag; the others follow one by one
    int Runs;              ///< how often the pattern is gone through, see ExpandTags
    std::string_view Tags;
};

struct SampleStation {
    std::string_view Name;
    std::string_view Type;
    std::string_view Address;
    std::int32_t SerialNumber;
    std::span<const SampleModule> Modules;
};

[[nodiscard]] std::span<const SampleStation> SampleStations();

} // namespace gfc::workshop
