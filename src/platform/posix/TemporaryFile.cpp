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

void RemoveIfDead(const std::string& path) {
    const Descriptor file = Open(path.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK);
    if (file && TryLock(file.Get()))
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
        // A file system without locks gives no lock; the file serves all the same.
        if (file && (TryLock(file.Get()) || errno != EWOULDBLOCK) && StillThere(file.Get()))
            return TemporaryFile(std::move(path), std::move(file));
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
    if (::rename(path_.c_str(), target.c_str()) != 0)
        return false;
    Forget();
    return file_.Close() && FlushFolder(SplitTarget(target).Folder);
}

bool TemporaryFile::MoveToNew(const std::string& target) {
    // A link refuses a taken name in the same step as it takes a free one, which a rename does not.
    if (::link(path_.c_str(), target.c_str()) != 0) {
        struct stat state {};
        const bool noLinksHere = errno == EPERM || errno == ENOTSUP || errno == ENOSYS;
        return noLinksHere && ::lstat(target.c_str(), &state) != 0 && errno == ENOENT && MoveOver(target);
    }
    ::unlink(path_.c_str());
    Forget();
    return file_.Close() && FlushFolder(SplitTarget(target).Folder);
}

} // namespace gfc::platform::posix
