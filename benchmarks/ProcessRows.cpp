#include "Contest.h"
#include "Material.h"
#include "Workshop.h"
#include "project/WireRecords.h"

#include <QByteArray>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <thread>

// Whole processes: how long one takes to start, and how much memory one takes.
namespace gfc::bench {

namespace {

constexpr int SampleStations = 8;
constexpr double Tags = 100'000;

// A process that runs, and is waited for at the end.
using Process = std::unique_ptr<FILE, int (*)(FILE*)>;

Process StartOf(const std::string& command) {
    return {::popen(command.c_str(), "r"), ::pclose};
}

// The first line that it writes.
std::string LineOf(const Process& process) {
    char line[64] = "";
    return process != nullptr && std::fgets(line, sizeof line, process.get()) != nullptr ? line : "";
}

// The sample project, and beside its stations as many more.
class OpenProject {
public:
    explicit OpenProject(int scale) {
        qputenv("XDG_STATE_HOME", folder_.Path().c_str());
        Workshop("demo " + folder_.File("plant"));
        const std::string project = folder_.File("plant") + "/plant.KPJ";
        Workshop("open " + project);
        std::string table = "Station,IP Address,Module,Module Type,Tag,Class,Register\n";
        for (int i = SampleStations; i < SampleStations * scale; ++i)
            table += "More_" + std::to_string(i) + ",10.0.0.5,,,,,\n";
        Put(folder_.File("stations.csv"), table);
        if (scale > 1)
            Workshop("import-tags " + folder_.File("stations.csv"));
    }

private:
    Folder folder_;
};

// Until the process says so; what it takes to end is no part of its start.
double SecondsToWindow(benchmark::State& state, const std::string& command) {
    Process process(nullptr, ::pclose);
    std::string line;
    const double taken = SecondsOf([&] {
        process = StartOf(command);
        line = LineOf(process);
    });
    double waited = 0;
    if (std::sscanf(line.c_str(), "shown %lf", &waited) != 1)
        state.SkipWithError("no window was shown");
    return taken - waited;
}

Work Starting(const std::string& program, std::chrono::seconds rest = {}) {
    return [program, rest](benchmark::State& state, int scale) {
        const OpenProject project(scale);
        qputenv("BENCH_STATIONS", QByteArray::number(SampleStations * scale));
        for (auto _ : state) {
            std::this_thread::sleep_for(rest);
            TakeSeconds(state, SecondsToWindow(state, "exec " + Beside(program)));
        }
    };
}

void Peak(benchmark::State& state, int scale) {
    const std::string tags = std::to_string(static_cast<long long>(Tags) * scale);
    for (auto _ : state) {
        TakeBytes(state,
                  1024 * std::atof(FirstLineOf("exec " + Beside("bench-tag-memory") + " " + tags).c_str()));
    }
}

void RecordsAlone(benchmark::State& state, int scale) {
    for (auto _ : state)
        TakeBytes(state, Tags * scale * static_cast<double>(sizeof(project::TagRecord)));
}

} // namespace

void ContestProcesses() {
    Contest("start", Ours, Starting("bench-program-start"), Pace::Once);
    Contest("start", Floor, Starting("bench-plain-windows"), Pace::Once);
    Contest("start", "main window", Starting("bench-plain-windows main"), Pace::Once);
    Contest("start", "empty window", Starting("bench-empty-window"), Pace::Once);
    // A processor that has had nothing to do for two seconds has forgotten what it knew, and is slower for a
    // while.
    constexpr std::chrono::seconds rest(2);
    Contest("rested_start", Ours, Starting("bench-program-start whole"), Pace::Once);
    Contest("rested_start", Floor, Starting("bench-plain-windows", rest), Pace::Once);
    Contest("memory", Ours, Peak, Pace::Once);
    Contest("memory", Floor, RecordsAlone, Pace::Once);
}

} // namespace gfc::bench
