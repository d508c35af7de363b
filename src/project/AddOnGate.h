#pragma once

#include "platform/DynamicLibrary.h"
#include "project/AddOnLibrary.h"

#include <functional>
#include <memory>
#include <string>

// The one place where the add-on library of the I/O Workshop tool is met. Nothing that comes from it is
// trusted: a text without its NUL ends at the width of its field, and a count or a pointer that cannot be
// gives an empty list.
namespace gfc::project {

using LibraryLoader = std::function<platform::LibraryLoad(const std::string& fullPath)>;

// "kdaddon_VBwrapper" with this machine's ending.
[[nodiscard]] std::string AddOnFileName();

// Loads the library from that folder (no separator at its end) and from nowhere else; an empty folder is a
// failure. Null on failure; error
// then names the file and the reason, or the first function that is called and that the library lacks.
[[nodiscard]] std::unique_ptr<AddOnLibrary>
LoadAddOnLibrary(const LibraryLoader& load, const std::string& programFolder, std::string& error);

} // namespace gfc::project
