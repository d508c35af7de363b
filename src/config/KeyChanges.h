#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// What a configuration file says, key by key, and in what two states of one differ. All texts of the results
// are UTF-8; the bytes are those of the file.
namespace gfc::config {

struct FileKey {
    std::string Section;
    std::string Key;
    std::string Value; // whole, without the limit of a reading

    bool operator==(const FileKey&) const = default;
};

// In the order of the file. Of equal names, sections and keys alike, the first one does, as for who reads the
// file.
[[nodiscard]] std::vector<FileKey> KeysOf(std::string_view bytes);

struct KeyChange {
    std::string Section;
    std::string Key;
    std::optional<std::string> Old; // nothing where the key was not there
    std::optional<std::string> New; // nothing where it is not there any more

    bool operator==(const KeyChange&) const = default;
};

// Without regard to case and to the order of keys. First those of the state before, in its order, then what
// is new.
[[nodiscard]] std::vector<KeyChange> ChangesOf(std::string_view before, std::string_view after);

} // namespace gfc::config
