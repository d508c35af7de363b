#pragma once

#include "project/TagInventory.h"

namespace gfc::project {

// count tags of one class in one module: stem1, stem2, ... at registers 1, 2, ...
inline TagList Module(const std::string& name, const std::string& type, const std::string& regType, int count,
                      const std::string& stem = "T") {
    TagList tags;
    for (int i = 1; i <= count; ++i)
        tags.push_back({stem + std::to_string(i), i, regType, name, type});
    return tags;
}

inline TagList operator+(TagList left, const TagList& right) {
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

inline TagInventory InventoryOf(const TagList& tags) {
    TagInventory inventory;
    BuildInventory(tags, inventory);
    return inventory;
}

} // namespace gfc::project
