#include "binding/ErrorLog.h"
#include "config/FileIni.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace gfc::config {

namespace {

namespace fs = std::filesystem;

// What a station, a project or a person may be called by somebody who means no good.
const std::string HostileNames[] = {
    "..",
    ".",
    "../outside",
    "../../outside",
    "..\\outside",
    "/outside",
    "\\outside",
    "\\\\server\\share\\outside",
    "C:outside",
    "C:\\outside",
    "C:/outside",
    "sub/name",
    "sub\\name",
    "name/",
    "name\\",
    "name/..",
    "name\nKey=value",
    "name\rKey=value",
    "name\r\n[Section]",
    "name\ttab",
    "name\x1B[2J",
    "name\x7F",
    "CON",
    "nul",
    "COM1",
    "LPT9.txt",
    "name.",
    "name...",
    "name ",
    " name",
    "-rf",
    "$HOME",
    "`touch outside`",
    "%TEMP%",
    "*",
    "?",
    "name|outside",
    "name>outside",
    std::string(300, 'x'),
    std::string("name\0/../outside", 16),
};

// A folder with the project's own in it: whatever leads out of the one lands in the other.
struct Names : testing::Test {
    Names() { fs::create_directory(Outer.Path("jobs")); }

    [[nodiscard]] ProjectPaths Paths() const { return PathsOf(Outer.Path("jobs") + "/plant.KPJ"); }

    // Writes all that goes by the name of a configuration file, and copies and deletes it.
    void Use(const std::string& path) {
        (void)Ini.WriteKey("General", "OrmStation", "x", path);
        const std::string log = binding::ErrorLogPath(path);
        (void)Ini.WriteLines("Example", {"line"}, log);
        (void)Ini.CopyConfigFile(path, log + ".copy");
        (void)Ini.ReadKey("General", "OrmStation", path);
    }

    void ExpectNothingOutside(const std::string& name) const {
        EXPECT_EQ(Outer.Count(), 1U) << name;
        for (const auto& entry : fs::directory_iterator(Outer.Path("jobs"))) {
            EXPECT_TRUE(entry.is_regular_file()) << entry.path();
            EXPECT_TRUE(entry.path().filename().string().starts_with("KDOrmAGA_")) << entry.path();
        }
    }

    test::TempFolder Outer;
    std::unique_ptr<platform::Files> Real = platform::MakeFiles();
    FileIni Ini{*Real};
};

TEST_F(Names, of_stations_lead_to_no_file_outside_the_folder) {
    for (const auto& name : HostileNames) {
        Use(ConfigFilePath(Paths(), "plant", name));
        ExpectNothingOutside(name);
    }
}

TEST_F(Names, of_projects_lead_to_no_file_outside_the_folder) {
    for (const auto& name : HostileNames) {
        Use(ConfigFilePath(Paths(), name, "North"));
        Use(ConfigFilePath(Paths(), name, {}));
        ExpectNothingOutside(name);
    }
}

TEST_F(Names, too_long_for_a_file_are_refused_without_a_trace) {
    const std::string path = ConfigFilePath(Paths(), "plant", std::string(300, 'x'));
    EXPECT_FALSE(Ini.WriteKey("General", "OrmStation", "x", path));
    EXPECT_FALSE(Ini.FileExists(path));
    EXPECT_TRUE(fs::is_empty(Outer.Path("jobs")));
}

TEST_F(Names, as_values_never_make_a_second_line) {
    const std::string path = ConfigFilePath(Paths(), "plant", "North");
    for (const auto& name : HostileNames) {
        ASSERT_TRUE(Ini.WriteKey("General", "OrmStation", name, path));
        ASSERT_TRUE(Ini.WriteSection("Station", {{"DeviceDataTraces", name}}, path));
        const std::string bytes = Outer.Get("jobs/KDOrmAGA_plant_North.ini");
        EXPECT_EQ(std::ranges::count(bytes, '\n'), 4) << name;
        EXPECT_EQ(std::ranges::count(bytes, '\r'), 4) << name;
        EXPECT_EQ(std::ranges::count(bytes, '\0'), 0) << name;
    }
}

#ifndef _WIN32 // there a file's folder says who may write it
TEST_F(Names, make_no_file_that_others_may_write) {
    const std::string path = ConfigFilePath(Paths(), "plant", "North");
    Use(path);
    for (const auto& entry : fs::directory_iterator(Outer.Path("jobs")))
        EXPECT_EQ(entry.status().permissions() & fs::perms::others_write, fs::perms::none) << entry.path();
}
#endif

} // namespace

} // namespace gfc::config
