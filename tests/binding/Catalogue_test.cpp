#include "StationUnderTest.h"
#include "binding/RequiredTags.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

using namespace gfc;
using namespace gfc::binding;
using namespace gfc::test;
using enum BindingStage;
namespace algorithm = config::algorithm;
namespace source = config::source;

namespace {

const Texts Components = {
    "Methane",  "Nitrogen",        "Carbon Dioxide", "Ethane",   "Propane",  "Water",     "Hydrogen Sulfite",
    "Hydrogen", "Carbon Monoxide", "Oxygen",         "i-Butane", "n-Butane", "i-Pentane", "n-Pentane",
    "n-Hexane", "n-Heptane",       "n-Octane",       "n-Nonane", "n-Decane", "Helium",    "Argon"};

Texts And(Texts texts, std::string last) {
    texts.push_back(std::move(last));
    return texts;
}

const VariableRow& RowOf(BindingStage stage, const config::StationConfig& station, std::string_view stem) {
    for (const auto* row : TreeRows(stage, ConditionsOf(station, 0)))
        if (row->Stem == stem)
            return *row;
    throw std::runtime_error(std::string(stem));
}

Texts SummaryOf(BindingStage stage, const config::StationConfig& station) {
    Texts captions;
    for (const auto* row : SummaryRows(stage, ConditionsOf(station, 0)))
        captions.push_back(SummaryCaption(*row, station));
    return captions;
}

Texts CheckCaptions(const Conditions& conditions) {
    Texts captions;
    for (const auto* row : CheckRows(conditions))
        captions.emplace_back(row->Captions.Check);
    return captions;
}

} // namespace

TEST(RunInputs, of_AGA3_are_the_flowing_state_and_the_switches) {
    EXPECT_EQ(TreeCaptions(RunInputs, StationWith(algorithm::AGA3, source::AGA8)),
              (Texts{"Temperature", "Pressure", "Differential Pressure", "Flow Run / Hold",
                     "Totalize Run / Hold", "Reset"}));
}

TEST(RunInputs, of_AGA3_with_densimeter_and_external_diameters_are_all_of_its_floats) {
    EXPECT_EQ(TreeCaptions(RunInputs, WithExternalDiameters(StationWith(algorithm::AGA3, source::Measured))),
              (Texts{"Density", "Temperature", "Pressure", "Differential Pressure", "Pipe diameter",
                     "Orifice diameter", "Flow Run / Hold", "Totalize Run / Hold", "Reset"}));
}

TEST(RunInputs, of_AGA7_put_the_turbine_pulses_in_place_of_the_differential_pressure) {
    EXPECT_EQ(TreeCaptions(RunInputs, StationWith(algorithm::AGA7, source::SGERG88)),
              (Texts{"Temperature", "Pressure", "Turbine Pulses", "Flow Run / Hold", "Totalize Run / Hold",
                     "Reset"}));
}

TEST(RunInputs, of_AGA7_with_densimeter_need_neither_temperature_nor_pressure) {
    EXPECT_EQ(TreeCaptions(RunInputs, WithExternalDiameters(StationWith(algorithm::AGA7, source::Measured))),
              (Texts{"Density", "Turbine Pulses", "Flow Run / Hold", "Totalize Run / Hold", "Reset"}));
}

TEST(RunInputs, of_SYT6143_hold_roughness_and_service_time_without_external_diameters_too) {
    EXPECT_EQ(TreeCaptions(RunInputs, StationWith(algorithm::SYT6143, source::ISO12213_3)),
              (Texts{"Temperature", "Pressure", "Differential Pressure", "Pipe abs.roughness (K)",
                     "Orifice service time (t)", "Flow Run / Hold", "Totalize Run / Hold", "Reset"}));
    EXPECT_EQ(
        TreeCaptions(RunInputs, WithExternalDiameters(StationWith(algorithm::SYT6143, source::Measured))),
        (Texts{"Density", "Temperature", "Pressure", "Differential Pressure", "Pipe diameter",
               "Orifice diameter", "Pipe abs.roughness (K)", "Orifice service time (t)", "Flow Run / Hold",
               "Totalize Run / Hold", "Reset"}));
}

TEST(RunInputs, of_Accelabar_are_those_of_AGA3) {
    EXPECT_EQ(TreeCaptions(RunInputs, StationWith(algorithm::Accelabar, source::AGA8)),
              TreeCaptions(RunInputs, StationWith(algorithm::AGA3, source::AGA8)));
}

TEST(RunInputs, take_external_diameters_for_Yes_in_any_case) {
    auto station = StationWith(algorithm::AGA3, source::AGA8);
    for (const auto& [flag, inputs] :
         {std::pair{"Yes", 8U}, {"yes", 8U}, {"YES", 8U}, {"no", 6U}, {"", 6U}}) {
        station.Runs.Mechanical.front().ExtMechParam = flag;
        EXPECT_EQ(TreeCaptions(RunInputs, station).size(), inputs) << flag;
    }
}

TEST(RunOutputs, are_four_floats_and_one_status_for_every_standard) {
    const std::pair<std::string_view, std::string> statuses[] = {{algorithm::AGA3, "AGA-3 Status"},
                                                                 {algorithm::Accelabar, "AGA-3 Status"},
                                                                 {algorithm::AGA7, "AGA-7 Status"},
                                                                 {algorithm::SYT6143, "SYT6143-2004 Status"},
                                                                 {"unheard of", "AGA-3 Status"}};
    for (const auto& [standard, status] : statuses) {
        auto station = StationWith(standard, source::AGA8);
        EXPECT_EQ(TreeCaptions(RunOutputs, station),
                  (Texts{"Volume Flow", "Mass Flow", "Volume", "Mass", status}));
        const auto variables = VariablesOf(RunOutputs, station, 0);
        EXPECT_EQ(variables.back().Class(), TagClass::Analog);
        EXPECT_EQ(variables.back().Binding, &station.Runs.IO[0].AGA3Status);
        EXPECT_EQ(variables.back().Row->Stem, "AGA3StatusKDIO");
    }
}

TEST(GasOutputs, are_the_same_for_both_families_but_for_the_status) {
    const Texts floats = {"Density(T,P)",
                          "Standard Density",
                          "Compressibility (Z)",
                          "Standard Compressibility (Zs)",
                          "Supercompressibility (Fpvs)",
                          "Relative Density (GRs)",
                          "Uncertainty"};
    for (const auto detail : {source::AGA8, source::ISO12213_2})
        EXPECT_EQ(TreeCaptions(GasOutputs, StationWith(algorithm::AGA7, detail)),
                  And(floats, "AGA 8 Status"));
    for (const auto gross : {source::SGERG88, source::ISO12213_3})
        EXPECT_EQ(TreeCaptions(GasOutputs, StationWith(algorithm::AGA3, gross)),
                  And(floats, "SGERG 88 Status"));
}

TEST(GasInputs, of_the_detail_family_are_21_components_and_the_enable) {
    for (const auto detail : {source::AGA8, source::ISO12213_2})
        EXPECT_EQ(TreeCaptions(GasInputs, StationWith(algorithm::AGA3, detail)), And(Components, "Enable"));
}

TEST(GasInputs, of_any_other_source_are_four_values_and_the_enable) {
    for (const std::string_view other : {source::SGERG88, source::ISO12213_3, std::string_view("odd")})
        EXPECT_EQ(TreeCaptions(GasInputs, StationWith(algorithm::AGA3, other)),
                  (Texts{"Calorific Vol.", "Relative Density", "CO2 content", "H2 content", "Enable"}));
}

TEST(GasStages, do_not_exist_with_a_densimeter_whatever_the_composition) {
    for (const auto input : {config::CompositionMeasured, config::CompositionFixed}) {
        auto station = StationWith(algorithm::AGA3, source::Measured);
        station.AGA8CalInput = input;
        EXPECT_TRUE(TreeCaptions(GasInputs, station).empty());
        EXPECT_TRUE(TreeCaptions(GasOutputs, station).empty());
    }
}

TEST(GasStages, lose_the_inputs_alone_with_a_fixed_composition) {
    auto station = StationWith(algorithm::AGA3, source::AGA8);
    station.AGA8CalInput = config::CompositionFixed;
    EXPECT_TRUE(TreeCaptions(GasInputs, station).empty());
    EXPECT_EQ(TreeCaptions(GasOutputs, station).size(), 8U);
}

TEST(CommonInputs, are_the_atmospheric_pressure_whatever_the_record_says_and_without_runs) {
    auto station = StationWith(algorithm::Accelabar, source::AGA8);
    station.Runs.IO.clear();
    const auto variables = VariablesOf(CommonInputs, station, 0);
    ASSERT_EQ(variables.size(), 1U);
    EXPECT_EQ(variables[0].Caption(), "Atmospheric Pressure");
    EXPECT_EQ(variables[0].Class(), TagClass::Float);
    EXPECT_EQ(variables[0].Binding, &station.CommonPa);
}

TEST(Variables, stand_floats_first_then_longs_then_the_rest_in_every_stage) {
    for (const auto standard : AllAlgorithms)
        for (const auto density : AllSources)
            for (const auto stage : {RunInputs, RunOutputs, GasOutputs, GasInputs}) {
                auto station = WithExternalDiameters(StationWith(standard, density));
                const auto variables = VariablesOf(stage, station, 0);
                const auto rank = [](const Variable& variable) {
                    return std::min(static_cast<int>(variable.Class()), static_cast<int>(TagClass::Analog));
                };
                EXPECT_TRUE(std::is_sorted(variables.begin(), variables.end(),
                                           [&](const auto& a, const auto& b) { return rank(a) < rank(b); }));
            }
}

TEST(Variables, of_one_stage_each_have_a_binding_of_their_own) {
    for (const auto standard : AllAlgorithms)
        for (const auto density : AllSources) {
            auto station = WithExternalDiameters(StationWith(standard, density));
            std::set<const config::TagBinding*> bindings;
            std::size_t count = 0;
            for (const auto stage : {RunInputs, RunOutputs, GasOutputs, GasInputs})
                for (const auto& variable : VariablesOf(stage, station, 0)) {
                    bindings.insert(variable.Binding);
                    ++count;
                }
            EXPECT_EQ(bindings.size(), count);
        }
}

TEST(Variables, of_a_run_that_has_no_records_are_none) {
    auto station = StationWith(algorithm::AGA3, source::AGA8);
    for (const auto stage : {RunInputs, RunOutputs, GasOutputs, GasInputs}) {
        EXPECT_FALSE(VariablesOf(stage, station, 0).empty());
        for (const int element : {-1, 1, 5})
            EXPECT_TRUE(VariablesOf(stage, station, element).empty());
    }
}

TEST(Variables, share_one_slot_for_carbon_dioxide_and_not_for_hydrogen) {
    auto detail = StationWith(algorithm::AGA3, source::AGA8);
    auto gross = StationWith(algorithm::AGA3, source::SGERG88);
    const auto slotOf = [](config::StationConfig& station, std::string_view stem) {
        return BindingOf(RowOf(GasInputs, station, stem), station, 0) -
               &station.Runs.Gas[0][config::GasSlot{}];
    };
    EXPECT_EQ(slotOf(detail, "GC_CO2KDIO"), slotOf(gross, "XCO2KDIO"));
    EXPECT_NE(slotOf(detail, "GC_HKDIO"), slotOf(gross, "XH2KDIO"));
}

TEST(Keys, end_in_Addr_for_gas_inputs_but_not_for_their_enable) {
    for (const VariableRow& row : Catalogue()) {
        const bool shortForm = row.Stage == GasInputs && row.Stem != "GCEnableKDIO";
        EXPECT_EQ(row.AddressKey(), std::string(row.Stem) + (shortForm ? "Addr" : "RegAddr"));
        EXPECT_EQ(row.TypeKey(), std::string(row.Stem) + "Type");
        EXPECT_EQ(row.TagKey(), std::string(row.Stem) + "Tag");
    }
}

TEST(Stems, of_the_composition_are_those_of_the_file) {
    const auto rows = TreeRows(GasInputs, ConditionsOf(StationWith(algorithm::AGA3, source::AGA8), 0));
    EXPECT_EQ(Stems(rows),
              (Texts{"GC_C1KDIO",   "GC_N2KDIO",  "GC_CO2KDIO", "GC_C2KDIO",   "GC_C3KDIO",  "GC_H2OKDIO",
                     "GC_H2SKDIO",  "GC_HKDIO",   "GC_COKDIO",  "GC_O2KDIO",   "GC_iC4KDIO", "GC_nC4KDIO",
                     "GC_iC5KDIO",  "GC_nC5KDIO", "GC_nC6KDIO", "GC_nC7KDIO",  "GC_nC8KDIO", "GC_nC9KDIO",
                     "GC_nC10KDIO", "GC_HeKDIO",  "GC_ArKDIO",  "GCEnableKDIO"}));
}

TEST(Stems, of_the_run_are_those_of_the_file) {
    auto station = WithExternalDiameters(StationWith(algorithm::SYT6143, source::Measured));
    EXPECT_EQ(Stems(TreeRows(RunInputs, ConditionsOf(station, 0))),
              (Texts{"GasDensityKDIO", "GasTempKDIO", "GasPressKDIO", "GasDPKDIO", "PipeDiaKDIO",
                     "OrificeDiaKDIO", "PipeAbsRoughnessKDIO", "OrificeServiceTimeKDIO", "GFCRunHoldKDIO",
                     "GFCTotalizeHoldKDIO", "ResetTotalsKDIO"}));
    EXPECT_EQ(Stems(TreeRows(RunOutputs, ConditionsOf(station, 0))),
              (Texts{"StdVolFlowKDIO", "StdMassFlowKDIO", "GasVolumeKDIO", "GasMassKDIO", "AGA3StatusKDIO"}));
    station = StationWith(algorithm::AGA7, source::SGERG88);
    EXPECT_EQ(RowOf(RunInputs, station, "GasPulseInputKDIO").Class, TagClass::Long);
    EXPECT_EQ(Stems(TreeRows(GasOutputs, ConditionsOf(station, 0))),
              (Texts{"AGA8rhotpKDIO", "AGA8rhosKDIO", "AGA8zKDIO", "AGA8zsKDIO", "AGA8fpvsKDIO",
                     "AGA8GRsKDIO", "AGA8uncertKDIO", "AGA8StatusKDIO"}));
    EXPECT_EQ(Stems(TreeRows(GasInputs, ConditionsOf(station, 0))),
              (Texts{"VolCalorificValueKDIO", "RelativeDensityKDIO", "XCO2KDIO", "XH2KDIO", "GCEnableKDIO"}));
}

TEST(Root, is_named_by_the_standard_for_the_run_and_by_the_source_for_the_gas) {
    const struct {
        std::string_view Algorithm, Inputs, Outputs;
    } standards[] = {{algorithm::AGA3, "AGA 3 Inputs", "AGA 3 Outputs"},
                     {algorithm::Accelabar, "AGA 3 Inputs", "AGA 3 Outputs"},
                     {algorithm::AGA7, "AGA 7 Inputs", "AGA 7 Outputs"},
                     {algorithm::SYT6143, "SYT6143-2004 Inputs", "SYT6143-2004 Outputs"}};
    for (const auto& standard : standards) {
        const auto station = StationWith(standard.Algorithm, source::AGA8);
        EXPECT_EQ(RootCaption(RunInputs, station), standard.Inputs);
        EXPECT_EQ(RootCaption(RunOutputs, station), standard.Outputs);
        EXPECT_EQ(RootCaption(CommonInputs, station), "Common Inputs");
    }
    for (const auto density : AllSources) {
        const auto station = StationWith(algorithm::AGA3, density);
        const bool detail = density == source::AGA8 || density == source::ISO12213_2;
        EXPECT_EQ(RootCaption(GasOutputs, station), detail ? "AGA 8 Outputs" : "SGERG 88 Outputs");
        EXPECT_EQ(RootCaption(GasInputs, station), detail ? "AGA 8 Inputs" : "SGERG 88 Inputs");
        EXPECT_EQ(RootCaption(BindingStage::None, station), "");
    }
}

TEST(Help, has_a_page_for_each_root_but_the_common_one) {
    const std::pair<std::string_view, int> pages[] = {
        {"AGA 3 Inputs", 6000},         {"SYT6143-2004 Inputs", 6000}, {"AGA 3 Outputs", 6100},
        {"SYT6143-2004 Outputs", 6100}, {"AGA 8 Outputs", 6200},       {"SGERG 88 Outputs", 6200},
        {"AGA 7 Inputs", 7000},         {"AGA 7 Outputs", 7100},       {"AGA 8 Inputs", 5000},
        {"SGERG 88 Inputs", 7600},      {"Common Inputs", 0}};
    for (const auto& [root, context] : pages)
        EXPECT_EQ(ContextOfRoot(root), context) << root;
}

TEST(TagTypes, fall_into_classes_without_regard_to_case) {
    const std::pair<std::string_view, TagClass> types[] = {
        {"FX", TagClass::Float},  {"fy", TagClass::Float},  {"LX", TagClass::Long},
        {"LY", TagClass::Long},   {"ax", TagClass::Analog}, {"AY", TagClass::Analog},
        {"X", TagClass::Digital}, {"y", TagClass::Digital}};
    for (const auto& [type, tagClass] : types)
        EXPECT_EQ(ClassOf(type), tagClass) << type;
    for (const std::string_view none : {"", "Z", "FXX", "Not Configured"})
        EXPECT_EQ(ClassOf(none), std::nullopt) << none;
}

TEST(TagTypes, head_their_lists) {
    EXPECT_EQ(ListHeading(TagClass::Float), "Nº (Float)");
    EXPECT_EQ(ListHeading(TagClass::Long), "Nº (Long)");
    EXPECT_EQ(ListHeading(TagClass::Analog), "Nº (Analog)");
    EXPECT_EQ(ListHeading(TagClass::Digital), "Nº (Digital)");
}

TEST(Check, goes_through_an_orifice_run_in_its_own_order_and_words) {
    auto conditions =
        ConditionsOf(WithExternalDiameters(StationWith(algorithm::SYT6143, source::Measured)), 0);
    conditions.ExtCorr = true;
    EXPECT_EQ(CheckCaptions(conditions),
              (Texts{"Reset", "Flow Run/Hold", "Totalize Run/Hold", "AGA 3 Status", "Density", "Temperature",
                     "Pressure", "Diferential Pressure", "Int.Pipe Dia.", "Orifice diameter",
                     "Pipe Absolute Roughness", "Orifice Service Time", "Std. Mass Flow", "Std. Volume Flow",
                     "Volune", "Mass"}));
}

TEST(Check, asks_for_roughness_and_service_time_only_where_the_file_says_so) {
    auto conditions =
        ConditionsOf(WithExternalDiameters(StationWith(algorithm::SYT6143, source::Measured)), 0);
    EXPECT_FALSE(conditions.ExtCorr);
    const auto stems = Stems(CheckRows(conditions));
    EXPECT_EQ(std::count(stems.begin(), stems.end(), "PipeAbsRoughnessKDIO"), 0);
    EXPECT_EQ(std::count(stems.begin(), stems.end(), "OrificeServiceTimeKDIO"), 0);
}

TEST(Check, goes_through_a_turbine_run_with_its_gas_outputs) {
    auto station = StationWith(algorithm::AGA7, source::SGERG88);
    EXPECT_EQ(CheckCaptions(ConditionsOf(station, 0)), (Texts{"Reset",
                                                              "Flow Run/Hold",
                                                              "Totalize Run/Hold",
                                                              "AGA 3 Status",
                                                              "Pulse Input",
                                                              "Temperature",
                                                              "Pressure",
                                                              "Std. Mass Flow",
                                                              "Std. Volume Flow",
                                                              "Volune",
                                                              "Mass",
                                                              "AGA 8 Status",
                                                              "FPVS",
                                                              "rhos",
                                                              "rhotp",
                                                              "UNCERT",
                                                              "Compressibility",
                                                              "Std. Compressibility",
                                                              "Rel. Density",
                                                              "Vol. Calorific Value",
                                                              "Relative Density",
                                                              "CO2 content",
                                                              "H2 content",
                                                              "Gas composition strobe"}));
}

TEST(Check, ends_with_the_composition_and_its_enable) {
    const auto captions = CheckCaptions(ConditionsOf(StationWith(algorithm::AGA3, source::ISO12213_2), 0));
    const Texts last(captions.end() - 22, captions.end());
    EXPECT_EQ(last, And(Components, "Gas composition enable"));
}

TEST(Check, leaves_out_diameters_that_an_Accelabar_run_kept_from_another_standard) {
    const auto conditions =
        ConditionsOf(WithExternalDiameters(StationWith(algorithm::Accelabar, source::AGA8)), 0);
    const auto stems = Stems(CheckRows(conditions));
    EXPECT_EQ(std::count(stems.begin(), stems.end(), "PipeDiaKDIO"), 0);
    EXPECT_EQ(TreeRows(RunInputs, conditions).size(), 8U);
}

TEST(Check, expects_no_inputs_of_an_unknown_standard_or_source) {
    auto conditions = ConditionsOf(StationWith("AGA5", source::Measured), 0);
    EXPECT_EQ(CheckCaptions(conditions), (Texts{"Reset", "Flow Run/Hold", "Totalize Run/Hold", "AGA 3 Status",
                                                "Std. Mass Flow", "Std. Volume Flow", "Volune", "Mass"}));
    conditions.GasDensitySource = "NX-19";
    conditions.Measured = false;
    EXPECT_EQ(CheckCaptions(conditions).size(), 8U);
}

TEST(Check, looks_at_the_common_pressure_by_standard) {
    const auto& row = CommonPressureRow();
    EXPECT_EQ(row.Captions.Check, "Atmospheric Pressure");
    EXPECT_EQ(row.ReportedStem(), "PaKDIO");
    EXPECT_EQ(row.AddressKey(), "CommonPaKDIORegAddr");
    EXPECT_EQ(row.CheckGroup(), "AGA Input");
    for (const auto standard : AllAlgorithms)
        for (const auto density : AllSources) {
            auto station = StationWith(standard, density);
            EXPECT_FALSE(row.Presence.InCheck(ConditionsOf(station, 0)));
            station.ExtAtmPress = config::Yes;
            const bool expected = standard != algorithm::Accelabar &&
                                  !(standard == algorithm::AGA7 && density == source::Measured);
            EXPECT_EQ(row.Presence.InCheck(ConditionsOf(station, 0)), expected) << standard << density;
        }
}

TEST(Check, reports_some_variables_under_a_stem_of_its_own) {
    const std::pair<std::string_view, std::string_view> reported[] = {{"GC_HKDIO", "GC_HKDIOA"},
                                                                      {"XCO2KDIO", "GC_CO2KDIO"},
                                                                      {"XH2KDIO", "H2KDIO"},
                                                                      {"CommonPaKDIO", "PaKDIO"}};
    for (const VariableRow& row : Catalogue()) {
        const auto* own = std::find_if(std::begin(reported), std::end(reported),
                                       [&row](const auto& entry) { return entry.first == row.Stem; });
        if (row.Captions.Check == "Gas composition strobe")
            EXPECT_EQ(row.ReportedStem(), "GCStrobeKDIO");
        else
            EXPECT_EQ(row.ReportedStem(), own == std::end(reported) ? row.Stem : own->second);
    }
}

TEST(Check, groups_by_direction_and_family) {
    const auto gross = StationWith(algorithm::AGA3, source::SGERG88);
    const auto detail = StationWith(algorithm::AGA3, source::AGA8);
    EXPECT_EQ(RowOf(RunInputs, gross, "GasTempKDIO").CheckGroup(), "AGA Input");
    EXPECT_EQ(RowOf(RunOutputs, gross, "GasMassKDIO").CheckGroup(), "AGA Output");
    EXPECT_EQ(RowOf(GasOutputs, gross, "AGA8zKDIO").CheckGroup(), "AGA8 Output");
    EXPECT_EQ(RowOf(GasInputs, gross, "XH2KDIO").CheckGroup(), "I/O tags parameters SGERG88");
    EXPECT_EQ(RowOf(GasInputs, gross, "GCEnableKDIO").CheckGroup(), "I/O tags composition gas");
    EXPECT_EQ(RowOf(GasInputs, detail, "GC_HKDIO").CheckGroup(), "I/O tags composition gas");
    EXPECT_EQ(RowOf(GasInputs, detail, "GCEnableKDIO").CheckGroup(), "I/O tags composition gas");
}

TEST(Summary, of_the_inputs_shows_units_and_the_common_pressure_among_them) {
    auto station = WithExternalDiameters(StationWith(algorithm::SYT6143, source::Measured));
    station.ExtAtmPress = config::Yes;
    EXPECT_EQ(SummaryOf(RunInputs, station),
              (Texts{"Density (kg/m^3)", "Temperature (ºC)", "Pressure (bar)", "Differential Pressure (mbar)",
                     "Atmospheric Pressure (bar)", "Pipe diameter (mm)", "Orifice diameter (mm)",
                     "Pipe abs.roughness (mm)", "Orifice service time (year)", "Flow Run / Hold",
                     "Totalize Run / Hold", "Reset Totals"}));
}

TEST(Summary, of_a_turbine_run_has_the_pulses_after_the_common_pressure) {
    auto station = StationWith(algorithm::AGA7, source::AGA8);
    station.ExtAtmPress = config::Yes;
    station.SystemUnits = config::units::US;
    EXPECT_EQ(SummaryOf(RunInputs, station),
              (Texts{"Temperature (ºF)", "Pressure (psia)", "Atmospheric Pressure (psia)",
                     "Pulse Input (pulses/ft^3)", "Flow Run / Hold", "Totalize Run / Hold", "Reset Totals"}));
    station.GasDensitySource = source::Measured;
    station.Measured = true;
    EXPECT_EQ(SummaryOf(RunInputs, station),
              (Texts{"Density (lbm/ft^3)", "Pulse Input (pulses/ft^3)", "Flow Run / Hold",
                     "Totalize Run / Hold", "Reset Totals"}));
}

TEST(Summary, shows_roughness_by_the_option_of_the_diameters) {
    const auto station = StationWith(algorithm::SYT6143, source::AGA8);
    EXPECT_EQ(SummaryOf(RunInputs, station).size(), 6U);
    EXPECT_EQ(SummaryOf(RunInputs, WithExternalDiameters(station)).size(), 10U);
    EXPECT_EQ(
        SummaryOf(RunInputs, WithExternalDiameters(StationWith(algorithm::Accelabar, source::AGA8))).size(),
        6U);
}

TEST(Summary, knows_the_differential_pressure_of_the_Accelabar_in_US_units) {
    auto station = StationWith(algorithm::Accelabar, source::AGA8);
    station.SystemUnits = config::units::US;
    EXPECT_EQ(SummaryOf(RunInputs, station)[2], "Differential Pressure (in H2O at 68°F)");
}

TEST(Summary, of_the_outputs_shows_rates_and_totals) {
    const Texts rates = {"Vol Flow @ Std. (m^3/hr)", "Mass Flow (kg/hr)", "Volume @ Std. (sm^3)",
                         "Mass (kg)"};
    EXPECT_EQ(SummaryOf(RunOutputs, StationWith(algorithm::Accelabar, source::AGA8)),
              And(rates, "AGA 3 Status"));
    EXPECT_EQ(SummaryOf(RunOutputs, StationWith(algorithm::AGA7, source::AGA8)), And(rates, "AGA 7 Status"));
    EXPECT_EQ(SummaryOf(RunOutputs, StationWith(algorithm::SYT6143, source::AGA8)),
              And(rates, "SYT6143-2004 Status"));
}

TEST(Summary, of_the_gas_shows_outputs_and_inputs_of_the_family) {
    const Texts outputs = {"Density @ flowing cond. (kg/m^3)",
                           "Density @ std. cond. (kg/m^3)",
                           "Compressibility factor (Z) @ flowing cond.",
                           "Compressibility factor (Zs) @ std. cond.",
                           "Supercompressibility factor @ std/flowing cond.",
                           "Relative density (GRs)",
                           "Uncertainty (%)"};
    const auto detail = StationWith(algorithm::AGA3, source::AGA8);
    const auto gross = StationWith(algorithm::AGA3, source::ISO12213_3);
    EXPECT_EQ(SummaryOf(GasOutputs, detail), And(outputs, "AGA8 Status"));
    EXPECT_EQ(SummaryOf(GasOutputs, gross), And(outputs, "SGERG 88 Status"));
    EXPECT_EQ(SummaryOf(GasInputs, detail), And(Components, "Enable"));
    EXPECT_EQ(SummaryOf(GasInputs, gross),
              (Texts{"Vol. Calorific Value (KWh/m^3)", "Relative Density", "CO2 content (Mole fraction)",
                     "H2 content (Mole fraction)", "Enable"}));
}
