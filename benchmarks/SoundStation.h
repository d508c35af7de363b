#pragma once

#include "project/WireRecords.h"

#include <cstddef>
#include <string>
#include <vector>

namespace gfc::bench {

// A station in which nothing is wrong, as most are: five runs with a chromatograph, bound to tags whose names
// say what they are, and more tags up to that many.
struct SoundStation {
    explicit SoundStation(const std::string& name, std::size_t tags);

    std::string Name;
    std::string File; // bytes
    std::vector<project::TagRecord> Records;

    // The rows of a table of tags as io-workshop takes them, without its heading.
    [[nodiscard]] std::string Table() const;
};

inline constexpr const char* TableHeading = "Station,IP Address,Module,Module Type,Tag,Class,Register\n";

} // namespace gfc::bench
