#pragma once

#include "config/Recorder.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// An entry as the record's table holds it.
namespace gfc::record {

struct StoredEntry {
    config::RecordEntry Facts;
    std::string Changes;  // compressed, as ChangesText writes them; empty where the whole file is new
    std::string Content;  // the file, as KeepWhole or KeepLike makes it; empty where there is none
    std::string Previous; // the hash of the entry before; empty for the first
};

// SHA-256 over all that the row holds but the hash itself: each column with its length before it, so that no
// byte can pass from one to its neighbour.
[[nodiscard]] std::string HashOf(const StoredEntry& entry);

// One line for each change: section, key, old and new text between tabs; "=" stands before a text that is
// there and "-" in the place of one that is not. Backslash, tab and line break are written with a backslash.
[[nodiscard]] std::string ChangesText(const std::vector<config::KeyChange>& changes);
// Nothing for what ChangesText did not write.
[[nodiscard]] std::optional<std::vector<config::KeyChange>> ReadChanges(std::string_view text);

} // namespace gfc::record
