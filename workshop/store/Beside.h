// A file that is made beside its place and moved into it when it is whole.
#pragma once

#include <filesystem>

namespace gfc::workshop {

/// Whatever stops the program or the machine, the file in its place is the old one or the new one. It keeps
/// its mode, and a link to it stays one. What was made beside it and not moved goes with this object; what a
/// crash left there goes with the next one.
class Beside {
public:
    /// The place is taken at the move alone: what stands there until then is left as it is.
    explicit Beside(const std::filesystem::path& place);
    ~Beside();
    Beside(const Beside&) = delete;
    Beside& operator=(const Beside&) = delete;

    /// Where to make it; nothing stands there yet.
    [[nodiscard]] const std::filesystem::path& Path() const { return beside_; }
    /// Throws Failure when it cannot be done, or cannot be made to last.
    void MoveIntoPlace();

private:
    void Remove() const;

    std::filesystem::path place_;
    std::filesystem::path beside_;
};

} // namespace gfc::workshop
