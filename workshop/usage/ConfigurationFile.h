// The configuration file of a station, as far as a person wants to know which tags it names.
#pragma once

#include "workshop/store/Project.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace gfc::workshop {

/// Where the configurator keeps the file of that station, whether or not it stands there.
[[nodiscard]] std::filesystem::path ConfigurationFileOf(const Project& project, const std::string& station);

struct ConfigurationEntry {
    std::string Section;
    std::string Key;
    std::string Value;
};

/// The entries of a file in its code page, as UTF-8 and in their order. Of sections and keys that stand twice
/// the first counts, as it does for whoever reads the file; lines that are neither are passed over.
[[nodiscard]] std::vector<ConfigurationEntry> EntriesOf(std::string_view bytes);

/// The value of that section and key, whatever the case of their letters; empty where there is none.
[[nodiscard]] std::string ValueOf(const std::vector<ConfigurationEntry>& entries, std::string_view section,
                                  std::string_view key);

} // namespace gfc::workshop
