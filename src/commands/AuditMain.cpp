#include "commands/Commands.h"
#include "platform/Console.h"
#include "platform/Machine.h"

#include <CLI/CLI.hpp>

#include <iostream>

namespace gfc::commands {

void Tell(std::string_view text) {
    std::cerr << "gfc-audit: " << text << '\n';
}

namespace {

int Main(int argc, const char* const* argv) {
    CLI::App app("Looks over the configurations of the stations of a project and their history.",
                 "gfc-audit");
    app.footer("\"gfc-audit COMMAND --help\" explains a command.\n"
               "Exit codes:\n"
               "  0  nothing found at the level that was asked for\n"
               "  1  there are findings, or differences, or \"verify\" finds something changed\n"
               "  2  wrong use: no such command, option, folder or station\n"
               "  3  the project could not be asked, or the output not be written");
    app.set_version_flag("--version", GFC_VERSION);
    app.require_subcommand(1);
    app.get_formatter()->label("SUBCOMMAND", "COMMAND");
    platform::RealMachine real;
    platform::Machine machine = real.Seams();
    int status = exitcode::Clean;
    const Context context{machine, status};
    AddCheckCommand(app, context);
    AddSuggestCommand(app, context);
#ifdef GFC_RECORD
    AddReportCommand(app, context);
    AddHistoryCommand(app, context);
    AddShowCommand(app, context);
    AddDiffCommand(app, context);
    AddVerifyCommand(app, context);
    AddRestoreCommand(app, context);
#endif
    return RunApp(app, platform::ConsoleArguments(argc, argv), status);
}

} // namespace

} // namespace gfc::commands

int main(int argc, char** argv) {
    return gfc::commands::Main(argc, argv);
}
