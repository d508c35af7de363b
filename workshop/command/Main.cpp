#include "workshop/command/Commands.h"
#include "workshop/store/Failure.h"

#include <CLI/CLI.hpp>

#include <exception>
#include <iostream>

namespace {

using namespace gfc::workshop;

int RunCommand(CLI::App& app, int argc, const char* const* argv, int& status) {
    try {
        app.parse(argc, argv);
        if (!std::cout.flush()) {
            throw Failure("the output could not be written; check the disk and the access rights.");
        }
        return status;
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? Succeeded : WrongUsage; // a call for help is such an error too
    } catch (const std::exception& error) {
        Tell(error.what());
        return Failed;
    }
}

} // namespace

namespace gfc::workshop {

std::string Counted(std::size_t count, std::string_view thing) {
    return std::to_string(count) + ' ' + std::string(thing) + (count == 1 ? "" : "s");
}

void Tell(const std::string& text) {
    std::cerr << "io-workshop: " << text << '\n';
}

} // namespace gfc::workshop

int main(int argc, char** argv) {
    CLI::App app(
        "Makes and serves the projects of stations and their I/O tags on which the gas flow computer "
        "configurator works.",
        "io-workshop");
    app.footer("Start with:\n  io-workshop demo ~/plant\n  io-workshop open ~/plant/plant.KPJ\n"
               "\"io-workshop COMMAND --help\" explains a command with an example.\n"
               "Exit codes:\n"
               "  0  done, also with a warning\n"
               "  1  refused or failed; the message says what, where and what to do\n"
               "  2  wrong usage: no such command or option, or an argument is missing or no such thing");
    app.set_version_flag("--version", GFC_VERSION);
    app.require_subcommand(1);
    app.get_formatter()->label("SUBCOMMAND", "COMMAND");
    int status = Succeeded;
    AddProjectCommands(app);
    AddImportCommand(app, status);
    AddExportCommand(app);
    AddTagCommands(app);
    AddUseCommand(app);
    AddTagEditCommands(app);
    AddFileCommands(app, status);
    AddWindowCommand(app);
    return RunCommand(app, argc, argv, status);
}
