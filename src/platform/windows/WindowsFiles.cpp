#include "platform/Files.h"
#include "platform/windows/SystemPath.h"
#include "platform/windows/TemporaryFile.h"
#include "platform/windows/WindowsInPlace.h"

namespace gfc::platform {
namespace {

using windows::Handle;
using windows::ShareAll;
using windows::SystemPath;
using windows::TemporaryFile;

// Every other error leaves open whether the file is there: a share that does not answer, a file that is held.
bool SaysMissing(DWORD error) {
    return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND || error == ERROR_INVALID_NAME ||
           error == ERROR_BAD_PATHNAME || error == ERROR_FILENAME_EXCED_RANGE;
}

bool MayExist(const std::wstring& path) {
    if (windows::NamesDevice(path))
        return false;
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES)
        return !(attributes & FILE_ATTRIBUTE_DIRECTORY);
    // Of a drive that was pulled the system says no more than that there is no such path.
    return !SaysMissing(::GetLastError()) || !windows::RootAnswers(path) || TemporaryFile::PutBackAside(path);
}

// True if the file could not be replaced for the sake of others who have it open, or of its folder.
bool MayServeInPlace(DWORD error) {
    switch (error) {
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_USER_MAPPED_FILE:
    case ERROR_INVALID_FUNCTION: // of shares that know no such call
    case ERROR_NOT_SUPPORTED:
    case ERROR_CALL_NOT_IMPLEMENTED:
    case ERROR_INVALID_PARAMETER:
    case ERROR_UNABLE_TO_REMOVE_REPLACED:
    case ERROR_UNABLE_TO_MOVE_REPLACEMENT:
    case ERROR_UNABLE_TO_MOVE_REPLACEMENT_2:
        return true;
    default:
        return false;
    }
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
    if (path.empty() || windows::NamesDevice(path))
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

class WindowsFiles : public Files {
public:
    std::optional<std::string> Read(const std::string& path) override {
        const std::wstring target = RealTarget(SystemPath(path));
        TemporaryFile::PutBackAside(target);
        if (auto old = PutBackHalfWay(inPlace_, windows::Utf8(target)))
            return old;
        const Handle file = windows::OpenPatiently(target, GENERIC_READ);
        std::optional<std::string> bytes;
        if (file && ::GetFileType(file.Get()) == FILE_TYPE_DISK)
            bytes = windows::ReadToEnd(file.Get());
        Told(bytes.has_value());
        return bytes;
    }

    bool Replace(const std::string& path, std::string_view bytes) override {
        const std::wstring target = RealTarget(SystemPath(path));
        if (!MayBeFile(target) || MustStay(target))
            return Told(false);
        (void)PutBackHalfWay(inPlace_, windows::Utf8(target));
        return Replaced(target, bytes) || (MayServeInPlace(lastError_) && Overwritten(target, bytes));
    }

    bool PutAnew(const std::string& path, std::string_view bytes,
                 const std::function<bool()>& makeWay) override {
        const std::wstring target = SystemPath(path);
        if (!MayBeFile(target))
            return Told(false);
        auto file = Written(target, bytes);
        return file && makeWay() && Told(file->MoveOver(target));
    }

    bool Exists(const std::string& path) override { return MayExist(SystemPath(path)); }

    bool Delete(const std::string& path) override {
        const std::wstring target = SystemPath(path);
        // What was left aside of it would come back as soon as nothing stands in its place.
        TemporaryFile::RemoveLeftovers(target);
        return Told(windows::DeletedPatiently(target));
    }

    bool CopyNew(const std::string& from, const std::string& to) override {
        const std::wstring target = SystemPath(to);
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
    bool Told(bool done) {
        lastError_ = done ? ERROR_SUCCESS : ::GetLastError();
        return done || Fail(windows::ErrorText(lastError_));
    }

    static bool MayBeFile(const std::wstring& target) {
        const bool may = !target.empty() && !windows::NamesDevice(target);
        if (!may)
            ::SetLastError(ERROR_INVALID_NAME);
        return may;
    }

    bool Replaced(const std::wstring& target, std::string_view bytes) {
        auto file = Written(target, bytes);
        return file && Told(file->MoveOver(target));
    }

    // What the system said of the replacement stays as the reason where not even this can be done.
    bool Overwritten(const std::wstring& target, std::string_view bytes) {
        return !WriteInPlace(inPlace_, windows::Utf8(target), bytes);
    }

    // Beside the target, its bytes safe on the disk.
    std::optional<TemporaryFile> Written(const std::wstring& target, std::string_view bytes) {
        TemporaryFile::RemoveLeftovers(target);
        auto file = TemporaryFile::Beside(target);
        if (!Told(file && file->Write(bytes)))
            file.reset();
        return file;
    }

    windows::WindowsInPlace inPlace_;
    DWORD lastError_ = ERROR_SUCCESS;
};

} // namespace

std::string PathForCalls(const std::string& path) {
    return windows::Utf8(SystemPath(path));
}

std::unique_ptr<Files> MakeFiles() {
    return std::make_unique<WindowsFiles>();
}

} // namespace gfc::platform
