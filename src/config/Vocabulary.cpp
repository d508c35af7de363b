#include "config/Vocabulary.h"

#include <algorithm>

namespace gfc::config {

// clang-format off
const std::array<Choice, 4> FlowAlgorithms = {{
    // Stored               Wizard                  Configurator; the third differs on purpose
    {algorithm::AGA3,      "AGA-3 1992",           "AGA-3 1992"},
    {algorithm::AGA7,      "AGA-7",                "AGA-7"},
    {algorithm::Accelabar, "Accelabar-AGA-3 1992", "Accelabar-AGA-3-1992"},
    {algorithm::SYT6143,   "GBT21446-2008",        "GBT21446-2008"},
}};

const std::array<Choice, 5> GasDensitySources = {{
    {source::Measured,     "Densimeter",        "Densimeter"},
    {source::AGA8,         "AGA-8",             "AGA-8"},
    {source::SGERG88,      "SGERG-88",          "SGERG-88"},
    {source::ISO12213_2,   "ISO 12213-2 1997",  "ISO 12213-2 1997"},
    {source::ISO12213_3,   "ISO 12213-3 1997 ", "ISO 12213-3 1997"}, // the blank is part of the entry
}};

const std::array<Choice, 5> UnitSystems = {{
    {units::US,          units::US,          units::US},
    {units::USdegC,      units::USdegC,      units::USdegC},
    {units::Metric,      units::Metric,      units::Metric},
    {units::MetricDegF,  units::MetricDegF,  units::MetricDegF},
    {units::PracticalSI, units::PracticalSI, units::PracticalSI},
}};
// clang-format on

namespace {

template <class Choices>
int IndexOf(const Choices& choices, std::string_view Choice::*column, std::string_view text, int fallback) {
    const auto found = std::ranges::find(choices, text, column);
    return found == choices.end() ? fallback : static_cast<int>(found - choices.begin());
}

constexpr int IndexOfAGA7 = 1;
constexpr int IndexOfSYT6143 = 3;
constexpr int IndexOfPracticalSI = 4;

} // namespace

GasFamily FamilyOf(std::string_view gasDensitySource) {
    if (IsDetail(gasDensitySource))
        return GasFamily::Detail;
    const bool gross = gasDensitySource == source::SGERG88 || gasDensitySource == source::ISO12213_3;
    return gross ? GasFamily::Gross : GasFamily::Densimeter;
}

bool IsGasModel(std::string_view gasDensitySource) {
    return FamilyOf(gasDensitySource) != GasFamily::Densimeter;
}

bool IsDetail(std::string_view gasDensitySource) {
    return gasDensitySource == source::AGA8 || gasDensitySource == source::ISO12213_2;
}

bool IsOrificeAlgorithm(std::string_view flowAlgorithm) {
    return flowAlgorithm == algorithm::AGA3 || flowAlgorithm == algorithm::Accelabar ||
           flowAlgorithm == algorithm::SYT6143;
}

std::string_view StoredAlgorithm(std::string_view shownInWizard) {
    const int index = IndexOf(FlowAlgorithms, &Choice::InWizard, shownInWizard, IndexOfSYT6143);
    return FlowAlgorithms[static_cast<std::size_t>(index)].Stored;
}

std::string_view StoredSource(std::string_view shownInWizard) {
    const auto found = std::ranges::find(GasDensitySources, shownInWizard, &Choice::InWizard);
    return found == GasDensitySources.end() ? std::string_view{} : found->Stored;
}

int AlgorithmIndex(std::string_view stored) {
    return IndexOf(FlowAlgorithms, &Choice::Stored, stored, IndexOfAGA7);
}

int SourceIndex(std::string_view stored) {
    return IndexOf(GasDensitySources, &Choice::Stored, stored, -1);
}

int UnitsIndex(std::string_view stored) {
    return IndexOf(UnitSystems, &Choice::Stored, stored, IndexOfPracticalSI);
}

} // namespace gfc::config
