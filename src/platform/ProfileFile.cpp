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
    : files_(&files), path_(std::move(path)), onDisk_(std::move(bytes)), profile_(onDisk_.value_or("")) {}

bool ProfileFile::Save() {
    if (onDisk_ == profile_.Bytes())
        return true;
    if (!files_->Replace(path_, profile_.Bytes()))
        return false;
    onDisk_ = profile_.Bytes();
    return true;
}

} // namespace gfc::platform
