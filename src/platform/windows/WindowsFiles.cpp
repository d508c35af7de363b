#include "platform/Files.h"
#include "platform/windows/TemporaryFile.h"

#include <algorithm>

namespace gfc::platform {
namespace {

using windows::Handle;
using windows::TemporaryFile;
using windows::Wide;

constexpr DWORD ShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr std::size_t LargestRead = 1u << 30;

// Every other error leaves open whether the file is there: a share that does not answer, a file that is held.
bool SaysMissing(DWORD error) {
    return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND || error == ERROR_INVALID_NAME ||
           error == ERROR_BAD_PATHNAME || error == ERROR_FILENAME_EXCED_RANGE;
}

bool MayExist(const std::wstring& path) {
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    return attributes == INVALID_FILE_ATTRIBUTES ? !SaysMissing(::GetLastError())
                                                 : !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

// A folder, or a file that its owner has locked against changes.
bool MustStay(const std::wstring& path) {
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES &&
           (attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY));
}

// What a link points to, by its full name; a path that is no link, or names nothing yet, stays.
std::wstring RealTarget(const std::wstring& path) {
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || !(attributes & FILE_ATTRIBUTE_REPARSE_POINT))
        return path;
    const Handle file(
        ::CreateFileW(path.c_str(), 0, ShareAll, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    std::wstring target(32768, L'\0');
    const DWORD length =
        file ? ::GetFinalPathNameByHandleW(file.Get(), target.data(), static_cast<DWORD>(target.size()),
                                           FILE_NAME_NORMALIZED)
             : 0;
    if (length == 0 || length >= target.size())
        return path;
    target.resize(length);
    return target;
}

std::optional<std::string> ReadAll(HANDLE file, std::size_t size) {
    std::string bytes(size, '\0');
    std::size_t used = 0;
    while (used < size) {
        DWORD got = 0;
        const auto piece = static_cast<DWORD>(std::min(size - used, LargestRead));
        if (!::ReadFile(file, bytes.data() + used, piece, &got, nullptr))
            return std::nullopt;
        if (got == 0)
            break;
        used += got;
    }
    bytes.resize(used);
    return bytes;
}

class WindowsFiles : public Files {
public:
    std::optional<std::string> Read(const std::string& path) override {
        const Handle file(::CreateFileW(Wide(path).c_str(), GENERIC_READ, ShareAll, nullptr, OPEN_EXISTING,
                                        FILE_ATTRIBUTE_NORMAL, nullptr));
        LARGE_INTEGER size{};
        if (!file || ::GetFileType(file.Get()) != FILE_TYPE_DISK || !::GetFileSizeEx(file.Get(), &size))
            return std::nullopt;
        return ReadAll(file.Get(), static_cast<std::size_t>(size.QuadPart));
    }

    bool Replace(const std::string& path, std::string_view bytes) override {
        const std::wstring target = RealTarget(Wide(path));
        if (target.empty() || MustStay(target))
            return false;
        TemporaryFile::RemoveLeftovers(target);
        auto file = TemporaryFile::Beside(target);
        return file && file->Write(bytes) && file->MoveOver(target);
    }

    bool Exists(const std::string& path) override { return MayExist(Wide(path)); }

    bool Delete(const std::string& path) override { return ::DeleteFileW(Wide(path).c_str()) != 0; }

    bool CopyNew(const std::string& from, const std::string& to) override {
        const std::wstring target = Wide(to);
        if (target.empty() || ::GetFileAttributesW(target.c_str()) != INVALID_FILE_ATTRIBUTES)
            return false;
        const auto bytes = Read(from);
        if (!bytes)
            return false;
        TemporaryFile::RemoveLeftovers(target);
        auto file = TemporaryFile::Beside(target);
        return file && file->Write(*bytes) && file->MoveToNew(target);
    }
};

} // namespace

std::unique_ptr<Files> MakeFiles() {
    return std::make_unique<WindowsFiles>();
}

} // namespace gfc::platform
