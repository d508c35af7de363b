#pragma once

#include "platform/windows/FileHandle.h"

#include <optional>
#include <string>
#include <string_view>

namespace gfc::platform::windows {

// The file that new bytes are written to beside their target, under a name that shows what it belongs to. Its
// writer keeps it open against all others, so that what a crash left behind is told from another writer's
// work. It removes itself unless it was put in its place.
class TemporaryFile {
public:
    // Nothing if the target's folder takes no file.
    [[nodiscard]] static std::optional<TemporaryFile> Beside(const std::wstring& target);
    // Removes what dead writers left behind beside the target, once PutBackAside has had its turn.
    static void RemoveLeftovers(const std::wstring& target);
    // Where the system stopped, or a writer died, with the old file moved aside and the new one not in its
    // place yet: the old one comes back. True if there was one.
    static bool PutBackAside(const std::wstring& target);

    TemporaryFile(TemporaryFile&& other) noexcept;
    TemporaryFile& operator=(TemporaryFile&&) = delete;
    ~TemporaryFile();

    // Writes all bytes and has them flushed to the disk.
    [[nodiscard]] bool Write(std::string_view bytes);
    // Takes the place of the target, which need not exist; what exists keeps its attributes and rights. Waits
    // a moment for who looks at the new file, but not for who has the target open.
    [[nodiscard]] bool MoveOver(const std::wstring& target);
    // Takes a place that must be free.
    [[nodiscard]] bool MoveToNew(const std::wstring& target);

private:
    bool TryMoveOver(const std::wstring& target);
    TemporaryFile(std::wstring path, Handle file) : path_(std::move(path)), file_(std::move(file)) {}

    std::wstring path_; // empty once it is in its place
    Handle file_;
};

} // namespace gfc::platform::windows
