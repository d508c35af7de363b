#pragma once

#include "platform/NameTable.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace gfc::platform {

// The keys of a section that are read together. Made once for all files; a reading then goes through the
// section once, whatever the number of keys.
class ProfileKeys {
public:
    // Bytes of the code page, each as a line may bear it: without "=", white space around it and ";" at its
    // start. No two may be equal but for case; best they come in the order in which they stand in a file.
    explicit ProfileKeys(std::vector<std::string> names);
    ProfileKeys(const ProfileKeys&) = delete;
    ProfileKeys& operator=(const ProfileKeys&) = delete;
    ProfileKeys(ProfileKeys&&) = default;

    [[nodiscard]] std::size_t Count() const { return names_.size(); }

    // The value of each key in a profile of these bytes as Profile::Read gives it, empty where the key is
    // missing. The values are parts of the bytes; that of a missing key is none, its data is null.
    [[nodiscard]] std::vector<std::string_view> Read(std::string_view bytes, std::string_view section) const;

private:
    std::vector<std::string> names_;
    NameTable table_;
};

} // namespace gfc::platform
