#pragma once

#include "drafts/Draft.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Drafts as text: a block of lines for each, "name TAB value", closed by a mark over its bytes. What a person
// typed comes back byte for byte.
namespace gfc::drafts {

// A block as it stands in the file; a broken one is kept, too, until a person lets it go.
struct KeptDraft {
    std::string Bytes;
    std::optional<Draft> TheDraft; // nothing if the block is broken
    // What can still be told of a broken one; may be empty.
    std::string Station;
};

[[nodiscard]] std::string BytesOf(const Draft& draft);
// In their order. Whatever the bytes are, all of them stand in one of the blocks.
[[nodiscard]] std::vector<KeptDraft> DraftsIn(std::string_view bytes);

} // namespace gfc::drafts
