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
    // Bytes of the code page, each as a line may bear it: without "=" and line breaks, without white space
    // around it, and with neither ";" nor "[" at its start. No two may be equal but for case; best they come
    // in the order in which they stand in a file.
    explicit ProfileKeys(std::vector<std::string> names);
    ProfileKeys(const ProfileKeys&) = delete;
    ProfileKeys& operator=(const ProfileKeys&) = delete;
    ProfileKeys(ProfileKeys&&) = default;

    [[nodiscard]] std::size_t Count() const { return names_.size(); }

    struct Reading {
        // Of each key as Profile::Read gives it, empty where the key is missing; the data of that one is
        // null.
        std::vector<std::string_view> Values;
        std::string_view Lines; // those that were gone through: the values are parts of them
    };
    // From a profile of these bytes, which must be there as long as the reading.
    [[nodiscard]] Reading Read(std::string_view bytes, std::string_view section) const;

private:
    std::vector<std::string> names_;
    NameTable table_;
};

} // namespace gfc::platform
