// Tags that change in the project under a station that is configured: through the command and the library to
// the configurator's check and its log.
#include "SampleFixture.h"
#include "binding/ErrorLog.h"
#include "platform/DynamicLibrary.h"
#include "project/AddOnGate.h"
#include "project/Project.h"
#include "support/TestFolders.h"
#include "workshop/demo/SampleConfiguration.h"

#include <gmock/gmock.h>

namespace gfc::workshop {

namespace {

const std::string Lakeside{ConfiguredStation};

std::string GoldenLog(const std::string& name) {
    return test::Golden("log/" + name);
}

} // namespace

class TagEditCheck : public SampleFixture {
protected:
    void SetUp() override {
        ASSERT_EQ(Run("open " + Quoted("plant/plant.KPJ")).Status, 0);
        std::string error;
        library_ = project::LoadAddOnLibrary(platform::LoadLibraryAt, test::BinFolder().string(), error);
        ASSERT_NE(library_, nullptr) << error;
        ASSERT_EQ(project::LoadProject(*library_, project_), project::LoadOutcome::Loaded);
        project_.Paths = config::PathsOf(project_.ProjectFile);
        ASSERT_EQ(ConfigFile(), files_.Configuration.string());
    }

    [[nodiscard]] std::string ConfigFile() const { return project_.ConfigFileOf(Lakeside); }
    [[nodiscard]] std::filesystem::path Log() const { return binding::ErrorLogPath(ConfigFile()); }

    /// Reads tags and file as they are now; true when all that the file names is there.
    bool Check() {
        project::TagInventory inventory;
        project::BuildInventory(library_->ReadTags(Lakeside, project_.ProjectFile, [](const auto&) {}),
                                inventory);
        config::StationConfig station;
        binding::BuildExpectedTags(ini_, ConfigFile(), station, expected_);
        return binding::CheckExpectedTags(expected_, inventory);
    }
    void WriteLog() { binding::WriteErrorLog(ini_, expected_, Log().string()); }
    static void Edit(const std::string& command, const std::string& arguments) {
        const Outcome done = Run(command + " " + Lakeside + " " + arguments);
        EXPECT_EQ(done.Status, 0) << done.Output;
    }

private:
    std::unique_ptr<platform::Files> disk_ = platform::MakeFiles();
    config::FileIni ini_{*disk_};
    std::unique_ptr<project::AddOnLibrary> library_;
    project::Project project_;
    binding::ExpectedTags expected_;
};

TEST_F(TagEditCheck, finds_every_tag_of_the_sample_as_it_was_made) {
    EXPECT_TRUE(Check());
    WriteLog();
    EXPECT_EQ(ReadBytes(Log()), GoldenLog("no_faults.log"));
}

TEST_F(TagEditCheck, logs_what_was_renamed_moved_and_removed) {
    const std::string configuration = ReadBytes(ConfigFile());
    Edit("rename-tag", "PDIT-601_PV PDIT-601A_PV");
    Edit("move-tag", "FI-601_VOL 1099");
    Edit("remove-tag", "HS-601_RESET");
    EXPECT_FALSE(Check());
    WriteLog();
    EXPECT_EQ(Log().filename(), "KDOrmAGA_plant_Lakeside_Delivery_Errors.log");
    EXPECT_EQ(ReadBytes(Log()), GoldenLog("edited_tags.log"));
    EXPECT_EQ(ReadBytes(ConfigFile()), configuration) << "neither edit nor check touches the configuration";
}

TEST_F(TagEditCheck, is_content_again_once_the_tags_are_back) {
    Edit("rename-tag", "PDIT-601_PV pdit-601_pv");
    EXPECT_FALSE(Check()) << "names are compared with their case";
    Edit("rename-tag", "PDIT-601_PV PDIT-601_PV");
    Edit("move-tag", "FI-601_VOL 1099");
    EXPECT_FALSE(Check());
    Edit("move-tag", "FI-601_VOL 1001");
    EXPECT_TRUE(Check());
}

TEST_F(TagEditCheck, does_not_mind_tags_that_no_run_is_bound_to) {
    Edit("rename-tag", "PDIT-602_PV PDIT-602A_PV");
    Edit("move-tag", "FI-602_VOL 1099");
    Edit("remove-tag", "HS-602_RESET");
    EXPECT_TRUE(Check());
}

} // namespace gfc::workshop
