#pragma once

#include "platform/NameTable.h"
#include "platform/Profile.h"
#include "platform/ProfileLines.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace gfc::platform {

// Reads many keys of a profile that stays as it is: each section is looked for once, and gone through once
// for most of its keys. Answers as Profile::Read does.
class ProfileIndex {
public:
    // The profile must outlive the index, unchanged.
    explicit ProfileIndex(const Profile& profile) : bytes_(profile.Bytes()) {}

    [[nodiscard]] std::string Read(std::string_view section, std::string_view key);

private:
    // The entries of a section by name. Of equal names the first one counts.
    class Table {
    public:
        explicit Table(profile::SectionLines lines);
        [[nodiscard]] std::optional<std::string_view> Find(std::string_view key) const;

    private:
        NameTable names_;
        std::vector<std::string_view> values_;
    };
    struct Section {
        std::string Name;
        std::optional<std::size_t> Header; // none if the profile lacks the section
        int Readings = 0;
        std::optional<Table> Entries; // not made for a few readings
    };

    [[nodiscard]] Section& SectionOf(std::string_view name);
    [[nodiscard]] std::optional<std::string_view> Find(Section& section, std::string_view key) const;

    std::string_view bytes_;
    std::vector<Section> sections_;
};

} // namespace gfc::platform
