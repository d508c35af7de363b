#pragma once

#include "platform/Files.h"

#include <functional>
#include <optional>
#include <string>
#include <utility>

namespace gfc::audit {

// A file system of one file, as it was when it was read: whoever works on it sees the same bytes throughout,
// and can change nothing.
class OneFile : public platform::Files {
public:
    OneFile(std::string path, std::string bytes) : path_(std::move(path)), bytes_(std::move(bytes)) {}

    std::optional<std::string> Read(const std::string& path) override {
        return path == path_ ? std::optional(bytes_) : std::nullopt;
    }
    bool Replace(const std::string&, std::string_view) override { return false; }
    bool PutAnew(const std::string&, std::string_view, const std::function<bool()>&) override {
        return false;
    }
    bool Exists(const std::string& path) override { return path == path_; }
    bool Delete(const std::string&) override { return false; }
    bool CopyNew(const std::string&, const std::string&) override { return false; }

    [[nodiscard]] const std::string& Bytes() const { return bytes_; }

private:
    std::string path_;
    std::string bytes_;
};

} // namespace gfc::audit
