#pragma once

#include <cstddef>
#include <string>

namespace gfc::services {

// "1 station", "2 stations"
[[nodiscard]] inline std::string Counted(std::size_t count, const std::string& one, const std::string& many) {
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

} // namespace gfc::services
