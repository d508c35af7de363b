#include "faults/Seam.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

namespace gfc::test::faults {

namespace {

constexpr std::size_t MostDescriptors = 1024;

struct State {
    std::string Folder; // empty while nothing is watched
    Plan ThePlan;
    long Counted = 0;
    long Hit = 0;
    std::vector<Call> Calls;
    std::array<std::string, MostDescriptors> OpenAs; // empty for what is not watched
};

State& TheState() {
    static State state;
    return state;
}

bool Concerns(const char* path) {
    const State& state = TheState();
    return !state.Folder.empty() && path != nullptr && std::string_view(path).starts_with(state.Folder);
}

bool IsKnown(int fd) {
    return fd >= 0 && static_cast<std::size_t>(fd) < MostDescriptors;
}

std::string* NameOf(int fd) {
    return IsKnown(fd) ? &TheState().OpenAs[static_cast<std::size_t>(fd)] : nullptr;
}

bool Concerns(int fd) {
    const std::string* name = NameOf(fd);
    return !TheState().Folder.empty() && name != nullptr && !name->empty();
}

void Remember(int fd, const char* path) {
    if (std::string* name = NameOf(fd))
        *name = path;
}

// An error reported for a close, or after the fact, must not leave the name with a number that is given anew.
void Forget(int fd) {
    if (std::string* name = NameOf(fd))
        name->clear();
}

[[noreturn]] void Die() {
    ::kill(::getpid(), SIGKILL);
    for (;;)
        ::pause();
}

Effect NextEffect() {
    State& state = TheState();
    const long number = ++state.Counted;
    const Plan& plan = state.ThePlan;
    const bool meant = number >= plan.First && number - plan.First < plan.Count;
    if (meant && plan.TheEffect != Effect::Nothing)
        ++state.Hit;
    return meant ? plan.TheEffect : Effect::Nothing;
}

// What the system was asked, and how it says that it could not.
template <class Result>
struct Asked {
    Call TheCall;
    Result Failure;
};

template <class Result, class Real>
Result Play(Asked<Result> asked, Real real) {
    State& state = TheState();
    const Effect effect = NextEffect();
    if (effect == Effect::Kills)
        Die();
    const int before = errno;
    Result result = effect == Effect::Fails ? asked.Failure : real();
    if (effect == Effect::KillsAfter)
        Die();
    const bool fails = effect == Effect::Fails || effect == Effect::FailsAfter;
    asked.TheCall.Done = !fails && result != asked.Failure;
    const int error = fails ? state.ThePlan.Error : errno;
    state.Calls.push_back(std::move(asked.TheCall));
    errno = fails || result == asked.Failure ? error : before;
    return fails ? asked.Failure : result;
}

template <class Result, class Real>
Result OnPath(const char* name, const char* path, Result failure, Real real, const char* other = "") {
    return Concerns(path) ? Play(Asked<Result>{{name, path, other}, failure}, real) : real();
}

template <class Result, class Real>
Result OnFile(const char* name, int fd, Result failure, Real real) {
    return Concerns(fd) ? Play(Asked<Result>{{name, *NameOf(fd), ""}, failure}, real) : real();
}

// The part of a read or write that this call does.
std::size_t Portion(int fd, std::size_t count) {
    const State& state = TheState();
    const long number = state.Counted + 1;
    const Plan& plan = state.ThePlan;
    const bool half = Concerns(fd) && plan.TheEffect == Effect::Half && number >= plan.First &&
                      number - plan.First < plan.Count && count > 1;
    return half ? count / 2 : count;
}

// The function of that name which stood in the place before this one.
template <class Function>
Function* Next(const char* name) {
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

template <class Real>
int Opened(const char* name, const char* path, Real real) {
    const int fd = OnPath(name, path, -1, real);
    if (fd >= 0 && Concerns(path))
        Remember(fd, path);
    return fd;
}

template <class Real>
std::FILE* OpenedStream(const char* name, const char* path, Real real) {
    std::FILE* file = OnPath(name, path, static_cast<std::FILE*>(nullptr), real);
    if (file != nullptr && Concerns(path))
        Remember(::fileno(file), path);
    return file;
}

} // namespace

void Watch(const std::string& folder, const Plan& plan) {
    State& state = TheState();
    state.ThePlan = plan;
    state.Counted = 0;
    state.Hit = 0;
    state.Calls.clear();
    state.Folder = folder;
}

void Heal() {
    TheState().ThePlan = {};
}

void Unwatch() {
    TheState().Folder.clear();
}

long CallsCounted() {
    return TheState().Counted;
}

long CallsHit() {
    return TheState().Hit;
}

const std::vector<Call>& CallsMade() {
    return TheState().Calls;
}

} // namespace gfc::test::faults

using namespace gfc::test::faults;

// The calls themselves, under the names by which the system and SQLite know them.
extern "C" {

int open(const char* path, int flags, ...) {
    va_list more;
    va_start(more, flags);
    const mode_t mode = va_arg(more, mode_t);
    va_end(more);
    static auto* const real = Next<int(const char*, int, mode_t)>("open");
    return Opened("open", path, [&] { return real(path, flags, mode); });
}

int open64(const char* path, int flags, ...) {
    va_list more;
    va_start(more, flags);
    const mode_t mode = va_arg(more, mode_t);
    va_end(more);
    static auto* const real = Next<int(const char*, int, mode_t)>("open64");
    return Opened("open", path, [&] { return real(path, flags, mode); });
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
