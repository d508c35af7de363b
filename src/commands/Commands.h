#pragma once

#include "commands/ExitCodes.h"

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace CLI {
class App;
class Option;
} // namespace CLI

namespace gfc::platform {
struct Machine;
}

// The command lines: one source file for each subcommand. Those of gfc-audit stand here, and none of them
// writes a station's file but "restore"; those of gfc-configure, which do write, in a folder of their own.
namespace gfc::commands {

// Ends a command with a message that says what, where and what to do, and with an exit code.
class Failure : public std::runtime_error {
public:
    Failure(int code, const std::string& text) : std::runtime_error(text), Code(code) {}
    int Code;
};

// What the commands work with; status is what the program ends with if no command fails.
struct Context {
    platform::Machine& Machine;
    int& Status;
};

void AddCheckCommand(CLI::App& app, Context context);
void AddSuggestCommand(CLI::App& app, Context context);
#ifdef GFC_RECORD
void AddHistoryCommand(CLI::App& app, Context context);
void AddShowCommand(CLI::App& app, Context context);
void AddDiffCommand(CLI::App& app, Context context);
void AddVerifyCommand(CLI::App& app, Context context);
void AddReportCommand(CLI::App& app, Context context);
void AddRestoreCommand(CLI::App& app, Context context);
#endif

// The option "--user" as the field of the window takes it: digits and points.
CLI::Option& AddUserOption(CLI::App& command, std::string& user, const std::string& help);

// Does what the arguments say and gives the exit code: that of a command that fails, else the status.
[[nodiscard]] int RunApp(CLI::App& app, std::vector<std::string> arguments, const int& status);

// A line for whoever sits at the screen, apart from what a command gives out. Each program puts its name
// first.
void Tell(std::string_view text);

} // namespace gfc::commands
