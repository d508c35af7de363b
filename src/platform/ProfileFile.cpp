#include "platform/ProfileFile.h"

#include <utility>

namespace gfc::platform {

std::optional<ProfileFile> ProfileFile::Open(Files& files, std::string path) {
    auto bytes = files.Read(path);
    if (!bytes && files.Exists(path))
        return std::nullopt;
    return ProfileFile(files, std::move(path), std::move(bytes));
}

ProfileFile::ProfileFile(Files& files, std::string path, std::optional<std::string> bytes)
    : files_(&files), path_(std::move(path)), there_(bytes.has_value()),
      profile_(std::move(bytes).value_or("")) {}

Profile& ProfileFile::Edit() {
    if (!before_)
        before_ = profile_.Bytes();
    return profile_;
}

bool ProfileFile::Save() {
    const bool changed = before_ && *before_ != profile_.Bytes();
    if (there_ && !changed)
        return true;
    if (!files_->Replace(path_, profile_.Bytes()))
        return false;
    there_ = true;
    before_.reset();
    return true;
}

} // namespace gfc::platform
