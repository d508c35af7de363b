#pragma once

#include "platform/posix/Descriptor.h"

#include <optional>
#include <string>

namespace gfc::platform::posix {

// The file that new bytes are written to beside their target, under a name that shows what it belongs to. It
// is locked as long as its writer lives, so that what a crash left behind is told from another writer's work.
// It removes itself unless it was put in its place. What fails leaves its reason in errno.
class TemporaryFile {
public:
    // Nothing if the target's folder takes no file. What dead writers left beside the target is removed.
    [[nodiscard]] static std::optional<TemporaryFile> Beside(const std::string& target, unsigned mode);

    TemporaryFile(TemporaryFile&& other) noexcept;
    TemporaryFile& operator=(TemporaryFile&&) = delete;
    ~TemporaryFile();

    [[nodiscard]] int Get() const { return file_.Get(); }
    // Both end with the folder flushed; the bytes must be flushed before. If that last flush alone fails, the
    // new file stands where it went over an old one, and is taken away again where there was none.
    [[nodiscard]] bool MoveOver(const std::string& target);
    [[nodiscard]] bool MoveToNew(const std::string& target);

    // True also where what came after the move has failed.
    [[nodiscard]] bool WasMoved() const { return path_.empty(); }

private:
    TemporaryFile(std::string path, Descriptor file) : path_(std::move(path)), file_(std::move(file)) {}
    void Forget() { path_.clear(); }
    bool TakeFreeName(const std::string& target);
    bool Rename(const std::string& target);

    std::string path_; // empty once it is in its place
    Descriptor file_;
};

} // namespace gfc::platform::posix
