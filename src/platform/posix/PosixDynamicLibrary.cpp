#include "platform/DynamicLibrary.h"

#include <dlfcn.h>
#include <utility>

namespace gfc::platform {
namespace {

class PosixDynamicLibrary : public DynamicLibrary {
public:
    explicit PosixDynamicLibrary(void* handle) : handle_(handle, ::dlclose) {}
    void* Symbol(const char* name) const override { return ::dlsym(handle_.get(), name); }

private:
    std::unique_ptr<void, int (*)(void*)> handle_;
};

// The system mostly starts its reason with the path, which the message names already.
std::string ReasonBesides(const std::string& fullPath) {
    const char* given = ::dlerror();
    const std::string reason = given ? given : "unknown error";
    const std::string start = fullPath + ": ";
    return reason.starts_with(start) ? reason.substr(start.size()) : reason;
}

} // namespace

LibraryLoad LoadLibraryAt(const std::string& fullPath) {
    // Without a folder the system would look in places of its own.
    if (!fullPath.starts_with('/'))
        return {nullptr, "\"" + fullPath + "\" is not a full path"};
    void* handle = ::dlopen(fullPath.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!handle)
        return {nullptr, "\"" + fullPath + "\" cannot be loaded: " + ReasonBesides(fullPath)};
    return {std::make_unique<PosixDynamicLibrary>(handle), {}};
}

} // namespace gfc::platform
