// The record from the shell: what is changed, shown, compared, reported, tampered with, found and brought
// back.
#include "record/ProjectRecorder.h"
#include "support/FakeTime.h"
#include "support/Shell.h"
#include "support/TempFolder.h"
#include "support/TestFolders.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <cstdio>
#include <filesystem>
#include <memory>
#include <thread>
#include <vector>
#ifdef _WIN32
#include <share.h>
#endif

namespace gfc::commands {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

using test::Outcome;

// A file that is there and that nobody can read.
class Unreadable {
public:
#ifdef _WIN32
    explicit Unreadable(const std::string& file) : held_(_fsopen(file.c_str(), "rb", _SH_DENYRW), &fclose) {
        EXPECT_TRUE(held_);
    }

private:
    std::unique_ptr<FILE, int (*)(FILE*)> held_;
#else
    // Permissions would not keep root from it.
    explicit Unreadable(const std::string& file) {
        std::filesystem::remove(file);
        std::filesystem::create_symlink("/proc/self/mem", file);
    }
#endif
};

class RecordStory : public testing::Test {
protected:
    RecordStory() {
        const std::string first = test::Golden("config/accelabar_detail_fixed.ini");
        const std::string second = Changed(first, "CalibrationFactor=", "9");
        Enter("Configuration Wizard", "ana", std::nullopt, first);
        Enter("Configure", "bob", first, second);
        Folder.Put(File, second);
    }

    static std::string Changed(std::string bytes, const std::string& key, const std::string& text) {
        return bytes.insert(bytes.find(key) + key.size(), text);
    }

    void Enter(const std::string& command, const std::string& user, config::FileState before,
               config::FileState after) {
        Recorder.Record({{Folder.Path("KDOrmAGA_plant_History.sqlite"), "North", command, user,
                          std::move(before), std::move(after)}});
        ASSERT_EQ(Recorder.Trouble(), "");
    }

    // What gfc-audit gives out; "~" stands for the project's folder.
    Outcome Run(std::string arguments) const {
        for (auto at = arguments.find('~'); at != std::string::npos; at = arguments.find('~'))
            arguments.replace(at, 1, Folder.Path(""));
        return test::RunInShell("'" + (test::BinFolder() / "gfc-audit").string() + "' " + arguments +
                                " --project '" + Folder.Path("plant.KPJ") + "'");
    }

    const std::string File = "KDOrmAGA_plant_North.ini";
    test::TempFolder Folder;
    test::FixedZone Zone{0};
    test::FixedClock Clock{2023, 3, 15, 12, 0};
    record::ProjectRecorder Recorder{Clock, Zone, "operator"};
};

TEST_F(RecordStory, WhatWasChangedIsShownComparedReportedFoundAndBroughtBack) {
    Outcome ran = Run("history --changes");
    EXPECT_EQ(ran.Status, 0) << ran.Output;
    EXPECT_THAT(ran.Output, HasSubstr("2  2023-03-15T12:00:00Z  North  Configure  bob (operator)  1 change"));
    EXPECT_THAT(ran.Output, HasSubstr("CalibrationFactor"));
    EXPECT_THAT(Run("history --user bob").Output, Not(HasSubstr("Wizard")));

    EXPECT_EQ(Run("diff North North@2").Status, 0);
    ran = Run("diff North@1 North --json");
    EXPECT_EQ(ran.Status, 1) << ran.Output;
    EXPECT_EQ(nlohmann::json::parse(ran.Output).at("rows").at(0).at("caption"), "Calibration Factor");
    EXPECT_EQ(Run("show North@1 --raw").Output, test::Golden("config/accelabar_detail_fixed.ini"));

    EXPECT_EQ(Run("report North --since 1 --user 77 -o ~a.html").Status, 0);
#ifdef GFC_PDF
    EXPECT_EQ(Run("report North --user 77 -o ~a.pdf").Status, 0);
    const std::vector<std::string> reports = {"~a.html", "~a.pdf", ""};
#else
    ran = Run("report North --user 77 -o ~a.pdf");
    EXPECT_EQ(ran.Status, 2) << ran.Output;
    EXPECT_THAT(ran.Output, HasSubstr("built without PDF; please ask for HTML."));
    const std::vector<std::string> reports = {"~a.html", ""};
#endif
    for (const std::string& report : reports) {
        ran = Run("verify " + report);
        EXPECT_EQ(ran.Status, 0) << ran.Output;
    }

    const std::string good = Folder.Get(File);
    Folder.Put(File, Changed(good, "CalibrationFactor=", "8"));
    for (const std::string& report : reports) {
        ran = Run("verify " + report);
        EXPECT_EQ(ran.Status, 1) << ran.Output;
        EXPECT_THAT(ran.Output, HasSubstr("Calibration Factor (CalibrationFactor)"));
    }
    EXPECT_EQ(Run("restore North@2 --user 77").Status, 0);
    EXPECT_EQ(Folder.Get(File), good);
    EXPECT_EQ(Run("verify ~a.html").Status, 0);
    ran = Run("history");
    EXPECT_THAT(ran.Output, HasSubstr("Found changed"));
    EXPECT_THAT(ran.Output, HasSubstr("Bring back"));
}

TEST_F(RecordStory, AReportWhoseTextWasChangedIsFound) {
    ASSERT_EQ(Run("report North -o ~a.html").Status, 0);
    std::string page = Folder.Get("a.html");
    page.replace(page.find("Calibration Factor"), 11, "Calibrution");
    Folder.Put("a.html", page);
    const Outcome ran = Run("verify ~a.html");
    EXPECT_EQ(ran.Status, 1);
    EXPECT_THAT(ran.Output, HasSubstr("WRONG the text of the report"));
}

// In the place of the file stands a link to one that is there and that nobody can read from its beginning.
TEST_F(RecordStory, AFileThatCannotBeReadIsNotTakenForNone) {
    ASSERT_EQ(Run("report North -o ~a.html").Status, 0);
    const Unreadable held(Folder.Path(File));
    ASSERT_EQ(Run("report North -o ~b.html").Status, 0);
    EXPECT_THAT(Folder.Get("b.html"), HasSubstr("The configuration of this station cannot be read: "));
    EXPECT_THAT(Folder.Get("b.html"), testing::Not(HasSubstr("has no configuration")));
    EXPECT_THAT(Run("verify ~a.html").Output, HasSubstr("has a file that cannot be read"));
}

TEST_F(RecordStory, TheSameStateGivesTheSameReportButForTheTime) {
    const auto withoutTime = [this] {
        auto json = nlohmann::json::parse(Run("report North --json").Output);
        json.erase("time");
        return json.dump();
    };
    EXPECT_EQ(withoutTime(), withoutTime());
    EXPECT_THAT(Run("report North").Output, StartsWith("<!DOCTYPE html>"));
}

TEST_F(RecordStory, WrongUseAndWhatCannotBeHadHaveTheirCodes) {
    EXPECT_EQ(Run("show Nowhere").Status, 2);
    EXPECT_EQ(Run("show North@99").Status, 2);
    EXPECT_EQ(Run("diff North North#1").Status, 2);
    EXPECT_EQ(Run("restore North --user 77").Status, 2);
    EXPECT_EQ(Run("verify ~missing.html").Status, 2);
    Folder.Put("KDOrmAGA_plant_History.sqlite", std::string(5000, 'x'));
    EXPECT_EQ(Run("history").Status, 3);
    EXPECT_EQ(Run("verify").Status, 1);
}

// Each of two programs brings states back in turn; whatever their order, the record holds.
TEST_F(RecordStory, TwoProgramsRecordAtOnce) {
    const auto inTurn = [this] {
        for (int turn = 0; turn < 5; ++turn)
            for (const char* entry : {"1", "2"})
                (void)Run(std::string("restore North@") + entry + " --user 5");
    };
    std::thread other(inTurn);
    inTurn();
    other.join();
    const auto check = Recorder.Verify(Folder.Path("KDOrmAGA_plant_History.sqlite"));
    EXPECT_FALSE(check.Damage) << check.Damage->Reason;
    EXPECT_GE(check.Entries, 10);
}

} // namespace
} // namespace gfc::commands
