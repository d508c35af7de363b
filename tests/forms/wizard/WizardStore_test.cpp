#include "WizardWorld.h"
#include "support/Named.h"

#include <gtest/gtest.h>

namespace gfc::test {
namespace {

struct StoreCase {
    int Entry;
    const char* Stored;

    friend void PrintTo(const StoreCase& the, std::ostream* out) { *out << the.Stored; }
};

class StoredStandard : public testing::TestWithParam<StoreCase> {};

TEST_P(StoredStandard, is_the_word_of_the_file) {
    WizardWorld world;
    auto& form = world.Preset(GetParam().Entry);
    form.StoreWizardValues();
    EXPECT_EQ(world.Station.FlowAlgorithm, GetParam().Stored);
    EXPECT_EQ(world.Station.FlagAGA7, GetParam().Entry == 1);
}

INSTANTIATE_TEST_SUITE_P(Entries, StoredStandard,
                         testing::Values(StoreCase{0, "AGA3"}, StoreCase{1, "AGA7"},
                                         StoreCase{2, "Accelabar-AGA-3-1992"}, StoreCase{3, "SYT6143-2004"}),
                         By(&StoreCase::Stored));

class StoredSource : public testing::TestWithParam<StoreCase> {};

TEST_P(StoredSource, is_the_word_of_the_file) {
    WizardWorld world;
    world.Station.AGA8CalInput = "before";
    auto& form = world.Preset(0, GetParam().Entry);
    form.StoreWizardValues();
    EXPECT_EQ(world.Station.GasDensitySource, GetParam().Stored);
    EXPECT_EQ(world.Station.Measured, GetParam().Entry == 0);
    // The composition is left alone where there is none.
    EXPECT_EQ(world.Station.AGA8CalInput, GetParam().Entry == 0 ? "before" : "FIXED");
    EXPECT_EQ(world.Station.AGA8Method, GetParam().Entry == 0 ? "" : "DETAIL");
}

INSTANTIATE_TEST_SUITE_P(Entries, StoredSource,
                         testing::Values(StoreCase{0, "MEASURED"}, StoreCase{1, "AGA8"},
                                         StoreCase{2, "SGERG88"}, StoreCase{3, "ISO-12213-2-1997"},
                                         StoreCase{4, "ISO-12213-3-1997"}),
                         By(&StoreCase::Stored));

TEST(StoreWizardValues, without_a_standard_stores_the_last_word) {
    WizardWorld world;
    world.Program.Forms.Touch<forms::WizardFC>().StoreWizardValues();
    EXPECT_EQ(world.Station.FlowAlgorithm, "SYT6143-2004");
    EXPECT_FALSE(world.Station.FlagAGA7);
}

TEST(StoreWizardValues, takes_a_composition_from_outside) {
    WizardWorld world;
    auto& form = world.Preset(0, 1);
    form.OptCromatografo.SetValue(true);
    form.StoreWizardValues();
    EXPECT_EQ(world.Station.AGA8CalInput, "MEASURED");
    EXPECT_EQ(world.Station.AGA8Method, "DETAIL");
}

TEST(StoreWizardValues, takes_the_entries_as_they_stand) {
    WizardWorld world;
    auto& form = world.Preset();
    form.general.CombUnits.SetListIndex(3);
    form.TextDensityStandardTemp.SetText("59.5");
    form.TextDensityStandardP.SetText("1,01 bar");
    form.Text1.SetText(".01");
    form.Text2.SetText("1.");
    form.StoreWizardValues();
    EXPECT_EQ(world.Station.SystemUnits, "Metric-degF");
    EXPECT_EQ(world.Station.StandardT, "59.5");
    EXPECT_EQ(world.Station.StandardP, "1,01 bar");
    EXPECT_EQ(world.Station.FlowingViscosity, ".01");
    EXPECT_EQ(world.Station.IsentropicCoeff, "1.");
    EXPECT_EQ(world.Station.Compressible, "Yes");
    form.OptNoComprensible.SetValue(true);
    form.StoreWizardValues();
    EXPECT_EQ(world.Station.Compressible, "No");
}

TEST(StoreWizardValues, an_absolute_pressure_has_no_tag_and_keeps_the_entry) {
    WizardWorld world;
    auto& form = world.Preset();
    form.pressure.OptGagePress.SetValue(true);
    form.pressure.OptAtmPressExt.SetValue(true);
    form.pressure.OptAbsPress.SetValue(true);
    form.StoreWizardValues();
    EXPECT_EQ(world.Station.PressType, "Absolute");
    EXPECT_EQ(world.Station.ExtAtmPress, "No");
    EXPECT_EQ(world.Station.AtmPress, "14.695949");
}

TEST(StoreWizardValues, a_gage_pressure_takes_the_atmosphere_from_the_entry_or_a_tag) {
    WizardWorld world;
    auto& form = world.Preset();
    form.pressure.OptGagePress.SetValue(true);
    form.pressure.txtAtmPress.SetText("14.5");
    form.StoreWizardValues();
    EXPECT_EQ(world.Station.PressType, "Gage");
    EXPECT_EQ(world.Station.ExtAtmPress, "No");
    EXPECT_EQ(world.Station.AtmPress, "14.5");
    form.pressure.OptAtmPressExt.SetValue(true);
    form.pressure.txtAtmPress.SetText("13");
    form.StoreWizardValues();
    EXPECT_EQ(world.Station.ExtAtmPress, "Yes");
    EXPECT_EQ(world.Station.AtmPress, "14.5");
}

TEST(StoreWizardValues, takes_device_and_count_only_with_traces) {
    WizardWorld world;
    world.Station.DeviceDataTraces = "before";
    auto& form = world.Preset();
    form.StoreWizardValues();
    EXPECT_EQ(world.Station.EnableDataTraces, "No");
    EXPECT_EQ(world.Station.DeviceDataTraces, "before");
    EXPECT_EQ(world.Station.NumberTraces, "");
    form.traces.Check1.SetValue(true);
    form.traces.Number.SetText("50");
    form.StoreWizardValues();
    EXPECT_EQ(world.Station.EnableDataTraces, "Yes");
    EXPECT_EQ(world.Station.DeviceDataTraces, "/nvram/kdormaga.txt");
    EXPECT_EQ(world.Station.NumberTraces, "50");
}

TEST(StoreWizardValues, names_the_working_modules_and_looks_up_their_registers) {
    project::TagList tags = TagsOf(Plenty);
    tags += TagsInModule("VFY", "Virtual FO", "FY", "FY-", 128, 9001);
    WizardWorld world(tags);
    auto& form = world.Preset();
    form.modules.Combo3.SetText("VFY");
    form.StoreWizardValues();
    const auto& working = world.Station.WorkingModules;
    EXPECT_EQ(working.WrkAnalogModName + working.WrkAnalogRegType + working.WrkAnalogRegAddr, "VA0AX1");
    EXPECT_EQ(working.WrkIntLongModName + working.WrkIntLongRegType + working.WrkIntLongRegAddr, "VL0LX1");
    EXPECT_EQ(working.WrkFloatModName, "VFY");
}

} // namespace
} // namespace gfc::test
