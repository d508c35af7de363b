#include "platform/DynamicLibrary.h"
#include "platform/windows/LibraryFile.h"

namespace gfc::platform {
namespace {

class WindowsDynamicLibrary : public DynamicLibrary {
public:
    explicit WindowsDynamicLibrary(HMODULE module) : module_(module) {}
    void* Symbol(const char* name) const override {
        return reinterpret_cast<void*>(::GetProcAddress(module_, name));
    }

private:
    HMODULE module_; // never freed
};

// A drive with a folder from its root, or a share; anything else would be looked for in places of the
// system's own.
bool IsFullPath(const std::string& path) {
    const auto isSeparator = [&path](std::size_t at) { return path[at] == '\\' || path[at] == '/'; };
    return path.size() > 3 && ((path[1] == ':' && isSeparator(2)) || (isSeparator(0) && isSeparator(1)));
}

} // namespace

LibraryLoad LoadLibraryAt(const std::string& fullPath) {
    if (!IsFullPath(fullPath))
        return {nullptr, "\"" + fullPath + "\" is not a full path"};
    // The library's own companions are looked for beside it, not beside this program.
    const HMODULE module =
        ::LoadLibraryExW(windows::Wide(fullPath).c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
    if (!module)
        return {nullptr, "\"" + fullPath + "\" cannot be loaded: " +
                             windows::ReasonAgainstLibrary(fullPath, ::GetLastError())};
    return {std::make_unique<WindowsDynamicLibrary>(module), {}};
}

} // namespace gfc::platform
