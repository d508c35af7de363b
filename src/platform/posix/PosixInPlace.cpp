#include "platform/posix/PosixInPlace.h"

#include "platform/Files.h"
#include "platform/posix/Descriptor.h"
#include "platform/posix/UserFolders.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace gfc::platform::posix {
namespace {

constexpr std::string_view Mark = ".gfc-undo-";
constexpr std::size_t LongestName = 200; // leaves room for the mark within a name's 255 bytes

class PosixOpenFile : public OpenFile {
public:
    explicit PosixOpenFile(Descriptor file) : file_(std::move(file)) {}

    std::optional<std::string> ReadAll() override {
        struct stat state {};
        if (::fstat(file_.Get(), &state) != 0)
            return std::nullopt;
        std::string bytes(static_cast<std::size_t>(state.st_size), '\0');
        std::size_t used = 0;
        while (used < bytes.size()) {
            const ssize_t got =
                ::pread(file_.Get(), bytes.data() + used, bytes.size() - used, static_cast<off_t>(used));
            if (got < 0 && errno == EINTR)
                continue;
            if (got < 0)
                return std::nullopt;
            if (got == 0)
                break;
            used += static_cast<std::size_t>(got);
        }
        bytes.resize(used);
        return bytes;
    }

    bool WriteAt(std::uint64_t at, std::string_view bytes) override {
        return ::lseek(file_.Get(), static_cast<off_t>(at), SEEK_SET) >= 0 && WriteAll(file_.Get(), bytes);
    }

    bool SetSize(std::uint64_t size) override {
        int result = -1;
        do
            result = ::ftruncate(file_.Get(), static_cast<off_t>(size));
        while (result < 0 && errno == EINTR);
        return result == 0;
    }

    bool Flush() override { return posix::Flush(file_.Get()); }

private:
    Descriptor file_;
};

std::unique_ptr<OpenFile> Opened(Descriptor file) {
    return file ? std::make_unique<PosixOpenFile>(std::move(file)) : nullptr;
}

// A file system without locks gives none; the file serves all the same.
bool TryLock(const Descriptor& file) {
    return ::flock(file.Get(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

} // namespace

std::vector<std::string> PosixInPlace::RecordPaths(const std::string& target) {
    const std::size_t nameAt = target.rfind('/') + 1; // npos + 1 is 0
    std::vector<std::string> paths = {target.substr(0, nameAt) + std::string(Mark) +
                                      target.substr(nameAt, LongestName)};
    if (const std::string own = StateFolder(); !own.empty() && target.starts_with('/'))
        paths.push_back(own + '/' + RecordNameOf(target));
    return paths;
}

std::unique_ptr<OpenFile> PosixInPlace::OpenTarget(const std::string& target) {
    return Opened(Open(target.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK));
}

std::unique_ptr<OpenFile> PosixInPlace::MakeRecord(const std::string& path, const std::string& target) {
    struct stat its {};
    if (::stat(target.c_str(), &its) != 0)
        return nullptr;
    if (const std::string own = StateFolder(); !own.empty() && path.starts_with(own))
        MakeFolder(own);
    Descriptor file = Open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW, 0600);
    // Whoever may use the file may put it back.
    if (file && TryLock(file))
        (void)!::fchmod(file.Get(), its.st_mode & 0666);
    return Opened(std::move(file));
}

std::unique_ptr<OpenFile> PosixInPlace::TakeRecord(const std::string& path) {
    Descriptor file = Open(path.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK);
    return file && TryLock(file) ? Opened(std::move(file)) : nullptr;
}

std::optional<std::string> PosixInPlace::ReadRecord(const std::string& path) {
    const auto file = Opened(Open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK));
    return file ? file->ReadAll() : std::nullopt;
}

void PosixInPlace::Remove(const std::string& path) {
    ::unlink(path.c_str());
}

bool PosixInPlace::FlushFolderOf(const std::string& path) {
    const std::string folder = path.substr(0, path.rfind('/') + 1);
    const Descriptor handle = Open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY);
    return handle && (posix::Flush(handle.Get()) || errno == EINVAL || errno == ENOTSUP);
}

std::string PosixInPlace::Reason() {
    return std::generic_category().message(errno);
}

} // namespace gfc::platform::posix
