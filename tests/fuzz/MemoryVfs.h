#pragma once

#include <string>

// SQLite's file system, for the fuzzers alone: all files stand in memory, whatever their paths.
namespace gfc::fuzz {

// Which one SQLite uses from now on.
void UseMemoryVfs();
void UseMachineVfs();

// The bytes of a file of that path; an empty one if there was none.
[[nodiscard]] std::string& MemoryFile(const std::string& path);
// Those whose paths start so.
void ForgetMemoryFiles(const std::string& start);

} // namespace gfc::fuzz
