#pragma once

#include <array>
#include <string>
#include <string_view>

// The choices of a configuration: what is stored, in memory and in the file, against what a person sees.
// Stored texts are compared exactly, case included.
namespace gfc::config {

namespace algorithm {
constexpr std::string_view AGA3 = "AGA3";
constexpr std::string_view AGA7 = "AGA7";
constexpr std::string_view Accelabar = "Accelabar-AGA-3-1992";
// Shown as "GBT21446-2008": deliberately two different standards' numbers.
constexpr std::string_view SYT6143 = "SYT6143-2004";
} // namespace algorithm

namespace source {
constexpr std::string_view Measured = "MEASURED";
constexpr std::string_view AGA8 = "AGA8";
constexpr std::string_view SGERG88 = "SGERG88";
constexpr std::string_view ISO12213_2 = "ISO-12213-2-1997";
constexpr std::string_view ISO12213_3 = "ISO-12213-3-1997";
} // namespace source

namespace units {
constexpr std::string_view US = "US";
constexpr std::string_view USdegC = "US-degC";
constexpr std::string_view Metric = "Metric";
constexpr std::string_view MetricDegF = "Metric-degF";
constexpr std::string_view PracticalSI = "Practical-SI";
} // namespace units

constexpr std::string_view Yes = "Yes";
constexpr std::string_view No = "No";
constexpr std::string_view Absolute = "Absolute";
constexpr std::string_view Gage = "Gage";
constexpr std::string_view CompositionMeasured = "MEASURED";
constexpr std::string_view CompositionFixed = "FIXED";
constexpr std::string_view DetailMethod = "DETAIL";

// One entry of a selection list; its place in the table is its index in the list.
struct Choice {
    std::string_view Stored;
    std::string_view InWizard;
    std::string_view InConfigurador;
};

extern const std::array<Choice, 4> FlowAlgorithms;
extern const std::array<Choice, 5> GasDensitySources;
extern const std::array<Choice, 5> UnitSystems;

enum class GasFamily { Densimeter, Detail, Gross };

// A source that is none of the five counts as a densimeter.
[[nodiscard]] GasFamily FamilyOf(std::string_view gasDensitySource);
// True for the four sources that are computed by a gas model.
[[nodiscard]] bool IsGasModel(std::string_view gasDensitySource);
[[nodiscard]] bool IsDetail(std::string_view gasDensitySource);

// True for the three algorithms that measure over a differential pressure; an unknown one is not among them.
[[nodiscard]] bool IsOrificeAlgorithm(std::string_view flowAlgorithm);

// What the wizard stores for the text that its list shows; anything but the first three entries, an empty
// selection too, stores the last.
[[nodiscard]] std::string_view StoredAlgorithm(std::string_view shownInWizard);
// The empty text for a text that the list does not hold.
[[nodiscard]] std::string_view StoredSource(std::string_view shownInWizard);
// The entry that the configurator selects for a stored text; an unknown one shows "AGA-7".
[[nodiscard]] int AlgorithmIndex(std::string_view stored);
// -1 for an unknown text.
[[nodiscard]] int SourceIndex(std::string_view stored);
// The last system, "Practical-SI", for an unknown text.
[[nodiscard]] int UnitsIndex(std::string_view stored);

} // namespace gfc::config
