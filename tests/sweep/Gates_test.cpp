#include "PlainNeeds.h"
#include "forms/main_window/GFCPrincipal.h"
#include "forms/wizard/WizardWorld.h"

#include <gtest/gtest.h>

// Every row of the requirement table at its last register and one below, for one to five runs, as a person
// meets it in the windows.
namespace gfc::test::sweep {
namespace {

using ui::Answer;
using ui::Icon;

constexpr int AGA3 = 0, AGA7 = 1;
constexpr int Densimeter = 0, AGA8 = 1, SGERG88 = 2;
const std::string wizard = "WizardFC";
const std::string selection = "SelectRuns";
const char* const standardTexts[] = {"AGA-3 1992", "AGA-7", "Accelabar-AGA-3 1992", "GBT21446-2008"};
const char* const sourceTexts[] = {"Densimeter", "AGA-8", "SGERG-88", "ISO 12213-2 1997",
                                   "ISO 12213-3 1997 "};

// The room that just suffices, and each that lacks one register of one kind that is looked at.
std::vector<Room> AtTheEdge(const Room& need) {
    std::vector<Room> rooms(4, need);
    --rooms[1].Floats;
    --rooms[2].Analogs;
    --rooms[3].Digitals;
    if (need.Longs > 0) {
        rooms.push_back(need);
        --rooms.back().Longs;
    }
    return rooms;
}

std::string Where(int standard, int source, int runs, const Room& room) {
    return std::string(standardTexts[standard]) + ", " + sourceTexts[source] + ", " + std::to_string(runs) +
           " runs, room " + std::to_string(room.Floats) + " " + std::to_string(room.Analogs) + " " +
           std::to_string(room.Digitals) + " " + std::to_string(room.Longs);
}

void SayShortage(Story& story, bool isAGA7, int runs) {
    story.Box(ShortageTitle(isAGA7), ShortageText(isAGA7, runs), Icon::Exclamation);
}

// The boxes of a choice that may not fit, and of the fallback that may not either. True if the choice stays.
bool SayWhatLacks(Story& story, const Room& room, int runs, std::pair<int, int> chosen,
                  std::pair<int, int> fallback) {
    if (Fits(room, Times(SourceNeed(chosen.first, chosen.second), runs)))
        return true;
    SayShortage(story, chosen.first == AGA7, runs);
    if (!Fits(room, Times(SourceNeed(fallback.first, fallback.second), runs)))
        SayShortage(story, fallback.first == AGA7, runs);
    return false;
}

void ChooseSource(int standard, int source, int runs, const Room& room) {
    SCOPED_TRACE(Where(standard, source, runs, room));
    WizardWorld world(room);
    const int fallback = source == Densimeter ? AGA8 : Densimeter;
    (void)world.Preset(standard, fallback);
    world.ActivateFirst(runs);
    world.TheStory.Select(wizard, "cbSourceGas", source);
    const bool stays = SayWhatLacks(world.TheStory, room, runs, {standard, source}, {standard, fallback});
    world.TheStory.SeeText(wizard, "cbSourceGas", sourceTexts[stays ? source : fallback])
        .SeeText(wizard, "CombStandard", standardTexts[standard]);
    world.PlayPages();
}

TEST(Gates, of_the_source_hold_every_row_at_its_edge) {
    for (int standard = 0; standard < 4; ++standard)
        for (int source = 0; source < 5; ++source)
            for (int runs = 1; runs <= 5; ++runs)
                for (const Room& room : AtTheEdge(Times(SourceNeed(standard, source), runs)))
                    ChooseSource(standard, source, runs, room);
}

void ChooseStandard(int standard, int source, int runs, const Room& room) {
    SCOPED_TRACE(Where(standard, source, runs, room));
    WizardWorld world(room);
    const int fallback = standard == AGA7 ? AGA3 : AGA7;
    (void)world.Preset(fallback, source);
    world.ActivateFirst(runs);
    world.TheStory.Select(wizard, "CombStandard", standard);
    const bool stays = SayWhatLacks(world.TheStory, room, runs, {standard, source}, {fallback, source});
    world.TheStory.SeeText(wizard, "CombStandard", standardTexts[stays ? standard : fallback])
        .SeeText(wizard, "cbSourceGas", sourceTexts[source]);
    world.PlayPages();
}

TEST(Gates, of_the_standard_hold_every_row_at_its_edge) {
    for (int standard = 0; standard < 4; ++standard)
        for (int source = 0; source < 5; ++source)
            for (int runs = 1; runs <= 5; ++runs)
                for (const Room& room : AtTheEdge(Times(SourceNeed(standard, source), runs)))
                    ChooseStandard(standard, source, runs, room);
}

// Room of less than the pages themselves need is given as it is: the choices were made before.
void ChooseChromatograph(int standard, int source, int runs, const Room& room, bool fits) {
    SCOPED_TRACE(Where(standard, source, runs, room));
    WizardWorld world(room);
    auto& form = world.Preset(standard, source);
    world.ActivateFirst(runs);
    for (int page = 0; page < 3; ++page)
        world.TheStory.Click(wizard, "siguiente");
    // Shut for the gross sources: only a program comes to the rows of theirs.
    if (source == SGERG88 || source == 4)
        world.TheStory.SeeEnabled(wizard, "OptCromatografo", false).Do("choose", [&form](Driver&) {
            form.OptCromatografo.SetValue(true);
        });
    else
        world.TheStory.Click(wizard, "OptCromatografo");
    if (!fits)
        SayShortage(world.TheStory, standard == AGA7, runs);
    world.TheStory.SeeChecked(wizard, "OptCromatografo", fits).SeeChecked(wizard, "OptComp", !fits);
    world.PlayPages();
}

TEST(Gates, of_the_composition_hold_every_row_at_its_edge) {
    for (int standard = 0; standard < 4; ++standard)
        for (const int source : {AGA8, SGERG88})
            for (int runs = 1; runs <= 5; ++runs) {
                const Room need = Times(*CompositionNeed(standard, source), runs);
                for (const Room& room : AtTheEdge(need))
                    ChooseChromatograph(standard, source, runs, room, Fits(room, need));
            }
}

TEST(Gates, of_the_composition_have_no_row_for_the_iso_sources) {
    for (int standard = 0; standard < 4; ++standard)
        for (const int source : {3, 4}) {
            EXPECT_FALSE(CompositionNeed(standard, source).has_value());
            ChooseChromatograph(standard, source, 5, Room{}, true);
        }
}

const char* OverTitle(int most, int chosen) {
    const char* const titles[] = {"", "Missing tags", "Missing Tag", "Missing Tags", "Missing Tags"};
    return most > 0 && chosen > most ? titles[most] : "";
}

void SayTooMany(Story& story, const Room& room, bool isAGA7, int runs) {
    const int most = MostRuns(room, isAGA7);
    if (isAGA7 && most > 0)
        story.Box("Gas Flow Computer", MostRunsText(most), Icon::Information);
    const std::string title = OverTitle(most, runs);
    if (!title.empty())
        story.Box(title, "Unselect Runs", Icon::None);
    // Nobody is refused without a word.
    else if (!isAGA7 || most == 0)
        story.Box(isAGA7 ? "Error: Configuring AGA7" : "Error: Configuring AGA3", "", Icon::Exclamation);
}

void AcceptRuns(bool isAGA7, int runs, const Room& room, bool fits) {
    SCOPED_TRACE(Where(isAGA7 ? AGA7 : AGA3, Densimeter, runs, room));
    WizardWorld world(room);
    (void)world.Preset(isAGA7 ? AGA7 : AGA3);
    auto& form = world.Program.Forms.Get<forms::SelectRuns>();
    form.FlagAGA7 = isAGA7;
    for (int run = 0; run < runs; ++run)
        world.TheStory.Click(selection, "CheckRun_" + std::to_string(run));
    world.TheStory.Click(selection, "Command1");
    if (fits) {
        world.TheStory.SeeShown(wizard);
        world.ThenQuit();
        return form.ShowModal();
    }
    SayTooMany(world.TheStory, room, isAGA7, runs);
    world.TheStory.SeeShown(wizard, false)
        .SeeShown(selection)
        .Click(selection, "Command2")
        .Box("Gas flow Computer", "Are you sure do you want to cancel the configuration process?", Icon::None,
             Answer::Yes);
    form.ShowModal();
}

TEST(Gates, of_the_selection_hold_the_floor_at_its_edge) {
    for (int runs = 1; runs <= 5; ++runs)
        for (const bool isAGA7 : {false, true}) {
            // Three longs for each run here, although one is bound.
            const Room need = Times(isAGA7 ? Room{6, 1, 3, 3} : Room{17, 1, 3, 0}, runs);
            for (const Room& room : AtTheEdge(need))
                AcceptRuns(isAGA7, runs, room, Fits(room, need));
        }
}

// What the command says before it opens the selection of the runs, or instead of it.
void SayAtTheStart(Story& story, const Room& room) {
    const bool carriesAGA3 = Fits(room, {17, 1, 3, 0});
    if (!carriesAGA3 && !Fits(room, {6, 1, 3, 1})) {
        SayShortage(story, false, 1);
        SayShortage(story, true, 1);
        story.SeeShown(selection, false).SeeShown("GFCPrincipal");
        return;
    }
    const std::string most = MostRunsText(MostRuns(room, !carriesAGA3));
    if (!most.empty())
        story.Box("Gas Flow Computer", most, Icon::Information);
    story.SeeShown(selection);
}

void OpenWizardOn(const Room& room) {
    SCOPED_TRACE(Where(AGA3, Densimeter, 0, room));
    World world;
    world.AddStation("North", TagsOf(room));
    world.TheStory.ClickNode("GFCPrincipal", "TreeGFC", "All Stations\\North")
        .Menu("GFCPrincipal", "ConfigWiard")
        .Box("Flow Gas Computer",
             "Creating a new configuration for the station.\r\nThe current configuration will be deleted.\r\n"
             "Proceed?",
             Icon::None, Answer::Yes);
    SayAtTheStart(world.TheStory, room);
    world.TheStory.Do("end", [&world](Driver&) { world.Screen.EndProgram(0); });
    world.Program.Forms.Get<forms::GFCPrincipal>().Show();
    world.Screen.RunToEnd();
}

TEST(Gates, of_the_command_say_how_many_runs_fit_for_every_number_of_registers) {
    const Room others[] = {{0, 4, 4, 4}, {0, 3, 4, 4}, {0, 2, 4, 4}, {0, 1, 4, 4}, {0, 0, 4, 4}, {0, 4, 3, 4},
                           {0, 4, 2, 4}, {0, 4, 4, 3}, {0, 4, 4, 2}, {0, 4, 4, 1}, {0, 4, 4, 0}};
    for (const Room& other : others)
        for (int floats = 0; floats <= 45; ++floats) {
            Room room = other;
            room.Floats = floats;
            OpenWizardOn(room);
        }
}

// A station with two modules of floats, analogs or longs, of which each is as large as a working module must
// be and no register is free besides.
project::TagList TagsOfModules(int floats, int analogs, int longs, const Room& room) {
    project::TagList tags = TagsOf(room);
    for (int i = 1; i < floats; ++i)
        tags += TagsInModule("VF0" + std::to_string(i), "Virtual FO", "FY", "F0-", 128, 5001 + 200 * i);
    for (int i = 1; i < analogs; ++i)
        tags += TagsInModule("VA0" + std::to_string(i), "Virtual AO", "AY", "A0-", 32, 7001 + 200 * i);
    for (int i = 1; i < longs; ++i)
        tags += TagsInModule("VL0" + std::to_string(i), "Virtual LO", "LY", "L0-", 8, 8001 + 200 * i);
    return tags;
}

struct ModulesCase {
    int Floats, Analogs, Longs;
    Room Free;
    bool Fits; // five runs of AGA-7 with a densimeter: 30, 5, 15 and 5
};

// clang-format off
constexpr ModulesCase moduleCases[] = {
    {1, 1, 1, {30, 5, 15, 5}, true},
    {1, 1, 1, {29, 5, 15, 5}, false},
    {1, 1, 1, {30, 5, 15, 4}, false},
    {1, 1, 2, {30, 5, 15, 0}, true},  // two long modules: no long is counted
    {2, 1, 1, {0,  5, 15, 5}, true},  // two float modules: no float is counted
    {2, 1, 1, {0,  4, 15, 5}, false},
    {2, 1, 1, {0,  5, 14, 5}, false},
    {1, 2, 1, {30, 0, 15, 5}, true},  // two analog modules: no analog is counted
    {1, 2, 1, {29, 0, 15, 5}, false},
    {1, 2, 1, {30, 0, 14, 5}, false},
    {2, 2, 1, {0,  0, 0,  5}, true},  // two of both: not even the digitals
    {2, 2, 1, {0,  0, 0,  4}, false},
    {2, 2, 2, {0,  0, 0,  0}, true},
    {3, 2, 2, {0,  0, 0,  0}, true},
};
// clang-format on

TEST(Gates, count_registers_by_the_number_of_modules) {
    for (const auto& row : moduleCases) {
        SCOPED_TRACE(Where(AGA7, Densimeter, 5, row.Free) + ", modules " + std::to_string(row.Floats) + " " +
                     std::to_string(row.Analogs) + " " + std::to_string(row.Longs));
        WizardWorld world(TagsOfModules(row.Floats, row.Analogs, row.Longs, row.Free));
        (void)world.Preset(AGA3, Densimeter);
        world.ActivateFirst(5);
        world.TheStory.Select(wizard, "CombStandard", AGA7);
        if (!row.Fits)
            SayShortage(world.TheStory, true, 5);
        // The fallback needs 85 floats, and as many of the others.
        const bool fallbackFits = row.Floats > 1 && row.Free.Analogs >= 5 && row.Free.Digitals >= 15;
        const bool fallbackUncounted = row.Floats > 1 && row.Analogs > 1;
        if (!row.Fits && !fallbackFits && !fallbackUncounted)
            SayShortage(world.TheStory, false, 5);
        world.TheStory.SeeText(wizard, "CombStandard", standardTexts[row.Fits ? AGA7 : AGA3]);
        world.PlayPages();
    }
}

} // namespace
} // namespace gfc::test::sweep
