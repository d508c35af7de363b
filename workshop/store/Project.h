// One project file: a versioned database of stations, their modules and tags, and their files to load.
#pragma once

#include "workshop/store/Database.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace gfc::workshop {

/// The library hands the path out in a buffer of 255 bytes, one of them the closing NUL.
inline constexpr std::size_t LongestProjectPath = 254;

class Project {
public:
    /// Makes a new, empty project. Throws Failure when something stands at `file` already.
    [[nodiscard]] static Project Create(const std::filesystem::path& file);
    /// Throws Failure when there is no such file, or it is no project, or one of a newer workshop.
    [[nodiscard]] static Project Open(const std::filesystem::path& file, Access access);

    [[nodiscard]] Database& Data() { return database_; }
    [[nodiscard]] const std::filesystem::path& File() const { return file_; }

    /// Marks the project as the sample that may be made anew.
    void MarkAsSample();
    [[nodiscard]] bool IsSample();

private:
    Project(const std::filesystem::path& file, Access access);
    void MakeTables();
    void CheckIdentity();
    std::int64_t Pragma(std::string_view name);

    std::filesystem::path file_;
    Database database_;
};

/// Throws Failure when the library could not hand out this path, or no name could be cut from it.
void CheckProjectPath(const std::filesystem::path& file);

} // namespace gfc::workshop
