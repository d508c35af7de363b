#pragma once

#include "binding/Catalogue.h"
#include "project/TagInventory.h"

#include <set>
#include <string>

namespace gfc::plan {

// The tags that may be bound, class by class in delivery order, and which of them are still free.
class TagPools {
public:
    TagPools() = default;
    // inventory: with its lists of available tags built.
    explicit TagPools(const project::TagInventory& inventory);

    [[nodiscard]] const project::TagList& Of(binding::TagClass tagClass) const;
    // It goes to nobody else by itself then.
    void Take(const project::Tag& tag);
    // The next that is free; null where none is left.
    [[nodiscard]] const project::Tag* Next(binding::TagClass tagClass);

private:
    project::TagList lists_[4];   // by class
    std::size_t next_[4] = {};    // where to look on
    std::set<std::string> taken_; // "FX 12"
};

} // namespace gfc::plan
