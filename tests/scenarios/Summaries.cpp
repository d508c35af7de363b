#include "scenarios/Moves.h"
#include "scenarios/Scenario.h"

#include <gtest/gtest.h>

namespace gfc::test {

namespace {

const std::string window = "GFCPrincipal";
const std::string south = "All Stations\\South";

// Each row must stand in the list exactly as given, and there must be no other.
Story& SeeRows(Story& story, const std::string& list, const std::vector<std::vector<std::string>>& rows) {
    return story.SeeVisible(window, list).Check([list, rows](Driver& d) {
        ASSERT_EQ(d.Rows(window, list), static_cast<int>(rows.size()));
        for (std::size_t row = 0; row < rows.size(); ++row)
            for (std::size_t column = 0; column < rows[row].size(); ++column)
                EXPECT_EQ(d.Cell(window, list, static_cast<int>(row) + 1, static_cast<int>(column)),
                          rows[row][column])
                    << list << " row " << row + 1;
    });
}

Story& SeeLine(Story& story, const std::string& line) {
    for (const char* list : {"ListView1", "ListView2", "ListView3"})
        story.SeeVisible(window, list, false);
    return story.SeeVisible(window, "Label1").SeeText(window, "Label1", line);
}

const std::string turbineFile =
    "[FlowRuns]\r\nRun1=Yes\r\nFlowAlgorithm=AGA7\r\nGasDensitySource=MEASURED\r\n"
    "SystemUnits=US\r\nWrkFloatModName=VF0\r\nWrkFloatRegAddr=11\r\nWrkFloatRegType=FX\r\n"
    "[AGA7]\r\nStandardT=60.00\r\nStandardP=14.73\r\nPressType=Absolute\r\n"
    "[Run1]\r\nCalibrationFactor=1.0\r\nContractHour=6\r\nContractMin=5\r\nmeterKFactor=100\r\n"
    "GasDensityKDIOTag=DENS\r\nGasDensityKDIOType=FX\r\nGasDensityKDIORegAddr=3\r\n";

Scenario DensimeterStationIsLookedAt() {
    return {"summaries_of_a_turbine_with_a_densimeter",
            [](FakeProgram& program) {
                moves::ThreeStations(program);
                program.Files.Content["/jobs/KDOrmAGA_plant_South.ini"] = turbineFile;
            },
            [](Story& story) {
                moves::StartUp(story);
                story.ClickNode(window, "TreeGFC", south + "\\Common Parameters")
                    .Check([](Driver& d) {
                        EXPECT_EQ(d.Rows(window, "ListView1"), 17);
                        EXPECT_EQ(d.Cell(window, "ListView1", 7, 2), "60.00 \u00BAF");
                        EXPECT_EQ(d.Cell(window, "ListView1", 10, 2), "Not applicable");
                        EXPECT_EQ(d.Cell(window, "ListView1", 13, 2), "Not Applicable");
                        EXPECT_EQ(d.Cell(window, "ListView1", 15, 1), "Contract Time (Run1)(Local 24-hr)");
                        EXPECT_EQ(d.Cell(window, "ListView1", 15, 2), "06:05");
                        EXPECT_EQ(d.Cell(window, "ListView1", 16, 2), "100 pulses/ft^3");
                        EXPECT_EQ(d.Cell(window, "ListView1", 17, 2), "Not Configured");
                    })
                    .SelectTab(window, "SSTab1", 1);
                const std::string none = "Not Configured";
                SeeRows(story, "ListView1",
                        {{"1", "Virtual AI", none, none, none},
                         {"2", "Virtual LI", none, none, none},
                         {"3", "Virtual FI", "VF0", "11", "FX"}})
                    .SelectTab(window, "SSTab1", 2);
                SeeLine(story, "Measuring with external density meter")
                    .ClickNode(window, "TreeGFC", south + "\\Individual Parameters\\Run 1");
                SeeRows(story, "ListView2",
                        {{"1", "Density (lbm/ft^3)", "DENS", "3", "FX"},
                         {"2", "Pulse Input (pulses/ft^3)", "Not configured", "", ""},
                         {"3", "Flow Run / Hold", "Not configured", "", ""},
                         {"4", "Totalize Run / Hold", "Not configured", "", ""},
                         {"5", "Reset Totals", "Not configured", "", ""}})
                    .SeeVisible(window, "Label1", false)
                    .SelectTab(window, "SSTab2", 2);
                SeeLine(story, "No AGA 8/SGERG 88/ISO-12213-2-1997/ISO-12213-3-1997 inputs configured. "
                               "Density source is from external density meter")
                    .SelectTab(window, "SSTab2", 3);
                SeeLine(story, "No AGA 8/SGERG 88/ISO-12213-2-1997/ISO-12213-3-1997 outputs configured. "
                               "Density source is from external density meter")
                    .SelectTab(window, "SSTab2", 4);
                SeeRows(story, "ListView1",
                        {{"1", "Pressure Measurement", ""},
                         {"1.1", "Type", "Not Applicable"},
                         {"1.2", "Atmospheric Pressure", "Not Applicable"}})
                    .ClickNode(window, "TreeGFC", "All Stations")
                    .SeeVisible(window, "Label1", false)
                    .SeeVisible(window, "SSTab2", false)
                    .Check([](Driver& d) {
                        EXPECT_EQ(d.Rows(window, "ListView1"), 3);
                        EXPECT_EQ(d.Cell(window, "ListView1", 2, 2), "South");
                    });
                moves::Exit(story);
            },
            [](FakeProgram& program) {
                EXPECT_EQ(program.Files.Content["/jobs/KDOrmAGA_plant_South.ini"], turbineFile);
            }};
}

const std::string grossFile =
    "[FlowRuns]\r\nRun2=Yes\r\nFlowAlgorithm=SYT6143-2004\r\nGasDensitySource=SGERG88\r\n"
    "SystemUnits=Practical-SI\r\n[AGA3]\r\nPressType=Gage\r\nExtAtmPress=No\r\nAtmPress=0.1\r\n"
    "[SGERG88]\r\nAGA8CalInput=FIXED\r\n"
    "[Run2]\r\nExtMechParam=Yes\r\nOrificeMaterial=SS\r\nVolCalorificValue=38.5\r\nXH2=0.02\r\n";

Scenario FixedGasIsLookedAt() {
    return {"summaries_of_a_run_with_fixed_gas_properties",
            [](FakeProgram& program) {
                moves::ThreeStations(program);
                program.Files.Content["/jobs/KDOrmAGA_plant_North.ini"] = grossFile;
            },
            [](Story& story) {
                moves::StartUp(story);
                story.ClickNode(window, "TreeGFC", "All Stations\\North\\Individual Parameters\\Run 2")
                    .Check([](Driver& d) {
                        EXPECT_EQ(d.Rows(window, "ListView2"), 10);
                        EXPECT_EQ(d.Cell(window, "ListView2", 6, 1), "Pipe abs.roughness (mm)");
                    })
                    .SelectTab(window, "SSTab2", 2);
                SeeRows(story, "ListView3",
                        {{"1", "Parameters SGERG-88", ""},
                         {"1.1", "Vol. Calorific Value (MJ/m^3)", "38.5"},
                         {"1.2", "Relative Density", "Not Configured"},
                         {"1.3", "CO2 content (Mole fraction)", "Not Configured"},
                         {"1.4", "H2 content (Mole fraction)", "0.02"}})
                    .SeeVisible(window, "ListView2", false)
                    .SelectTab(window, "SSTab2", 4)
                    .Check([](Driver& d) {
                        EXPECT_EQ(d.Rows(window, "ListView1"), 16);
                        EXPECT_EQ(d.Cell(window, "ListView1", 2, 2), "External I/O");
                        EXPECT_EQ(d.Cell(window, "ListView1", 4, 2), "SS");
                        EXPECT_EQ(d.Cell(window, "ListView1", 16, 2), "0.1 MPa");
                    })
                    .SeeVisible(window, "ListView3", false);
                moves::Exit(story);
            },
            [](FakeProgram& program) {
                EXPECT_EQ(program.Files.Content["/jobs/KDOrmAGA_plant_North.ini"], grossFile);
            }};
}

} // namespace

std::vector<Scenario> SummaryScenarios() {
    return {DensimeterStationIsLookedAt(), FixedGasIsLookedAt()};
}

} // namespace gfc::test
