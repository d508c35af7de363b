#include "forms/SummaryTabs.h"

#include "config/Vocabulary.h"
#include "forms/GFCPrincipal.h"

namespace gfc::forms {

namespace {

// How the headings call the algorithm; one that is none of the four counts as AGA-7, as everywhere.
std::string FlowName(std::string_view algorithm) {
    if (algorithm == config::algorithm::AGA3 || algorithm == config::algorithm::Accelabar)
        return "AGA-3";
    return algorithm == config::algorithm::SYT6143 ? "SY/T6143" : "AGA-7";
}

std::string GasInputs(bool isGross, bool isFixed) {
    if (!isFixed)
        return " Input Tags";
    return isGross ? " Gas Properties" : " Gas Composition";
}

} // namespace

void SummaryTabs::SetRunCaptions() {
    const auto& station = session_.Station;
    const std::string flow = FlowName(station.FlowAlgorithm);
    const bool isGross = config::FamilyOf(station.GasDensitySource) == config::GasFamily::Gross;
    const bool isFixed = station.AGA8CalInput == config::CompositionFixed;
    const std::string gas = isGross ? "SGERG88/ISO-12213-3" : "AGA8/ISO-12213-2";
    auto& pane = window_.SSTab2;
    pane.SetTabCaption(0, flow + " Input Tags");
    pane.SetTabCaption(1, flow + " Output Tags");
    pane.SetTabCaption(2, gas + GasInputs(isGross, isFixed));
    pane.SetTabCaption(3, gas + " Output Tags");
}

void SummaryTabs::FillCommon() {
    window_.ClearLists();
}

void SummaryTabs::FillRun() {
    window_.ClearLists();
    SetRunCaptions();
}

} // namespace gfc::forms
