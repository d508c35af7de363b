#include "workshop/load/Audit.h"

#include "workshop/store/OpenProject.h"
#include "workshop/text/Paths.h"

#include <iostream>
#include <system_error>
#include <vector>

#ifdef _WIN32
#include <process.h>
#include <windows.h>
#else
#include <spawn.h>
#include <sys/wait.h>
extern char** environ;
#endif

namespace gfc::workshop {

namespace {

namespace fs = std::filesystem;

constexpr int HasErrors = 1; // of gfc-audit
constexpr int NotStarted = -1;

#ifdef _WIN32

constexpr const char* ProgramName = "gfc-audit.exe";

fs::path OwnFolder() {
    std::wstring path(32768, L'\0');
    path.resize(::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return fs::path(path).parent_path();
}

// Names of stations and folders hold no quotes; backslashes count double before the closing one.
std::wstring Quoted(std::wstring word) {
    const auto last = word.find_last_not_of(L'\\');
    word.append(word.size() - (last == std::wstring::npos ? 0 : last + 1), L'\\');
    return L'"' + word + L'"';
}

int Run(const fs::path& program, const std::vector<std::string>& arguments) {
    std::vector<std::wstring> words = {Quoted(program.wstring())};
    for (const std::string& argument : arguments) {
        words.push_back(Quoted(PathOf(argument).wstring()));
    }
    std::vector<const wchar_t*> argv;
    for (const std::wstring& word : words) {
        argv.push_back(word.c_str());
    }
    argv.push_back(nullptr);
    return static_cast<int>(::_wspawnv(_P_WAIT, program.c_str(), argv.data()));
}

#else

constexpr const char* ProgramName = "gfc-audit";

fs::path OwnFolder() {
    std::error_code error;
    return fs::read_symlink("/proc/self/exe", error).parent_path();
}

int Run(const fs::path& program, std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), program.string());
    std::vector<char*> argv;
    for (std::string& argument : arguments) {
        argv.push_back(argument.data());
    }
    argv.push_back(nullptr);
    pid_t child = 0;
    int status = 0;
    if (::posix_spawn(&child, program.c_str(), nullptr, nullptr, argv.data(), environ) != 0 ||
        ::waitpid(child, &status, 0) != child || !WIFEXITED(status)) {
        return NotStarted;
    }
    return WEXITSTATUS(status);
}

#endif

std::vector<std::string> ArgumentsFor(const Project& project, const std::string& station) {
    std::vector<std::string> arguments = AuditArguments(project);
    arguments.insert(arguments.end(), {"--", station});
    return arguments;
}

} // namespace

fs::path AuditProgram() {
    const fs::path folder = OwnFolder();
    std::error_code error;
    const bool there = !folder.empty() && fs::is_regular_file(folder / ProgramName, error);
    return there ? folder / ProgramName : fs::path();
}

std::vector<std::string> AuditArguments(const Project& project) {
    std::vector<std::string> arguments = {"check", "--severity", "error"};
    const auto open = RecordedProject();
    if (!open || *open != project.File()) {
        arguments.insert(arguments.end(), {"--folder", PathText(project.File().parent_path())});
    }
    return arguments;
}

std::set<std::string> StationsWithErrors(const fs::path& program, const Project& project,
                                         const std::set<std::string>& stations) {
    std::set<std::string> faulty;
    for (const std::string& station : stations) {
        std::cout.flush();
        const int result = Run(program, ArgumentsFor(project, station));
        if (result == HasErrors) {
            faulty.insert(station);
        } else if (result != 0) {
            std::cout << station << ": could not be checked.\n";
        }
    }
    return faulty;
}

} // namespace gfc::workshop
