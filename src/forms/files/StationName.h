#pragma once

#include <string>

namespace gfc::forms {

inline constexpr const char* CharactersRefused =
    "The name of the station has characters that the name of a file cannot have.";

// Why a typed name cannot be that of a station and of its file, in words for the person; empty if it can.
[[nodiscard]] std::string ReasonAgainst(const std::string& typedName);

} // namespace gfc::forms
