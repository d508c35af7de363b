#pragma once

#include "platform/Profile.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace gfc::platform {

// Reads many keys of a profile that stays as it is: each section is gone through once, when it is first asked
// for, and not once for each of its keys. Answers as Profile::Read does.
class ProfileIndex {
public:
    // The profile must outlive the index, unchanged.
    explicit ProfileIndex(const Profile& profile) : bytes_(profile.Bytes()) {}

    [[nodiscard]] std::string Read(std::string_view section, std::string_view key);

private:
    // Names are the same where they differ in case alone.
    struct NameHash {
        [[nodiscard]] std::size_t operator()(std::string_view name) const;
    };
    struct SameName {
        [[nodiscard]] bool operator()(std::string_view left, std::string_view right) const;
    };
    using Values = std::unordered_map<std::string_view, std::string_view, NameHash, SameName>;
    struct Section {
        std::string Name;
        Values ValueOf;
    };

    [[nodiscard]] const Values& ValuesOf(std::string_view section);
    [[nodiscard]] Values Collect(std::string_view section) const;

    std::string_view bytes_;
    std::vector<Section> sections_;
};

} // namespace gfc::platform
