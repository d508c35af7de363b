#pragma once

#include "platform/Files.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace gfc::plan {

// A file system of one file that stands in memory alone: a configuration is made there, key by key, and goes
// to the disk in one piece or not at all.
class FileInMemory : public platform::Files {
public:
    FileInMemory(std::string path, std::string bytes) : path_(std::move(path)), bytes_(std::move(bytes)) {}

    std::optional<std::string> Read(const std::string& path) override {
        return path == path_ ? std::optional(bytes_) : std::nullopt;
    }
    bool Replace(const std::string& path, std::string_view bytes) override {
        if (path == path_)
            bytes_ = bytes;
        return path == path_;
    }
    bool PutAnew(const std::string&, std::string_view, const std::function<bool()>&) override {
        return false;
    }
    bool Exists(const std::string& path) override { return path == path_; }
    bool Delete(const std::string&) override { return false; }
    bool CopyNew(const std::string&, const std::string&) override { return false; }

    [[nodiscard]] const std::string& Path() const { return path_; }
    [[nodiscard]] const std::string& Bytes() const { return bytes_; }

private:
    std::string path_;
    std::string bytes_;
};

} // namespace gfc::plan
