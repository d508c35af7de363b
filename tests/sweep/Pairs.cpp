#include "Pairs.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace gfc::test::sweep {
namespace {

std::array<std::string, 4> FactorsOf(const Choice& choice) {
    return {UnitsText(choice), "pressure " + std::to_string(static_cast<int>(choice.Pressure)),
            choice.ExternalDiameters ? "external diameters" : "own diameters",
            std::to_string(choice.Runs.size()) + " runs"};
}

std::size_t Common(const std::set<std::string>& some, const std::set<std::string>& others) {
    return static_cast<std::size_t>(
        std::count_if(some.begin(), some.end(), [&](const auto& pair) { return others.count(pair) != 0; }));
}

// Those of the variation that holds most of the missing; of equals the first.
std::size_t Best(const std::vector<std::set<std::string>>& pairs, const std::set<std::string>& missing) {
    std::vector<std::size_t> counts;
    for (const auto& some : pairs)
        counts.push_back(Common(some, missing));
    return static_cast<std::size_t>(std::max_element(counts.begin(), counts.end()) - counts.begin());
}

} // namespace

std::set<std::string> PairsIn(const Choice& choice) {
    std::set<std::string> pairs;
    const auto factors = FactorsOf(choice);
    for (std::size_t one = 0; one < factors.size(); ++one)
        for (std::size_t other = one + 1; other < factors.size(); ++other)
            pairs.insert(factors[one] + " with " + factors[other]);
    return pairs;
}

std::vector<Choice> PairwiseOf(const Choice& method) {
    auto all = VariationsOf(method);
    // So that which of equals is first depends on the method.
    const auto turn =
        static_cast<std::size_t>(method.Standard * 10 + method.Source * 2 + method.Chromatograph);
    std::rotate(all.begin(), all.begin() + static_cast<std::ptrdiff_t>(turn * 7 % all.size()), all.end());
    std::vector<std::set<std::string>> pairs;
    std::set<std::string> missing;
    for (const auto& choice : all) {
        pairs.push_back(PairsIn(choice));
        missing.insert(pairs.back().begin(), pairs.back().end());
    }
    std::vector<Choice> chosen;
    while (!missing.empty()) {
        const auto best = Best(pairs, missing);
        chosen.push_back(all[best]);
        for (const auto& pair : pairs[best])
            missing.erase(pair);
    }
    return chosen;
}

std::vector<Choice> SweptOf(const Choice& method) {
    return std::getenv("GFC_WHOLE_SWEEP") ? VariationsOf(method) : PairwiseOf(method);
}

} // namespace gfc::test::sweep
