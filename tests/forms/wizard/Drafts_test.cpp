// A pass of the wizard that is not brought to its end, and goes on later.
#include "drafts/DraftStore.h"
#include "forms/binding/TagRuns.h"
#include "forms/main_window/GFCPrincipal.h"
#include "forms/station/PassStory.h"
#include "forms/tools/FrDrafts.h"
#include "support/TestFolders.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

namespace gfc::test {
namespace {

using testing::HasSubstr;
using ui::Answer;
using ui::Icon;

using Content = decltype(MemoryFiles::Content);

const std::string Window = "FrDrafts";
const std::string Main = "GFCPrincipal";

std::string GoldenOf(const std::string& name) {
    return Golden("wizard/" + name + ".ini");
}

// The files as they stand when the pass is torn down at that dialog, after some acts in it: the machine may
// have lost its power then.
Content TornDownAt(PassWorld& world, std::size_t at, const std::function<void(Story&)>& acts = {}) {
    Content left;
    world.ThePass.Open(world.TheStory);
    world.ThePass.Until(world.TheStory, at);
    if (acts)
        acts(world.TheStory);
    world.TheStory.Check([&](Driver&) {
        left = world.Files.Content;
        world.Screen.EndProgram(0);
    });
    world.Play();
    EXPECT_TRUE(world.TheStory.Done());
    return left;
}

// The next start of the program, over the files that were left.
struct NextStart : World {
    explicit NextStart(Content left, const std::string& station = "North",
                       project::TagList tags = LargeStationTags()) {
        Files.Content = std::move(left);
        AddStation(station, std::move(tags));
        AddStation("Other", {});
    }
    Story& OpenDrafts() { return TheStory.Menu(Main, "drafts"); }
    void Play() {
        TheStory.Menu(Main, "exit");
        Program.Forms.Get<forms::GFCPrincipal>().Show();
        Screen.RunToEnd();
        EXPECT_TRUE(TheStory.Done());
    }
    forms::FrDrafts& Form() { return Program.Forms.Get<forms::FrDrafts>(); }
    forms::TagRuns& Tags() { return Program.Forms.Get<forms::TagRuns>(); }
    std::vector<drafts::KeptDraft> Kept() {
        return drafts::DraftStore(Machine, "/jobs/plant.KPJ").All().value();
    }
    [[nodiscard]] std::string File() { return Files.Content[ConfigFile("North")]; }

    const std::string FirstInput = "AGA 3 Inputs\\Density";
};

void FinishFrom(NextStart& world, const PassStory& pass, std::size_t at) {
    pass.Through(world.TheStory, at);
    world.TheStory.SeeText("WizardFC", "Label19", "Configuration Finished !").Click("WizardFC", "Command1");
}

struct DraftCase {
    const char* Name;
    PassChoices Choices;

    friend void PrintTo(const DraftCase& the, std::ostream* out) { *out << the.Name; }
};

class TornPass : public testing::TestWithParam<DraftCase> {};

TEST_P(TornPass, goes_on_at_whichever_dialog_and_ends_in_the_same_file) {
    const PassStory pass(GetParam().Choices);
    for (std::size_t at = 0; at < pass.Dialogs().size(); ++at) {
        SCOPED_TRACE(pass.Dialogs()[at].Announced);
        PassWorld first(GetParam().Choices);
        NextStart next(TornDownAt(first, at));
        next.Station.UserId = first.Station.UserId;
        next.OpenDrafts().Click(Window, "Command3");
        FinishFrom(next, pass, at);
        next.TheStory.Check([&](Driver& d) {
            EXPECT_EQ(next.File(), GoldenOf(GetParam().Name));
            EXPECT_TRUE(next.Kept().empty());
            EXPECT_EQ(d.NodeImage(Main, "TreeGFC", "All Stations\\North"), "StationConfig");
        });
        next.Play();
    }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Families, TornPass, testing::Values(
    DraftCase{"aga3_densimeter_external",   {0, 0, false, true}},
    DraftCase{"aga3_aga8_fixed",            {0, 1}},
    DraftCase{"aga3_iso2_outside_external", {0, 3, true, true}},
    DraftCase{"aga7_iso3_fixed_external",   {1, 4, false, true}},
    DraftCase{"aga7_iso2_outside",          {1, 3, true}},
    DraftCase{"accelabar_iso3_fixed",       {2, 4}},
    DraftCase{"gbt_aga8_outside",           {3, 1, true}}),
    [](const auto& row) { return row.param.Name; });
// clang-format on

const PassChoices Plain{0, 0};
constexpr std::size_t Inputs = 1; // of the first run
constexpr std::size_t Outputs = 2;

// What a person sees in the window of tags; of the rows neither numbers nor order, as what went back to a
// list stands at its end.
std::vector<std::string> SightOf(forms::TagRuns& tags) {
    std::vector<std::string> sight;
    for (const ui::ListView* list : {&tags.ListViewRuns, &tags.ListLong, &tags.ListAnalogDig})
        for (int row = 1; row <= (list->Visible() ? list->Count() : 0); ++row)
            sight.push_back(list->Cell(row, 1) + " " + list->Cell(row, 2) + " " + list->Cell(row, 3));
    std::ranges::sort(sight);
    for (int node = 1; node <= tags.TreeAGA.Count(); ++node)
        sight.push_back(tags.TreeAGA.At(node).Text);
    for (const ui::DropDownList* list : {&tags.ListHour, &tags.ListMinx10, &tags.ListMinx1})
        sight.push_back(list->Text());
    sight.push_back(tags.Text1.Text() + " " + tags.phostd.Text());
    return sight;
}

// One act of a person on that window, by chance.
void ActByChance(Driver& d, forms::TagRuns& tags, std::mt19937& chance) {
    const auto below = [&chance](int count) {
        return static_cast<int>(chance() % static_cast<unsigned>(count));
    };
    const int variable = 2 + 7 * below((tags.TreeAGA.Count() - 1) / 7);
    const bool bound = tags.TreeAGA.At(variable).Image == "Config";
    d.ClickNode("TagRuns", "TreeAGA", tags.TreeAGA.FullPath(variable));
    switch (below(8)) {
    case 0:
        return d.Click("TagRuns", "Command3");
    case 1:
        return tags.deshacer.Enabled() ? d.Menu("TagRuns", "deshacer") : void();
    case 2:
        return d.Type("TagRuns", "Text1", "1.0" + std::to_string(below(10)));
    case 3:
        return d.Select("TagRuns", "ListHour", below(24));
    default:
        d.ClickRow("TagRuns", "ListViewRuns", 1 + below(20));
        return d.Click("TagRuns", bound ? "Command4" : "Command1");
    }
}

TEST(Draft, brings_back_what_stood_in_the_window_of_tags_whatever_was_done_there) {
    const unsigned seed = std::random_device{}();
    for (unsigned round = 0; round < 12; ++round) {
        SCOPED_TRACE("seed " + std::to_string(seed) + ", round " + std::to_string(round));
        std::mt19937 chance(seed + round);
        std::vector<std::string> left;
        PassWorld first(Plain);
        const auto acts = [&](Story& story) {
            story.Check([&](Driver& d) {
                auto& tags = first.Program.Forms.Get<forms::TagRuns>();
                for (unsigned act = 1 + chance() % 25; act > 0; --act)
                    ActByChance(d, tags, chance);
                // What is typed counts with the next act.
                d.ClickNode("TagRuns", "TreeAGA", tags.TreeAGA.FullPath(2));
                d.Click("TagRuns", tags.TreeAGA.At(2).Image == "Config" ? "Command4" : "Command1");
                left = SightOf(tags);
            });
        };
        NextStart next(TornDownAt(first, Inputs, acts));
        next.OpenDrafts().Click(Window, "Command3");
        first.ThePass.Until(next.TheStory, Inputs, Inputs);
        next.TheStory.Check([&](Driver&) {
            const auto now = SightOf(next.Tags());
            for (std::size_t i = 0; i < std::max(now.size(), left.size()); ++i)
                ASSERT_EQ(i < now.size() ? now[i] : "nothing", i < left.size() ? left[i] : "nothing") << i;
            next.Screen.EndProgram(0);
        });
        next.Program.Forms.Get<forms::GFCPrincipal>().Show();
        next.Screen.RunToEnd();
        EXPECT_TRUE(next.TheStory.Done());
    }
}

// A pass that was left by Cancel in the outputs of the first run.
struct LeftPass {
    LeftPass() {
        First.ThePass.Open(First.TheStory);
        First.ThePass.Until(First.TheStory, Outputs);
        First.TheStory.ClickNode("TagRuns", "TreeAGA", "AGA 3 Outputs\\Volume Flow")
            .Click("TagRuns", "Command1")
            .Click("TagRuns", "Command2")
            .Box("Gas Flow Computer", "", Icon::Question, Answer::Yes);
        First.Play();
    }
    PassWorld First{Plain};
};

TEST(Draft, is_left_by_a_cancel_and_shown_with_where_it_stands) {
    LeftPass left;
    NextStart next(left.First.Files.Content);
    next.OpenDrafts()
        .SeeText(Window, "Label1", "1 draft")
        .Check([&](Driver& d) {
            EXPECT_EQ(d.Cell(Window, "ListView1", 1, 0), "North");
            EXPECT_EQ(d.Cell(Window, "ListView1", 1, 1),
                      "Step 3 of 6: Run 2 flow calculation output tag assignments");
            EXPECT_EQ(d.Cell(Window, "ListView1", 1, 3), "2023-03-15 12:00:00");
            EXPECT_EQ(d.Cell(Window, "ListView1", 1, 5), "");
            EXPECT_EQ(d.Text(Window, "Combo1"), "North");
        })
        .OpenRow(Window, "ListView1", 1);
    left.First.ThePass.Until(next.TheStory, Outputs, Outputs);
    next.TheStory.Check([&](Driver&) { EXPECT_EQ(next.Tags().TreeAGA.At(2).Image, "Config"); })
        .Click("TagRuns", "Command2")
        .Box("Gas Flow Computer", "", Icon::Question, Answer::Yes)
        .Check([&](Driver& d) {
            EXPECT_TRUE(d.IsShown(Main));
            EXPECT_EQ(next.Kept().size(), 1U);
        });
    next.Play();
}

TEST(Draft, goes_when_a_person_says_so_and_stays_when_not) {
    LeftPass left;
    NextStart next(left.First.Files.Content);
    next.OpenDrafts()
        .Click(Window, "Command2")
        .Box("Drafts", "", Icon::Question, Answer::No)
        .Check([&](Driver&) { EXPECT_EQ(next.Kept().size(), 1U); })
        .Click(Window, "Command2")
        .Box("Drafts", "", Icon::Question, Answer::Yes)
        .Check([&](Driver& d) {
            EXPECT_EQ(next.Screen.BoxesShown.back().AtStake, "North");
            EXPECT_TRUE(next.Files.Content.empty());
            EXPECT_THAT(d.Text(Window, "Label1"), HasSubstr("No drafts."));
        })
        .SeeEnabled(Window, "Command2", false)
        .SeeEnabled(Window, "Command3", false)
        .Click(Window, "Command4");
    next.Play();
}

TEST(Draft, stays_beside_another_one_of_the_same_station) {
    LeftPass left;
    PassWorld second(Plain);
    second.Files.Content = left.First.Files.Content;
    NextStart next(TornDownAt(second, Inputs));
    ASSERT_EQ(next.Kept().size(), 2U);
    EXPECT_NE(next.Kept()[0].TheDraft->Id, next.Kept()[1].TheDraft->Id);
    next.OpenDrafts().ClickRow(Window, "ListView1", 2).Check([&](Driver& d) {
        EXPECT_THAT(d.Cell(Window, "ListView1", 2, 1), HasSubstr("input tag"));
    });
    next.TheStory.Click(Window, "Command3");
    FinishFrom(next, second.ThePass, Inputs);
    next.TheStory.Check([&](Driver&) {
        ASSERT_EQ(next.Kept().size(), 1U) << "only that of the pass that was finished has gone";
        EXPECT_THAT(next.Kept()[0].TheDraft->StandsAt, HasSubstr("output tag"));
    });
    next.OpenDrafts()
        .Check([&](Driver& d) {
            EXPECT_EQ(d.Cell(Window, "ListView1", 1, 5), "the station has got another configuration since");
        })
        .Click(Window, "Command3")
        .Box("Drafts", "", Icon::Question, Answer::No)
        .Check([&](Driver&) {
            EXPECT_THAT(next.Screen.BoxesShown.back().Text, HasSubstr("another configuration since"));
            EXPECT_EQ(next.Kept().size(), 1U);
        });
    next.Play();
}

TEST(Draft, of_a_renamed_station_goes_on_under_its_new_name) {
    LeftPass left;
    NextStart next(left.First.Files.Content, "North-2");
    next.OpenDrafts()
        .Check([&](Driver& d) {
            EXPECT_EQ(d.Cell(Window, "ListView1", 1, 5), "the project has no such station");
            EXPECT_THAT(d.Text(Window, "Label3"), HasSubstr("choose it under its new name"));
        })
        .SeeEnabled(Window, "Command3", false)
        .Select(Window, "Combo1", 0)
        .SeeEnabled(Window, "Command3")
        .Click(Window, "Command3");
    next.TheStory.SeeText("Step", "Label1", "Run 2 flow calculation output tag assignments")
        .Click("Step", "Command1")
        .Click("TagRuns", "Command3")
        .Click("TagRuns", "Command6")
        .Box("Automatic Tags assignments", "", Icon::Information)
        .Click("TagRuns", "Command5")
        .SeeText("Step", "Label2", "Step 4 of 6")
        .Click("Step", "Command1")
        .SeeCaption("FrParMec", "Mechanical Parameters Station: North-2, Run: 5")
        .Click("FrParMec", "cmdCancel")
        .Box("Close mechanical parameters", "", Icon::None, Answer::Yes)
        .Check([&](Driver&) { EXPECT_EQ(next.Kept().at(0).Station, "North-2"); });
    next.Play();
}

TEST(Draft, shows_a_dialog_again_whose_tags_are_gone) {
    LeftPass left;
    auto tags = LargeStationTags();
    std::erase_if(tags, [](const project::Tag& tag) { return tag.TagName == "FT-1"; });
    NextStart next(left.First.Files.Content, "North", std::move(tags));
    next.OpenDrafts()
        .Click(Window, "Command3")
        .Box("Drafts", "", Icon::Question, Answer::No)
        .Check([&](Driver& d) {
            EXPECT_THAT(next.Screen.BoxesShown.back().Text, HasSubstr("any more:\r\nFT-1\r\n\r\n"));
            EXPECT_TRUE(d.IsShown(Main));
        })
        .Menu(Main, "drafts")
        .Click(Window, "Command3")
        .Box("Drafts", "", Icon::Question, Answer::Yes)
        .SeeText("Step", "Label1", "Run 2 flow calculation input tag assignments")
        .SeeText("Step", "Label2", "Step 2 of 6")
        .Click("Step", "Command1")
        .Check([&](Driver&) {
            EXPECT_EQ(next.Tags().TreeAGA.At(2).Image, "NoConfig");
            EXPECT_EQ(next.Tags().TreeAGA.At(9).Image, "Config");
        })
        .ClickNode("TagRuns", "TreeAGA", next.FirstInput)
        .Click("TagRuns", "Command1")
        .Click("TagRuns", "Command5")
        .SeeText("Step", "Label2", "Step 3 of 6")
        .Click("Step", "Command1")
        .Click("TagRuns", "Command2")
        .Box("Gas Flow Computer", "", Icon::Question, Answer::Yes);
    next.Play();
}

TEST(Draft, does_not_go_on_without_its_working_module) {
    LeftPass left;
    auto tags = LargeStationTags();
    for (project::Tag& tag : tags)
        if (tag.ModuleName == "VF0")
            tag.ModuleName = "VF9";
    NextStart next(left.First.Files.Content, "North", std::move(tags));
    next.OpenDrafts().Click(Window, "Command3").Box("Drafts", "", Icon::Exclamation).Check([&](Driver& d) {
        EXPECT_THAT(next.Screen.BoxesShown.back().Text, HasSubstr("working module VF0"));
        EXPECT_TRUE(d.IsShown(Main));
        EXPECT_EQ(next.Kept().size(), 1U);
    });
    next.Play();
}

TEST(Draft, that_cannot_be_kept_is_told_once_and_holds_nobody_up) {
    PassWorld world(Plain);
    const std::string file = drafts::DraftStore(world.Machine, "/jobs/plant.KPJ").File();
    world.Files.Unwritable.insert(file);
    world.ThePass.Open(world.TheStory);
    world.TheStory.SeeText("Step", "Notes", "The draft of this pass cannot be kept. Permission denied.");
    world.ThePass.Until(world.TheStory, 0);
    world.ThePass.Dialogs()[0].GoThrough(world.TheStory);
    world.TheStory.SeeText("Step", "Notes", "");
    world.ThePass.Through(world.TheStory, Inputs);
    world.TheStory.Click("WizardFC", "Command1");
    world.Play();
    EXPECT_EQ(world.File(), GoldenOf("aga3_densimeter"));
    EXPECT_FALSE(world.Files.Content.contains(file));
}

TEST(Draft, that_is_damaged_is_shown_and_can_be_deleted_beside_a_whole_one) {
    LeftPass left;
    PassWorld second(Plain);
    second.Files.Content = left.First.Files.Content;
    auto content = TornDownAt(second, Inputs);
    auto& bytes = content.begin()->second;
    bytes[bytes.find("Run.0.") + 20] ^= 1;
    NextStart next(std::move(content));
    next.OpenDrafts()
        .ClickRow(Window, "ListView1", 2)
        .Check([&](Driver& d) {
            EXPECT_EQ(d.Cell(Window, "ListView1", 2, 0), "North");
            EXPECT_THAT(d.Cell(Window, "ListView1", 2, 5), HasSubstr("cannot be read"));
        })
        .SeeEnabled(Window, "Command3", false)
        .Click(Window, "Command2")
        .Box("Drafts", "", Icon::Question, Answer::Yes)
        .Check([&](Driver&) {
            ASSERT_EQ(next.Kept().size(), 1U);
            EXPECT_TRUE(next.Kept()[0].TheDraft);
        })
        .Click(Window, "Command4");
    next.Play();
}

TEST(Draft, file_that_cannot_be_read_is_told_and_never_written_over) {
    LeftPass left;
    NextStart next(left.First.Files.Content);
    const std::string file = next.Files.Content.begin()->first;
    next.Files.Unreadable.insert(file);
    next.OpenDrafts()
        .SeeText(Window, "Label1", "The drafts cannot be read. Input/output error.")
        .Click(Window, "Command4");
    next.Play();
    EXPECT_EQ(next.Files.Content.at(file), left.First.Files.Content.at(file));
    drafts::DraftStore store(next.Machine, "/jobs/plant.KPJ");
    EXPECT_FALSE(store.Keep({}));
}

} // namespace
} // namespace gfc::test
