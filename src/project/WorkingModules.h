#pragma once

#include "config/VarINIFile.h"
#include "project/TagInventory.h"

namespace gfc::project {

struct Candidate {
    std::int32_t Registers = 0;
    std::string ModuleName;
};

// What the package needs of each kind for its own work.
inline constexpr int WorkingLongRegisters = 8;
inline constexpr int WorkingAnalogRegisters = 32;
inline constexpr int WorkingFloatRegisters = 128;

// The virtual modules that are large enough for the package's own work: long 8, analog 32, float 128
// registers. The counts are not cleared by ChooseWorkingModules: whatever opened a station must end in
// ClearCounts.
struct WorkingModuleCandidates {
    std::vector<Candidate> LongCandidates;
    std::vector<Candidate> AnalogCandidates;
    std::vector<Candidate> FloatCandidates;
    int NLX = 0, NLY = 0, NAX = 0, NAY = 0, NFX = 0, NFY = 0;
    // Distinct module names of the virtual lists.
    std::vector<std::string> NamesLX, NamesLY, NamesAX, NamesAY, NamesFX, NamesFY;

    void ClearCounts();
};

// True when every kind has at least one candidate; otherwise no candidate list is resized.
bool ChooseWorkingModules(const TagInventory& inventory, WorkingModuleCandidates& candidates);

// Looks up register address and type of the three modules by the tags of their class; no match leaves what
// stood there.
void ResolveWorkingModuleRegisters(const TagInventory& inventory, const WorkingModuleNames& names,
                                   config::WorkingModules& working);

} // namespace gfc::project
