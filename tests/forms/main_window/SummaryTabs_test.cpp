#include "forms/main_window/GFCPrincipal.h"
#include "support/TestFolders.h"
#include "support/World.h"

#include <gtest/gtest.h>

namespace gfc::test {

namespace {

using Names = std::vector<std::string>;
using forms::GFCPrincipal;

const std::string window = "GFCPrincipal";
const std::string common = "All Stations\\North\\Common Parameters";
const std::string runNode = "All Stations\\North\\Individual Parameters\\Run ";

// The main window over station North, which has the file of that name of tests/golden/config: runs 2 and 5
// are enabled, and every text of it is one of its own.
struct SummaryTabs : testing::Test, World {
    SummaryTabs() {
        // Two hours ahead of GMT, three with the daylight part that is in force.
        TimeZone.Bias = -120;
        TimeZone.Current = -180;
        AddStation("North", {});
        AddStation("South", {});
    }

    void Configure(const std::string& golden) {
        File() = Golden("config/" + golden + ".ini");
        ASSERT_FALSE(File().empty()) << golden;
    }
    std::string& File() { return Files.Content["/jobs/KDOrmAGA_plant_North.ini"]; }
    void Replace(const std::string& from, const std::string& to) {
        const auto at = File().find(from);
        ASSERT_NE(at, std::string::npos) << from;
        File().replace(at, from.size(), to);
    }

    GFCPrincipal& Window() { return Program.Forms.Get<GFCPrincipal>(); }
    void Play() {
        Window().Show();
        Screen.RunToEnd();
    }
    // Plays the way to a node and one of the pane's pages.
    void ShowCommonPage(int tab) { ShowPage(common, "SSTab1", tab); }
    void ShowRunPage(int run, int tab) { ShowPage(runNode + std::to_string(run), "SSTab2", tab); }
    void ShowPage(const std::string& node, const std::string& pane, int tab) {
        TheStory.ClickNode(window, "TreeGFC", node);
        if (tab > 0)
            TheStory.SelectTab(window, pane, tab);
        Play();
    }

    // One of the three shows, or none; what is hidden is empty, and the line shows where no list does.
    void ExpectShown(const ui::ListView* shown, const std::string& line = {}) {
        for (const ui::ListView* list : std::initializer_list<const ui::ListView*>{
                 &Window().ListView1, &Window().ListView2, &Window().ListView3}) {
            EXPECT_EQ(list->Shown(), list == shown) << list->Name();
            if (list == shown)
                continue;
            EXPECT_EQ(list->Count(), 0) << list->Name();
            EXPECT_TRUE(list->Columns().empty()) << list->Name();
        }
        EXPECT_EQ(Window().Label1.Shown(), shown == nullptr);
        EXPECT_EQ(Window().Label1.Caption(), line);
    }
    static Names Headings(const ui::ListView& list) {
        Names headings;
        for (const auto& column : list.Columns())
            headings.push_back(column.Heading);
        return headings;
    }
    static std::string ValueOf(const ui::ListView& list, const std::string& caption) {
        for (int row = 1; row <= list.Count(); ++row)
            if (list.Cell(row, 1) == caption)
                return list.Cell(row, 2);
        return "(no such row)";
    }
    Names RunCaptions() {
        Names captions;
        for (int tab = 0; tab < Window().SSTab2.Tabs(); ++tab)
            captions.push_back(Window().SSTab2.TabCaption(tab));
        return captions;
    }
};

TEST_F(SummaryTabs, common_node_shows_the_parameters_and_those_of_the_enabled_runs) {
    Configure("aga7_densimeter");
    ShowCommonPage(0);
    const auto& list = Window().ListView1;
    ExpectShown(&list);
    EXPECT_EQ(Headings(list), (Names{"N\u00B0", "Parameters", "Data"}));
    ASSERT_EQ(list.Count(), 26);
    EXPECT_EQ(list.At(1), (Names{"1", "Project Name", "plant"}));
    EXPECT_EQ(list.At(2), (Names{"2", "Orm Station", "North"}));
    EXPECT_EQ(list.At(19), (Names{"17", "Calibration Factor (Run2)", "1.02"}));
    EXPECT_EQ(list.At(20), (Names{"18", "Contract Time (Run2)(Local 24-hr)", "05:20"}));
    EXPECT_EQ(list.At(21), (Names{"19", "Meter K-Factor (Run2)", "2.02 pulses/m^3"}));
    EXPECT_EQ(list.At(22), (Names{"20", "Density @ Std. Cond. (Run2)", "0.72 kg/m^3"}));
    EXPECT_EQ(list.At(23), (Names{"21", "Calibration Factor (Run5)", "1.05"}));
    EXPECT_EQ(list.At(24), (Names{"22", "Contract Time (Run5)(Local 24-hr)", "08:50"}));
    EXPECT_EQ(list.At(25), (Names{"23", "Meter K-Factor (Run5)", "2.05 pulses/m^3"}));
    EXPECT_EQ(list.At(26), (Names{"24", "Density @ Std. Cond. (Run5)", "0.75 kg/m^3"}));
}

// Whatever is selected in the tree meanwhile.
TEST_F(SummaryTabs, read_the_file_of_the_station_that_they_show_and_name_it) {
    Configure("aga7_densimeter");
    Files.Content["/jobs/KDOrmAGA_plant_South.ini"] = Golden("config/aga3_detail_fixed.ini");
    const auto see = [this](const std::string& bar) {
        TheStory.Check([this, bar](Driver&) {
            EXPECT_EQ(Window().StatusBar1.PanelText(1), bar);
            EXPECT_EQ(Session.Station.CurrentStation, "South");
        });
    };
    TheStory.ClickNode(window, "TreeGFC", common)
        .ClickNode(window, "TreeGFC", "All Stations\\South\\Individual Parameters")
        .SelectTab(window, "SSTab1", 1)
        .SelectTab(window, "SSTab1", 0);
    see("Common Parameters (North)");
    TheStory
        .Check([this](Driver&) {
            EXPECT_EQ(ValueOf(Window().ListView1, "Orm Station"), "North");
            EXPECT_EQ(ValueOf(Window().ListView1, "Algorithm"), "AGA7");
            EXPECT_EQ(ValueOf(Window().ListView1, "Meter K-Factor (Run2)"), "2.02 pulses/m^3");
        })
        .ClickNode(window, "TreeGFC", runNode + "5")
        .ClickNode(window, "TreeGFC", "All Stations\\South\\Individual Parameters")
        .SelectTab(window, "SSTab2", 1);
    see("Individual Parameters (North) : Run 5");
    TheStory.Check([this](Driver&) { EXPECT_EQ(RunCaptions()[1], "AGA-7 Output Tags"); });
    Play();
}

TEST_F(SummaryTabs, leaves_out_a_run_that_is_not_enabled_by_exactly_yes) {
    Configure("aga3_detail_fixed");
    Replace("Run2=Yes", "Run2=yes");
    ShowCommonPage(0);
    EXPECT_EQ(ValueOf(Window().ListView1, "Calibration Factor (Run2)"), "(no such row)");
    EXPECT_EQ(ValueOf(Window().ListView1, "Calibration Factor (Run5)"), "1.05");
    EXPECT_EQ(ValueOf(Window().ListView1, "Meter K-Factor (Run5)"), "(no such row)");
    EXPECT_EQ(ValueOf(Window().ListView1, "Density @ Std. Cond. (Run5)"), "(no such row)");
}

TEST_F(SummaryTabs, shows_the_contract_time_with_the_offset_in_force_and_past_midnight) {
    Configure("aga3_detail_fixed");
    Replace("ContractHour=5\r\nContractMin=50", "ContractHour=23\r\nContractMin=5");
    ShowCommonPage(0);
    EXPECT_EQ(ValueOf(Window().ListView1, "Contract Time (Run5)(Local 24-hr)"), "02:05");
}

TEST_F(SummaryTabs, shows_no_contract_time_where_none_is_stored) {
    Configure("aga3_detail_fixed");
    Replace("ContractHour=2\r\nContractMin=20\r\n", "");
    Replace("ContractHour=5\r\nContractMin=50", "ContractHour=5");
    ShowCommonPage(0);
    EXPECT_EQ(ValueOf(Window().ListView1, "Contract Time (Run2)(Local 24-hr)"), "Not Configured");
    EXPECT_EQ(ValueOf(Window().ListView1, "Contract Time (Run5)(Local 24-hr)"), "08:00");
}

TEST_F(SummaryTabs, reads_the_file_once_when_the_common_node_is_selected) {
    Configure("aga7_densimeter");
    Play();
    Station.CurrentStation = "North";
    const int before = Files.Reads;
    Window().ShowPaneFor(common);
    EXPECT_EQ(Files.Reads, before + 1);
    EXPECT_EQ(Files.Replaces, 0);
}

TEST_F(SummaryTabs, a_file_cut_short_shows_as_not_configured) {
    File() = "[FlowRuns]\r\nRun1=Yes\r\n";
    ShowCommonPage(0);
    const auto& list = Window().ListView1;
    ASSERT_EQ(list.Count(), 15);
    EXPECT_EQ(ValueOf(list, "Algorithm"), "Not Configured");
    EXPECT_EQ(list.At(14), (Names{"14", "Calibration Factor (Run1)", "Not Configured"}));
    EXPECT_EQ(list.At(15), (Names{"15", "Contract Time (Run1)(Local 24-hr)", "Not Configured"}));
}

TEST_F(SummaryTabs, second_common_page_lists_the_working_modules) {
    Configure("aga3_detail_fixed");
    ShowCommonPage(1);
    const auto& list = Window().ListView1;
    ExpectShown(&list);
    EXPECT_EQ(Headings(list), (Names{"N\u00B0", "Module Type", "Module Name", "Address", "Type"}));
    ASSERT_EQ(list.Count(), 3);
    EXPECT_EQ(list.At(1), (Names{"1", "Virtual AI", "VA0", "13", "AX"}));
    EXPECT_EQ(list.At(2), (Names{"2", "Virtual LI", "VL0", "12", "LX"}));
    EXPECT_EQ(list.At(3), (Names{"3", "Virtual FI", "VF0", "11", "FX"}));
}

TEST_F(SummaryTabs, third_common_page_lists_the_density_source) {
    Configure("aga3_gross_fixed");
    ShowCommonPage(2);
    const auto& list = Window().ListView1;
    ExpectShown(&list);
    EXPECT_EQ(Headings(list), (Names{"N\u00B0", "Parameters", "Value"}));
    ASSERT_EQ(list.Count(), 4);
    EXPECT_EQ(list.At(2), (Names{"2", "Gas Composition Source", "FIXED"}));
    EXPECT_EQ(list.At(3), (Names{"3", "Standard Temperature", "15.00 \u00BAC"}));
}

TEST_F(SummaryTabs, third_common_page_of_a_densimeter_is_one_line) {
    Configure("aga3_densimeter");
    ShowCommonPage(2);
    ExpectShown(nullptr, "Measuring with external density meter");
}

TEST_F(SummaryTabs, a_page_clears_what_the_page_before_showed) {
    Configure("aga3_densimeter");
    TheStory.ClickNode(window, "TreeGFC", common)
        .SelectTab(window, "SSTab1", 2)
        .Check([this](Driver&) { ExpectShown(nullptr, "Measuring with external density meter"); })
        .SelectTab(window, "SSTab1", 0)
        .Check([this](Driver&) { ExpectShown(&Window().ListView1); })
        .ClickNode(window, "TreeGFC", runNode + "2")
        .Check([this](Driver&) { ExpectShown(&Window().ListView2); });
    Play();
}

TEST_F(SummaryTabs, the_line_of_a_densimeter_goes_with_its_pane) {
    Configure("aga3_densimeter");
    TheStory.ClickNode(window, "TreeGFC", runNode + "2")
        .SelectTab(window, "SSTab2", 3)
        .ClickNode(window, "TreeGFC", "All Stations\\South")
        .Check([this](Driver&) {
            EXPECT_FALSE(Window().Label1.Visible());
            EXPECT_TRUE(Window().ListView1.Shown());
            EXPECT_EQ(Window().ListView1.Count(), 2);
        })
        .ClickNode(window, "TreeGFC", runNode + "2")
        .SelectTab(window, "SSTab2", 2)
        .Do("rebuild", [this](Driver&) { Window().RebuildAfterCommand(); })
        .Check([this](Driver&) { EXPECT_FALSE(Window().Label1.Visible()); });
    Play();
}

TEST_F(SummaryTabs, run_node_shows_the_inputs_of_that_run) {
    Configure("aga3_densimeter");
    TheStory.ClickNode(window, "TreeGFC", runNode + "2")
        .Check([this](Driver&) {
            const auto& list = Window().ListView2;
            ExpectShown(&list);
            EXPECT_EQ(Headings(list), (Names{"N\u00B0", "Tag Config. As", "Name", "Address", "Type"}));
            EXPECT_EQ(list.At(1), (Names{"1", "Density (kg/m^3)", "R2.GasDensity", "2002", "AX"}));
            EXPECT_EQ(ValueOf(list, "Atmospheric Pressure (bar)"), "PA-1");
            EXPECT_EQ(ValueOf(list, "Flow Run / Hold"), "R2.GFCRunHold");
        })
        .ClickNode(window, "TreeGFC", runNode + "5")
        .Check([this](Driver&) {
            EXPECT_EQ(ValueOf(Window().ListView2, "Density (kg/m^3)"), "R5.GasDensity");
            // The one binding of the file that is empty.
            EXPECT_EQ(ValueOf(Window().ListView2, "Flow Run / Hold"), "Not configured");
        })
        .ClickNode(window, "TreeGFC", runNode + "3")
        .Check([this](Driver&) {
            EXPECT_EQ(ValueOf(Window().ListView2, "Density (kg/m^3)"), "Not configured");
            EXPECT_EQ(ValueOf(Window().ListView2, "Atmospheric Pressure (bar)"), "PA-1");
        });
    Play();
}

TEST_F(SummaryTabs, run_node_shows_the_first_page_whatever_page_was_left) {
    Configure("aga3_detail_measured");
    TheStory.ClickNode(window, "TreeGFC", runNode + "2")
        .SelectTab(window, "SSTab2", 4)
        .ClickNode(window, "TreeGFC", runNode + "5")
        .Check([this](Driver&) {
            EXPECT_EQ(Window().SSTab2.Tab(), 0);
            ExpectShown(&Window().ListView2);
            EXPECT_EQ(ValueOf(Window().ListView2, "Pressure (bar)"), "R5.GasPress");
        });
    Play();
}

TEST_F(SummaryTabs, second_run_page_lists_the_outputs) {
    Configure("aga7_detail_fixed");
    ShowRunPage(2, 1);
    const auto& list = Window().ListView2;
    ExpectShown(&list);
    ASSERT_EQ(list.Count(), 5);
    EXPECT_EQ(list.At(1), (Names{"1", "Vol Flow @ Std. (m^3/hr)", "R2.StdVolFlow", "2014", "FY"}));
    EXPECT_EQ(list.At(5), (Names{"5", "AGA 7 Status", "R2.AGA3Status", "2018", "FY"}));
}

TEST_F(SummaryTabs, third_run_page_lists_the_tags_of_the_composition) {
    Configure("aga3_detail_measured");
    ShowRunPage(2, 2);
    const auto& list = Window().ListView2;
    ExpectShown(&list);
    ASSERT_EQ(list.Count(), 22);
    EXPECT_EQ(ValueOf(list, "Methane"), "R2.GC_C1");
    EXPECT_EQ(ValueOf(list, "Enable"), "R2.GCEnable");
    EXPECT_EQ(Window().SSTab2.TabCaption(2), "AGA8/ISO-12213-2 Input Tags");
}

TEST_F(SummaryTabs, third_run_page_lists_the_tags_of_the_gross_properties) {
    Configure("syt6143_gross_measured");
    ShowRunPage(5, 2);
    const auto& list = Window().ListView2;
    ExpectShown(&list);
    ASSERT_EQ(list.Count(), 5);
    EXPECT_EQ(ValueOf(list, "Vol. Calorific Value (KWh/m^3)"), "R5.VolCalorificValue");
    EXPECT_EQ(ValueOf(list, "H2 content (Mole fraction)"), "R5.XH2");
}

// The value of a key in the section of that run.
std::string StoredIn(const std::string& file, int run, const std::string& key) {
    const auto section = file.find("[Run" + std::to_string(run) + "]");
    const auto at = file.find("\r\n" + key + "=", section) + key.size() + 3;
    return file.substr(at, file.find("\r\n", at) - at);
}

TEST_F(SummaryTabs, third_run_page_lists_the_fixed_composition_of_that_run) {
    Configure("aga3_detail_fixed");
    ShowRunPage(5, 2);
    const auto& list = Window().ListView3;
    ExpectShown(&list);
    EXPECT_EQ(Headings(list), (Names{"N\u00B0", "Parameters", "Value"}));
    ASSERT_EQ(list.Count(), 22);
    EXPECT_EQ(list.At(1), (Names{"1", "Fixed Gas composition (Mole fractions)", ""}));
    EXPECT_EQ(list.At(2), (Names{"1.1", "Methane", StoredIn(File(), 5, "GC_C1")}));
    EXPECT_EQ(list.At(22), (Names{"1.21", "Argon", StoredIn(File(), 5, "GC_Ar")}));
    EXPECT_NE(StoredIn(File(), 5, "GC_C1"), StoredIn(File(), 2, "GC_C1"));
    EXPECT_EQ(Window().SSTab2.TabCaption(2), "AGA8/ISO-12213-2 Gas Composition");
}

TEST_F(SummaryTabs, third_run_page_lists_the_fixed_gross_properties_of_that_run) {
    Configure("aga7_gross_fixed");
    ShowRunPage(2, 2);
    const auto& list = Window().ListView3;
    ExpectShown(&list);
    ASSERT_EQ(list.Count(), 5);
    EXPECT_EQ(list.At(1), (Names{"1", "Parameters SGERG-88", ""}));
    EXPECT_EQ(list.At(2),
              (Names{"1.1", "Vol. Calorific Value (KWh/m^3)", StoredIn(File(), 2, "VolCalorificValue")}));
    EXPECT_EQ(list.At(4), (Names{"1.3", "CO2 content (Mole fraction)", StoredIn(File(), 2, "XCO2")}));
}

TEST_F(SummaryTabs, a_run_without_a_section_has_no_fixed_values) {
    Configure("aga3_detail_fixed");
    TheStory.ClickNode(window, "TreeGFC", runNode + "2").ClickNode(window, "TreeGFC", runNode + "3");
    TheStory.SelectTab(window, "SSTab2", 2);
    Play();
    EXPECT_EQ(ValueOf(Window().ListView3, "Methane"), "Not Configured");
}

TEST_F(SummaryTabs, fourth_run_page_lists_the_results_of_the_gas_model) {
    Configure("accelabar_gross_measured");
    ShowRunPage(2, 3);
    const auto& list = Window().ListView2;
    ExpectShown(&list);
    ASSERT_EQ(list.Count(), 8);
    EXPECT_EQ(ValueOf(list, "Density @ flowing cond. (kg/m^3)"), "R2.AGA8rhotp");
    EXPECT_EQ(ValueOf(list, "Relative density (GRs)"), "R2.AGA8GRs");
    EXPECT_EQ(ValueOf(list, "SGERG 88 Status"), "R2.AGA8Status");
}

TEST_F(SummaryTabs, gas_pages_of_a_densimeter_are_one_line_each_for_every_algorithm) {
    for (const char* algorithm : {"aga3", "aga7", "accelabar", "syt6143"}) {
        Configure(algorithm + std::string("_densimeter"));
        const std::string family = "No AGA 8/SGERG 88/ISO-12213-2-1997/ISO-12213-3-1997 ";
        const std::string why = " configured. Density source is from external density meter";
        TheStory.ClickNode(window, "TreeGFC", runNode + "2")
            .SelectTab(window, "SSTab2", 2)
            .Check([this, family, why](Driver&) { ExpectShown(nullptr, family + "inputs" + why); })
            .SelectTab(window, "SSTab2", 3)
            .Check([this, family, why](Driver&) { ExpectShown(nullptr, family + "outputs" + why); });
        Play();
    }
}

TEST_F(SummaryTabs, fifth_run_page_lists_the_parameters) {
    Configure("aga3_detail_fixed");
    ShowRunPage(2, 4);
    const auto& list = Window().ListView1;
    ExpectShown(&list);
    EXPECT_EQ(Headings(list), (Names{"N\u00B0", "Parameters", "Value"}));
    ASSERT_EQ(list.Count(), 16);
    EXPECT_EQ(list.At(1), (Names{"1", "Orifice Plate", ""}));
    EXPECT_EQ(list.At(12), (Names{"3.1", "Type", StoredIn(File(), 2, "PressureTap")}));
    EXPECT_EQ(list.At(16), (Names{"4.2", "Atmospheric Pressure", "External I/O"}));
}

TEST_F(SummaryTabs, fifth_run_page_of_an_accelabar_is_numbered_from_1_2) {
    Configure("accelabar_detail_fixed");
    ShowRunPage(5, 4);
    const auto& list = Window().ListView1;
    ASSERT_EQ(list.Count(), 5);
    EXPECT_EQ(list.At(2), (Names{"1.2", "Accelabar Size (in)", StoredIn(File(), 5, "AccelabarSize")}));
    EXPECT_EQ(list.At(5),
              (Names{"1.5", "Accelabar Throat Dia. (in)", StoredIn(File(), 5, "AccelabarThroatDia")}));
}

TEST_F(SummaryTabs, headings_follow_the_station_on_every_page) {
    Configure("syt6143_gross_fixed");
    TheStory.ClickNode(window, "TreeGFC", runNode + "2").Check([this](Driver&) {
        EXPECT_EQ(RunCaptions(),
                  (Names{"SY/T6143 Input Tags", "SY/T6143 Output Tags", "SGERG88/ISO-12213-3 Gas Properties",
                         "SGERG88/ISO-12213-3 Output Tags", "Parameters"}));
    });
    Play();
    Configure("aga7_detail_measured");
    TheStory.ClickNode(window, "TreeGFC", runNode + "2").Check([this](Driver&) {
        EXPECT_EQ(RunCaptions(),
                  (Names{"AGA-7 Input Tags", "AGA-7 Output Tags", "AGA8/ISO-12213-2 Input Tags",
                         "AGA8/ISO-12213-2 Output Tags", "Parameters"}));
    });
    Play();
    Replace("AGA8CalInput=MEASURED", "AGA8CalInput=FIXED");
    TheStory.SelectTab(window, "SSTab2", 1).Check([this](Driver&) {
        EXPECT_EQ(Window().SSTab2.TabCaption(2), "AGA8/ISO-12213-2 Gas Composition");
    });
    Play();
}

TEST_F(SummaryTabs, nothing_of_the_file_is_changed) {
    Configure("aga3_detail_fixed");
    const std::string before = File();
    TheStory.ClickNode(window, "TreeGFC", common);
    for (const int tab : {1, 2})
        TheStory.SelectTab(window, "SSTab1", tab);
    TheStory.ClickNode(window, "TreeGFC", runNode + "2");
    for (const int tab : {1, 2, 3, 4})
        TheStory.SelectTab(window, "SSTab2", tab);
    Play();
    EXPECT_EQ(File(), before);
    EXPECT_EQ(Files.Replaces, 0);
}

} // namespace

} // namespace gfc::test
