#include "audit/NameSense.h"

#include <algorithm>
#include <map>

namespace gfc::audit {

namespace {

struct Named {
    const Bound* Variable;
    naming::TagName Name;
};

std::vector<Named> NamedOf(const std::vector<Bound>& all) {
    std::vector<Named> named;
    named.reserve(all.size());
    for (const Bound& bound : all)
        if (bound.IsMade() && !bound.Binding->Tag.empty())
            named.push_back({&bound, naming::Parse(bound.Binding->Tag)});
    return named;
}

void CheckWords(const std::vector<Named>& all, const config::StationConfig& station, Sink& sink) {
    for (const auto& [bound, name] : all) {
        const std::string& tag = bound->Binding->Tag;
        if (const std::string reason = QuantityAgainst(*bound, name); !reason.empty())
            Add(sink, RuleId::NameQuantity, *bound, {bound->Variable(), tag, reason});
        else if (const std::string unit = UnitAgainst(*bound, name, station); !unit.empty())
            Add(sink, RuleId::NameUnit, *bound,
                {bound->Variable(), tag,
                 config::UnitCaption(*bound->Row->Unit, station.SystemUnits, station.FlowAlgorithm), unit});
    }
}

// The run's own instruments: a chromatograph and what is computed from it mostly bear numbers of their own,
// and an atmospheric pressure that of the station.
bool IsOfRunsLoop(const Bound& bound, const naming::TagName& name) {
    const bool isOfRun = bound.Row->Stage == binding::BindingStage::RunInputs ||
                         bound.Row->Stage == binding::BindingStage::RunOutputs;
    return isOfRun && !name.Device.Loop.empty() && !AreOfRegisters(name.Device.Letters);
}

// The loops of the tags of each run, counted.
using Counts = std::map<std::string, int>;

std::map<int, Counts> LoopsOf(const std::vector<Named>& all) {
    std::map<int, Counts> loops;
    for (const auto& [bound, name] : all)
        if (IsOfRunsLoop(*bound, name))
            ++loops[bound->Run][name.Device.Loop];
    return loops;
}

// The one loop that three and more of the run's tags bear, and all others but one in four; empty if there is
// none: then the plant numbers its instruments otherwise.
std::string MainLoop(const Counts& loops) {
    constexpr int few = 3, oneIn = 4;
    int all = 0;
    for (const auto& [loop, count] : loops)
        all += count;
    for (const auto& [loop, count] : loops)
        if (count >= few && (all - count) * oneIn <= all)
            return loop;
    return {};
}

// A tag that serves several runs is of the loop of one of them.
bool IsShared(const Bound& bound, const std::vector<Named>& all) {
    return std::ranges::any_of(all, [&](const Named& other) {
        return other.Variable->Run != bound.Run && *other.Variable->Binding == *bound.Binding;
    });
}

void CheckLoops(const std::vector<Named>& all, Sink& sink) {
    const auto loops = LoopsOf(all);
    for (const auto& [bound, name] : all) {
        if (!IsOfRunsLoop(*bound, name))
            continue;
        const std::string main = MainLoop(loops.at(bound->Run));
        if (!main.empty() && name.Device.Loop != main && !IsShared(*bound, all))
            Add(sink, RuleId::NameLoop, *bound, {bound->Variable(), bound->Binding->Tag, main});
    }
}

} // namespace

void CheckTagNames(const std::vector<Bound>& all, const config::StationConfig& station, Sink& sink) {
    const auto named = NamedOf(all);
    CheckWords(named, station, sink);
    CheckLoops(named, sink);
}

} // namespace gfc::audit
