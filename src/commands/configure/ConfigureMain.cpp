#include "commands/configure/Configure.h"
#include "platform/Console.h"
#include "platform/Machine.h"

#include <CLI/CLI.hpp>

#include <iostream>

namespace gfc::commands {

void Tell(std::string_view text) {
    std::cerr << "gfc-configure: " << text << '\n';
}

namespace {

int Main(int argc, const char* const* argv) {
    CLI::App app(
        "Writes the configurations of many stations of the open project from one of them, or from a table.",
        "gfc-configure");
    app.footer("\"gfc-configure COMMAND --help\" explains a command. What does not fit is told as a whole, "
               "and then\n"
               "nothing is written; --preview writes nothing in any case.\n"
               "Exit codes:\n"
               "  0  done, and the check finds no error in what was written\n"
               "  1  nothing was written since something does not fit, or the check finds errors\n"
               "  2  wrong use: no such command, option, file or station\n"
               "  3  the project could not be asked, or a file not be written\n"
               "130  broken off by Ctrl+C between two stations; what was not written is told");
    app.set_version_flag("--version", GFC_VERSION);
    app.require_subcommand(1);
    app.get_formatter()->label("SUBCOMMAND", "COMMAND");
    platform::RealMachine real;
    platform::Machine machine = real.Seams();
    platform::NoteInterrupts();
    int status = exitcode::Clean;
    const Context context{machine, status};
    AddCopyCommand(app, context);
    AddRebindCommand(app, context);
    AddApplyCommand(app, context);
    AddTemplateCommand(app, context);
    return RunApp(app, platform::ConsoleArguments(argc, argv), status);
}

} // namespace

} // namespace gfc::commands

int main(int argc, char** argv) {
    return gfc::commands::Main(argc, argv);
}
