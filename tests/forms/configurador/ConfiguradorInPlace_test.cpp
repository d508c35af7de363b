#include "ConfiguradorWorld.h"
#include "support/Named.h"

namespace gfc::test {
namespace {

// A file that hands have been at: comments, blank lines, sections of somebody else, and keys of another form.
const std::string handEdited = R"(; kept by hand, do not sort
[general]
package=kdormaga
USERID=12

[Station]
enabledatatraces=No
DeviceDataTraces=/nvram/old.txt
NumberTraces=50
; the radio
[Radio]
Channel=7

[FlowRuns]
Run1=Yes
run2=No
Run3=No
FlowAlgorithm=AGA3
GasDensitySource=AGA8
gasdensitystandardt=60.00
GasDensityStandardP=14.73
SystemUnits=US
WrkFloatModName=VF0
WrkIntLongModName=VL0
wrkanalogmodname=VA0

Run11=Yes
RUN22=Yes
Run33=yes
[AGA3]
StandardT=60.00
StandardP=14.73
FlowingViscosity=0.010268
IsentropicCoeff=1.3
Compressible=No
PressType=Gage
ExtAtmPress=No
AtmPress=14.5
[AGA7]
; left behind
StandardT=1
[AGA8]
AGA8Method=DETAIL
AGA8CalInput=FIXED
[Run1]
STANDARDT=60.00
FlowAlgorithm=AGA3
GasDPKDIOTag=DP-1

; end of run 1
[run2]
CalibrationFactor=1.0
[Run3]
CalibrationFactor=1.1
)";

const std::string handEditedSaved = R"(; kept by hand, do not sort
[general]
package=kdormaga
UserID=4711

[Station]
EnableDataTraces=No
DeviceDataTraces=/nvram/old.txt
NumberTraces=50
; the radio
[Radio]
Channel=7

[FlowRuns]
Run1=Yes
run2=No
Run3=No
FlowAlgorithm=AGA3
GasDensitySource=AGA8
GasDensityStandardT=61.5
GasDensityStandardP=14.73
SystemUnits=US
WrkFloatModName=VF0
WrkIntLongModName=VL0
WrkAnalogModNAme=VA0

Run11=Yes
RUN22=Yes
Run33=yes
WrkFloatRegAddr=1
WrkFloatRegType=FX
WrkIntLongRegAddr=1
WrkIntLongRegType=LX
WrkAnalogRegAddr=1
WrkAnalogRegType=AX
[AGA3]
StandardT=61.5
StandardP=14.73
FlowingViscosity=0.010268
IsentropicCoeff=1.3
Compressible=No
PressType=Gage
ExtAtmPress=No
AtmPress=14.5
CommonPaKDIOTag=
CommonPaKDIOType=
CommonPaKDIORegAddr=
[AGA7]
; left behind
StandardT=1
[AGA8]
AGA8Method=DETAIL
AGA8CalInput=FIXED
[Run1]
StandardT=61.5
FlowAlgorithm=AGA3
GasDPKDIOTag=DP-1
StandardP=14.73
FlowingViscosity=0.010268
Compressible=Yes
IsentropicCoeff=1.3
SystemUnits=US
PressType=Gage
ExtAtmPress=No
AtmPress=14.5
PaKDIOTag=
PaKDIOType=
PaKDIORegAddr=

; end of run 1
[run2]
CalibrationFactor=1.0
StandardT=61.5
StandardP=14.73
FlowingViscosity=0.010268
Compressible=Yes
IsentropicCoeff=1.3
SystemUnits=US
PressType=Gage
ExtAtmPress=No
AtmPress=14.5
PaKDIOTag=
PaKDIOType=
PaKDIORegAddr=
[Run3]
CalibrationFactor=1.1
)";

TEST(ConfiguradorInPlace, changes_its_keys_and_no_other_byte) {
    ConfiguradorWorld world(Lines(handEdited));
    world.TheStory.Menu(Configurator, "PG")
        .SelectTab(Configurator, "SSTab2", 1)
        .SeeText(Configurator, "Text1_1", "60.00")
        .Type(Configurator, "Text1_1", "61.5");
    world.ThenSave("SalvarSalir2");
    world.Show();
    EXPECT_EQ(world.File(), Lines(handEditedSaved));
    EXPECT_EQ(world.Files.Replaces, 1);
    EXPECT_TRUE(world.Session.TreeRefreshNeeded);
    EXPECT_EQ(world.Station.CurrentStation, "");
    EXPECT_EQ(world.Session.Modules.NFX, 0);
}

const std::string unboundPressure = "PaKDIOTag=\nPaKDIOType=\nPaKDIORegAddr=\n";

class ConfiguradorUntouched : public testing::TestWithParam<const char*> {};

// But for a key's other form, and for the keys of the atmospheric pressure, which come into the runs in use
// or not.
TEST_P(ConfiguradorUntouched, is_saved_as_it_was) {
    ConfiguradorWorld world(WizardFile(GetParam()));
    world.TheStory.Menu(Configurator, "PG");
    world.ThenSave("SalvarSalir2");
    world.Show();
    std::string expected = With(WizardFile(GetParam()), "WrkAnalogModName", "WrkAnalogModNAme");
    if (!Holds(expected, "\nPaKDIOTag"))
        expected = With(expected, "[Run5]\n", unboundPressure + "[Run5]\n") + Lines(unboundPressure);
    EXPECT_EQ(world.File(), expected);
}

INSTANTIATE_TEST_SUITE_P(Files, ConfiguradorUntouched,
                         testing::Values("aga3_densimeter", "aga3_densimeter_external",
                                         "aga7_iso3_fixed_external", "aga7_iso2_outside",
                                         "accelabar_iso2_fixed", "gbt_aga8_outside"),
                         byText);

TEST(ConfiguradorInPlace, keeps_the_gas_values_of_aga7_that_it_does_not_show) {
    ConfiguradorWorld world(
        With(WizardFile("aga7_densimeter"), "FlowingViscosity=0.010268", "FlowingViscosity=0.02"));
    world.TheStory.Menu(Configurator, "PG");
    world.ThenSave("SalvarSalir2");
    world.Show();
    EXPECT_FALSE(Holds(world.File(), "FlowingViscosity=\n"));
    EXPECT_TRUE(Holds(world.File(), "[AGA7]\nStandardT=60.00\nStandardP=14.73\nFlowingViscosity=0.02\n"
                                    "IsentropicCoeff=1.3\n"));
}

TEST(ConfiguradorInPlace, takes_every_common_value) {
    ConfiguradorWorld world(WizardFile("aga3_densimeter"));
    world.TheStory.Menu(Configurator, "PG")
        .Select(Configurator, "CombUnits", 3)
        .Box("System Units change...", "", ui::Icon::Information)
        .SelectTab(Configurator, "SSTab2", 1)
        .Type(Configurator, "Text1_1", "59")
        .Type(Configurator, "Text2_1", "1.01")
        .Type(Configurator, "Text3_1", "1.31")
        .Type(Configurator, "Text4_1", "0.011")
        .Click(Configurator, "OptNoComprensible")
        .Click(Configurator, "OptGagePress")
        .Type(Configurator, "txtAtmPress", "1.02")
        .Click(Configurator, "Check1")
        .Type(Configurator, "Text8", "/tmp/t")
        .Type(Configurator, "Text9", "9");
    world.ThenSave("SalvarSalir2");
    world.Show();
    const auto& file = world.File();
    for (const char* part :
         {"EnableDataTraces=Yes\nDeviceDataTraces=/tmp/t\nNumberTraces=9\n",
          "GasDensityStandardT=59\nGasDensityStandardP=1.01\nSystemUnits=Metric-degF\n",
          "[AGA3]\nStandardT=59\nStandardP=1.01\nFlowingViscosity=0.011\nIsentropicCoeff=1.31\n"
          "Compressible=No\nPressType=Gage\nExtAtmPress=No\nAtmPress=1.02\n",
          "[Run2]\nSystemUnits=Metric-degF\nFlowAlgorithm=AGA3\nGasDensitySource=MEASURED\nStandardT=59\n"
          "StandardP=1.01\nCompressible=Yes\nFlowingViscosity=0.011\nIsentropicCoeff=1.31\n"})
        EXPECT_TRUE(Holds(file, part)) << part;
}

// Which only a program's hand can do here, since the list is closed to a person.
TEST(ConfiguradorInPlace, another_standard_leaves_the_bindings_as_they_are) {
    ConfiguradorWorld world(WizardFile("aga3_densimeter"));
    world.Form().general.CombStandard.SetListIndex(1);
    world.TheStory.Menu(Configurator, "PG");
    world.ThenSave("SalvarSalir2");
    world.Show();
    const auto& file = world.File();
    EXPECT_TRUE(Holds(file, "Run5=Yes\nFlowAlgorithm=AGA7\n"));
    EXPECT_TRUE(Holds(file, "[Run2]\nSystemUnits=US\nFlowAlgorithm=AGA3\n"));
    EXPECT_TRUE(Holds(file, "GasDPKDIOTag="));
    EXPECT_TRUE(Holds(file, "\n[AGA3]\n"));
    EXPECT_TRUE(Holds(file, "\n[AGA7]\n"));
}

TEST(ConfiguradorInPlace, answered_no_leaves_without_a_word_in_the_file) {
    ConfiguradorWorld world(WizardFile("aga3_densimeter"));
    const std::string before = world.File();
    world.TheStory.Menu(Configurator, "PG")
        .SelectTab(Configurator, "SSTab2", 1)
        .Type(Configurator, "Text1_1", "61");
    world.ThenSave("SalvarSalir2", ui::Answer::No);
    world.Show();
    EXPECT_EQ(world.File(), before);
    EXPECT_TRUE(world.Session.TreeRefreshNeeded);
    EXPECT_EQ(world.Station.CurrentStation, "");
}

} // namespace
} // namespace gfc::test
