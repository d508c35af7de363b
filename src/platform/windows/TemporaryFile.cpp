#include "platform/windows/TemporaryFile.h"

#include <algorithm>
#include <array>
#include <cwchar>
#include <utility>

namespace gfc::platform::windows {
namespace {

// ".gfc-save-<name>-<process><attempt>": of one length for each name, so that it is taken for no other's.
constexpr std::wstring_view Mark = L".gfc-save-";
constexpr std::size_t SuffixLength = 10;
constexpr std::size_t LongestName = 200; // leaves room for mark and suffix within a name's 255 characters
constexpr unsigned Attempts = 256;
constexpr std::size_t LargestWrite = 1u << 30;

struct Split {
    std::wstring Folder; // ends with the separator; empty for the working folder
    std::wstring Prefix;
};

Split SplitTarget(const std::wstring& target) {
    const auto separator = target.find_last_of(L"/\\");
    const auto nameAt = separator == std::wstring::npos ? 0 : separator + 1;
    return {target.substr(0, nameAt), std::wstring(Mark) + target.substr(nameAt, LongestName) + L"-"};
}

std::wstring Suffix(unsigned attempt) {
    std::array<wchar_t, 16> text{};
    std::swprintf(text.data(), text.size(), L"%08lx%02x", ::GetCurrentProcessId(), attempt & 0xFFu);
    return text.data();
}

} // namespace

std::optional<TemporaryFile> TemporaryFile::Beside(const std::wstring& target) {
    const Split split = SplitTarget(target);
    for (unsigned attempt = 0; attempt < Attempts; ++attempt) {
        std::wstring path = split.Folder + split.Prefix + Suffix(attempt);
        Handle file(::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL,
                                  nullptr));
        if (file)
            return TemporaryFile(std::move(path), std::move(file));
        const DWORD error = ::GetLastError();
        if (error != ERROR_FILE_EXISTS && error != ERROR_SHARING_VIOLATION)
            return std::nullopt;
    }
    return std::nullopt;
}

void TemporaryFile::RemoveLeftovers(const std::wstring& target) {
    const Split split = SplitTarget(target);
    WIN32_FIND_DATAW found{};
    const HANDLE search = ::FindFirstFileW((split.Folder + split.Prefix + L"*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return;
    do {
        // A living writer's file cannot be deleted: it is open to nobody else.
        if (std::wcslen(found.cFileName) == split.Prefix.size() + SuffixLength)
            ::DeleteFileW((split.Folder + found.cFileName).c_str());
    } while (::FindNextFileW(search, &found));
    ::FindClose(search);
}

TemporaryFile::TemporaryFile(TemporaryFile&& other) noexcept
    : path_(std::exchange(other.path_, {})), file_(std::move(other.file_)) {}

TemporaryFile::~TemporaryFile() {
    (void)file_.Close();
    if (!path_.empty())
        ::DeleteFileW(path_.c_str());
}

bool TemporaryFile::Write(std::string_view bytes) {
    while (!bytes.empty()) {
        DWORD written = 0;
        const auto size = static_cast<DWORD>(std::min(bytes.size(), LargestWrite));
        if (!::WriteFile(file_.Get(), bytes.data(), size, &written, nullptr) || written == 0)
            return false;
        bytes.remove_prefix(written);
    }
    return ::FlushFileBuffers(file_.Get()) != 0;
}

bool TemporaryFile::MoveOver(const std::wstring& target) {
    if (!file_.Close())
        return false;
    const bool moved = ::ReplaceFileW(target.c_str(), path_.c_str(), nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS,
                                      nullptr, nullptr) ||
                       (::GetLastError() == ERROR_FILE_NOT_FOUND &&
                        ::MoveFileExW(path_.c_str(), target.c_str(), MOVEFILE_WRITE_THROUGH));
    if (moved)
        path_.clear();
    return moved;
}

bool TemporaryFile::MoveToNew(const std::wstring& target) {
    if (!file_.Close() || !::MoveFileExW(path_.c_str(), target.c_str(), MOVEFILE_WRITE_THROUGH))
        return false;
    path_.clear();
    return true;
}

} // namespace gfc::platform::windows
