#include "workshop/command/Commands.h"
#include "workshop/store/Failure.h"
#include "workshop/text/Paths.h"

#include <CLI/CLI.hpp>

#include <filesystem>

#ifdef _WIN32
#include <array>
#include <process.h>
#include <windows.h>
#else
#include <unistd.h>
#endif

namespace gfc::workshop {

namespace {

namespace fs = std::filesystem;

#ifdef _WIN32

constexpr const char* WindowName = "io-workshop-window.exe";

fs::path OwnFile() {
    std::array<wchar_t, 32768> path{};
    GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    return path.data();
}

bool Start(const fs::path& program) {
    return _wspawnl(_P_NOWAIT, program.c_str(), program.filename().c_str(), nullptr) != -1;
}

#else

constexpr const char* WindowName = "io-workshop-window";

fs::path OwnFile() {
    std::error_code none;
    return fs::canonical("/proc/self/exe", none);
}

// The window takes the place of the command, so that a shell waits for it as it does for any program.
bool Start(const fs::path& program) {
    return ::execl(program.c_str(), program.c_str(), nullptr) == 0;
}

#endif

void ShowWindow() {
    const fs::path program = OwnFile().parent_path() / WindowName;
    if (!fs::exists(program) || !Start(program)) {
        throw Failure(PathText(program) +
                      ": cannot be started; it belongs beside io-workshop, install both again.");
    }
}

} // namespace

void AddWindowCommand(CLI::App& app) {
    CLI::App* command = app.add_subcommand("window", "Show the open project in a window");
    command->footer(
        "In the window projects are made and opened, tables taken in with a preview, tags renamed, moved\n"
        "and removed, and the files of the stations downloaded.\n"
        "Example:\n  io-workshop window");
    command->callback(ShowWindow);
}

} // namespace gfc::workshop
