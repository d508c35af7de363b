#include "platform/windows/UserFolders.h"

#include "platform/windows/Wide.h"

namespace gfc::platform::windows {

std::wstring StateFolder() {
    std::wstring folder(32768, L'\0');
    const DWORD length = ::GetEnvironmentVariableW(L"LOCALAPPDATA", folder.data(), 32768);
    folder.resize(length < folder.size() ? length : 0);
    return folder.empty() ? folder : folder + L"\\gfc-configurator";
}

} // namespace gfc::platform::windows
