#include "platform/Machine.h"
#include "platform/posix/UserFolders.h"

#include <climits>

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#ifdef __APPLE__
#include <mach-o/dyld.h>
#endif

namespace gfc::platform {
namespace {

std::string ExecutablePath() {
#ifdef __APPLE__
    std::uint32_t size = PATH_MAX;
    std::string path(size, '\0');
    if (_NSGetExecutablePath(path.data(), &size) != 0)
        return {};
    path.resize(path.find('\0'));
    return path;
#else
    std::string path(PATH_MAX, '\0');
    const ssize_t length = ::readlink("/proc/self/exe", path.data(), path.size());
    path.resize(length < 0 ? 0 : static_cast<std::size_t>(length));
    return path;
#endif
}

class PosixPaths : public Paths {
public:
    std::string ExecutableFolder() override { return ParentFolder(ExecutablePath()); }

    std::string ProfileFolder() override {
        const std::string config = posix::FullPathIn("XDG_CONFIG_HOME");
        if (!config.empty())
            return config;
        const std::string home = posix::HomeFolder();
        return home.empty() ? home : home + "/.config";
    }

    std::string OwnFolder() override {
        const std::string folder = posix::StateFolder();
        if (folder.empty())
            return folder;
        posix::MakeFolder(folder);
        struct stat state {};
        return ::stat(folder.c_str(), &state) == 0 && S_ISDIR(state.st_mode) ? folder : std::string();
    }

    // By the account and not by a variable, which anybody can set.
    std::string UserName() override {
        const passwd* user = ::getpwuid(::geteuid());
        return user && user->pw_name ? user->pw_name : "";
    }
};

} // namespace

void SilenceSystem() {} // it never speaks by itself

std::unique_ptr<Paths> MakePaths() {
    return std::make_unique<PosixPaths>();
}

} // namespace gfc::platform
