#include "platform/posix/UserFolders.h"

#include <cstdlib>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace gfc::platform::posix {

std::string FullPathIn(const char* variable) {
    const char* value = std::getenv(variable);
    return value && value[0] == '/' ? value : "";
}

std::string HomeFolder() {
    const std::string home = FullPathIn("HOME");
    if (!home.empty())
        return home;
    const passwd* user = ::getpwuid(::geteuid());
    return user && user->pw_dir ? user->pw_dir : "";
}

std::string StateFolder() {
    const std::string state = FullPathIn("XDG_STATE_HOME");
    if (!state.empty())
        return state + "/gfc-configurator";
    const std::string home = HomeFolder();
    return home.empty() ? home : home + "/.local/state/gfc-configurator";
}

void MakeFolder(const std::string& folder) {
    for (std::size_t at = folder.find('/', 1); at != std::string::npos; at = folder.find('/', at + 1))
        ::mkdir(folder.substr(0, at).c_str(), 0700);
    ::mkdir(folder.c_str(), 0700);
}

} // namespace gfc::platform::posix
