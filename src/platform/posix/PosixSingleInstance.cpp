#include "platform/Machine.h"
#include "platform/posix/Descriptor.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace gfc::platform {
namespace {

using posix::Descriptor;

bool IsOwnFolder(const char* path) {
    struct stat state {};
    return path && path[0] == '/' && ::stat(path, &state) == 0 && S_ISDIR(state.st_mode) &&
           state.st_uid == ::geteuid();
}

// The user's own folder for such files, else one file per user in the common one.
std::string LockPath(std::string_view name) {
    const char* runtime = std::getenv("XDG_RUNTIME_DIR");
    if (IsOwnFolder(runtime))
        return std::string(runtime) + '/' + std::string(name) + ".lock";
    return "/tmp/" + std::string(name) + '-' + std::to_string(::geteuid()) + ".lock";
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
        if (lock_)
            return true;
        Descriptor file =
            posix::Open(LockPath(name).c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK, 0600);
        if (!file || !IsOwnFile(file.Get()))
            return true;
        if (::flock(file.Get(), LOCK_EX | LOCK_NB) != 0)
            return errno != EWOULDBLOCK;
        lock_ = std::move(file);
        return true;
    }

private:
    Descriptor lock_;
};

} // namespace

std::unique_ptr<SingleInstance> MakeSingleInstance() {
    return std::make_unique<PosixSingleInstance>();
}

} // namespace gfc::platform
