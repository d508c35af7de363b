#pragma once

#include "platform/Files.h"
#include "platform/Profile.h"

#include <optional>
#include <string>
#include <utility>

namespace gfc::platform {

// A profile file taken up for any number of accesses: one read at the start, at most one replace at the end.
class ProfileFile {
public:
    // A missing file is an empty profile. Nothing if the file is there but cannot be read: to go on with an
    // empty one would end in its loss.
    [[nodiscard]] static std::optional<ProfileFile> Open(Files& files, std::string path);

    // Empty, whatever stands in the file's place; what it saves replaces that.
    [[nodiscard]] static ProfileFile New(Files& files, std::string path) {
        return ProfileFile(files, std::move(path), std::nullopt);
    }

    [[nodiscard]] platform::Profile& Edit();
    [[nodiscard]] const platform::Profile& Profile() const { return profile_; }

    // Replaces the file if its bytes have changed; a file that was missing comes into being in any case.
    // False if it could not be written; the old one is then untouched.
    [[nodiscard]] bool Save();
    // As it was when it was taken up, or by the last save.
    [[nodiscard]] const std::string& BytesBefore() const { return before_ ? *before_ : profile_.Bytes(); }

private:
    ProfileFile(Files& files, std::string path, std::optional<std::string> bytes);

    Files* files_;
    std::string path_;
    bool there_;
    platform::Profile profile_;
    std::optional<std::string>
        before_; // as on disk; kept from the first edit on, so that a reader pays no copy
};

} // namespace gfc::platform
