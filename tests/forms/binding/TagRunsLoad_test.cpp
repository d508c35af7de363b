#include "TagRunsWorld.h"

using namespace gfc;
using namespace gfc::test;
using forms::TagRuns;
using enum binding::BindingStage;
using binding::BindingStage;
namespace algorithm = config::algorithm;
namespace source = config::source;
namespace node = binding::node;

namespace {

std::string CaptionOf(std::string_view standard, std::string_view density, BindingStage stage) {
    TagRunsWorld world(standard, density);
    std::string caption;
    world.Look(stage, [&caption](TagRuns& form) { caption = form.Caption(); });
    return caption;
}

bool IsSource(TagRunsWorld& world, BindingStage stage, const std::vector<bool>& expected) {
    bool enabled = false;
    world.Look(stage, [&](TagRuns& form) {
        enabled = form.CopyGasCompButton.Enabled();
        for (int run = 0; run < 5; ++run)
            EXPECT_EQ(form.Option1[run].Visible(), expected[static_cast<std::size_t>(run)])
                << "run " << run + 1;
    });
    return enabled;
}

} // namespace

TEST(TagRunsLoad, names_stage_standard_and_run_in_its_caption) {
    EXPECT_EQ(CaptionOf(algorithm::AGA3, source::AGA8, RunInputs),
              "Configuring the AGA-3 Input Tags for Run 2");
    EXPECT_EQ(CaptionOf(algorithm::Accelabar, source::AGA8, RunInputs),
              "Configuring the AGA-3 Input Tags for Run 2");
    EXPECT_EQ(CaptionOf(algorithm::AGA7, source::AGA8, RunInputs),
              "Configuring the AGA-7 Input Tags for Run 2");
    EXPECT_EQ(CaptionOf(algorithm::SYT6143, source::AGA8, RunInputs),
              "Configuring the SYT6143-2004 Input Tags for Run 2");
    for (const auto standard : {algorithm::AGA3, algorithm::AGA7, algorithm::Accelabar})
        EXPECT_EQ(CaptionOf(standard, source::AGA8, RunOutputs),
                  "Configuring the Output Tags AGA 3 for Run 2");
    EXPECT_EQ(CaptionOf(algorithm::SYT6143, source::AGA8, RunOutputs),
              "Configuring the Output Tags SYT6143-2004 for Run 2");
    for (const auto detail : {source::AGA8, source::ISO12213_2}) {
        EXPECT_EQ(CaptionOf(algorithm::AGA3, detail, GasOutputs),
                  "Configuring the Output Tags AGA 8/ISO-12213-2-1997 for Run 2");
        EXPECT_EQ(CaptionOf(algorithm::AGA3, detail, GasInputs),
                  "Configuring the AGA-8/ISO-12213-2-1997 Gas Composition Input Tags for Run 2");
    }
    for (const auto gross : {source::SGERG88, source::ISO12213_3}) {
        EXPECT_EQ(CaptionOf(algorithm::AGA7, gross, GasOutputs),
                  "Configuring the Output Tags SGERG 88/ISO-12213-3-1997 for Run 2");
        EXPECT_EQ(CaptionOf(algorithm::AGA7, gross, GasInputs),
                  "Configuring the SGERG-88/ISO-12213-3-1997 Gas Properties Input Tags for Run 2");
    }
    EXPECT_EQ(CaptionOf(algorithm::AGA3, source::AGA8, CommonInputs),
              "Configuring input I/O assignments common to all Runs...");
}

TEST(TagRunsLoad, can_be_left_by_its_own_buttons_only) {
    TagRunsWorld world;
    world.Look(RunInputs, [](TagRuns& form) { EXPECT_FALSE(form.HasCloseCommand()); });
}

TEST(TagRunsLoad, builds_seven_nodes_per_variable_behind_the_root) {
    TagRunsWorld world;
    world.Station.Runs.IO[0].GasPress = TagRunsWorld::Bound("PT-1", "FY", "77");
    world.Look(RunInputs, [](TagRuns& form) {
        const auto& tree = form.TreeAGA;
        ASSERT_EQ(tree.Count(), 1 + 7 * 6);
        EXPECT_EQ(tree.At(1).Text, "AGA 3 Inputs");
        EXPECT_EQ(tree.At(1).Image, "Principal");
        EXPECT_TRUE(tree.At(1).Expanded);
        const struct {
            int Node, Parent;
            const char *Key, *Text, *Image;
        } expected[] = {{9, 1, "Pressure", "Pressure", "Config"},
                        {10, 9, "AddrPressure", "Addr", "Tag"},
                        {11, 9, "TypePressure", "Type", "Tag"},
                        {12, 9, "NamePressure", "Name", "Tag"},
                        {13, 10, "AddrValPressure", "77", "Tag2"},
                        {14, 11, "TypeValPressure", "FY", "Tag2"},
                        {15, 12, "NameValPressure", "PT-1", "Tag2"},
                        {16, 1, "Differential Pressure", "Differential Pressure", "NoConfig"},
                        {20, 17, "AddrValDifferential Pressure", "Not Configured", "Tag2"}};
        for (const auto& [at, parent, key, text, image] : expected) {
            EXPECT_EQ(tree.At(at).Parent, parent) << at;
            EXPECT_EQ(tree.At(at).Key, key);
            EXPECT_EQ(tree.At(at).Text, text);
            EXPECT_EQ(tree.At(at).Image, image);
        }
    });
}

TEST(TagRunsLoad, takes_a_binding_without_an_address_for_none) {
    TagRunsWorld world;
    world.Station.Runs.IO[0].GasTemp = TagRunsWorld::Bound("TT-1", "FX", "");
    world.SeeUnbound(0);
    world.LeaveByCancel();
    world.Show(RunInputs);
}

TEST(TagRunsLoad, shows_the_run_at_its_position) {
    TagRunsWorld world;
    world.Station.Runs.IO[1].GasTemp = TagRunsWorld::Bound("TT-4", "FX", "44");
    world.SeeBound(0, "TT-4 FX 44");
    world.TheStory.SeeCaption("TagRuns", "Configuring the AGA-3 Input Tags for Run 4");
    world.LeaveByCancel();
    world.Show(RunInputs, 1, 3);
}

TEST(TagRunsLoad, of_run_inputs_offers_floats_and_digitals_and_shows_factor_and_time) {
    TagRunsWorld world;
    world.Look(RunInputs, [](TagRuns& form) {
        EXPECT_EQ(form.ListViewRuns.Columns()[0].Heading, "Nº (Float)");
        EXPECT_EQ(form.ListViewRuns.Columns()[1].Heading, "Tag Name");
        EXPECT_EQ(form.ListViewRuns.Columns()[2].Heading, "Tag Type");
        EXPECT_EQ(form.ListViewRuns.Columns()[3].Heading, "Register Num.");
        EXPECT_EQ(form.ListAnalogDig.Columns()[0].Heading, "Nº (Digital)");
        EXPECT_EQ(form.ListViewRuns.Count(), 40);
        EXPECT_EQ(form.ListAnalogDig.Count(), 12);
        for (const ui::Control* shown : std::initializer_list<const ui::Control*>{
                 &form.ListAnalogDig, &form.Label2, &form.Text1, &form.ListHour, &form.OptionLocal,
                 &form.OptionGMT, &form.Command3, &form.Command6})
            EXPECT_TRUE(shown->Shown()) << shown->Name();
        for (const ui::Control* hidden :
             std::initializer_list<const ui::Control*>{&form.ListLong, &form.kfactor, &form.lbkfactor,
                                                       &form.ukfactor, &form.Frphostd, &form.FrameCopy})
            EXPECT_FALSE(hidden->Shown()) << hidden->Name();
        EXPECT_EQ(form.Frame1.Caption(), "Flow Factors");
        EXPECT_EQ(form.Text1.Text(), "1.0");
        EXPECT_TRUE(form.Command1.Enabled());
        EXPECT_TRUE(form.Command4.Enabled());
    });
}

TEST(TagRunsLoad, of_AGA7_inputs_offers_longs_and_shows_the_meter_factor) {
    TagRunsWorld world(algorithm::AGA7, source::Measured);
    world.Look(RunInputs, [](TagRuns& form) {
        EXPECT_TRUE(form.ListLong.Shown());
        EXPECT_EQ(form.ListLong.Columns()[0].Heading, "Nº (Long)");
        EXPECT_EQ(form.ListLong.Count(), 5);
        for (const ui::Control* shown : std::initializer_list<const ui::Control*>{
                 &form.kfactor, &form.lbkfactor, &form.ukfactor, &form.Frphostd, &form.phostd})
            EXPECT_TRUE(shown->Shown()) << shown->Name();
        EXPECT_EQ(form.Frame1.Caption(), "Inputs");
        EXPECT_EQ(form.kfactor.Text(), "1.0");
        EXPECT_EQ(form.phostd.Text(), "");
    });
}

TEST(TagRunsLoad, of_outputs_offers_analogs_and_shows_no_field) {
    for (const auto stage : {RunOutputs, GasOutputs}) {
        TagRunsWorld world(algorithm::AGA7, source::SGERG88);
        world.Look(stage, [](TagRuns& form) {
            EXPECT_EQ(form.ListAnalogDig.Columns()[0].Heading, "Nº (Analog)");
            EXPECT_EQ(form.ListAnalogDig.Count(), 6);
            for (const ui::Control* hidden : std::initializer_list<const ui::Control*>{
                     &form.ListLong, &form.Frame1, &form.Frame2, &form.Frphostd, &form.FrameCopy})
                EXPECT_FALSE(hidden->Visible()) << hidden->Name();
        });
    }
}

TEST(TagRunsLoad, of_gas_inputs_lets_tags_be_bound_automatically_or_copied_only) {
    TagRunsWorld world;
    world.Look(GasInputs, [](TagRuns& form) {
        EXPECT_EQ(form.ListAnalogDig.Columns()[0].Heading, "Nº (Digital)");
        EXPECT_EQ(form.ListAnalogDig.Count(), 12);
        EXPECT_TRUE(form.FrameCopy.Visible());
        EXPECT_FALSE(form.Command1.Enabled());
        EXPECT_FALSE(form.Command4.Enabled());
        EXPECT_TRUE(form.Command6.Shown());
        EXPECT_FALSE(form.Frame1.Visible());
        EXPECT_EQ(form.TreeAGA.Count(), 155);
    });
    // Only for that showing.
    world.Look(RunOutputs, [](TagRuns& form) {
        EXPECT_TRUE(form.Command1.Enabled());
        EXPECT_TRUE(form.Command4.Enabled());
    });
}

TEST(TagRunsLoad, of_common_inputs_has_one_variable_and_nothing_for_many) {
    TagRunsWorld world;
    world.Station.ExtAtmPress = config::Yes;
    world.Look(CommonInputs, [](TagRuns& form) {
        EXPECT_FALSE(form.ListAnalogDig.Visible());
        EXPECT_EQ(form.ListAnalogDig.Count(), 0);
        EXPECT_FALSE(form.Command3.Visible());
        EXPECT_FALSE(form.Command6.Visible());
        EXPECT_EQ(form.TreeAGA.Count(), 8);
        EXPECT_EQ(form.TreeAGA.At(1).Text, "Common Inputs");
        EXPECT_EQ(form.TreeAGA.At(2).Text, "Atmospheric Pressure");
    });
}

TEST(TagRunsLoad, numbers_the_rows_with_room_for_a_sign_and_two_blanks) {
    TagRunsWorld world;
    world.SeeRow("ListViewRuns", 1, {" 1  ", "F1", "FX", "1001"});
    world.SeeRow("ListViewRuns", 40, {" 40  ", "F40", "FX", "1040"});
    world.LeaveByCancel();
    world.Show(RunInputs);
}

TEST(TagRunsLoad, gives_a_tag_of_no_class_a_row_with_a_number_only) {
    TagRunsWorld world;
    world.Session.Inventory.AvailFloat[1].RegType = "Not Configured";
    world.Session.Inventory.AvailFloat[2].RegType = "fy";
    world.SeeRow("ListViewRuns", 2, {" 2  ", "", "", ""});
    world.SeeRow("ListViewRuns", 3, {" 3  ", "F3", "fy", "1003"});
    world.LeaveByCancel();
    world.Show(RunInputs);
}

TEST(TagRunsLoad, shows_the_factors_that_the_run_has) {
    TagRunsWorld world(algorithm::AGA7, source::Measured);
    auto& io = world.Station.Runs.IO[0];
    io.CalibrationFactor = "1.02";
    io.meterKFactor = "57";
    io.GasDensityStandard = "0.71";
    world.Look(RunInputs, [](TagRuns& form) {
        EXPECT_EQ(form.Text1.Text(), "1.02");
        EXPECT_EQ(form.kfactor.Text(), "57");
        EXPECT_EQ(form.phostd.Text(), "0.71");
    });
}

TEST(TagRunsLoad, names_the_units_of_density_and_meter_factor) {
    for (const auto system : {config::units::US, config::units::USdegC, config::units::Metric,
                              config::units::MetricDegF, config::units::PracticalSI}) {
        TagRunsWorld world(algorithm::AGA7, source::Measured);
        world.Station.SystemUnits = system;
        const bool us = system == config::units::US || system == config::units::USdegC;
        world.Look(RunInputs, [us](TagRuns& form) {
            EXPECT_EQ(form.uphostd.Caption(), us ? "lbm/ft^3" : "kg/m^3");
            EXPECT_EQ(form.ukfactor.Caption(), us ? "pulses/ft^3" : "pulses/m^3");
        });
    }
}

TEST(TagRunsLoad, shows_the_present_local_time_for_a_run_without_one) {
    TagRunsWorld world;
    world.TimeZone.Current = 300;
    world.Clock.Now = 45000.0 + 14.0 / 24 + 37.0 / 1440;
    world.TheStory.SeeText("TagRuns", "ListHour", "14")
        .SeeText("TagRuns", "ListMinx10", "3")
        .SeeText("TagRuns", "ListMinx1", "7")
        .SeeChecked("TagRuns", "OptionLocal")
        .SeeChecked("TagRuns", "OptionGMT", false);
    world.LeaveByCancel();
    world.Show(RunInputs);
}

TEST(TagRunsLoad, shows_a_stored_time_in_local_time) {
    TagRunsWorld world;
    world.TimeZone.Current = -120;
    world.Station.Runs.IO[0].ContractHour = "21";
    world.Station.Runs.IO[0].ContractMin = "30";
    world.TheStory.SeeText("TagRuns", "ListHour", "23")
        .SeeText("TagRuns", "ListMinx10", "3")
        .SeeText("TagRuns", "ListMinx1", "0")
        .SeeChecked("TagRuns", "OptionLocal");
    world.LeaveByCancel();
    world.Show(RunInputs);
}

TEST(TagRunsLoad, lists_hours_tens_and_ones) {
    TagRunsWorld world;
    world.Look(RunInputs, [](TagRuns& form) {
        EXPECT_EQ(form.ListHour.Entries().size(), 24U);
        EXPECT_EQ(form.ListHour.Entries().back(), "23");
        EXPECT_EQ(form.ListMinx10.Entries().back(), "5");
        EXPECT_EQ(form.ListMinx1.Entries().back(), "9");
    });
}

TEST(TagRunsLoad, lets_digits_points_and_backspace_into_its_fields) {
    TagRunsWorld world(algorithm::AGA7, source::Measured);
    world.TheStory.Type("TagRuns", "Text1", "1a.0-2.3")
        .SeeText("TagRuns", "Text1", "1.02.3")
        .Type("TagRuns", "kfactor", "5,7 ")
        .SeeText("TagRuns", "kfactor", "5.7")
        .Type("TagRuns", "phostd", "0.7x1\b")
        .SeeText("TagRuns", "phostd", "0.7");
    world.LeaveByCancel();
    world.Show(RunInputs);
}

TEST(TagRunsLoad, opens_help_at_the_number_of_its_root) {
    const struct {
        std::string_view Algorithm, Source;
        BindingStage Stage;
        int Context;
    } pages[] = {{algorithm::AGA3, source::AGA8, RunInputs, 6000},
                 {algorithm::SYT6143, source::AGA8, RunOutputs, 6100},
                 {algorithm::AGA7, source::AGA8, RunInputs, 7000},
                 {algorithm::AGA7, source::AGA8, RunOutputs, 7100},
                 {algorithm::AGA7, source::AGA8, GasInputs, 5000},
                 {algorithm::AGA7, source::SGERG88, GasInputs, 7600},
                 {algorithm::AGA7, source::SGERG88, GasOutputs, 6200},
                 {algorithm::AGA7, source::SGERG88, CommonInputs, 0}};
    for (const auto& page : pages) {
        TagRunsWorld world(page.Algorithm, page.Source);
        world.TheStory.Click("TagRuns", "Command7").PressKey("TagRuns", "F1");
        world.LeaveByCancel();
        world.Show(page.Stage);
        const std::pair<std::string, int> opened{"AGA.chm", page.Context};
        EXPECT_EQ(world.Screen.HelpOpened, (std::vector{opened, opened}));
    }
}

TEST(TagRunsCopySources, in_the_wizard_are_the_other_active_runs_with_their_gas_bound) {
    for (const auto mode : {forms::EditMode::Wizard, forms::EditMode::Configurator}) {
        TagRunsWorld world;
        world.Session.EditMode = mode;
        world.ActivateRuns({1, 2, 4, 5});
        auto& gas = world.Station.Runs.Gas;
        gas[0][config::GasSlot::GC_C1].RegAddr = "1";
        gas[1][config::GasSlot::GC_C1].RegAddr = "2"; // the run itself
        gas[3][config::GasSlot::GC_C1].RegAddr = "5";
        gas[2][config::GasSlot::GC_C1].Tag = "name alone";
        EXPECT_TRUE(IsSource(world, GasInputs, {true, false, false, false, true}));
    }
}

TEST(TagRunsCopySources, go_by_the_calorific_value_in_the_gross_family) {
    for (const auto density : {source::SGERG88, source::ISO12213_3}) {
        TagRunsWorld world(algorithm::AGA3, density);
        world.Station.Runs.Gas[1][config::GasSlot::GC_C1].RegAddr = "1";
        EXPECT_FALSE(IsSource(world, GasInputs, {false, false, false, false, false}));
        world.Station.Runs.Gas[1][config::GasSlot::VolCalorificValue].RegAddr = "1";
        EXPECT_TRUE(IsSource(world, GasInputs, {false, false, false, true, false}));
    }
}

TEST(TagRunsCopySources, count_in_any_case) {
    TagRunsWorld world;
    world.Station.RunList[3].Flag = "yes";
    world.Station.Runs.Gas[1][config::GasSlot::GC_C1].RegAddr = "1";
    EXPECT_TRUE(IsSource(world, GasInputs, {false, false, false, true, false}));
    world.Session.EditMode = forms::EditMode::ModifyTags;
    world.Files.Content[world.ConfigFile("North")] = "[FlowRuns]\r\nRun1=yes\r\nRun3=YES\r\nRun5=no\r\n";
    EXPECT_TRUE(IsSource(world, GasInputs, {true, false, true, false, false}));
}

TEST(TagRunsCopySources, elsewhere_are_the_other_runs_enabled_in_the_file) {
    for (const auto mode : {forms::EditMode::ModifyTags, forms::EditMode::None}) {
        TagRunsWorld world;
        world.Session.EditMode = mode;
        world.Files.Content[world.ConfigFile("North")] =
            "[FlowRuns]\r\nRun1=Yes\r\nRun2=Yes\r\nRun3=No\r\nRun5=Yes\r\n";
        EXPECT_TRUE(IsSource(world, GasInputs, {true, false, false, false, true}));
    }
}

TEST(TagRunsCopySources, are_none_without_a_file_or_other_runs) {
    TagRunsWorld world;
    world.Session.EditMode = forms::EditMode::ModifyTags;
    EXPECT_FALSE(IsSource(world, GasInputs, {false, false, false, false, false}));
}
