#include "forms/editors/FrParMecWorld.h"
#include "support/Named.h"

namespace gfc::forms {

using namespace parmec;

TEST_F(FrParMecForm, shows_defaults_for_an_empty_record) {
    SeeTexts({{"cbMatOrif", "SS - Stainless Steel"}, {"cbMatPipe", "CS - Carbon Steel"}});
    for (const auto* option : {"OptFlange", "OptUp", "OptFixed"})
        Story.SeeChecked(form, option);
    for (const auto* off : {"txtPipeThermal", "txtOrificeThermal", "OptDown", "Option1_0", "Option1_4"})
        Story.SeeEnabled(form, off, false);
    ShowAndAccept();
    EXPECT_EQ(Record.OrificeMaterial, "SS");
    EXPECT_EQ(Record.PipeMaterial, "CS");
    EXPECT_EQ(Record.PressureTap, "Flange");
    EXPECT_EQ(Record.PressureTapPos, "Up");
    EXPECT_EQ(Record.ExtMechParam, "No");
    EXPECT_EQ(Record.PipeThermalExpCoeff, "");
    EXPECT_FALSE(World.Session.Cancelled);
}

struct SystemRow {
    std::string System, Length, Temperature, Expansion;
    std::string OrificeAtLoad, PipeAtLoad, Orifice, Pipe, RefTemp;

    friend void PrintTo(const SystemRow& the, std::ostream* out) { *out << the.System; }
};

struct FrParMecUnits : FrParMecForm, testing::WithParamInterface<SystemRow> {};

TEST_P(FrParMecUnits, give_captions_defaults_at_load_and_defaults_by_the_button) {
    const auto& row = GetParam();
    World.Station.SystemUnits = row.System;
    SeeTexts({{"Label14", row.Length},
              {"Label13", row.Length},
              {"Label17", row.Temperature},
              {"Label20", row.Temperature},
              {"Label2", row.Expansion},
              {"Label3", row.Expansion},
              {"txtDiaOrif", row.OrificeAtLoad},
              {"txtDiaPipe", row.PipeAtLoad},
              {"txtTempRefOrif", row.RefTemp},
              {"txtTempRefPipe", row.RefTemp}});
    Story.Click(form, "cmdDefaultValue");
    SeeTexts({{"txtDiaOrif", row.Orifice},
              {"txtDiaPipe", row.Pipe},
              {"txtTempRefOrif", row.RefTemp},
              {"txtTempRefPipe", row.RefTemp}});
    ShowAndAccept();
    EXPECT_EQ(Record.OrificeDia, row.Orifice);
    EXPECT_EQ(Record.InternalPipeDia, row.Pipe);
    EXPECT_EQ(Record.OrificeDiaRefTemp, row.RefTemp);
    EXPECT_EQ(Record.InternalPipeDiaRefTemp, row.RefTemp);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Systems, FrParMecUnits, testing::Values(
    SystemRow{"US", "in", "ºF", "in/in ºF", "0.57811", "2.90039", "0.57811", "2.90039", "68.00"},
    SystemRow{"US-degC", "in", "ºC", "in/in ºF", "0.57811", "2.90039", "0.57811", "2.90039", "20.00"},
    SystemRow{"Metric", "mm", "ºC", "mm/mm ºC", "193.675", "363.513", "193.675", "363.513", "20.00"},
    SystemRow{"Metric-degF", "mm", "ºF", "mm/mm ºC", "193.675", "363.513", "193.675", "363.513", "68.00"},
    SystemRow{"Practical-SI", "mm", "ºC", "mm/mm ºC", "193.675", "363.513", "0.193675", "0.363513", "20.00"}),
    test::By(&SystemRow::System));
// clang-format on

TEST_F(FrParMecForm, takes_an_unknown_unit_system_for_practical_SI) {
    World.Station.SystemUnits = "Imperial";
    SeeTexts({{"Label14", "mm"}, {"Label17", "ºC"}, {"txtDiaPipe", "363.513"}});
    Story.Click(form, "cmdDefaultValue").SeeText(form, "txtDiaPipe", "0.363513");
    ShowAndAccept();
}

TEST_F(FrParMecForm, shows_defaults_for_the_empty_fields_of_a_record_alone) {
    Record.OrificeDia = "1.5";
    Record.InternalPipeDiaRefTemp = "70";
    SeeTexts({{"txtDiaOrif", "1.5"},
              {"txtDiaPipe", "2.90039"},
              {"txtTempRefPipe", "70"},
              {"txtTempRefOrif", "68.00"}});
    ShowAndAccept();
}

TEST_F(FrParMecForm, goes_back_to_defaults_by_the_button) {
    Record = FullRecord();
    Record.PipeMaterial = "Other";
    Story.SeeEnabled(form, "txtPipeThermal").SeeEnabled(form, "txtDiaPipe", false);
    Story.Click(form, "cmdDefaultValue");
    SeeTexts({{"txtDiaPipe", "2.90039"},
              {"txtDiaOrif", "0.57811"},
              {"txtTempRefPipe", "68.00"},
              {"txtTempRefOrif", "68.00"},
              {"cbMatPipe", "CS - Carbon Steel"},
              {"cbMatOrif", "SS - Stainless Steel"},
              {"txtPipeThermal", "0.00002"}});
    for (const auto* option : {"OptFlange", "OptUp", "OptFixed"})
        Story.SeeChecked(form, option);
    for (const auto* on : {"txtDiaPipe", "txtDiaOrif", "txtTempRefPipe", "txtTempRefOrif", "cbMatPipe",
                           "cbMatOrif", "Label9", "Label8", "Label14", "Label13"})
        Story.SeeEnabled(form, on);
    Story.SeeEnabled(form, "txtPipeThermal", false).SeeEnabled(form, "txtOrificeThermal", false);
    ShowAndAccept();
    EXPECT_EQ(Record.ExtMechParam, "No");
}

} // namespace gfc::forms
