#include "platform/posix/TemporaryFile.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace gfc::platform::posix {
namespace {

// ".gfc-save-<name>-<process><attempt>": hidden, and of one length for each name, so that it is taken for no
// other's.
constexpr std::string_view Mark = ".gfc-save-";
constexpr std::size_t SuffixLength = 10;
constexpr std::size_t LongestName = 200; // leaves room for mark and suffix within a name's 255 bytes
constexpr unsigned Attempts = 256;

struct Split {
    std::string Folder; // ends with the separator; empty for the working folder
    std::string Prefix;
};

Split SplitTarget(const std::string& target) {
    const auto separator = target.rfind('/');
    const auto nameAt = separator == std::string::npos ? 0 : separator + 1;
    return {target.substr(0, nameAt), std::string(Mark) + target.substr(nameAt, LongestName) + "-"};
}

std::string Suffix(unsigned attempt) {
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "%08x%02x", static_cast<unsigned>(::getpid()), attempt & 0xFFu);
    return text.data();
}

bool TryLock(int fd) {
    return ::flock(fd, LOCK_EX | LOCK_NB) == 0;
}

// Between its making and its locking another process may have taken the file for a leftover.
bool StillThere(int fd) {
    struct stat state {};
    return ::fstat(fd, &state) == 0 && state.st_nlink > 0;
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

// Before it was locked its writer may have put it in its place and begun another one under the same name.
void RemoveIfDead(const std::string& path) {
    const Descriptor file = Open(path.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK);
    if (file && TryLock(file.Get()) && Names(path, file.Get()))
        ::unlink(path.c_str());
}

} // namespace

std::optional<TemporaryFile> TemporaryFile::Beside(const std::string& target, unsigned mode) {
    const Split split = SplitTarget(target);
    for (unsigned attempt = 0; attempt < Attempts; ++attempt) {
        std::string path = split.Folder + split.Prefix + Suffix(attempt);
        Descriptor file = Open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW, mode);
        if (!file && errno != EEXIST)
            return std::nullopt;
        if (!file)
            continue;
        TemporaryFile made(std::move(path), std::move(file));
        // A file system without locks gives no lock; the file serves all the same.
        if ((TryLock(made.Get()) || errno != EWOULDBLOCK) && StillThere(made.Get()))
            return made;
    }
    return std::nullopt;
}

void TemporaryFile::RemoveLeftovers(const std::string& target) {
    const Split split = SplitTarget(target);
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(
        ::opendir(split.Folder.empty() ? "." : split.Folder.c_str()), ::closedir);
    while (const dirent* entry = folder ? ::readdir(folder.get()) : nullptr) {
        const std::string_view name = entry->d_name;
        if (name.size() == split.Prefix.size() + SuffixLength && name.starts_with(split.Prefix))
            RemoveIfDead(split.Folder + entry->d_name);
    }
}

TemporaryFile::TemporaryFile(TemporaryFile&& other) noexcept
    : path_(std::exchange(other.path_, {})), file_(std::move(other.file_)) {}

TemporaryFile::~TemporaryFile() {
    if (!path_.empty())
        ::unlink(path_.c_str());
}

bool TemporaryFile::MoveOver(const std::string& target) {
    return Rename(target) && file_.Close() && FlushFolder(SplitTarget(target).Folder);
}

bool TemporaryFile::MoveToNew(const std::string& target) {
    if (!TakeFreeName(target))
        return false;
    if (file_.Close() && FlushFolder(SplitTarget(target).Folder))
        return true;
    // Who is told of a failure must not find the file there.
    ::unlink(target.c_str());
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
