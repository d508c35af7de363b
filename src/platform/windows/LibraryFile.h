#pragma once

#include "platform/windows/Wide.h"

#include <string>

namespace gfc::platform::windows {

// Why the system refused to load that library, in words that say what to do where it is known: a library made
// for another width of addresses, no library at all, one that lacks a companion. Else the system's own words.
[[nodiscard]] std::string ReasonAgainstLibrary(const std::string& path, DWORD error);

} // namespace gfc::platform::windows
