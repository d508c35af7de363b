#include "platform/posix/UserFolders.h"

#include <cstdlib>
#include <pwd.h>
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

} // namespace gfc::platform::posix
