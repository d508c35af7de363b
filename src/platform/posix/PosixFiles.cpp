#include "platform/Files.h"
#include "platform/posix/PosixInPlace.h"
#include "platform/posix/TemporaryFile.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace gfc::platform {
namespace {

using posix::Descriptor;
using posix::TemporaryFile;

constexpr unsigned NewFileMode = 0644; // less what the user's mask takes
constexpr unsigned PrivateMode = 0600; // until the old file's mode is set, nobody else may look
constexpr unsigned CopyMode = 0775;    // a copy is nobody else's to write, whatever the original allows
constexpr int MostLinks = 40;          // as many as the system itself follows

// Every other error leaves open whether the file is there: a share that does not answer, a folder that may
// not be searched at this moment.
bool SaysMissing(int error) {
    return error == ENOENT || error == ENOTDIR || error == ELOOP || error == ENAMETOOLONG;
}

std::optional<std::string> LinkText(const std::string& path) {
    std::array<char, 4096> text{};
    const ssize_t length = ::readlink(path.c_str(), text.data(), text.size());
    if (length < 0 || static_cast<std::size_t>(length) == text.size())
        return std::nullopt;
    return std::string(text.data(), static_cast<std::size_t>(length));
}

// Follows links by their text, since what the last one names need not exist. Nothing for a ring of links.
std::optional<std::string> RealTarget(std::string path) {
    for (int links = 0; links < MostLinks; ++links) {
        const auto text = LinkText(path);
        if (!text)
            return path;
        const auto separator = path.rfind('/');
        const bool relative = !text->starts_with('/') && separator != std::string::npos;
        path = relative ? path.substr(0, separator + 1) + *text : *text;
    }
    errno = ELOOP;
    return std::nullopt;
}

constexpr std::size_t Everything = std::string::npos;

std::optional<std::string> ReadAll(int fd, std::size_t expected, std::size_t enough) {
    // One byte more shows whether there is more than was expected; where there is not, that was the end.
    std::string bytes(std::min(expected + 1, enough), '\0');
    std::size_t used = 0;
    for (bool end = false; !end;) {
        if (used == bytes.size())
            bytes.resize(std::min(used * 2, enough));
        const ssize_t got = ::read(fd, bytes.data() + used, bytes.size() - used);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return std::nullopt;
        used += static_cast<std::size_t>(got);
        end = got == 0 || used == expected || used == enough;
    }
    bytes.resize(used);
    return bytes;
}

struct Source {
    std::string Bytes;
    struct stat State {};
};

// A folder, a pipe and all the like say so themselves, since no call of the system has refused them.
bool IsPlain(const struct stat& state) {
    if (S_ISREG(state.st_mode))
        return true;
    errno = S_ISDIR(state.st_mode) ? EISDIR : EINVAL;
    return false;
}

std::optional<Source> ReadPlainFile(const std::string& path, std::size_t enough = Everything) {
    Source source;
    // Without waiting: a pipe of that name must not hold the program.
    const Descriptor file = posix::Open(path.c_str(), O_RDONLY | O_NONBLOCK);
    if (!file || ::fstat(file.Get(), &source.State) != 0 || !IsPlain(source.State))
        return std::nullopt;
    auto bytes = ReadAll(file.Get(), static_cast<std::size_t>(source.State.st_size), enough);
    if (!bytes)
        return std::nullopt;
    source.Bytes = std::move(*bytes);
    return source;
}

// The owner can be kept only by who may give files away; the mode comes last, as a new owner can clear parts
// of it.
bool TakeOver(int fd, const struct stat& old) {
    struct stat own {};
    if (::fstat(fd, &own) != 0)
        return false;
    if (own.st_uid != old.st_uid || own.st_gid != old.st_gid)
        (void)!::fchown(fd, old.st_uid, old.st_gid);
    // Some file systems have one mode for all files, and refuse every change.
    return (own.st_mode & 07777) == (old.st_mode & 07777) || ::fchmod(fd, old.st_mode & 07777) == 0;
}

bool MayReplace(const std::string& target, const struct stat& old) {
    return IsPlain(old) && ::faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) == 0;
}

bool IsFree(const std::string& path) {
    struct stat present {};
    if (::lstat(path.c_str(), &present) != 0)
        return true;
    errno = EEXIST;
    return false;
}

// True if the file could not be replaced for the sake of its folder, which takes no new file or lets none of
// another user's go, or of itself, where something is mounted on it.
bool MayServeInPlace(int error) {
    return error == EACCES || error == EPERM || error == EBUSY;
}

class PosixFiles : public Files {
public:
    std::optional<std::string> Read(const std::string& path) override { return ReadStart(path, Everything); }

    std::optional<std::string> ReadStart(const std::string& path, std::size_t enough) override {
        const auto target = RealTarget(path);
        if (auto old = target ? PutBackHalfWay(inPlace_, *target) : std::nullopt)
            return old;
        auto source = ReadPlainFile(path, enough);
        Told(source.has_value());
        return source ? std::optional(std::move(source->Bytes)) : std::nullopt;
    }

    bool Replace(const std::string& path, std::string_view bytes) override {
        const auto target = RealTarget(path);
        if (!target)
            return Told(false);
        (void)PutBackHalfWay(inPlace_, *target);
        struct stat old {};
        const bool existed = ::stat(target->c_str(), &old) == 0;
        if (existed ? !MayReplace(*target, old) : errno != ENOENT)
            return Told(false);
        if (Replaced(*target, bytes, existed ? &old : nullptr))
            return true;
        return existed && MayServeInPlace(lastError_) && !WriteInPlace(inPlace_, *target, bytes);
    }

    bool PutAnew(const std::string& path, std::string_view bytes,
                 const std::function<bool()>& makeWay) override {
        auto file = TemporaryFile::Beside(path, NewFileMode);
        if (!Told(file && posix::WriteAll(file->Get(), bytes) && posix::Flush(file->Get())))
            return false;
        return makeWay() && Told(file->MoveOver(path));
    }

    bool Exists(const std::string& path) override {
        struct stat state {};
        return ::stat(path.c_str(), &state) == 0 ? !S_ISDIR(state.st_mode) : !SaysMissing(errno);
    }

    // A folder is refused by the call itself.
    bool Delete(const std::string& path) override { return Told(::unlink(path.c_str()) == 0); }

    bool CopyNew(const std::string& from, const std::string& to) override {
        if (!IsFree(to))
            return Told(false);
        const auto source = ReadPlainFile(from);
        if (!source)
            return Told(false);
        auto file = TemporaryFile::Beside(to, source->State.st_mode & CopyMode);
        return Told(file && posix::WriteAll(file->Get(), source->Bytes) && posix::Flush(file->Get()) &&
                    file->MoveToNew(to));
    }

private:
    // Before anything else is done, what takes a half-made file away included: that may have its own error.
    bool Told(bool done) {
        lastError_ = done ? 0 : errno;
        return done || Fail(std::generic_category().message(lastError_));
    }

    // old: what the target was; null if it was not there.
    bool Replaced(const std::string& target, std::string_view bytes, const struct stat* old) {
        auto file = TemporaryFile::Beside(target, old ? PrivateMode : NewFileMode);
        const bool done =
            Told(file && posix::WriteAll(file->Get(), bytes) && (!old || TakeOver(file->Get(), *old)) &&
                 posix::Flush(file->Get()) && file->MoveOver(target));
        // What stands in its place already is not to be written once more.
        if (file && file->WasMoved())
            lastError_ = 0;
        return done;
    }

    posix::PosixInPlace inPlace_;
    int lastError_ = 0;
};

} // namespace

std::string PathForCalls(const std::string& path) {
    return path;
}

std::unique_ptr<Files> MakeFiles() {
    return std::make_unique<PosixFiles>();
}

} // namespace gfc::platform
