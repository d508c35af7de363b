#include "platform/Machine.h"

#include <gtest/gtest.h>

namespace {

using namespace gfc::platform;

TEST(ParentFolder, takes_both_separators) {
    EXPECT_EQ(ParentFolder("C:\\Jobs\\plant.KPJ"), "C:\\Jobs");
    EXPECT_EQ(ParentFolder("/srv/jobs/plant.KPJ"), "/srv/jobs");
    EXPECT_EQ(ParentFolder("C:\\Jobs/plant.KPJ"), "C:\\Jobs");
    EXPECT_EQ(ParentFolder("/srv/jobs\\plant.KPJ"), "/srv/jobs");
}

TEST(ParentFolder, has_no_separator_at_its_end) {
    EXPECT_EQ(ParentFolder("/srv//plant.KPJ"), "/srv");
    EXPECT_EQ(ParentFolder("/srv/jobs/"), "/srv");
    EXPECT_EQ(ParentFolder("C:\\plant.KPJ"), "C:");
}

TEST(ParentFolder, is_empty_without_a_folder_and_in_the_root) {
    EXPECT_EQ(ParentFolder("plant.KPJ"), "");
    EXPECT_EQ(ParentFolder("/plant.KPJ"), "");
    EXPECT_EQ(ParentFolder(""), "");
    EXPECT_EQ(ParentFolder("///"), "");
}

TEST(WithOwnSeparators, leaves_one_kind_of_separator) {
    const std::string expected = std::string("a") + Separator + "b" + Separator + "c";
    EXPECT_EQ(WithOwnSeparators("a/b\\c"), expected);
    EXPECT_EQ(WithOwnSeparators("plain"), "plain");
}

class FixedPaths : public Paths {
public:
    explicit FixedPaths(std::string profiles) : profiles_(std::move(profiles)) {}
    std::string ExecutableFolder() override { return "/opt"; }
    std::string ProfileFolder() override { return profiles_; }
    std::string OwnFolder() override { return {}; }
    std::string UserName() override { return {}; }

private:
    std::string profiles_;
};

TEST(ProfilePath, looks_for_a_bare_name_in_the_profile_folder) {
    FixedPaths paths("/home/x/.config");
    EXPECT_EQ(ProfilePath(paths, "morlin.ini"), std::string("/home/x/.config") + Separator + "morlin.ini");
}

TEST(ProfilePath, leaves_a_path_and_a_name_without_profile_folder) {
    FixedPaths paths("/home/x/.config");
    EXPECT_EQ(ProfilePath(paths, "/etc/morlin.ini"), "/etc/morlin.ini");
    EXPECT_EQ(ProfilePath(paths, "C:\\morlin.ini"), "C:\\morlin.ini");
    FixedPaths none("");
    EXPECT_EQ(ProfilePath(none, "morlin.ini"), "morlin.ini");
}

} // namespace
