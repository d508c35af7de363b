#include "platform/windows/UserFolders.h"

#include "platform/windows/Wide.h"

#include <array>
#include <shlobj.h>

namespace gfc::platform::windows {

std::wstring StateFolder() {
    std::wstring folder(32768, L'\0');
    const DWORD length = ::GetEnvironmentVariableW(L"LOCALAPPDATA", folder.data(), 32768);
    folder.resize(length < folder.size() ? length : 0);
    // What a service or a scheduler starts may be told of none.
    if (std::array<wchar_t, MAX_PATH> known{};
        folder.empty() && SUCCEEDED(::SHGetFolderPathW(nullptr, CSIDL_LOCAL_APPDATA, nullptr,
                                                       SHGFP_TYPE_CURRENT, known.data())))
        folder = known.data();
    return folder.empty() ? folder : folder + L"\\gfc-configurator";
}

} // namespace gfc::platform::windows
