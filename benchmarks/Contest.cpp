#include "Contest.h"

#include <chrono>

namespace gfc::bench {

namespace {

// Medians of few figures are enough where each takes long.
int Repetitions(Pace pace, int scale) {
    if (scale == 1)
        return 15;
    return scale == 10 ? 5 : pace == Pace::Often ? 3 : 1;
}

std::vector<Entry>& MadeSoFar() {
    static std::vector<Entry> entries;
    return entries;
}

} // namespace

void Contest(const std::string& row, const std::string& contender, Work work, Pace pace) {
    MadeSoFar().push_back({row, contender});
    for (const int scale : Scales) {
        const std::string name = row + "/" + contender + "/" + std::to_string(scale);
        auto* contest = benchmark::RegisterBenchmark(
            name.c_str(), [work, scale](benchmark::State& state) { work(state, scale); });
        contest->Repetitions(Repetitions(pace, scale));
        if (pace == Pace::Once)
            contest->Iterations(1)->UseManualTime();
        else
            contest->MinTime(scale == 1 ? 0.05 : 0.02)->UseRealTime();
    }
}

const std::vector<Entry>& Entries() {
    return MadeSoFar();
}

void TakeSeconds(benchmark::State& state, double seconds) {
    state.SetIterationTime(seconds);
}

double SecondsOf(const std::function<void()>& act) {
    const auto begin = std::chrono::steady_clock::now();
    act();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

void TakeBytes(benchmark::State& state, double bytes) {
    state.SetIterationTime(1e-9);
    state.counters["bytes"] = bytes;
}

} // namespace gfc::bench
