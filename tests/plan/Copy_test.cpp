// A configuration taken to stations that are built alike, whatever their tags are called.
#include "PlanWorld.h"
#include "binding/ExpectedTags.h"
#include "config/KeyChanges.h"
#include "services/Text.h"
#include "suggest/Known.h"
#include "support/TestFolders.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <regex>
#include <set>

namespace gfc::plan {
namespace {

using test::operator+=;
using test::PlanWorld;
using testing::HasSubstr;
using testing::IsEmpty;

struct Scheme {
    const char* Name;
    test::Renaming Rename;
    bool Shuffled;
};

std::string WithRunNumbers(const std::string& name, int by) {
    const std::regex number("^([A-Z]+-)([0-9]+)");
    std::smatch found;
    return std::regex_search(name, found, number)
               ? found[1].str() + std::to_string(std::stoi(found[2].str()) + by) + found.suffix().str()
               : name;
}

const std::vector<Scheme>& Schemes() {
    static const std::vector<Scheme> schemes = {
        {"same names", [](const std::string& name) { return name; }, true},
        {"loops shifted", [](const std::string& name) { return WithRunNumbers(name, 400); }, true},
        // Most names of the source are there, too, and mean something else.
        {"loops shifted a little", [](const std::string& name) { return WithRunNumbers(name, 1); }, true},
        {"capitals", [](const std::string& name) { return services::FoldCase(name); }, true},
        // Nothing but the place tells these.
        {"other words",
         [](const std::string& name) { return "Q" + std::to_string(std::hash<std::string>()(name)); }, false},
    };
    return schemes;
}

using Registers = std::set<std::pair<std::string, std::string>>;

std::pair<std::string, std::string> RegisterOf(const config::TagBinding& binding) {
    return {binding.Type, binding.RegAddr};
}

// The tag of the destination that takes the place of the source's.
config::TagBinding Counterpart(PlanWorld& world, const Line& line, const Scheme& scheme) {
    const std::string name = scheme.Rename(line.Source.Tag);
    for (const project::Tag& tag : world.Library.TagsOf["South"])
        if (tag.TagName == name && std::to_string(tag.RegAddr - 300) == line.Source.RegAddr)
            return {.Tag = tag.TagName, .Type = tag.RegType, .RegAddr = std::to_string(tag.RegAddr)};
    return {};
}

void ExpectCounterparts(PlanWorld& world, const StationPlan& plan, const Scheme& scheme) {
    Registers from, to;
    for (const Line& line : plan.Lines) {
        EXPECT_FALSE(line.IsMissing()) << line.Caption() << " " << line.Source.Tag << ": " << line.Reason;
        if (line.Module != WorkingKind::None)
            continue;
        EXPECT_EQ(line.Proposed, Counterpart(world, line, scheme)) << line.Source.Tag << ": " << line.Reason;
        from.insert(RegisterOf(line.Source));
        to.insert(RegisterOf(line.Proposed));
    }
    EXPECT_EQ(from.size(), to.size());
}

// Nothing but names of tags, registers and the station's own name changes.
void ExpectOnlyTagsChanged(const std::string& before, const std::string& after) {
    for (const config::KeyChange& change : config::ChangesOf(before, after))
        EXPECT_TRUE(change.Key.find("KDIO") != change.Key.npos || change.Key.starts_with("Wrk") ||
                    (change.Section == "General" && change.Key == "OrmStation"))
            << change.Section << "/" << change.Key;
}

std::vector<std::string> GoldenFiles() {
    std::vector<std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(test::GoldenFolder() / "wizard"))
        files.push_back("wizard/" + entry.path().filename().string());
    std::ranges::sort(files);
    return files;
}

class EveryKind : public testing::TestWithParam<std::string> {
protected:
    static std::size_t PlaceOfFile() {
        const auto files = GoldenFiles();
        return static_cast<std::size_t>(std::ranges::find(files, GetParam()) - files.begin());
    }
};

TEST_P(EveryKind, GoesToAStationBuiltAlikeAndBackAgainByteForByte) {
    std::mt19937 random(20261122);
    // Half of the schemes, and the other half with the next file.
    for (std::size_t i = PlaceOfFile() % 2; i < Schemes().size(); i += 2) {
        const Scheme& scheme = Schemes()[i];
        SCOPED_TRACE(scheme.Name);
        PlanWorld world;
        world.Configure("North", GetParam());
        world.BuildAlike("South", "North", scheme.Rename, scheme.Shuffled ? &random : nullptr);
        const Source source = world.SourceOf("North");
        const StationPlan plan = world.PlanFor(source, "South");
        ASSERT_EQ(plan.Refused, "");
        ExpectCounterparts(world, plan, scheme);
        const Change change = ChangeFor(world.Project, source, plan);
        ExpectOnlyTagsChanged(world.BytesOf("North"), change.After);
        ASSERT_TRUE(Write(world.Writer(), change).Done);
        EXPECT_EQ(world.BytesOf("South"), change.After);

        const Source copy = world.SourceOf("South");
        const Change back = ChangeFor(world.Project, copy, world.PlanFor(copy, "North"));
        for (const config::KeyChange& each : config::ChangesOf(world.BytesOf("North"), back.After))
            ADD_FAILURE() << each.Section << "/" << each.Key << " does not come back";
        EXPECT_TRUE(back.After == world.BytesOf("North"));
    }
}

INSTANTIATE_TEST_SUITE_P(Golden, EveryKind, testing::ValuesIn(GoldenFiles()),
                         [](const auto& file) { return std::filesystem::path(file.param).stem().string(); });

class Copying : public testing::Test {
protected:
    Copying() {
        World.Configure("North", "wizard/aga3_aga8_outside.ini");
        World.BuildAlike("South", "North", [](const std::string& name) { return WithRunNumbers(name, 400); });
    }

    // As another tool would leave the station's tags.
    project::Tag& TagNamed(const std::string& station, const std::string& name) {
        for (project::Tag& tag : World.Library.TagsOf[station])
            if (tag.TagName == name)
                return tag;
        throw std::runtime_error("no tag " + name);
    }
    static const Line& LineOf(const StationPlan& plan, const std::string& sourceTag) {
        return *std::ranges::find_if(plan.Lines,
                                     [&](const Line& line) { return line.Source.Tag == sourceTag; });
    }

    PlanWorld World;
};

TEST_F(Copying, ATagThatIsNotThereIsMissingAndNoOtherStepsIn) {
    auto& tags = World.Library.TagsOf["South"];
    std::erase_if(tags,
                  [](const project::Tag& tag) { return tag.RegType == "AX" && tag.ModuleName == "MOD-AX"; });
    const Source source = World.SourceOf("North");
    const StationPlan plan = World.PlanFor(source, "South");
    EXPECT_FALSE(plan.IsComplete());
    for (const Line& line : plan.Lines)
        if (line.Module == WorkingKind::None && line.Source.Type == "AX") {
            EXPECT_TRUE(line.IsMissing()) << line.Proposed.Tag;
            EXPECT_THAT(line.Reason, HasSubstr("no tag of South is like " + line.Source.Tag));
        }
    // It is left unbound, with its keys in their place.
    EXPECT_THAT(ChangeFor(World.Project, source, plan).After, HasSubstr("AGA3StatusKDIOTag=\r\n"));
}

// Where names are mere numbers, each shift that leaves the gap out would explain one name more.
TEST_F(Copying, ATagThatIsMissingDoesNotShiftTheOthers) {
    for (const bool shifted : {false, true}) {
        auto tags = World.Library.TagsOf["North"];
        std::erase_if(tags, [](const project::Tag& tag) { return tag.TagName == "FT-3"; });
        for (project::Tag& tag : tags)
            if (shifted)
                tag.TagName = WithRunNumbers(tag.TagName, 2000);
        const Source source = World.SourceOf("North");
        World.Library.TagsOf["West"] = tags;
        const StationPlan plan = World.PlanFor(source, "West");
        EXPECT_EQ(LineOf(plan, "FT-1").Proposed.Tag, shifted ? "FT-2001" : "FT-1");
        EXPECT_TRUE(LineOf(plan, "FT-1").IsSure);
        EXPECT_FALSE(LineOf(plan, "FT-3").IsSure);
    }
}

// The modules for the package's own work: what each is called there, and what is taken for it.
struct ModuleCase {
    const char* Of;                 // the float module in North
    std::vector<const char*> There; // the like ones in South
    const char* Taken;
    const char* Reason;
};

TEST_F(Copying, AWorkingModuleIsTakenByItsNameByItsNumberOrForWantOfAnother) {
    const std::vector<ModuleCase> cases = {
        {"VF0", {"VF1", "vf0"}, "vf0", "the same name"},
        {"NORTH_LOG", {"VF0", "SOUTH_LOG"}, "SOUTH_LOG", "the same name but for that of the station"},
        {"VF100", {"LOG", "VF500"}, "VF500", "the same name but for its number: 100 is 500 here"},
        {"VF100", {"LOG"}, "LOG", "the only module that is large enough"},
        {"VF100", {"VF500", "VF600"}, "", "2 modules are large enough"},
        {"VF100", {}, "", "the station has no virtual module that is large enough"},
    };
    const project::TagList without = [&] {
        project::TagList tags = World.Library.TagsOf["South"];
        std::erase_if(tags, [](const project::Tag& tag) { return tag.ModuleName == "VF0"; });
        return tags;
    }();
    for (const ModuleCase& each : cases) {
        Source source = World.SourceOf("North");
        source.Bound.Working.WrkFloatModName = each.Of;
        auto& tags = World.Library.TagsOf["South"];
        tags = without;
        for (const char* module : each.There)
            tags += test::TagsInModule(module, "Virtual FI", "FX", "LOGF-", 128);
        const StationPlan plan = World.PlanFor(source, "South");
        const Line& line = LineOf(plan, each.Of);
        EXPECT_EQ(line.Proposed.Tag, each.Taken) << each.Reason;
        EXPECT_EQ(line.Reason, each.Reason);
        EXPECT_EQ(line.IsMissing(), std::string(each.Taken).empty());
    }
}

TEST_F(Copying, WhatIsRenamedInTheOwnStationIsFoundByItsRegister) {
    TagNamed("North", "FT-1").TagName = "TT-77";
    project::Tag& moved = TagNamed("North", "FT-2");
    moved.RegAddr = 4999;
    const Source source = World.SourceOf("North");
    const StationPlan plan = World.PlanFor(source, "North");
    EXPECT_TRUE(plan.IsComplete());
    EXPECT_EQ(LineOf(plan, "FT-1").Proposed.Tag, "TT-77");
    EXPECT_EQ(LineOf(plan, "FT-1").Why, Evidence::SameRegister);
    EXPECT_EQ(LineOf(plan, "FT-2").Proposed.RegAddr, "4999");
    const Change change = ChangeFor(World.Project, source, plan);
    EXPECT_EQ(change.Command, "Bind anew");
    // Six keys at most: nothing else of the file is touched.
    EXPECT_LE(config::ChangesOf(World.BytesOf("North"), change.After).size(), 6U);
    EXPECT_THAT(change.After, HasSubstr("GasTempKDIOTag=TT-77\r\n"));
}

TEST(CopyingToALargerStation, WhereTwoShiftsWouldDoTheLowerOneIsTakenAndNotSure) {
    test::PlanWorld world;
    world.Configure("North", "wizard/aga3_densimeter.ini");
    world.BuildAlike("South", "North", [](const std::string& name) { return WithRunNumbers(name, 500); });
    auto more = world.Library.TagsOf["South"];
    for (project::Tag tag : world.Library.TagsOf["South"])
        if (!std::string(tag.TagName).starts_with("LOG")) {
            tag.TagName = WithRunNumbers(tag.TagName, 300);
            tag.RegAddr += 1000;
            more.push_back(tag);
        }
    world.Library.TagsOf["South"] = more;
    const StationPlan plan = world.PlanFor(world.SourceOf("North"), "South");
    for (const Line& line : plan.Lines)
        if (line.Module == WorkingKind::None) {
            EXPECT_EQ(line.Proposed.Tag, WithRunNumbers(line.Source.Tag, 500));
            EXPECT_FALSE(line.IsSure);
        }
}

TEST_F(Copying, ThePersonsChoiceCountsForAllThatShareTheRegister) {
    StationPlan plan = World.PlanFor(World.SourceOf("North"), "South");
    const Destination south({"South", World.Library.TagsOf["South"]});
    const auto place = static_cast<std::size_t>(
        std::ranges::find_if(plan.Lines, [](const Line& line) { return line.Source.Tag == "FT-1"; }) -
        plan.Lines.begin());
    project::Tag spare = TagNamed("South", "FT-401");
    spare.TagName = "SPARE";
    spare.RegAddr = 4000;
    World.Library.TagsOf["South"].push_back(spare);
    const auto choices =
        Destination({"South", World.Library.TagsOf["South"]}).ChoicesFor(plan.Lines[place], plan.Lines);
    // Its own tag and those that nobody uses; no other's.
    EXPECT_THAT(choices, testing::SizeIs(60 + 2));
    for (const config::TagBinding& choice : choices)
        EXPECT_TRUE(choice.Tag == "FT-401" || !choice.Tag.starts_with("FT-")) << choice.Tag;
    ChooseFor(plan.Lines, place, choices.back());
    EXPECT_EQ(plan.Lines[place].Proposed.Tag, "SPARE");
    EXPECT_EQ(plan.Lines[place].Why, Evidence::ByHand);
}

TEST_F(Copying, AStationWithoutTagsOrWithoutAFileNameIsRefused) {
    World.Library.TagsOf["Bare"] = {};
    EXPECT_EQ(World.PlanFor(World.SourceOf("North"), "Bare").Refused, "The station has no tags.");
    EXPECT_THAT(World.PlanFor(World.SourceOf("North"), "a/b").Refused, HasSubstr("cannot be that of a file"));
    Source source;
    EXPECT_EQ(TakeSource(World.Files, World.Project, {"South", {}}, source),
              "The station South is not configured.");
}

TEST_F(Copying, APlainCopyIsTheFileUnderItsOwnName) {
    const Source source = World.SourceOf("North");
    const StationPlan plan = PlanPlainCopy(World.Files, World.Project, source, "South");
    const Change change = ChangeFor(World.Project, source, plan);
    const auto changes = config::ChangesOf(World.BytesOf("North"), change.After);
    ASSERT_EQ(changes.size(), 1U);
    EXPECT_EQ(changes.front().Key, "OrmStation");
    EXPECT_EQ(PlanPlainCopy(World.Files, World.Project, source, "North").Refused,
              "It is the station that is copied from.");
}

TEST_F(Copying, WhatIsWrittenIsRecordedRegisteredAndCheckedAtOnce) {
    const Source source = World.SourceOf("North");
    const Change change = ChangeFor(World.Project, source, World.PlanFor(source, "South"));
    EXPECT_TRUE(Write(World.Writer(), change).Done);
    ASSERT_EQ(World.Recorder.Recorded.size(), 1U);
    EXPECT_EQ(World.Recorder.Recorded.front().Command, "Copy to station");
    EXPECT_EQ(World.Recorder.Recorded.front().Station, "South");
    EXPECT_EQ(World.Recorder.Recorded.front().User, "4711");
    EXPECT_EQ(World.Recorder.Recorded.front().Before, std::nullopt);
    EXPECT_EQ(World.Library.FilesToLoad.size(), 1U);
    const auto report = CheckOf(World.Project, change, World.Library.TagsOf["South"]);
    for (const audit::Finding& finding : report.Findings)
        EXPECT_NE(finding.Rule, audit::RuleId::TagNotFound) << finding.Text;
}

TEST_F(Copying, AFileThatSomebodyChangedMeanwhileIsLeftAlone) {
    const Source source = World.SourceOf("North");
    const Change change = ChangeFor(World.Project, source, World.PlanFor(source, "South"));
    World.BytesOf("South") = "[General]\r\n";
    const Written written = Write(World.Writer(), change);
    EXPECT_FALSE(written.Done);
    EXPECT_THAT(written.Reason, HasSubstr("Somebody has changed the file"));
    EXPECT_EQ(World.BytesOf("South"), "[General]\r\n");
    EXPECT_THAT(World.Recorder.Recorded, IsEmpty());
}

TEST_F(Copying, WhatCannotBeWrittenIsToldWithTheSystemsReason) {
    const Source source = World.SourceOf("North");
    const Change change = ChangeFor(World.Project, source, World.PlanFor(source, "South"));
    World.Files.DiskFull = true;
    const Written written = Write(World.Writer(), change);
    EXPECT_FALSE(written.Done);
    EXPECT_EQ(written.Reason, "The system says: No space left on device. There is no such file now.");
    EXPECT_THAT(World.Library.FilesToLoad, IsEmpty());
    // Once there is room it goes on from where it stood, and a second time changes nothing.
    World.Files.DiskFull = false;
    EXPECT_TRUE(Write(World.Writer(), change).Done);
    EXPECT_TRUE(Write(World.Writer(), change).Done);
}

// The file gets its name, and from then on the disk answers nothing.
struct DyingFiles : test::MemoryFiles {
    bool Replace(const std::string& path, std::string_view bytes) override {
        Content[path] = bytes;
        Unreadable.insert(path);
        return Fail("Input/output error");
    }
};

TEST_F(Copying, AFileThatCannotBeReadAnyMoreIsNotSaidToBeMissing) {
    const Source source = World.SourceOf("North");
    const Change change = ChangeFor(World.Project, source, World.PlanFor(source, "South"));
    DyingFiles files;
    const Written written = Write({files, World.Library, World.Recorder, World.Project, "4711"}, change);
    EXPECT_FALSE(written.Done);
    EXPECT_EQ(written.Reason, "The system says: Input/output error. What stands there now cannot be read.");
}

} // namespace
} // namespace gfc::plan
