#include "platform/Machine.h"
#include "platform/windows/Wide.h"

namespace gfc::platform {
namespace {

constexpr DWORD LongestPath = 32768;

class WindowsPaths : public Paths {
public:
    std::string ExecutableFolder() override {
        std::wstring path(LongestPath, L'\0');
        const DWORD length = ::GetModuleFileNameW(nullptr, path.data(), LongestPath);
        path.resize(length < LongestPath ? length : 0);
        return ParentFolder(windows::Utf8(path));
    }

    std::string ProfileFolder() override {
        std::wstring path(LongestPath, L'\0');
        const UINT length = ::GetWindowsDirectoryW(path.data(), LongestPath);
        path.resize(length < LongestPath ? length : 0);
        return windows::Utf8(path);
    }
};

} // namespace

std::unique_ptr<Paths> MakePaths() {
    return std::make_unique<WindowsPaths>();
}

} // namespace gfc::platform
