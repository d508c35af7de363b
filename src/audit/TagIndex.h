#pragma once

#include "audit/Bindings.h"
#include "project/TagInventory.h"

#include <unordered_map>
#include <vector>

namespace gfc::audit {

// The station's tags at the registers that are bound, found in one walk over all tags.
class TagIndex {
public:
    // Takes copies of the tags that it holds.
    TagIndex(const std::vector<Bound>& bindings, const project::TagList& tags);

    // The tag of that name, address and type that the variable's class can be bound to; null if there is
    // none. A physical float or long is never such a tag.
    [[nodiscard]] const project::Tag* TagOf(const Bound& bound) const;
    [[nodiscard]] bool Holds(const Bound& bound) const { return TagOf(bound) != nullptr; }
    // The tag of that name and address and another type of the class; null if there is none.
    [[nodiscard]] const project::Tag* OfAnotherType(const Bound& bound) const;

private:
    using Match = bool (*)(const project::Tag& tag, const Bound& bound);
    [[nodiscard]] const project::Tag* Find(const Bound& bound, Match match) const;

    std::unordered_multimap<std::string, project::Tag> tags_; // by the address as it is written
};

} // namespace gfc::audit
