#ifndef _WIN32
// The whole program on real libraries that answer what no library should.
#include "app/Application.h"
#include "support/TempFolder.h"
#include "support/TestFolders.h"
#include "support/World.h"

#include <gtest/gtest.h>

#include <functional>

namespace gfc::test {

namespace {

struct HostileRow {
    const char* Name;
    std::size_t Stations; // so many must be believed
    std::size_t Tags;
    int TagsGivenBack; // calls; an empty list is not given back, one that cannot be read is
};

// In the order of the library's own ways.
// clang-format off
const HostileRow ways[] = {
    {"null_arrays",         0, 0, 1},
    {"negative_counts",     0, 0, 0},
    {"largest_counts",      0, 0, 1},
    {"one_record_too_many", 0, 0, 1},
    {"wild_pointers",       0, 0, 1},
    {"no_access",           0, 0, 1},
    {"unterminated",        3, 3, 1},
    {"misaligned",          3, 3, 1},
    {"nothing_written",     0, 0, 1},
    {"writes_back",         3, 3, 1},
};
// clang-format on

// A folder with the library in it under the name by which it is looked for.
class HostileLibrary : public testing::TestWithParam<std::size_t> {
protected:
    HostileLibrary() {
        std::filesystem::copy_file(BinFolder() / "hostile_library.so", Folder.Path(project::AddOnFileName()));
    }

    platform::LibraryLoad Load(const std::string& path) const {
        auto loaded = platform::LoadLibraryAt(path);
        EXPECT_EQ(loaded.Error, "");
        if (auto* const setWay = loaded.Library->FunctionOf<void(int)>("hostile_way"))
            setWay(static_cast<int>(GetParam()));
        if (auto* const setDelay = loaded.Library->FunctionOf<void(void (*)())>("hostile_delay"))
            setDelay(Delay);
        CallsOf = loaded.Library->FunctionOf<int(const char*)>("hostile_calls");
        return loaded;
    }
    void ExpectCalls(const std::string& function, int calls) const {
        EXPECT_EQ(CallsOf(("kdaddon_VB" + function).c_str()), calls) << function;
    }
    // What goes on while the library takes its time over an answer.
    static void Delay() { meanwhile(); }
    [[nodiscard]] static const HostileRow& Row() { return ways[GetParam()]; }

    TempFolder Folder;
    // How often a function of the library was called; the library stays when all that knows it has gone.
    mutable int (*CallsOf)(const char*) = nullptr;
    static inline std::function<void()> meanwhile;

private:
    void SetUp() override {
        meanwhile = [] {};
    }
};

TEST_P(HostileLibrary, gives_what_can_be_read_and_no_more) {
    std::string error;
    auto library = project::LoadAddOnLibrary([this](const std::string& path) { return Load(path); },
                                             Folder.Path(), error);
    ASSERT_NE(library, nullptr) << error;
    EXPECT_EQ(library->GetProjectFile().size(), 255U);
    const auto stations = library->GetStations();
    ASSERT_TRUE(stations.has_value());
    EXPECT_EQ(stations->size(), Row().Stations);
    std::size_t told = 0;
    const auto tags = library->ReadTags("North", "/jobs/plant.KPJ", [&told](std::string_view) { ++told; });
    EXPECT_EQ(tags.size(), Row().Tags);
    EXPECT_EQ(told, Row().Tags);
    for (const auto& tag : tags)
        EXPECT_EQ(tag.TagName, std::string(40, 'x')) << "cut at the width of its field";
    library->AddFileToLoad("North", "/jobs/a.ini", "/etc/stacfg/kdormaga.ini");
    EXPECT_EQ(library->RemoveFileToLoad("North", "/jobs/a.ini", "/etc/stacfg/kdormaga.ini"), -1);
    library->CoInitialize();
    library.reset();
    for (const char* once :
         {"GetProjectFile", "GetStaList", "ReadTagList", "AddFileToLoad", "RemoveFileToLoad", "CoInitialize"})
        ExpectCalls(once, 1);
    ExpectCalls("FreeData", Row().Stations > 0 ? 1 : 0);
    ExpectCalls("FreeTagList", Row().TagsGivenBack);
    for (const char* never : {"CoUninitialize", "GetFilesToLoadList", "SetStaParam"})
        ExpectCalls(never, 0);
}

// The window that comes up, or the word that there are no stations.
TEST_P(HostileLibrary, leaves_the_program_alive) {
    World world;
    struct : platform::Paths {
        std::string Folder;
        std::string ExecutableFolder() override { return Folder; }
        std::string ProfileFolder() override { return "/etc/profiles"; }
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

INSTANTIATE_TEST_SUITE_P(Ways, HostileLibrary, testing::Range(std::size_t{0}, std::size(ways)),
                         [](const auto& played) { return ways[played.param].Name; });

} // namespace

} // namespace gfc::test
#endif
