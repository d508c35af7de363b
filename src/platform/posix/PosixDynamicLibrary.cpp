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

std::string Reason() {
    const char* reason = ::dlerror();
    return reason ? reason : "unknown error";
}

} // namespace

LibraryLoad LoadLibraryAt(const std::string& fullPath) {
    // Without a folder the system would look in places of its own.
    if (!fullPath.starts_with('/'))
        return {nullptr, "\"" + fullPath + "\" is not a full path"};
    void* handle = ::dlopen(fullPath.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!handle)
        return {nullptr, "\"" + fullPath + "\" cannot be loaded: " + Reason()};
    return {std::make_unique<PosixDynamicLibrary>(handle), {}};
}

} // namespace gfc::platform
