#include "audit/Figures.h"
#include "audit/GasTables.h"
#include "audit/Gross.h"
#include "audit/Plausible.h"
#include "audit/ValueTable.h"
#include "config/Vocabulary.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace gfc::audit {

namespace {

using Fractions = std::array<double, config::Components>; // in the order of GasSlot

// Nothing while a component is missing or no number.
std::optional<Fractions> FractionsOf(const config::RunGas& fixed) {
    Fractions fractions{};
    for (std::size_t i = 0; i < fractions.size(); ++i) {
        const auto value = NumberOf(fixed[static_cast<config::GasSlot>(i)].Tag);
        if (!value)
            return std::nullopt;
        fractions[i] = *value;
    }
    return fractions;
}

// False where nothing more can be said of the gas.
bool CheckSum(const Fractions& fractions, Sink& sink) {
    constexpr double slip = 0.01, rounding = 0.0001;
    const double sum = std::accumulate(fractions.begin(), fractions.end(), 0.0);
    const double off = std::abs(sum - 1);
    const Place place{"GC_C1"};
    if (std::abs(sum - 100) <= 100 * slip)
        sink.Add(RuleId::GasPercent, place, {Figure(sum)});
    else if (off > slip)
        sink.Add(RuleId::GasSum, place, {Figure(sum)});
    else if (IsAbove(off, rounding))
        sink.Add(RuleId::GasSumRounded, place, {Figure(sum)});
    return off <= slip;
}

std::string RangeText(double least, double most) {
    return Figure(least) + " to " + Figure(most);
}

bool IsPast(double value, double least, double most) {
    return IsBelow(value, least) || (most != None && IsAbove(value, most));
}

double SumOf(const ComponentRange& range, const Fractions& fractions) {
    double sum = 0;
    for (std::size_t i = 0; i < range.Count; ++i)
        sum += fractions[static_cast<std::size_t>(range.Slots[i])];
    return sum;
}

void CheckRanges(std::span<const ComponentRange> ranges, const Fractions& fractions, RuleId near, RuleId far,
                 Sink& sink) {
    for (const ComponentRange& range : ranges) {
        const double value = SumOf(range, fractions);
        const std::string figure = Figure(value);
        if (IsPast(value, range.FarLeast, range.FarMost))
            sink.Add(far, {range.Key, figure},
                     {range.Name, figure, RangeText(range.FarLeast, range.FarMost)});
        else if (IsPast(value, range.Least, range.Most))
            sink.Add(near, {range.Key, figure}, {range.Name, figure, RangeText(range.Least, range.Most)});
    }
}

// What ISO 12213-2 leaves open, the expanded ranges of AGA-8 bound.
void CheckBeyondISO(const Fractions& fractions, Sink& sink) {
    for (const ComponentRange& range : RangesOfAGA8()) {
        const auto own = std::ranges::find(RangesOfISO12213(), range.Key, &ComponentRange::Key);
        const bool isBounded = own != RangesOfISO12213().end() && own->FarMost != None;
        const double value = SumOf(range, fractions);
        if (!isBounded && IsPast(value, range.FarLeast, range.FarMost))
            sink.Add(RuleId::GasExpandedAGA8, {range.Key, Figure(value)},
                     {range.Name, Figure(value), RangeText(range.FarLeast, range.FarMost)});
    }
}

// How much of one mole would have to be exchanged for the other gas, in mole percent.
double Distance(const Fractions& fractions, const ReferenceGas& gas) {
    double sum = 0;
    for (std::size_t i = 0; i < fractions.size(); ++i)
        sum += std::abs(100 * fractions[i] - gas.Percent[i]);
    return sum / 2;
}

void TellNearest(const Fractions& fractions, Sink& sink) {
    const auto gases = ReferenceGases();
    const auto nearest = std::ranges::min_element(
        gases, {}, [&](const ReferenceGas& gas) { return Distance(fractions, gas); });
    const double distance = std::round(Distance(fractions, *nearest) * 1000) / 1000;
    sink.Add(RuleId::GasNearest, {"GC_C1"}, {nearest->Name, Figure(distance)});
}

void CheckComposition(const config::StationConfig& station, const config::RunGas& fixed, Sink& sink) {
    const auto fractions = FractionsOf(fixed);
    if (!fractions || !CheckSum(*fractions, sink))
        return;
    if (station.GasDensitySource == config::source::ISO12213_2) {
        CheckRanges(RangesOfISO12213(), *fractions, RuleId::GasPipelineISO, RuleId::GasWiderISO, sink);
        CheckBeyondISO(*fractions, sink);
    } else {
        CheckRanges(RangesOfAGA8(), *fractions, RuleId::GasNormalAGA8, RuleId::GasExpandedAGA8, sink);
    }
    TellNearest(*fractions, sink);
}

} // namespace

void CheckGasValues(const config::StationConfig& station, const config::RunGas& fixed, Sink& sink) {
    if (station.AGA8CalInput == config::CompositionMeasured)
        return;
    const auto family = config::FamilyOf(station.GasDensitySource);
    if (family == config::GasFamily::Detail)
        CheckComposition(station, fixed, sink);
    else if (family == config::GasFamily::Gross)
        CheckGross(station, fixed, sink);
}

} // namespace gfc::audit
