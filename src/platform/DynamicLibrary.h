#pragma once

#include <memory>
#include <string>

namespace gfc::platform {

// A library that was loaded at run time. It stays loaded until the process ends, whatever becomes of this
// object: threads and callbacks of its own may live on that nobody here knows of.
class DynamicLibrary {
public:
    virtual ~DynamicLibrary() = default;
    // Null if the library has no symbol of that name.
    [[nodiscard]] virtual void* Symbol(const char* name) const = 0;

    template <class Function>
    [[nodiscard]] Function* FunctionOf(const char* name) const {
        return reinterpret_cast<Function*>(Symbol(name));
    }
};

struct LibraryLoad {
    std::unique_ptr<DynamicLibrary> Library; // null on failure
    std::string Error;                       // names the file and the reason; empty on success
};

// Loads the library at that full path; never searches for it anywhere else.
[[nodiscard]] LibraryLoad LoadLibraryAt(const std::string& fullPath);

} // namespace gfc::platform
