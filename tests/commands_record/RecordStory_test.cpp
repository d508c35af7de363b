// The record from the shell: what is changed, shown, compared, reported, tampered with, found and brought
// back.
#include "record/ProjectRecorder.h"
#include "support/FakeTime.h"
#include "support/TempFolder.h"
#include "support/TestFolders.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <array>
#include <cstdio>
#include <sys/wait.h>

namespace gfc::commands {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

struct Outcome {
    int Code = -1;
    std::string Text;
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
            arguments.replace(at, 1, Folder.Path() + "/");
        const std::string line = (test::BinFolder() / "gfc-audit").string() + " " + arguments +
                                 " --project " + Folder.Path("plant.KPJ") + " 2>&1";
        Outcome outcome;
        FILE* pipe = ::popen(line.c_str(), "r");
        std::array<char, 4096> part{};
        while (const auto size = std::fread(part.data(), 1, part.size(), pipe))
            outcome.Text.append(part.data(), size);
        outcome.Code = WEXITSTATUS(::pclose(pipe));
        return outcome;
    }

    const std::string File = "KDOrmAGA_plant_North.ini";
    test::TempFolder Folder;
    test::FixedZone Zone{0};
    test::FixedClock Clock{2023, 3, 15, 12, 0};
    record::ProjectRecorder Recorder{Clock, Zone, "operator"};
};

TEST_F(RecordStory, WhatWasChangedIsShownComparedReportedFoundAndBroughtBack) {
    Outcome ran = Run("history --changes");
    EXPECT_EQ(ran.Code, 0) << ran.Text;
    EXPECT_THAT(ran.Text, HasSubstr("2  2023-03-15T12:00:00Z  North  Configure  bob (operator)  1 change"));
    EXPECT_THAT(ran.Text, HasSubstr("CalibrationFactor"));
    EXPECT_THAT(Run("history --user bob").Text, Not(HasSubstr("Wizard")));

    EXPECT_EQ(Run("diff North North@2").Code, 0);
    ran = Run("diff North@1 North --json");
    EXPECT_EQ(ran.Code, 1) << ran.Text;
    EXPECT_EQ(nlohmann::json::parse(ran.Text).at("rows").at(0).at("caption"), "Calibration Factor");
    EXPECT_EQ(Run("show North@1 --raw").Text, test::Golden("config/accelabar_detail_fixed.ini"));

    EXPECT_EQ(Run("report North --since 1 --user ana -o ~a.html").Code, 0);
    EXPECT_EQ(Run("report North --user ana -o ~a.pdf").Code, 0);
    for (const char* report : {"~a.html", "~a.pdf", ""}) {
        ran = Run(std::string("verify ") + report);
        EXPECT_EQ(ran.Code, 0) << ran.Text;
    }

    const std::string good = Folder.Get(File);
    Folder.Put(File, Changed(good, "CalibrationFactor=", "8"));
    for (const char* report : {"~a.html", "~a.pdf", ""}) {
        ran = Run(std::string("verify ") + report);
        EXPECT_EQ(ran.Code, 1) << ran.Text;
        EXPECT_THAT(ran.Text, HasSubstr("Calibration Factor (CalibrationFactor)"));
    }
    EXPECT_EQ(Run("restore North@2 --user ana").Code, 0);
    EXPECT_EQ(Folder.Get(File), good);
    EXPECT_EQ(Run("verify ~a.html").Code, 0);
    ran = Run("history");
    EXPECT_THAT(ran.Text, HasSubstr("Found changed"));
    EXPECT_THAT(ran.Text, HasSubstr("Bring back"));
}

TEST_F(RecordStory, AReportWhoseTextWasChangedIsFound) {
    ASSERT_EQ(Run("report North -o ~a.html").Code, 0);
    std::string page = Folder.Get("a.html");
    page.replace(page.find("Calibration Factor"), 11, "Calibrution");
    Folder.Put("a.html", page);
    const Outcome ran = Run("verify ~a.html");
    EXPECT_EQ(ran.Code, 1);
    EXPECT_THAT(ran.Text, HasSubstr("WRONG the text of the report"));
}

TEST_F(RecordStory, TheSameStateGivesTheSameReportButForTheTime) {
    const auto withoutTime = [this] {
        auto json = nlohmann::json::parse(Run("report North --json").Text);
        json.erase("time");
        return json.dump();
    };
    EXPECT_EQ(withoutTime(), withoutTime());
    EXPECT_THAT(Run("report North").Text, StartsWith("<!DOCTYPE html>"));
}

TEST_F(RecordStory, WrongUseAndWhatCannotBeHadHaveTheirCodes) {
    EXPECT_EQ(Run("show Nowhere").Code, 2);
    EXPECT_EQ(Run("show North@99").Code, 2);
    EXPECT_EQ(Run("diff North North#1").Code, 2);
    EXPECT_EQ(Run("restore North --user ana").Code, 2);
    EXPECT_EQ(Run("verify ~missing.html").Code, 2);
    Folder.Put("KDOrmAGA_plant_History.sqlite", std::string(5000, 'x'));
    EXPECT_EQ(Run("history").Code, 3);
    EXPECT_EQ(Run("verify").Code, 1);
}

// Each of two programs brings states back in turn; whatever their order, the record holds.
TEST_F(RecordStory, TwoProgramsRecordAtOnce) {
    const std::string command = (test::BinFolder() / "gfc-audit").string();
    const std::string project = " --project " + Folder.Path("plant.KPJ") + " >/dev/null; ";
    std::string loop;
    for (int turn = 0; turn < 5; ++turn)
        for (const char* entry : {"1", "2"})
            loop += command + " restore North@" + entry + " --user x" + project;
    const std::string both = "(" + loop + ") & (" + loop + ") & wait";
    ASSERT_EQ(std::system(both.c_str()), 0);
    const auto check = Recorder.Verify(Folder.Path("KDOrmAGA_plant_History.sqlite"));
    EXPECT_FALSE(check.Damage) << check.Damage->Reason;
    EXPECT_GE(check.Entries, 10);
}

} // namespace
} // namespace gfc::commands
