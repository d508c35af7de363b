#include "app/Application.h"
#include "forms/program/Program.h"
#include "project/AddOnInterface.h"
#include "support/World.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace gfc::test {

namespace {

using Names = std::vector<std::string>;

void Nothing() {}

// Has every function but those that are left out.
class BareLibrary : public platform::DynamicLibrary {
public:
    explicit BareLibrary(Names missing) : missing_(std::move(missing)) {}
    void* Symbol(const char* name) const override {
        // Under none of the names that a function may have.
        const bool missing = std::ranges::any_of(missing_, [name](const std::string& each) {
            return std::string_view(name).find(each) != std::string_view::npos;
        });
        return missing ? nullptr : reinterpret_cast<void*>(&Nothing);
    }

private:
    Names missing_;
};

struct Application : testing::Test, World {
    app::Application TheApplication{Machine, Screen, NoRecord};
    const std::string Path = std::string("/opt/gfc") + platform::Separator + "kdaddon_VBwrapper" +
                             project::AddOnFileName().substr(project::AddOnFileName().rfind('.'));

    void ExpectBox(const std::string& reason) {
        TheStory.Box("Gas Flow Computer",
                     "The library of the I/O Workshop could not be loaded.\r\n\r\n" + reason,
                     ui::Icon::Critical);
    }
    bool StartWithout(const Names& missing) {
        return TheApplication.Start([&](const std::string& path) {
            EXPECT_EQ(path, Path);
            return platform::LibraryLoad{std::make_unique<BareLibrary>(missing), {}};
        });
    }
};

TEST_F(Application, says_once_which_library_is_missing_and_why) {
    ExpectBox("\"" + Path + "\" cannot be loaded: no such file");
    EXPECT_FALSE(TheApplication.Start([](const std::string& path) {
        return platform::LibraryLoad{nullptr, "\"" + path + "\" cannot be loaded: no such file"};
    }));
    EXPECT_EQ(Screen.BoxesShown.size(), 1U);
    EXPECT_TRUE(Screen.FormsShown.empty());
    EXPECT_EQ(TheApplication.Program(), nullptr);
}

TEST_F(Application, says_once_which_function_a_library_lacks) {
    ExpectBox(Path + ": the function kdaddon_VBReadTagList is missing");
    EXPECT_FALSE(StartWithout({"kdaddon_VBReadTagList", "kdaddon_VBFreeTagList"}));
    EXPECT_EQ(Screen.BoxesShown.size(), 1U);
    EXPECT_TRUE(Screen.FormsShown.empty());
}

TEST_F(Application, starts_with_a_library_that_lacks_only_what_nobody_calls) {
    EXPECT_TRUE(
        StartWithout({"kdaddon_VBCoUninitialize", "kdaddon_VBGetFilesToLoadList", "kdaddon_VBSetStaParam"}));
    EXPECT_TRUE(Screen.BoxesShown.empty());
    EXPECT_EQ(Screen.FormsShown, Names{"formInicio"});
    EXPECT_NE(TheApplication.Program(), nullptr);
}

} // namespace

} // namespace gfc::test
