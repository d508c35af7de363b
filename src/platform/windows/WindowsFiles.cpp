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

// A folder, or a file that its owner has locked against changes; the system's words for both are the same.
bool MustStay(const std::wstring& path) {
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    const bool must = attributes != INVALID_FILE_ATTRIBUTES &&
                      (attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY));
    if (must)
        ::SetLastError(ERROR_ACCESS_DENIED);
    return must;
}

bool IsFree(const std::wstring& path) {
    if (path.empty())
        ::SetLastError(ERROR_INVALID_NAME);
    else if (::GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES)
        ::SetLastError(ERROR_FILE_EXISTS);
    else
        return true;
    return false;
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
        std::optional<std::string> bytes;
        if (file && ::GetFileType(file.Get()) == FILE_TYPE_DISK && ::GetFileSizeEx(file.Get(), &size))
            bytes = ReadAll(file.Get(), static_cast<std::size_t>(size.QuadPart));
        Told(bytes.has_value());
        return bytes;
    }

    bool Replace(const std::string& path, std::string_view bytes) override {
        const std::wstring target = RealTarget(Wide(path));
        if (target.empty() || MustStay(target))
            return Told(false);
        auto file = Written(target, bytes);
        return file && Told(file->MoveOver(target));
    }

    bool PutAnew(const std::string& path, std::string_view bytes,
                 const std::function<bool()>& makeWay) override {
        const std::wstring target = Wide(path);
        auto file = Written(target, bytes);
        return file && makeWay() && Told(file->MoveOver(target));
    }

    bool Exists(const std::string& path) override { return MayExist(Wide(path)); }

    bool Delete(const std::string& path) override { return Told(::DeleteFileW(Wide(path).c_str()) != 0); }

    bool CopyNew(const std::string& from, const std::string& to) override {
        const std::wstring target = Wide(to);
        if (!IsFree(target))
            return Told(false);
        const auto bytes = Read(from);
        if (!bytes)
            return false;
        auto file = Written(target, *bytes);
        return file && Told(file->MoveToNew(target));
    }

private:
    // Before anything else is done, what takes a half-made file away included: that may have its own error.
    bool Told(bool done) { return done || Fail(windows::ErrorText(::GetLastError())); }

    // Beside the target, its bytes safe on the disk.
    std::optional<TemporaryFile> Written(const std::wstring& target, std::string_view bytes) {
        TemporaryFile::RemoveLeftovers(target);
        auto file = TemporaryFile::Beside(target);
        if (!Told(file && file->Write(bytes)))
            file.reset();
        return file;
    }
};

} // namespace

std::unique_ptr<Files> MakeFiles() {
    return std::make_unique<WindowsFiles>();
}

} // namespace gfc::platform
