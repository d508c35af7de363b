#include "platform/Machine.h"
#include "platform/posix/Descriptor.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace gfc::platform {
namespace {

using posix::Descriptor;

bool IsOwnFolder(const char* path) {
    struct stat state {};
    return path && path[0] == '/' && ::stat(path, &state) == 0 && S_ISDIR(state.st_mode) &&
           state.st_uid == ::geteuid();
}

// One file per user in the common folder, where every start finds it, and one in the user's own folder for
// such files, if there is one: nobody else can have put it there first.
std::vector<std::string> LockPaths(std::string_view name) {
    std::vector<std::string> paths{"/tmp/" + std::string(name) + '-' + std::to_string(::geteuid()) + ".lock"};
    if (const char* runtime = std::getenv("XDG_RUNTIME_DIR"); IsOwnFolder(runtime))
        paths.push_back(std::string(runtime) + '/' + std::string(name) + ".lock");
    return paths;
}

bool IsOwnFile(int fd) {
    struct stat state {};
    return ::fstat(fd, &state) == 0 && S_ISREG(state.st_mode) && state.st_uid == ::geteuid();
}

// The lock, not the file, is the mark: the system drops it with its process, so a file left behind means
// nothing.
class PosixSingleInstance : public SingleInstance {
public:
    bool Acquire(std::string_view name) override {
        if (!locks_.empty())
            return true;
        std::vector<Descriptor> locks;
        for (const std::string& path : LockPaths(name))
            if (!Lock(path, locks))
                return false;
        locks_ = std::move(locks);
        return true;
    }

private:
    // False if another process holds it. A file that cannot be locked at all tells nothing.
    static bool Lock(const std::string& path, std::vector<Descriptor>& locks) {
        Descriptor file = posix::Open(path.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK, 0600);
        if (!file || !IsOwnFile(file.Get()))
            return true;
        if (::flock(file.Get(), LOCK_EX | LOCK_NB) != 0)
            return errno != EWOULDBLOCK;
        locks.push_back(std::move(file));
        return true;
    }

    std::vector<Descriptor> locks_;
};

} // namespace

std::unique_ptr<SingleInstance> MakeSingleInstance() {
    return std::make_unique<PosixSingleInstance>();
}

} // namespace gfc::platform
