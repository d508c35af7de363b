#pragma once

#include <filesystem>
#include <string>

// Where the tests of this build find what they read and what they start. The folders are known to one source
// alone, so that all other objects are the same wherever the tree stands.
namespace gfc::test {

[[nodiscard]] std::filesystem::path GoldenFolder();

// The program's own sources, for tests of what it says.
[[nodiscard]] std::filesystem::path SourceFolder();

// The programs and libraries of this build.
[[nodiscard]] std::filesystem::path BinFolder();

// The bytes of a file under GoldenFolder(), such as "log/all_sections.log"; empty if there is no such file.
[[nodiscard]] std::string Golden(const std::string& name);

} // namespace gfc::test
