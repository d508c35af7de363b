#pragma once

#include <string>
#include <string_view>

// What no program can do without, in bare calls of the system.
namespace gfc::bench {

// Opens, reads and closes.
[[nodiscard]] std::string PlainRead(const std::string& path);
// Looks at each line once for the key, the last one that starts with it.
[[nodiscard]] std::string PlainScan(std::string_view bytes, std::string_view key);
// Writes beside, flushes, renames and flushes the folder.
void PlainReplace(const std::string& path, std::string_view bytes);

} // namespace gfc::bench
