#pragma once

#include "faults/Seam.h"

#include <cerrno>
#include <cstdio>
#include <dlfcn.h>
#include <utility>

// How one call is carried out as it is planned; for the calls alone.
namespace gfc::test::faults {

[[nodiscard]] bool Concerns(const char* path);
[[nodiscard]] bool Concerns(int fd);
// What an open file was opened by.
[[nodiscard]] const std::string& NameOf(int fd);
void Remember(int fd, const char* path);
// Before the number can be given anew.
void Forget(int fd);

// Counts the call and says what becomes of it; who is to die before it dies here.
[[nodiscard]] Effect NextEffect();
// The error that the plan reports.
[[nodiscard]] int PlannedError();
void NoteCall(Call call);
[[noreturn]] void Die();
// The part of a read or write that the next call does.
[[nodiscard]] std::size_t Portion(int fd, std::size_t count);

// What the system was asked, and how it says that it could not.
template <class Result>
struct Asked {
    Call TheCall;
    Result Failure;
};

template <class Result, class Real>
Result Play(Asked<Result> asked, Real real) {
    const Effect effect = NextEffect();
    const int before = errno;
    Result result = effect == Effect::Fails ? asked.Failure : real();
    if (effect == Effect::KillsAfter)
        Die();
    const bool fails = effect == Effect::Fails || effect == Effect::FailsAfter;
    asked.TheCall.Done = !fails && result != asked.Failure;
    const int error = fails ? PlannedError() : errno;
    NoteCall(std::move(asked.TheCall));
    errno = fails || result == asked.Failure ? error : before;
    return fails ? asked.Failure : result;
}

template <class Result, class Real>
Result OnPath(const char* name, const char* path, Result failure, Real real, const char* other = "") {
    return Concerns(path) ? Play(Asked<Result>{{name, path, other}, failure}, real) : real();
}

template <class Result, class Real>
Result OnFile(const char* name, int fd, Result failure, Real real) {
    return Concerns(fd) ? Play(Asked<Result>{{name, NameOf(fd), ""}, failure}, real) : real();
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

} // namespace gfc::test::faults
