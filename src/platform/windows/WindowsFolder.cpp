#include "platform/Folder.h"
#include "platform/windows/SystemPath.h"
#include "platform/windows/Wide.h"

namespace gfc::platform {
namespace {

bool IsFolder(DWORD attributes) {
    return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

// Closes itself, as the handle of a search has its own way to be closed.
class Search {
public:
    explicit Search(const std::wstring& pattern) : search_(::FindFirstFileW(pattern.c_str(), &found_)) {}
    Search(const Search&) = delete;
    Search& operator=(const Search&) = delete;
    ~Search() {
        if (IsOpen())
            ::FindClose(search_);
    }
    [[nodiscard]] bool IsOpen() const { return search_ != INVALID_HANDLE_VALUE; }
    [[nodiscard]] const WIN32_FIND_DATAW& Found() const { return found_; }
    [[nodiscard]] bool Next() { return ::FindNextFileW(search_, &found_) != 0; }

private:
    WIN32_FIND_DATAW found_{};
    HANDLE search_;
};

} // namespace

std::optional<std::vector<std::string>> FileNamesIn(const std::string& folder) {
    Search search(windows::SystemPath((folder.empty() ? "." : folder) + "\\*"));
    std::vector<std::string> names;
    // Each folder but the root of a drive has two entries at least, itself and the one above.
    if (!search.IsOpen())
        return ::GetLastError() == ERROR_FILE_NOT_FOUND ? std::optional(names) : std::nullopt;
    do {
        const std::wstring name = search.Found().cFileName;
        const std::string text = windows::Utf8(name);
        if (!IsFolder(search.Found().dwFileAttributes) && windows::Wide(text) == name)
            names.push_back(text);
    } while (search.Next());
    return names;
}

std::optional<std::uint64_t> FileSize(const std::string& path) {
    WIN32_FILE_ATTRIBUTE_DATA its{};
    if (!::GetFileAttributesExW(windows::SystemPath(path).c_str(), GetFileExInfoStandard, &its) ||
        IsFolder(its.dwFileAttributes))
        return std::nullopt;
    return std::uint64_t{its.nFileSizeHigh} << 32U | its.nFileSizeLow;
}

} // namespace gfc::platform
