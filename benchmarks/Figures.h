#pragma once

#include <benchmark/benchmark.h>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace gfc::bench {

// The medians of all contests of one run: nanoseconds, or bytes.
class Figures {
public:
    // Its place among the contenders of the row is behind those that were entered before.
    void Enter(const std::string& row, const std::string& contender);
    void Add(const std::string& row, const std::string& contender, int scale, double figure);
    // Nothing where the contest did not take place.
    [[nodiscard]] std::optional<double> Median(const std::string& row, const std::string& contender,
                                               int scale = 1) const;
    // How many times what that contender takes ours takes.
    [[nodiscard]] std::optional<double> Ratio(const std::string& row, const std::string& contender,
                                              int scale = 1) const;
    // The power of the size with which the figure grows: 1 for linear.
    [[nodiscard]] std::optional<double> Exponent(const std::string& row, const std::string& contender) const;
    // In the order in which they were entered.
    [[nodiscard]] std::vector<std::string> Contenders(const std::string& row) const;

private:
    struct Contender {
        std::string Name;
        std::map<int, std::vector<double>> AtScale;
    };
    std::map<std::string, std::vector<Contender>> rows_;
};

// Shows the figures as they come, and keeps them.
class Collector : public benchmark::ConsoleReporter {
public:
    explicit Collector(Figures& figures) : ConsoleReporter(OO_Tabular), figures_(figures) {}
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;

private:
    Figures& figures_;
    bool told_ = false; // on what machine
};

} // namespace gfc::bench
