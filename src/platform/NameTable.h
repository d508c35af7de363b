#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace gfc::platform {

// Where a name stands in a list of names. Case does not count, and of equal names the first one is found. All
// are bytes of the code page.
class NameTable {
public:
    NameTable() = default;
    // What the names point to must outlive the table.
    explicit NameTable(std::vector<std::string_view> names);

    // The place of the name, counted from 0.
    [[nodiscard]] std::optional<std::size_t> Find(std::string_view name) const;

private:
    [[nodiscard]] std::size_t SlotOf(std::string_view name) const;

    std::vector<std::string_view> names_;
    std::vector<std::uint32_t> slots_{0}; // a place, counted from 1; 0 for none
};

} // namespace gfc::platform
