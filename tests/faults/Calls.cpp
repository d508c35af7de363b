// The calls themselves, under the names by which the program and SQLite know them.
#include "faults/Played.h"

#include <cstdarg>
#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

using namespace gfc::test::faults;

namespace {

// In a folder that takes no new file.
bool Refused(const char* path, int flags) {
    const bool refused = (flags & O_CREAT) != 0 && IsClosedTo(path);
    if (refused)
        errno = EACCES;
    return refused;
}

} // namespace

extern "C" {

int open(const char* path, int flags, ...) {
    va_list more;
    va_start(more, flags);
    const mode_t mode = va_arg(more, mode_t);
    va_end(more);
    static auto* const real = Next<int(const char*, int, mode_t)>("open");
    return Opened("open", path, [&] { return Refused(path, flags) ? -1 : real(path, flags, mode); });
}

int open64(const char* path, int flags, ...) {
    va_list more;
    va_start(more, flags);
    const mode_t mode = va_arg(more, mode_t);
    va_end(more);
    static auto* const real = Next<int(const char*, int, mode_t)>("open64");
    return Opened("open", path, [&] { return Refused(path, flags) ? -1 : real(path, flags, mode); });
}

std::FILE* fopen(const char* path, const char* mode) {
    static auto* const real = Next<std::FILE*(const char*, const char*)>("fopen");
    return OpenedStream("open", path, [&] { return real(path, mode); });
}

std::FILE* fopen64(const char* path, const char* mode) {
    static auto* const real = Next<std::FILE*(const char*, const char*)>("fopen64");
    return OpenedStream("open", path, [&] { return real(path, mode); });
}

// A close that fails has closed all the same.
int close(int fd) {
    static auto* const real = Next<int(int)>("close");
    if (!Concerns(fd))
        return real(fd);
    const int closed = OnFile("close", fd, -1, [] { return 0; });
    const int error = errno;
    Forget(fd);
    real(fd);
    errno = error;
    return closed;
}

int fclose(std::FILE* file) {
    static auto* const real = Next<int(std::FILE*)>("fclose");
    const int fd = ::fileno(file);
    if (!Concerns(fd))
        return real(file);
    const int closed = OnFile("close", fd, EOF, [] { return 0; });
    const int error = errno;
    Forget(fd);
    real(file);
    errno = error;
    return closed;
}

ssize_t read(int fd, void* bytes, size_t count) {
    static auto* const real = Next<ssize_t(int, void*, size_t)>("read");
    const size_t portion = Portion(fd, count);
    return OnFile("read", fd, ssize_t{-1}, [&] { return real(fd, bytes, portion); });
}

ssize_t write(int fd, const void* bytes, size_t count) {
    static auto* const real = Next<ssize_t(int, const void*, size_t)>("write");
    const size_t portion = Portion(fd, count);
    return OnFile("write", fd, ssize_t{-1}, [&] { return real(fd, bytes, portion); });
}

ssize_t writev(int fd, const struct iovec* parts, int count) {
    static auto* const real = Next<ssize_t(int, const struct iovec*, int)>("writev");
    return OnFile("write", fd, ssize_t{-1}, [&] { return real(fd, parts, count); });
}

#define AT_AN_OFFSET(name, shown, Bytes)                                                                     \
    ssize_t name(int fd, Bytes bytes, size_t count, off_t offset) {                                          \
        static auto* const real = Next<ssize_t(int, Bytes, size_t, off_t)>(#name);                           \
        const size_t portion = Portion(fd, count);                                                           \
        return OnFile(shown, fd, ssize_t{-1}, [&] { return real(fd, bytes, portion, offset); });             \
    }
AT_AN_OFFSET(pread, "read", void*)
AT_AN_OFFSET(pread64, "read", void*)
AT_AN_OFFSET(pwrite, "write", const void*)
AT_AN_OFFSET(pwrite64, "write", const void*)
#undef AT_AN_OFFSET

#define ON_A_FILE(name)                                                                                      \
    int name(int fd) {                                                                                       \
        static auto* const real = Next<int(int)>(#name);                                                     \
        return OnFile(#name, fd, -1, [&] { return real(fd); });                                              \
    }
ON_A_FILE(fsync)
ON_A_FILE(fdatasync)
#undef ON_A_FILE

#define CUT_A_FILE(name)                                                                                     \
    int name(int fd, off_t length) noexcept {                                                                \
        static auto* const real = Next<int(int, off_t)>(#name);                                              \
        return OnFile("ftruncate", fd, -1, [&] { return real(fd, length); });                                \
    }
CUT_A_FILE(ftruncate)
CUT_A_FILE(ftruncate64)
#undef CUT_A_FILE

#define LOOK_AT_A_PATH(name, State)                                                                          \
    int name(const char* path, struct State* state) noexcept {                                               \
        static auto* const real = Next<int(const char*, struct State*)>(#name);                              \
        return OnPath("stat", path, -1, [&] { return real(path, state); });                                  \
    }
LOOK_AT_A_PATH(stat, stat)
LOOK_AT_A_PATH(stat64, stat64)
LOOK_AT_A_PATH(lstat, stat)
LOOK_AT_A_PATH(lstat64, stat64)
#undef LOOK_AT_A_PATH

#define LOOK_AT_A_FILE(name, State)                                                                          \
    int name(int fd, struct State* state) noexcept {                                                         \
        static auto* const real = Next<int(int, struct State*)>(#name);                                      \
        return OnFile("fstat", fd, -1, [&] { return real(fd, state); });                                     \
    }
LOOK_AT_A_FILE(fstat, stat)
LOOK_AT_A_FILE(fstat64, stat64)
#undef LOOK_AT_A_FILE

int access(const char* path, int mode) noexcept {
    static auto* const real = Next<int(const char*, int)>("access");
    return OnPath("access", path, -1, [&] { return real(path, mode); });
}

int faccessat(int folder, const char* path, int mode, int flags) noexcept {
    static auto* const real = Next<int(int, const char*, int, int)>("faccessat");
    return OnPath("access", path, -1, [&] { return real(folder, path, mode, flags); });
}

ssize_t readlink(const char* path, char* text, size_t size) noexcept {
    static auto* const real = Next<ssize_t(const char*, char*, size_t)>("readlink");
    return OnPath("readlink", path, ssize_t{-1}, [&] { return real(path, text, size); });
}

int fchmod(int fd, mode_t mode) noexcept {
    static auto* const real = Next<int(int, mode_t)>("fchmod");
    return OnFile("fchmod", fd, -1, [&] { return real(fd, mode); });
}

int fchown(int fd, uid_t owner, gid_t group) noexcept {
    static auto* const real = Next<int(int, uid_t, gid_t)>("fchown");
    return OnFile("fchown", fd, -1, [&] { return real(fd, owner, group); });
}

int flock(int fd, int operation) noexcept {
    static auto* const real = Next<int(int, int)>("flock");
    return OnFile("flock", fd, -1, [&] { return real(fd, operation); });
}

#define CONTROL_A_FILE(name)                                                                                 \
    int name(int fd, int command, ...) {                                                                     \
        va_list more;                                                                                        \
        va_start(more, command);                                                                             \
        void* const argument = va_arg(more, void*);                                                          \
        va_end(more);                                                                                        \
        static auto* const real = Next<int(int, int, void*)>(#name);                                         \
        return OnFile("fcntl", fd, -1, [&] { return real(fd, command, argument); });                         \
    }
CONTROL_A_FILE(fcntl)
CONTROL_A_FILE(fcntl64)
#undef CONTROL_A_FILE

#define FROM_PATH_TO_PATH(name)                                                                              \
    int name(const char* from, const char* to) noexcept {                                                    \
        static auto* const real = Next<int(const char*, const char*)>(#name);                                \
        return OnPath(                                                                                       \
            #name, from, -1, [&] { return real(from, to); }, to);                                            \
    }
FROM_PATH_TO_PATH(rename)
FROM_PATH_TO_PATH(link)
#undef FROM_PATH_TO_PATH

#define TAKE_AWAY(name)                                                                                      \
    int name(const char* path) noexcept {                                                                    \
        static auto* const real = Next<int(const char*)>(#name);                                             \
        return OnPath("unlink", path, -1, [&] { return real(path); });                                       \
    }
TAKE_AWAY(unlink)
TAKE_AWAY(remove)
#undef TAKE_AWAY

int mkdir(const char* path, mode_t mode) noexcept {
    static auto* const real = Next<int(const char*, mode_t)>("mkdir");
    return OnPath("mkdir", path, -1, [&] { return real(path, mode); });
}

DIR* opendir(const char* path) {
    static auto* const real = Next<DIR*(const char*)>("opendir");
    return OnPath("opendir", path, static_cast<DIR*>(nullptr), [&] {
        DIR* const folder = real(path);
        if (folder != nullptr)
            Remember(::dirfd(folder), path);
        return folder;
    });
}

int closedir(DIR* folder) {
    static auto* const real = Next<int(DIR*)>("closedir");
    Forget(::dirfd(folder));
    return real(folder);
}

#define NEXT_OF_A_FOLDER(name, Entry)                                                                        \
    struct Entry* name(DIR* folder) {                                                                        \
        static auto* const real = Next<struct Entry*(DIR*)>(#name);                                          \
        return OnFile("readdir", ::dirfd(folder), static_cast<struct Entry*>(nullptr),                       \
                      [&] { return real(folder); });                                                         \
    }
NEXT_OF_A_FOLDER(readdir, dirent)
NEXT_OF_A_FOLDER(readdir64, dirent64)
#undef NEXT_OF_A_FOLDER

} // extern "C"
