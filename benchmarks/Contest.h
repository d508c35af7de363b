#pragma once

#include <benchmark/benchmark.h>
#include <functional>
#include <string>
#include <vector>

// The benchmarks are contests: in each row of the table the program and those it is measured against do the
// same work, at one, ten and a hundred times the row's size.
namespace gfc::bench {

inline constexpr int Scales[] = {1, 10, 100};

inline constexpr const char* Ours = "ours";
inline constexpr const char* Floor = "floor";

// The material of the row at that many times its size is made in the work itself, before its loop.
using Work = std::function<void(benchmark::State& state, int scale)>;

enum class Pace {
    Often, // short works, in as many iterations as the clock needs
    Once,  // long ones, and those that time themselves: one iteration for each figure
};

// Its figures go by the name "row/contender/scale". The rows of the tables stand in Table.cpp.
void Contest(const std::string& row, const std::string& contender, Work work, Pace pace = Pace::Often);

struct Entry {
    std::string Row;
    std::string Contender;
};
// All contests, in the order in which they were made.
[[nodiscard]] const std::vector<Entry>& Entries();

// The figure of this iteration in place of the clock's, in seconds; for works of Pace::Once alone.
void TakeSeconds(benchmark::State& state, double seconds);
// How long that takes by the clock.
[[nodiscard]] double SecondsOf(const std::function<void()>& act);
// The figure of the row is an amount of bytes and no time.
void TakeBytes(benchmark::State& state, double bytes);

// One for each file of rows.
void ContestKeys();
void ContestStations();
void ContestRecord();
void ContestTree();
void ContestTags();
void ContestAudit();
void ContestPlan();
void ContestWindows();
void ContestProcesses();

} // namespace gfc::bench
