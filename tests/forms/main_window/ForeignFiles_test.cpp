#include "forms/main_window/GFCPrincipal.h"
#include "support/TestFolders.h"
#include "support/World.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>

namespace gfc::test {

namespace {

using forms::GFCPrincipal;

// The main window over a station whose file is anything but what this program wrote: everything that shows
// it is visited, and the program is still there.
struct ForeignFiles : testing::Test {
    static void Visit(const std::string& content) {
        World world;
        world.AddStation("North", LargeStationTags());
        world.Files.Content["/jobs/KDOrmAGA_plant_North.ini"] = content;
        VisitPanes(world);
        world.TheStory.Menu("GFCPrincipal", "exit");
        world.Program.Forms.Get<GFCPrincipal>().Show();
        world.Screen.RunToEnd();
        EXPECT_TRUE(world.Screen.Ended());
        EXPECT_EQ(world.Screen.ExitCode, 0);
        EXPECT_EQ(world.Files.Content["/jobs/KDOrmAGA_plant_North.ini"], content);
    }

private:
    static void VisitPanes(World& world) {
        const std::string station = "All Stations\\North";
        world.TheStory.ClickNode("GFCPrincipal", "TreeGFC", station + "\\Common Parameters");
        for (int tab = 0; tab < 3; ++tab)
            world.TheStory.SelectTab("GFCPrincipal", "SSTab1", tab);
        for (int run = 1; run <= config::MaxRuns; ++run) {
            world.TheStory.ClickNode("GFCPrincipal", "TreeGFC",
                                     station + "\\Individual Parameters\\Run " + std::to_string(run));
            for (int tab = 0; tab < 5; ++tab)
                world.TheStory.SelectTab("GFCPrincipal", "SSTab2", tab);
        }
        world.TheStory.ClickNode("GFCPrincipal", "TreeGFC", station);
    }
};

std::string RandomBytes(unsigned seed, std::size_t size) {
    std::mt19937 random(seed);
    std::string bytes(size, '\0');
    for (char& byte : bytes)
        byte = static_cast<char>(random() & 0xFF);
    return bytes;
}

// A sound file with some of its bytes hit.
std::string Damaged(std::string bytes, unsigned seed) {
    std::mt19937 random(seed);
    for (int hits = 0; hits < 40; ++hits)
        bytes[random() % bytes.size()] = static_cast<char>(random() & 0xFF);
    return bytes;
}

std::string BytesOf(const std::filesystem::path& path) {
    std::ostringstream bytes;
    bytes << std::ifstream(path, std::ios::binary).rdbuf();
    return bytes.str();
}

TEST_F(ForeignFiles, of_random_bytes_are_shown_as_not_configured) {
    for (unsigned seed = 1; seed <= 20; ++seed)
        Visit(RandomBytes(seed, seed * 400));
}

TEST_F(ForeignFiles, of_another_program_are_shown_as_not_configured) {
    Visit(
        "; settings of an editor\r\n[window]\r\nwidth=1024\r\n\r\n[recent files]\r\n1=c:\\autoexec.bat\r\n");
    Visit("<?xml version=\"1.0\"?>\n<project><station/></project>\n");
    Visit(std::string(100000, '['));
    Visit(std::string("\0\0\0=\0[\0", 8));
}

TEST_F(ForeignFiles, with_faults_are_shown_as_far_as_they_go) {
    for (const auto& entry : std::filesystem::directory_iterator(GoldenFolder() / "bad"))
        Visit(BytesOf(entry.path()));
}

TEST_F(ForeignFiles, damaged_here_and_there_are_shown_as_far_as_they_go) {
    const std::string sound = Golden("bad/sound.ini");
    ASSERT_FALSE(sound.empty());
    for (unsigned seed = 1; seed <= 20; ++seed)
        Visit(Damaged(sound, seed));
}

} // namespace

} // namespace gfc::test
