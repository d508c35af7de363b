#pragma once

#include <string>
#include <vector>

namespace gfc::platform {

// What a program of the command line was started with, its own name left out; UTF-8 on every machine. From
// then on the output is UTF-8, too, and no byte of it is changed on its way.
[[nodiscard]] std::vector<std::string> ConsoleArguments(int argc, const char* const* argv);

// Whether what goes to the standard stream for results, or to that for errors, goes to a screen.
enum class Stream { Results, Errors };
[[nodiscard]] bool GoesToScreen(Stream stream);

// From then on Ctrl+C, or on POSIX a request to end, is noted and no more, so that the work can stop where
// nothing is half done; a second one ends the program at once. What the program was told to ignore it goes on
// ignoring.
void NoteInterrupts();
[[nodiscard]] bool WasInterrupted();

} // namespace gfc::platform
