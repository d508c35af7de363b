#include "workshop/command/Commands.h"
#include "workshop/store/Failure.h"

#include <CLI/CLI.hpp>

#include <exception>
#include <iostream>
#include <string>
#include <vector>

#ifdef _WIN32
#include "workshop/text/Paths.h"

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <io.h>
#include <windows.h>
#endif

namespace {

using namespace gfc::workshop;

// The words of the command line in UTF-8, the program's own name first, with output in the same. On Windows a
// program is handed them in the machine's code page, which lacks many a letter, and its output would get
// other line ends: those of a table that goes out are its own.
std::vector<std::string> Words(int argc, char** argv) {
#ifdef _WIN32
    // The console outlives this program.
    static const UINT before = ::GetConsoleOutputCP();
    ::SetConsoleOutputCP(CP_UTF8);
    std::atexit([] { ::SetConsoleOutputCP(before); });
    // No box of the system's own about a drive without a disk.
    ::SetErrorMode(::GetErrorMode() | SEM_FAILCRITICALERRORS);
    for (FILE* const stream : {stdout, stderr}) {
        static_cast<void>(::_setmode(::_fileno(stream), _O_BINARY));
    }
    wchar_t** const wide = ::CommandLineToArgvW(::GetCommandLineW(), &argc);
    std::vector<std::string> words;
    for (int word = 0; wide != nullptr && word < argc; ++word) {
        words.push_back(PathText(wide[word]));
    }
    ::LocalFree(wide);
    static_cast<void>(argv);
    return words;
#else
    return {argv, argv + argc};
#endif
}

int RunCommand(CLI::App& app, const std::vector<std::string>& words, int& status) {
    try {
        std::vector<const char*> line;
        for (const std::string& word : words) {
            line.push_back(word.c_str());
        }
        app.parse(static_cast<int>(line.size()), line.data());
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
    return RunCommand(app, Words(argc, argv), status);
}
