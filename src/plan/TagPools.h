#pragma once

#include "binding/Catalogue.h"
#include "project/TagInventory.h"

#include <set>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace gfc::plan {

// The tags that may be bound, class by class in delivery order, and which of them are still free.
class TagPools {
public:
    TagPools() = default; // without any
    // inventory: with its lists of available tags built; it must outlive this.
    explicit TagPools(const project::TagInventory& inventory);

    // The tag that a cell names: "FT-101", or "FT-101 (FX 12)" where there are several of that name. Null
    // where the class has none; with a reason where it has more than one.
    [[nodiscard]] const project::Tag* Named(binding::TagClass tagClass, const std::string& text,
                                            std::string& reason) const;
    // It goes to nobody else by itself then.
    void Take(const project::Tag& tag);
    // The next that is free; null where none is left.
    [[nodiscard]] const project::Tag* Next(binding::TagClass tagClass);

private:
    struct Pool {
        std::span<const project::Tag> Tags;
        std::unordered_multimap<std::string, std::size_t> ByName; // their places; the case is folded
        std::size_t Next = 0;                                     // where to look on
    };
    [[nodiscard]] std::vector<const project::Tag*> AllNamed(const Pool& pool, std::string_view name) const;

    Pool pools_[4];               // by class
    std::set<std::string> taken_; // "FX 12"
};

} // namespace gfc::plan
