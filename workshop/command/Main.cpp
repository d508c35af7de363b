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
        return status;
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? Succeeded : WrongUsage; // a call for help is such an error too
    } catch (const std::exception& error) {
        std::cerr << "io-workshop: " << error.what() << '\n';
        return Failed;
    }
}

} // namespace

int main(int argc, char** argv) {
    CLI::App app(
        "Makes and serves the projects of stations and their I/O tags on which the gas flow computer "
        "configurator works.",
        "io-workshop");
    app.footer("Start with:\n  io-workshop demo ~/plant\n  io-workshop open ~/plant/plant.KPJ\n"
               "Exit codes: 0 done, 1 failed, 2 wrong usage.");
    app.require_subcommand(1);
    int status = Succeeded;
    AddProjectCommands(app, status);
    AddTagCommands(app, status);
    AddTagEditCommands(app);
    AddFileCommands(app, status);
    return RunCommand(app, argc, argv, status);
}
