#include "Figures.h"

#include "Contest.h"

#include <algorithm>
#include <cmath>
#include <sstream>
#include <utility>

namespace gfc::bench {

namespace {

double MedianOf(std::vector<double> figures) {
    const auto middle = figures.begin() + static_cast<std::ptrdiff_t>(figures.size() / 2);
    std::ranges::nth_element(figures, middle);
    return *middle;
}

} // namespace

void Figures::Enter(const std::string& row, const std::string& contender) {
    rows_[row].push_back({contender, {}});
}

void Figures::Add(const std::string& row, const std::string& contender, int scale, double figure) {
    std::ranges::find(rows_.at(row), contender, &Contender::Name)->AtScale[scale].push_back(figure);
}

std::optional<double> Figures::Median(const std::string& row, const std::string& contender, int scale) const {
    const auto there = rows_.find(row);
    if (there == rows_.end())
        return std::nullopt;
    const auto found = std::ranges::find(there->second, contender, &Contender::Name);
    if (found == there->second.end() || !found->AtScale.contains(scale))
        return std::nullopt;
    return MedianOf(found->AtScale.at(scale));
}

std::optional<double> Figures::Ratio(const std::string& row, const std::string& contender, int scale) const {
    const auto ours = Median(row, Ours, scale);
    const auto theirs = Median(row, contender, scale);
    return ours && theirs ? std::optional(*ours / *theirs) : std::nullopt;
}

std::optional<double> Figures::Exponent(const std::string& row, const std::string& contender) const {
    const auto small = Median(row, contender, 1);
    const auto large = Median(row, contender, 100);
    return small && large ? std::optional(std::log10(*large / *small) / 2) : std::nullopt;
}

std::vector<std::string> Figures::Contenders(const std::string& row) const {
    std::vector<std::string> names;
    if (const auto found = rows_.find(row); found != rows_.end())
        for (const Contender& contender : found->second)
            names.push_back(contender.Name);
    return names;
}

bool Collector::ReportContext(const Context& context) {
    return std::exchange(told_, true) || ConsoleReporter::ReportContext(context);
}

void Collector::ReportRuns(const std::vector<Run>& runs) {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
        if (run.run_type != Run::RT_Iteration || run.error_occurred)
            continue;
        std::istringstream name(run.run_name.function_name);
        std::string row, contender, scale;
        std::getline(std::getline(std::getline(name, row, '/'), contender, '/'), scale, '/');
        const auto bytes = run.counters.find("bytes");
        figures_.Add(row, contender, std::stoi(scale),
                     bytes == run.counters.end() ? run.GetAdjustedRealTime() : bytes->second.value);
    }
}

} // namespace gfc::bench
