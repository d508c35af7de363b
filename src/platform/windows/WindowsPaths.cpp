#include "platform/Machine.h"
#include "platform/windows/UserFolders.h"
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

    std::string OwnFolder() override {
        const std::wstring folder = windows::StateFolder();
        if (folder.empty())
            return {};
        ::CreateDirectoryW(folder.c_str(), nullptr);
        const DWORD its = ::GetFileAttributesW(folder.c_str());
        const bool isThere = its != INVALID_FILE_ATTRIBUTES && (its & FILE_ATTRIBUTE_DIRECTORY) != 0;
        return isThere ? windows::Utf8(folder) : std::string();
    }

    std::string UserName() override {
        constexpr DWORD longestName = 257; // UNLEN and the closing NUL
        std::wstring name(longestName, L'\0');
        DWORD length = longestName;
        if (!::GetUserNameW(name.data(), &length) || length == 0)
            return {};
        name.resize(length - 1);
        return windows::Utf8(name);
    }
};

} // namespace

void SilenceSystem() {
    ::SetErrorMode(::GetErrorMode() | SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
}

std::unique_ptr<Paths> MakePaths() {
    return std::make_unique<WindowsPaths>();
}

} // namespace gfc::platform
