#pragma once

#include "forms/program/Program.h"

#include <optional>
#include <string>
#include <vector>

namespace gfc::forms {

// A value that is to stand under a key; nothing for a key that is to go. UTF-8.
struct TakenValue {
    std::string Section;
    std::string Key;
    std::optional<std::string> Value;
    std::string Words; // the change as a person reads it
};

// Why nobody may take this key over; empty if anybody may. A file says whose it is, and stays that.
[[nodiscard]] std::string ReasonAgainstTaking(const std::string& section, const std::string& key);

// Puts the values into the station's file, which must still have the bytes that a person has seen: the check
// of a plant looks the result over first, and what it finds that it does not find now stands in the question.
// The change is entered in the record. True if the file is another one now.
[[nodiscard]] bool TakeOver(Program& program, const std::string& station, const std::string& seen,
                            const std::vector<TakenValue>& values, const std::string& title);

} // namespace gfc::forms
