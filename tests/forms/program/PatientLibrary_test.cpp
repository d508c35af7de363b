#include "forms/program/PatientLibrary.h"
#include "support/Fakes.h"
#include "support/HeadlessScreen.h"

#include <gtest/gtest.h>

namespace gfc::test {

namespace {

// Notes of each call whether the person saw that the program waits.
class SlowLibrary : public FakeLibrary {
public:
    explicit SlowLibrary(const HeadlessScreen& screen) : screen_(screen) {}

    std::vector<std::string> Unseen;

    std::string GetProjectFile() override { return Seen("GetProjectFile"), FakeLibrary::GetProjectFile(); }
    std::optional<std::vector<project::Station>> GetStations() override {
        return Seen("GetStations"), FakeLibrary::GetStations();
    }
    project::TagList ReadTags(const std::string& station, const std::string& projectFile,
                              const std::function<void(std::string_view)>& onTag) override {
        return Seen("ReadTags"), FakeLibrary::ReadTags(station, projectFile, onTag);
    }
    void AddFileToLoad(const std::string& station, const std::string& local,
                       const std::string& target) override {
        Seen("AddFileToLoad"), FakeLibrary::AddFileToLoad(station, local, target);
    }
    int RemoveFileToLoad(const std::string& station, const std::string& local,
                         const std::string& target) override {
        return Seen("RemoveFileToLoad"), FakeLibrary::RemoveFileToLoad(station, local, target);
    }
    void CoInitialize() override { Seen("CoInitialize"), FakeLibrary::CoInitialize(); }

private:
    void Seen(const char* call) {
        if (screen_.BusyNow == 0)
            Unseen.emplace_back(call);
    }

    const HeadlessScreen& screen_;
};

class FaultyLibrary : public FakeLibrary {
public:
    std::string Reason;
    [[nodiscard]] std::string Fault() const override { return Reason; }
};

} // namespace

TEST(PatientLibrary, ends_the_program_in_one_message_where_the_library_is_no_good) {
    HeadlessScreen screen;
    FaultyLibrary faulty;
    forms::PatientLibrary library(faulty, screen);
    library.CoInitialize();
    EXPECT_FALSE(screen.Ended());
    faulty.Reason = "lib: it is made for another calling convention.";
    screen.TheStory.Box("Gas Flow Computer",
                        "The library of the I/O Workshop cannot be used.\r\n\r\n"
                        "lib: it is made for another calling convention.\r\n\r\n"
                        "The program ends here. Put the library of your I/O Workshop back in its place.",
                        ui::Icon::Critical);
    (void)library.GetStations();
    EXPECT_TRUE(screen.Ended());
    EXPECT_EQ(screen.ExitCode, EXIT_FAILURE);
    library.AddFileToLoad("North", "/jobs/a.ini", "/etc/a.ini");
    library.CoInitialize();
    EXPECT_EQ(screen.BoxesShown.size(), 1U);
}

TEST(PatientLibrary, shows_that_it_waits_for_each_call_and_hands_its_answer_on) {
    HeadlessScreen screen;
    SlowLibrary slow(screen);
    slow.Stations.emplace_back().Name = "North";
    slow.TagsOf["North"] = TagsInModule("VF1", "Virtual FI", "FI", "PT-", 2);
    forms::PatientLibrary library(slow, screen);
    std::vector<std::string> told;

    library.CoInitialize();
    EXPECT_EQ(library.GetProjectFile(), "/jobs/plant.KPJ");
    const auto stations = library.GetStations();
    ASSERT_TRUE(stations.has_value());
    EXPECT_EQ(stations->size(), 1U);
    EXPECT_EQ(
        library.ReadTags("North", "/jobs/plant.KPJ", [&](std::string_view tag) { told.emplace_back(tag); })
            .size(),
        2U);
    EXPECT_EQ(told, (std::vector<std::string>{"PT-1", "PT-2"}));
    library.AddFileToLoad("North", "/jobs/a.ini", "/etc/a.ini");
    EXPECT_EQ(slow.FilesToLoad.size(), 1U);
    EXPECT_EQ(library.RemoveFileToLoad("North", "/jobs/a.ini", "/etc/a.ini"), 1);
    EXPECT_EQ(slow.FilesToLoad.size(), 0U);

    EXPECT_EQ(slow.Calls.size(), 6U);
    EXPECT_EQ(slow.Unseen, std::vector<std::string>{});
    EXPECT_EQ(screen.BusyNow, 0);
}

} // namespace gfc::test
