#include "platform/posix/TemporaryFile.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace gfc::platform::posix {
namespace {

// ".gfc-save-<name>-<number>": hidden, and with two digits for each name, so that it is taken for no other's.
// Each writer takes the lowest number that it gets, and so comes past what a dead one left without a look
// through the folder, which holds a file for each station.
constexpr std::string_view Mark = ".gfc-save-";
constexpr std::size_t LongestName = 200; // leaves room for mark and number within a name's 255 bytes
constexpr unsigned Numbers = 256;

// Of a path; ends with the separator, and is empty for the working folder.
std::string FolderOf(const std::string& path) {
    return path.substr(0, path.rfind('/') + 1); // npos + 1 is 0
}

std::string StemFor(const std::string& target) {
    const std::string folder = FolderOf(target);
    return folder + std::string(Mark) + target.substr(folder.size(), LongestName) + "-";
}

std::string Numbered(const std::string& stem, unsigned number) {
    std::array<char, 8> text{};
    std::snprintf(text.data(), text.size(), "%02x", number & 0xFFu);
    return stem + text.data();
}

bool TryLock(int fd) {
    return ::flock(fd, LOCK_EX | LOCK_NB) == 0;
}

// Between its making and its locking another process may have taken the file for a leftover.
bool WasRemoved(int fd) {
    struct stat state {};
    return ::fstat(fd, &state) == 0 && state.st_nlink == 0;
}

bool FlushFolder(const std::string& folder) {
    const Descriptor handle = Open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY);
    // Some file systems know no flush of a folder; there is nothing more to be done there.
    return handle && (Flush(handle.Get()) || errno == EINVAL || errno == ENOTSUP);
}

bool Names(const std::string& path, int fd) {
    struct stat named {};
    struct stat open {};
    return ::lstat(path.c_str(), &named) == 0 && ::fstat(fd, &open) == 0 && named.st_dev == open.st_dev &&
           named.st_ino == open.st_ino;
}

bool IsFree(const std::string& path) {
    struct stat state {};
    return ::lstat(path.c_str(), &state) != 0 && errno == ENOENT;
}

// False if there is none. Before it was locked its writer may have put it in its place and begun another one
// under the same name.
bool RemoveIfDead(const std::string& path) {
    const Descriptor file = Open(path.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK);
    if (!file)
        return errno != ENOENT;
    if (TryLock(file.Get()) && Names(path, file.Get()))
        ::unlink(path.c_str());
    return true;
}

// Up to the first number that is free.
void RemoveDeadBehind(const std::string& stem, unsigned number) {
    do
        ++number;
    while (number < Numbers && RemoveIfDead(Numbered(stem, number)));
}

Descriptor MakeNew(const std::string& path, unsigned mode) {
    return Open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW, mode);
}

Descriptor MakeNewOrOverDead(const std::string& path, unsigned mode) {
    Descriptor file = MakeNew(path, mode);
    if (!file && errno == EEXIST) {
        RemoveIfDead(path);
        file = MakeNew(path, mode);
    }
    return file;
}

} // namespace

std::optional<TemporaryFile> TemporaryFile::Beside(const std::string& target, unsigned mode) {
    const std::string stem = StemFor(target);
    for (unsigned number = 0; number < Numbers; ++number) {
        std::string path = Numbered(stem, number);
        Descriptor file = MakeNewOrOverDead(path, mode);
        if (!file && errno != EEXIST)
            return std::nullopt;
        // A file system without locks gives no lock; the file serves all the same.
        const bool own = file && (TryLock(file.Get()) || errno != EWOULDBLOCK) && !WasRemoved(file.Get());
        // One that somebody has locked first is taken away by him, and its name may be another's by now.
        if (!own)
            continue;
        RemoveDeadBehind(stem, number);
        return TemporaryFile(std::move(path), std::move(file));
    }
    return std::nullopt;
}

TemporaryFile::TemporaryFile(TemporaryFile&& other) noexcept
    : path_(std::exchange(other.path_, {})), file_(std::move(other.file_)) {}

TemporaryFile::~TemporaryFile() {
    if (!path_.empty())
        ::unlink(path_.c_str());
}

bool TemporaryFile::MoveOver(const std::string& target) {
    return Rename(target) && file_.Close() && FlushFolder(FolderOf(target));
}

bool TemporaryFile::MoveToNew(const std::string& target) {
    if (!TakeFreeName(target))
        return false;
    if (file_.Close() && FlushFolder(FolderOf(target)))
        return true;
    // Who is told of a failure must not find the file there.
    const int reason = errno;
    ::unlink(target.c_str());
    errno = reason;
    return false;
}

// A link refuses a taken name in the same step as it takes a free one, which a rename does not.
bool TemporaryFile::TakeFreeName(const std::string& target) {
    const bool linked = ::link(path_.c_str(), target.c_str()) == 0;
    const bool noLinksHere = !linked && (errno == EPERM || errno == ENOTSUP || errno == ENOSYS);
    // Over a network a link may be reported as failed although it was made.
    if (!linked && !Names(target, Get()))
        return noLinksHere && IsFree(target) && Rename(target);
    if (::unlink(path_.c_str()) == 0)
        Forget();
    return true;
}

bool TemporaryFile::Rename(const std::string& target) {
    if (::rename(path_.c_str(), target.c_str()) != 0)
        return false;
    Forget();
    return true;
}

} // namespace gfc::platform::posix
