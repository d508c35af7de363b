#pragma once

#include "config/VarINIFile.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace gfc::platform {
class Files;
}

// The station's configuration file: the only gates to it, and what is read and written through them.
namespace gfc::config {

// Where the files of the open project stand.
struct ProjectPaths {
    std::string ProjectFolder;    // no trailing separator
    std::string InstallFolder;    // read at start-up; nothing reads it afterwards
    std::string ConfigFilePrefix; // ProjectFolder, separator, "KDOrmAGA_"
};

[[nodiscard]] std::string ConfigFilePrefixOf(std::string_view projectFolder);
// station is cut at its first NUL; with an empty one the file is prefix + project + ".ini".
[[nodiscard]] std::string ConfigFilePath(const ProjectPaths& paths, std::string_view project,
                                         std::string_view station);

// One line of a section: the key in the form in which it is written, and its value.
struct KeyValue {
    std::string Key;
    std::string Value;
};

// Each call is one complete access to the file, unless a Batch is open for that file.
class FileIni {
public:
    explicit FileIni(platform::Files& files) : files_(files) {}

    // At most 254 characters, a longer value is cut; a missing key, section or file gives the empty text.
    [[nodiscard]] std::string ReadKey(std::string_view section, std::string_view key,
                                      const std::string& file) const;
    // An absent value deletes the key. The result is not acted on by callers.
    bool WriteKey(std::string_view section, std::string_view key, const std::optional<std::string>& value,
                  const std::string& file);
    // Replaces the whole content of the section.
    bool WriteSection(std::string_view section, const std::vector<KeyValue>& body, const std::string& file);
    [[nodiscard]] bool FileExists(const std::string& file) const;
    bool DeleteConfigFile(const std::string& file);
    // False if the target exists already.
    bool CopyConfigFile(const std::string& from, const std::string& to);

private:
    friend class FileBatch;
    platform::Files& files_;
};

} // namespace gfc::config
