// One more run for a file of every method, and what becomes of the file, against a second account.
#include "PlainAddedRun.h"
#include "PlainFile.h"
#include "SweepWorld.h"
#include "forms/program/StartUp.h"
#include "forms/runs/AddRunStory.h"
#include "support/TestFolders.h"

#include <gtest/gtest.h>

namespace gfc::test::sweep {
namespace {

// The new run's diameters, and where the pressure comes from; runs 2 and 5 stand there already.
std::vector<Choice> ConfigurationsOf(const Choice& method) {
    std::vector<Choice> all;
    for (const auto pressure : {Pressure::Absolute, Pressure::GageFixed, Pressure::GageExternal})
        for (const bool external : {false, true}) {
            if (external && !method.HasOrifice())
                continue;
            Choice choice = method;
            choice.Pressure = pressure;
            choice.ExternalDiameters = external;
            choice.Runs = {2, 5};
            choice.Units = (method.Standard + method.Source) % 5;
            choice.Incompressible = external;
            all.push_back(choice);
        }
    return all;
}

std::string PlainlyAdded(const std::string& file, PlainAddedRun added) {
    FileText text(file);
    AddPlainRun(text, added);
    return text.Bytes();
}

// With run 2 off if disabled: its bindings stay its own.
void Prove(const Choice& choice, bool disabled) {
    SCOPED_TRACE(choice.Text() + (disabled ? ", run 2 off" : ""));
    FileText before(FileOf(choice).Text());
    if (disabled)
        before.Set("FlowRuns", "Run2", "No");
    SweepWorld world;
    world.Files.Content["/jobs/KDOrmAGA_plant_North.ini"] = before.Bytes();
    moves::StartUp(world.TheStory);
    world.TheStory.ClickNode("GFCPrincipal", "TreeGFC", "All Stations\\North\\Individual Parameters\\Run 3")
        .Menu("GFCPrincipal", "erun")
        .Box("Configure Run", "", ui::Icon::Information, ui::Answer::Yes);
    const AddRunStory adding(
        {choice.Standard, choice.Source, choice.Chromatograph, 3, choice.ExternalDiameters});
    adding.Through(world.TheStory);
    AddRunStory::Finish(world.TheStory, ui::Answer::Yes);
    moves::Exit(world.TheStory);
    forms::StartProgram(world.Program);
    world.Screen.RunToEnd();
    ExpectSameFile(world.WrittenFile(),
                   PlainlyAdded(before.Bytes(), {choice, 3, FreeTags(), GMTHour, GMTMinute}));
}

class AddedRuns : public testing::TestWithParam<Choice> {};

TEST_P(AddedRuns, are_written_as_accounted) {
    for (const Choice& choice : ConfigurationsOf(GetParam())) {
        Prove(choice, choice.Pressure == Pressure::GageFixed);
        ASSERT_FALSE(HasFailure()) << choice.Text();
    }
}

INSTANTIATE_TEST_SUITE_P(Methods, AddedRuns, testing::ValuesIn(Methods()),
                         [](const auto& method) { return method.param.Name(); });

// The tags of the station on which the golden files stand.
Pools LargePools() {
    Pools pools;
    const auto add = [](std::deque<PlainTag>& pool, const std::string& stem, int count, int first,
                        const std::string& type) {
        for (int i = 0; i < count; ++i)
            pool.push_back({stem + std::to_string(i + 1), std::to_string(first + i), type, "", ""});
    };
    add(pools.Floats, "FT-", 300, 1001, "FX");
    add(pools.Longs, "PI-", 10, 101, "LX");
    add(pools.Analogs, "AI-", 20, 201, "AX");
    add(pools.Analogs, "AO-", 20, 301, "AY");
    add(pools.Digitals, "XS-", 40, 401, "X");
    add(pools.Digitals, "XV-", 40, 501, "Y");
    return pools;
}

struct GoldenCase {
    const char* Name;
    Choice The;
};

// clang-format off
const GoldenCase goldenCases[] = {
    {"aga3_densimeter",            {.Standard = 0, .Source = 0}},
    {"aga3_aga8_fixed",            {.Standard = 0, .Source = 1}},
    {"aga3_iso2_outside_external", {.Standard = 0, .Source = 3, .Chromatograph = true,
                                    .Pressure = Pressure::GageExternal}},
    {"aga7_densimeter",            {.Standard = 1, .Source = 0}},
    {"aga7_aga8_fixed",            {.Standard = 1, .Source = 1}},
    {"aga7_iso3_fixed_external",   {.Standard = 1, .Source = 4, .Pressure = Pressure::GageExternal}},
    {"accelabar_densimeter",       {.Standard = 2, .Source = 0}},
    {"accelabar_iso3_fixed",       {.Standard = 2, .Source = 4}},
    {"gbt_densimeter",             {.Standard = 3, .Source = 0, .Units = 4}},
    {"gbt_aga8_outside",           {.Standard = 3, .Source = 1, .Chromatograph = true, .Units = 4}},
};
// clang-format on

TEST(AddedRunsOfGoldenFiles, are_as_accounted) {
    for (const auto& [name, choice] : goldenCases) {
        SCOPED_TRACE(name);
        const std::string file = std::string(name) + ".ini";
        ExpectSameFile(Golden("added/" + file),
                       PlainlyAdded(Golden("wizard/" + file), {choice, 3, LargePools(), "12", "0"}));
    }
}

} // namespace
} // namespace gfc::test::sweep
