#include "Contest.h"
#include "Floors.h"
#include "Plant.h"
#include "QuietScreen.h"
#include "forms/main_window/GFCPrincipal.h"

#include <map>

// The tree of the main window, below the window: what a command ends with.
namespace gfc::bench {

namespace {

constexpr int Stations = 1000;

// One plant for each scale serves all repetitions: to make a hundred thousand files takes far longer than to
// read them. The tree stands already, as it does before a command, and no contender is the first to read the
// new files.
Plant& PlantAt(int scale) {
    static QuietScreen screen;
    static std::map<int, Plant> plants;
    const auto [at, made] = plants.try_emplace(scale, screen, Stations * scale);
    if (made)
        at->second.Program().Forms.Get<forms::GFCPrincipal>().RebuildAfterCommand();
    return at->second;
}

void Rebuild(benchmark::State& state, int scale) {
    auto& program = PlantAt(scale).Program();
    auto& window = program.Forms.Get<forms::GFCPrincipal>();
    // The node on which the last command worked, far down.
    const auto& stations = program.Session.Project.Stations;
    program.Session.SelectedNodeText = stations.back().Name;
    program.Session.SelectedPath = "All Stations\\" + stations.back().Name;
    for (auto _ : state)
        TakeSeconds(state, SecondsOf([&] { window.RebuildAfterCommand(); }));
    if (window.ListView1.Count() != Stations * scale || window.TreeGFC.SelectedNode() == 0)
        state.SkipWithError("the tree was not built");
}

void ReadAll(benchmark::State& state, int scale) {
    const auto files = PlantAt(scale).StationFiles();
    for (auto _ : state)
        TakeSeconds(state, SecondsOf([&] {
                        for (const std::string& file : files)
                            benchmark::DoNotOptimize(PlainRead(file));
                    }));
}

} // namespace

void ContestTree() {
    Contest("tree", Ours, Rebuild, Pace::Once);
    Contest("tree", Floor, ReadAll, Pace::Once);
}

} // namespace gfc::bench
