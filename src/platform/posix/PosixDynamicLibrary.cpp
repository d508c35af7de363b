#include "platform/DynamicLibrary.h"

#include <dlfcn.h>

namespace gfc::platform {
namespace {

class PosixDynamicLibrary : public DynamicLibrary {
public:
    explicit PosixDynamicLibrary(void* handle) : handle_(handle) {}
    void* Symbol(const char* name) const override { return ::dlsym(handle_, name); }

private:
    void* handle_; // never closed
};

// The system mostly starts its reason with the path, which the message names already.
std::string ReasonBesides(const std::string& fullPath) {
    const char* given = ::dlerror();
    const std::string reason = given ? given : "unknown error";
    const std::string start = fullPath + ": ";
    return reason.starts_with(start) ? reason.substr(start.size()) : reason;
}

// A closed library is to find its own functions and not a namesake among those of the program's fifty
// libraries, each of which would be asked first for a thousand names. A sanitizer stands in for functions of
// the system, and has to be asked first.
#if defined(RTLD_DEEPBIND) && !defined(GFC_SANITIZED)
constexpr int ownFirst = RTLD_DEEPBIND;
#else
constexpr int ownFirst = 0;
#endif

} // namespace

LibraryLoad LoadLibraryAt(const std::string& fullPath) {
    // Without a folder the system would look in places of its own.
    if (!fullPath.starts_with('/'))
        return {nullptr, "\"" + fullPath + "\" is not a full path"};
    void* handle = ::dlopen(fullPath.c_str(), RTLD_NOW | RTLD_LOCAL | ownFirst);
    if (!handle)
        return {nullptr, "\"" + fullPath + "\" cannot be loaded: " + ReasonBesides(fullPath)};
    return {std::make_unique<PosixDynamicLibrary>(handle), {}};
}

} // namespace gfc::platform
