#include "commands/Commands.h"
#include "services/Funciones_III.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <exception>
#include <iostream>

namespace gfc::commands {

CLI::Option& AddUserOption(CLI::App& command, std::string& user, const std::string& help) {
    return *command.add_option("--user", user, help)->check([](const std::string& text) {
        return services::IsUserId(text) ? std::string() : std::string(services::UserIdRule);
    });
}

int RunApp(CLI::App& app, std::vector<std::string> arguments, const int& status) {
    try {
        std::ranges::reverse(arguments); // as the parser takes them
        app.parse(arguments);
        if (!std::cout.flush())
            throw Failure(exitcode::NotToBeHad,
                          "the output could not be written; check the disk and the access rights.");
        return status;
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? exitcode::Clean : exitcode::WrongUse; // asking for help is one, too
    } catch (const Failure& failure) {
        Tell(failure.what());
        return failure.Code;
    } catch (const std::exception& error) {
        Tell(error.what());
        return exitcode::NotToBeHad;
    }
}

} // namespace gfc::commands
