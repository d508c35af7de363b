#include "platform/windows/WindowsInPlace.h"

#include "platform/windows/FileHandle.h"
#include "platform/windows/SystemPath.h"
#include "platform/windows/UserFolders.h"

namespace gfc::platform::windows {
namespace {

constexpr std::string_view Mark = ".gfc-undo-";
constexpr std::size_t LongestName = 200; // leaves room for the mark within a name's 255 characters
// Its holder lets others read it and take its name away; who wants to write as well is refused as long as it
// is held, and so learns that its writer lives.
constexpr DWORD ShareHeld = FILE_SHARE_READ | FILE_SHARE_DELETE;

class WindowsOpenFile : public OpenFile {
public:
    explicit WindowsOpenFile(Handle file) : file_(std::move(file)) {}

    std::optional<std::string> ReadAll() override {
        return MoveTo(0) ? ReadToEnd(file_.Get()) : std::nullopt;
    }
    bool WriteAt(std::uint64_t at, std::string_view bytes) override {
        return MoveTo(at) && WriteAll(file_.Get(), bytes);
    }
    bool SetSize(std::uint64_t size) override { return MoveTo(size) && ::SetEndOfFile(file_.Get()) != 0; }
    bool Flush() override { return ::FlushFileBuffers(file_.Get()) != 0; }

private:
    bool MoveTo(std::uint64_t at) {
        LARGE_INTEGER distance{};
        distance.QuadPart = static_cast<LONGLONG>(at);
        return ::SetFilePointerEx(file_.Get(), distance, nullptr, FILE_BEGIN) != 0;
    }

    Handle file_;
};

std::unique_ptr<OpenFile> Opened(Handle file) {
    return file ? std::make_unique<WindowsOpenFile>(std::move(file)) : nullptr;
}

} // namespace

std::vector<std::string> WindowsInPlace::RecordPaths(const std::string& target) {
    const std::size_t nameAt = target.find_last_of("/\\") + 1; // npos + 1 is 0
    const std::wstring name = Wide(target.substr(nameAt)).substr(0, LongestName);
    std::vector<std::string> paths = {target.substr(0, nameAt) + std::string(Mark) + Utf8(name)};
    if (const std::wstring own = StateFolder(); !own.empty() && nameAt > 0)
        paths.push_back(Utf8(own) + '\\' + RecordNameOf(target));
    return paths;
}

std::unique_ptr<OpenFile> WindowsInPlace::OpenTarget(const std::string& target) {
    return Opened(OpenPatiently(SystemPath(target), GENERIC_READ | GENERIC_WRITE));
}

std::unique_ptr<OpenFile> WindowsInPlace::MakeRecord(const std::string& path, const std::string&) {
    if (const std::wstring own = StateFolder(); !own.empty() && path.starts_with(Utf8(own)))
        ::CreateDirectoryW(own.c_str(), nullptr);
    return Opened(Handle(::CreateFileW(SystemPath(path).c_str(), GENERIC_READ | GENERIC_WRITE, ShareHeld,
                                       nullptr, CREATE_NEW, FILE_ATTRIBUTE_HIDDEN, nullptr)));
}

std::unique_ptr<OpenFile> WindowsInPlace::TakeRecord(const std::string& path) {
    return Opened(Handle(::CreateFileW(SystemPath(path).c_str(), GENERIC_READ | GENERIC_WRITE, ShareHeld,
                                       nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr)));
}

std::optional<std::string> WindowsInPlace::ReadRecord(const std::string& path) {
    const Handle file(::CreateFileW(SystemPath(path).c_str(), GENERIC_READ, ShareAll, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr));
    return file ? ReadToEnd(file.Get()) : std::nullopt;
}

void WindowsInPlace::Remove(const std::string& path) {
    ::DeleteFileW(SystemPath(path).c_str());
}

std::string WindowsInPlace::Reason() {
    return ErrorText(::GetLastError());
}

} // namespace gfc::platform::windows
