#include "workshop/store/OpenProject.h"

#include "workshop/store/Failure.h"
#include "workshop/store/WholeFile.h"
#include "workshop/text/Paths.h"

#include <cstdlib>
#include <fstream>
#include <string>
#include <system_error>

namespace gfc::workshop {

namespace {

namespace fs = std::filesystem;

// A relative path in such a variable is to be ignored.
std::optional<fs::path> FolderFrom(const char* variable) {
#ifdef _WIN32
    // Wide, since a user's name may have letters that the machine's code page lacks.
    const wchar_t* value = ::_wgetenv(fs::path(variable).c_str());
#else
    const char* value = std::getenv(variable);
#endif
    if (value == nullptr || !fs::path(value).is_absolute()) {
        return std::nullopt;
    }
    return fs::path(value);
}

fs::path StateFolder() {
    if (const auto state = FolderFrom("XDG_STATE_HOME")) {
        return *state;
    }
#ifdef _WIN32
    if (const auto local = FolderFrom("LOCALAPPDATA")) {
        return *local;
    }
    throw Failure("There is no folder to remember the open project in; set LOCALAPPDATA.");
#else
    if (const auto home = FolderFrom("HOME")) {
        return *home / ".local" / "state";
    }
    throw Failure("There is no folder to remember the open project in; set XDG_STATE_HOME or HOME.");
#endif
}

} // namespace

fs::path OpenProjectMark() {
    return StateFolder() / "io-workshop" / "open-project";
}

std::optional<fs::path> RecordedProject() {
    std::ifstream in(OpenProjectMark(), std::ios::binary);
    std::string line;
    if (!std::getline(in, line) || line.empty()) {
        return std::nullopt;
    }
    return PathOf(line);
}

void RecordProject(const fs::path& file) {
    const fs::path mark = OpenProjectMark();
    std::error_code error;
    fs::create_directories(mark.parent_path(), error);
    ReplaceWhole(mark, PathText(file) + '\n');
}

bool ForgetProject() {
    std::error_code error;
    const bool removed = fs::remove(OpenProjectMark(), error);
    if (error) {
        throw Failure(PathText(OpenProjectMark()) + ": cannot be removed: " + error.message() + ".");
    }
    return removed;
}

} // namespace gfc::workshop
