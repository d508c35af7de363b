#pragma once

#include <string>

// SQLite's file system, for the fuzzers alone: all files stand in memory, whatever their paths.
namespace gfc::fuzz {

// Makes it the one that SQLite uses from now on.
void UseMemoryVfs();

// The bytes of a file of that path; an empty one if there was none.
[[nodiscard]] std::string& MemoryFile(const std::string& path);
void ForgetMemoryFiles();

} // namespace gfc::fuzz
