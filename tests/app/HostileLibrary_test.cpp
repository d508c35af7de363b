// The whole program on real libraries that answer what no library should.
#include "app/Application.h"
#include "support/HostileWays.h"
#include "support/World.h"

#include <gtest/gtest.h>

#include <functional>

namespace gfc::test {

namespace {

class HostileLibrary : public testing::TestWithParam<std::size_t> {
protected:
    platform::LibraryLoad Load(const std::string& path) const {
        auto loaded = HostileFolder::Load(path, GetParam(), Delay);
        EXPECT_EQ(loaded.Error, "");
        CallsOf = HostileFolder::CallsOf(loaded);
        return loaded;
    }
    void ExpectCalls(const std::string& function, int calls) const {
        EXPECT_EQ(CallsOf(("kdaddon_VB" + function).c_str()), calls) << function;
    }
    // What goes on while the library takes its time over an answer.
    static void Delay() { meanwhile(); }
    [[nodiscard]] static const HostileWay& Row() { return HostileWays[GetParam()]; }

    HostileFolder Folder;
    // How often a function of the library was called; the library stays when all that knows it has gone.
    mutable int (*CallsOf)(const char*) = nullptr;
    static inline std::function<void()> meanwhile;

private:
    void SetUp() override {
        meanwhile = [] {};
    }
};

// The window that comes up, or the word that there are no stations.
TEST_P(HostileLibrary, leaves_the_program_alive) {
    World world;
    struct : platform::Paths {
        std::string Folder;
        std::string ExecutableFolder() override { return Folder; }
        std::string ProfileFolder() override { return "/etc/profiles"; }
        std::string OwnFolder() override { return {}; }
        std::string UserName() override { return {}; }
    } paths;
    paths.Folder = Folder.Path();
    app::Application program(
        {world.Files, world.TimeZone, world.Clock, world.SingleInstance, world.Launcher, paths}, world.Screen,
        world.NoRecord);
    int calls = 0;
    meanwhile = [&] {
        ++calls;
        EXPECT_GT(world.Screen.BusyNow, 0) << "the program stands still, and nobody is shown that it waits";
    };
    ASSERT_TRUE(program.Start([this](const std::string& path) { return Load(path); }));
    const std::string station = "All Stations\\" + std::string(80, 'x');
    world.TheStory.Tick("formInicio", "timerInicio")
        .Type("UserIDForm", "Text1", "4711")
        .Click("UserIDForm", "Command1");
    if (Row().Stations == 0)
        world.TheStory.Box("Gas Flow Computer", "Error: no stations in project", ui::Icon::Exclamation);
    else
        world.TheStory.ClickNode("GFCPrincipal", "TreeGFC", station)
            .Menu("GFCPrincipal", "ConfigWiard")
            .Box("Flow Gas Computer", "", ui::Icon::None, ui::Answer::Yes)
            .Box("Error: Configuring AGA3", "", ui::Icon::Exclamation)
            .Box("Error: Configuring AGA7", "", ui::Icon::Exclamation)
            .Menu("GFCPrincipal", "exit");
    world.Screen.RunToEnd();
    EXPECT_TRUE(world.Screen.Ended());
    EXPECT_TRUE(world.TheStory.Done());
    EXPECT_TRUE(world.Files.Content.empty());
    EXPECT_EQ(world.Screen.BusyNow, 0);
    EXPECT_GE(calls, 3);
    ExpectCalls("CoInitialize", Row().Stations == 0 ? 0 : 1);
    ExpectCalls("CoUninitialize", 0);
}

INSTANTIATE_TEST_SUITE_P(Ways, HostileLibrary, testing::Range(std::size_t{0}, std::size(HostileWays)),
                         [](const auto& played) { return HostileWays[played.param].Name; });

} // namespace

} // namespace gfc::test
