#include "audit/Figures.h"
#include "audit/Plausible.h"
#include "audit/Ranges.h"
#include "audit/ValueTable.h"
#include "config/AccelabarSizes.h"
#include "config/Vocabulary.h"
#include "services/Text.h"

#include <algorithm>
#include <array>

namespace gfc::audit {

namespace {

using config::Quantity;
using config::RunMechanical;
using config::StationConfig;

// The rules that hold the limits of a standard.
struct OrificeRules {
    std::string_view Algorithm;
    RuleId BoreRule;
    RuleId PipeRule;
    RuleId BetaRule;
};

// clang-format off
constexpr std::array<OrificeRules, 2> RulesOfStandards = {{
    {config::algorithm::AGA3,    RuleId::BoreSmallAGA3,    RuleId::PipeAGA3,    RuleId::BetaAGA3},
    {config::algorithm::SYT6143, RuleId::BoreSmallISO5167, RuleId::PipeISO5167, RuleId::BetaISO5167},
}};
// clang-format on

constexpr double LargestInMetres = 2; // m: no pipe is wider, and none is as narrow as that in mm

// Bore and pipe of a run, as far as they are numbers.
struct Diameters {
    const std::string& BoreText;
    const std::string& PipeText;
    std::optional<double> Bore = NumberOf(BoreText); // in the station's unit; 0 is none
    std::optional<double> Pipe = NumberOf(PipeText);
};

class OrificeCheck {
public:
    OrificeCheck(const StationConfig& station, const OrificeLimits& limits, const OrificeRules& rules,
                 const Diameters& diameters, Sink& sink)
        : station_(station), limits_(limits), rules_(rules), diameters_(diameters), sink_(sink),
          unit_(ScaleOf(station.SystemUnits).Millimetres) {}

    void Check() {
        if (SeemInMetres())
            sink_.Add(RuleId::DiametersInMetres, {"OrificeDia", diameters_.BoreText},
                      {BoreText(), PipeText()});
        else
            CheckEach();
        CheckRatio();
    }

private:
    [[nodiscard]] std::string BoreText() const {
        return WithUnit(diameters_.BoreText, Quantity::Length, station_);
    }
    [[nodiscard]] std::string PipeText() const {
        return WithUnit(diameters_.PipeText, Quantity::Length, station_);
    }
    [[nodiscard]] static bool IsGiven(const std::optional<double>& value) { return value && *value > 0; }

    [[nodiscard]] bool SeemInMetres() const {
        return unit_ == 1 && IsGiven(diameters_.Bore) && IsGiven(diameters_.Pipe) &&
               *diameters_.Bore < LargestInMetres && *diameters_.Pipe < LargestInMetres;
    }
    void CheckEach() {
        if (IsGiven(diameters_.Bore) && IsSmall(*diameters_.Bore * unit_))
            sink_.Add(rules_.BoreRule, {"OrificeDia", diameters_.BoreText}, {BoreText()});
        if (IsGiven(diameters_.Pipe) && IsOutOfReach(*diameters_.Pipe * unit_))
            sink_.Add(rules_.PipeRule, {"InternalPipeDia", diameters_.PipeText}, {PipeText()});
    }
    void CheckRatio() {
        if (!IsGiven(diameters_.Bore) || !IsGiven(diameters_.Pipe))
            return;
        const double beta = *diameters_.Bore / *diameters_.Pipe;
        if (beta >= 1)
            sink_.Add(RuleId::BoreNotBelowPipe, {"OrificeDia", diameters_.BoreText},
                      {BoreText(), PipeText()});
        else if (IsBelow(beta, LeastBeta) || IsAbove(beta, MostBeta))
            sink_.Add(rules_.BetaRule, {"OrificeDia", diameters_.BoreText}, {Figure(beta)});
    }
    [[nodiscard]] bool IsSmall(double bore) const {
        return limits_.BoreIsPast ? !IsAbove(bore, limits_.Bore) : IsBelow(bore, limits_.Bore);
    }
    [[nodiscard]] bool IsOutOfReach(double pipe) const {
        return IsBelow(pipe, limits_.LeastPipe) || IsAbove(pipe, limits_.MostPipe);
    }

    const StationConfig& station_;
    const OrificeLimits& limits_;
    const OrificeRules& rules_;
    const Diameters& diameters_;
    Sink& sink_;
    double unit_; // mm
};

void CheckTemperature(const StationConfig& station, std::string_view key, const std::string& text,
                      Sink& sink) {
    const UsualRange& range = UsualRangeOf(key);
    const auto value = NumberOf(text);
    if (!value)
        return;
    const double celsius = Celsius(*value, ScaleOf(station.SystemUnits));
    if (IsBelow(celsius, range.Least) || IsAbove(celsius, range.Most))
        sink.Add(RuleId::ReferenceTemperature, {key, text}, {WithUnit(text, Quantity::Temperature, station)});
}

void CheckOneTemperature(const StationConfig& station, const RunMechanical& mechanical, Sink& sink) {
    const std::string& bore = mechanical.OrificeDiaRefTemp;
    const std::string& pipe = mechanical.InternalPipeDiaRefTemp;
    if (NumberOf(bore) && NumberOf(pipe) && NumberOf(bore) != NumberOf(pipe))
        sink.Add(
            RuleId::ReferenceTemperaturesDiffer, {"OrificeDiaRefTemp", bore},
            {WithUnit(bore, Quantity::Temperature, station), WithUnit(pipe, Quantity::Temperature, station)});
}

void CheckExpansion(const StationConfig& station, std::string_view key, const std::string& text, Sink& sink) {
    const auto [itsKey, itsUnit, least, most] = UsualRangeOf(key);
    const double unit = ScaleOf(station.SystemUnits).PerCelsius;
    const auto value = NumberOf(text);
    if (!value || !(IsBelow(*value * unit / least, 1) || IsAbove(*value * unit / most, 1)))
        return;
    const std::string range = Figure(least / unit) + " to " + Figure(most / unit);
    sink.Add(RuleId::ThermalExpansion, {key, text},
             {text, WithUnit(range, Quantity::ExpansionCoefficient, station)});
}

void CheckPlate(const StationConfig& station, const OrificeRules& rules, const RunMechanical& mechanical,
                Sink& sink) {
    if (!services::EqualNoCase(mechanical.ExtMechParam, config::Yes)) {
        const Diameters diameters{mechanical.OrificeDia, mechanical.InternalPipeDia};
        OrificeCheck(station, *OrificeLimitsOf(rules.Algorithm), rules, diameters, sink).Check();
        CheckTemperature(station, "OrificeDiaRefTemp", mechanical.OrificeDiaRefTemp, sink);
        CheckTemperature(station, "InternalPipeDiaRefTemp", mechanical.InternalPipeDiaRefTemp, sink);
        CheckOneTemperature(station, mechanical, sink);
    }
    if (mechanical.OrificeMaterial == "Other")
        CheckExpansion(station, "OrificeThermalExpCoeff", mechanical.OrificeThermalExpCoeff, sink);
    if (mechanical.PipeMaterial == "Other")
        CheckExpansion(station, "PipeThermalExpCoeff", mechanical.PipeThermalExpCoeff, sink);
}

// The same number in another form is the same.
void CheckAccelabar(const RunMechanical& mechanical, Sink& sink) {
    const auto size =
        std::ranges::find(config::AccelabarSizes, mechanical.AccelabarSize, &config::AccelabarSize::Size);
    if (size == config::AccelabarSizes.end())
        return;
    for (const config::AccelabarCoefficient& column : config::AccelabarCoefficients) {
        const std::string& text = mechanical.*column.Value;
        const std::string_view constant = (*size).*column.Constant;
        if (NumberOf(text) && NumberOf(text) != NumberOf(constant))
            sink.Add(RuleId::AccelabarRow, {column.Key, text}, {column.Key, size->Size, text, constant});
    }
}

} // namespace

void CheckMechanicalValues(const StationConfig& station, const RunMechanical& mechanical, Sink& sink) {
    if (station.FlowAlgorithm == config::algorithm::Accelabar)
        return CheckAccelabar(mechanical, sink);
    const auto rules = std::ranges::find(RulesOfStandards, station.FlowAlgorithm, &OrificeRules::Algorithm);
    if (rules != RulesOfStandards.end())
        CheckPlate(station, *rules, mechanical, sink);
}

} // namespace gfc::audit
