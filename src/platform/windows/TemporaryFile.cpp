#include "platform/windows/TemporaryFile.h"

#include <array>
#include <cwchar>
#include <utility>

namespace gfc::platform::windows {
namespace {

// ".gfc-save-<name>-<process><attempt>": of one length for each name, so that it is taken for no other's. The
// old file goes by the other mark while the new one takes its place.
constexpr std::wstring_view Mark = L".gfc-save-";
constexpr std::wstring_view AsideMark = L".gfc-gone-"; // of the same length
constexpr std::size_t SuffixLength = 10;
constexpr std::size_t LongestName = 200; // leaves room for mark and suffix within a name's 255 characters
constexpr unsigned Attempts = 256;

struct Split {
    std::wstring Folder; // ends with the separator; empty for the working folder
    std::wstring Prefix;
};

Split SplitTarget(const std::wstring& target, std::wstring_view mark = Mark) {
    const auto separator = target.find_last_of(L"/\\");
    const auto nameAt = separator == std::wstring::npos ? 0 : separator + 1;
    return {target.substr(0, nameAt), std::wstring(mark) + target.substr(nameAt, LongestName) + L"-"};
}

// The path of the old file beside a new one of that path.
std::wstring AsideOf(std::wstring path) {
    return path.replace(path.rfind(Mark), Mark.size(), AsideMark);
}

template <class Visit>
void ForEach(const Split& split, Visit visit) {
    WIN32_FIND_DATAW found{};
    const HANDLE search = ::FindFirstFileW((split.Folder + split.Prefix + L"*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return;
    do {
        if (std::wcslen(found.cFileName) == split.Prefix.size() + SuffixLength)
            visit(split.Folder + found.cFileName);
    } while (::FindNextFileW(search, &found));
    ::FindClose(search);
}

bool Stands(const std::wstring& path) {
    return ::GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

// True if somebody has the file open and does not let it go, so that waiting for him is waiting for a person.
bool IsHeld(const std::wstring& path) {
    const DWORD before = ::GetLastError();
    const Handle file(::CreateFileW(path.c_str(), DELETE, ShareAll, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr));
    const bool held = !file && SaysHeld(::GetLastError());
    ::SetLastError(before);
    return held;
}

// True for what a glance of somebody else at the new file may come to.
bool SaysTouched(DWORD error) {
    return SaysHeld(error) || error == ERROR_ACCESS_DENIED || error == ERROR_UNABLE_TO_REMOVE_REPLACED ||
           error == ERROR_UNABLE_TO_MOVE_REPLACEMENT || error == ERROR_UNABLE_TO_MOVE_REPLACEMENT_2;
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
    PutBackAside(target);
    // A living writer's file cannot be deleted: it is open to nobody else.
    const auto remove = [](const std::wstring& path) { ::DeleteFileW(path.c_str()); };
    ForEach(SplitTarget(target), remove);
    if (Stands(target))
        ForEach(SplitTarget(target, AsideMark), remove);
}

bool TemporaryFile::PutBackAside(const std::wstring& target) {
    bool back = false;
    if (!Stands(target) && ::GetLastError() == ERROR_FILE_NOT_FOUND)
        ForEach(SplitTarget(target, AsideMark), [&](const std::wstring& path) {
            back = back || ::MoveFileExW(path.c_str(), target.c_str(), MOVEFILE_WRITE_THROUGH);
        });
    return back;
}

TemporaryFile::TemporaryFile(TemporaryFile&& other) noexcept
    : path_(std::exchange(other.path_, {})), file_(std::move(other.file_)) {}

TemporaryFile::~TemporaryFile() {
    (void)file_.Close();
    if (!path_.empty())
        ::DeleteFileW(path_.c_str());
}

bool TemporaryFile::Write(std::string_view bytes) {
    return WriteAll(file_.Get(), bytes) && ::FlushFileBuffers(file_.Get()) != 0;
}

bool TemporaryFile::MoveOver(const std::wstring& target) {
    if (!file_.Close())
        return false;
    const bool moved = Patiently([&] { return TryMoveOver(target); },
                                 [&](DWORD error) { return SaysTouched(error) && !IsHeld(target); });
    if (moved)
        path_.clear();
    return moved;
}

bool TemporaryFile::TryMoveOver(const std::wstring& target) {
    const std::wstring aside = AsideOf(path_);
    if (::ReplaceFileW(target.c_str(), path_.c_str(), aside.c_str(), REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr,
                       nullptr)) {
        (void)DeletedPatiently(aside);
        return true;
    }
    const DWORD error = ::GetLastError();
    if (error == ERROR_FILE_NOT_FOUND)
        return ::MoveFileExW(path_.c_str(), target.c_str(), MOVEFILE_WRITE_THROUGH) != 0;
    // The system went half of the way: the old file has gone by its other name, and nothing stands in its
    // place.
    if (error == ERROR_UNABLE_TO_MOVE_REPLACEMENT_2)
        PutBackAside(target);
    ::SetLastError(error);
    return false;
}

bool TemporaryFile::MoveToNew(const std::wstring& target) {
    const bool moved =
        file_.Close() &&
        Patiently([&] { return ::MoveFileExW(path_.c_str(), target.c_str(), MOVEFILE_WRITE_THROUGH) != 0; },
                  [&](DWORD error) { return SaysTouched(error) && !Stands(target); });
    if (moved)
        path_.clear();
    return moved;
}

} // namespace gfc::platform::windows
