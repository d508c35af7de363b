#include "app/Application.h"
#include "support/World.h"

#include <gtest/gtest.h>

namespace gfc::test {

TEST(Application, says_why_it_does_not_start_without_its_library) {
    World world;
    HeadlessScreen& screen = world.Screen;
    app::Application application(world.Machine, screen, world.NoRecord);
    screen.TheStory.Box("Gas Flow Computer", "", ui::Icon::Critical);
    std::string asked;
    EXPECT_FALSE(application.Start([&asked](const std::string& path) {
        asked = path;
        return platform::LibraryLoad{nullptr, path + ": no such file"};
    }));
    ASSERT_EQ(screen.BoxesShown.size(), 1U);
    EXPECT_NE(screen.BoxesShown[0].Text.find(project::AddOnFileName()), std::string::npos);
    EXPECT_NE(screen.BoxesShown[0].Text.find("no such file"), std::string::npos);
    EXPECT_TRUE(asked.starts_with(world.Paths.ExecutableFolder())) << asked;
    EXPECT_TRUE(screen.FormsShown.empty());
    EXPECT_EQ(application.Program(), nullptr);
}

} // namespace gfc::test
