#include "SampleFixture.h"

#include <gmock/gmock.h>

namespace gfc::workshop {

using testing::HasSubstr;

class SampleFolder : public SampleFixture {};

TEST_F(SampleFolder, is_made_anew_only_when_told_and_leaves_nothing_beside) {
    {
        Project changed = Plant(Access::Write);
        AddStation(changed, {0, "Extra", "", "", 0});
    }
    EXPECT_THAT(FailureOf([&] { MakeSample(Folder / "plant", Existing::Refuse); }),
                HasSubstr("--force makes it anew"));
    MakeSample(Folder / "plant", Existing::ReplaceSample);
    Project anew = Plant();
    EXPECT_FALSE(FindStation(anew, "Extra"));
    const std::filesystem::directory_iterator files(Folder / "plant");
    EXPECT_EQ(std::distance(begin(files), end(files)), 2);
}

TEST_F(SampleFolder, never_takes_the_place_of_another_file) {
    std::filesystem::create_directory(Folder / "own");
    MakeSmallProject("own/plant.KPJ");
    const std::string before = ReadBytes(Folder / "own/plant.KPJ");
    EXPECT_THAT(FailureOf([&] { MakeSample(Folder / "own", Existing::ReplaceSample); }),
                HasSubstr("is not the sample"));
    EXPECT_EQ(ReadBytes(Folder / "own/plant.KPJ"), before);
    WriteBytes(Folder / "own/plant.KPJ", "no project at all");
    EXPECT_THAT(FailureOf([&] { MakeSample(Folder / "own", Existing::ReplaceSample); }),
                HasSubstr("is not the sample"));
    EXPECT_EQ(ReadBytes(Folder / "own/plant.KPJ"), "no project at all");
    std::filesystem::create_directory(Folder / "ini");
    WriteBytes(SampleFilesIn(Folder / "ini").Configuration, "mine");
    EXPECT_THAT(FailureOf([&] { MakeSample(Folder / "ini", Existing::ReplaceSample); }),
                HasSubstr("is there already"));
    EXPECT_EQ(ReadBytes(SampleFilesIn(Folder / "ini").Configuration), "mine");
}

} // namespace gfc::workshop
