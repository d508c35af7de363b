#include "forms/binding/UnusedTags.h"

#include "binding/TagsInUse.h"
#include "config/Vocabulary.h"
#include "forms/program/Program.h"

namespace gfc::forms {

void OfferUnusedTags(Program& program, const project::WorkingModuleNames& working) {
    auto& session = program.Session;
    auto& pools = session.Inventory;
    auto& expected = session.Expected;
    const bool isAGA7 = session.Station.FlowAlgorithm == config::algorithm::AGA7;
    project::BuildAvailableLists(pools, working, isAGA7);
    binding::BuildExpectedTags(program.Ini, session.ConfigFile(), session.Station, expected);
    // Deliberately without a look at the result: an edit is how a person mends a file with errors.
    (void)binding::CheckExpectedTags(expected, pools);
    for (const auto& used : {expected, binding::TagsInUse(program.Ini, session.ConfigFile())}) {
        binding::RemoveUsedTags(pools.AvailFloat, used.ExpectedFloat);
        binding::RemoveUsedTags(pools.AvailAnalog, used.ExpectedAnalog);
        binding::RemoveUsedTags(pools.AvailDigital, used.ExpectedDigital);
        if (isAGA7)
            binding::RemoveUsedTags(pools.AvailLong, used.ExpectedLong);
    }
}

project::TagList UnusedFloats(const Program& program, const std::string& workingModule) {
    const auto& session = program.Session;
    auto floats = project::MergeWithout(session.Inventory.VirtFX, session.Inventory.VirtFY, workingModule);
    auto used = binding::TagsInUse(program.Ini, session.ConfigFile()).ExpectedFloat;
    // The pressure's own tag of the file may be taken again; what it is bound to by now is shown as bound.
    std::erase_if(used, [](const auto& entry) { return !entry.Location.starts_with("Run"); });
    auto& bound = used.emplace_back();
    bound.RegAddr = session.Station.CommonPa.RegAddr;
    bound.Tag = session.Station.CommonPa.Tag;
    binding::RemoveUsedTags(floats, used);
    return floats;
}

} // namespace gfc::forms
