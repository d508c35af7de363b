#pragma once

#include "config/Recorder.h"

#include <string>
#include <vector>

namespace gfc::config {

// What is wanted of a record; a field that says nothing lets everything pass. Names match without regard to
// case.
struct RecordFilter {
    std::vector<std::string> Stations;
    int Run = 0;      // 1 to 5; 0 for all, and for what belongs to no run
    std::string Key;  // a part of the key's name, or of what the summaries call it
    std::string User; // a part of the user id
    // The first and the last time, UTC, in the form of the entries or the beginning of it: "2023-03".
    std::string Since;
    std::string Until;

    [[nodiscard]] bool Wants(const RecordEntry& entry) const;
    // caption: what the summaries call the key.
    [[nodiscard]] bool Wants(const KeyChange& change, const std::string& caption) const;
    // Whether an entry is wanted only for its changes.
    [[nodiscard]] bool AsksForChanges() const { return Run != 0 || !Key.empty(); }
};

} // namespace gfc::config
