#pragma once

#include "config/VarINIFile.h"
#include "plan/Assemble.h"
#include "plan/TagPools.h"

#include <set>

namespace gfc::plan {

// Takes a station's wish into a configuration, step by step; each step needs those before it.
class Assembler {
public:
    Assembler(const StationWish& wish, const Destination& to, const Circumstances& circumstances,
              Faults& faults)
        : wish_(wish), to_(to), circumstances_(circumstances), faults_(faults) {}

    std::optional<Checked> Assemble(config::FileState before);

private:
    [[nodiscard]] bool TakeChoices();
    void TakeCommonTexts();
    void TakeRuns();
    void RefuseUnfit();
    void RefuseUnfitPressure();
    void TakeModules();
    void DemandCapacity();
    void Bind();
    void BindStage(binding::BindingStage stage, const RunWish* run, int element);
    void BindVariable(const binding::Variable& variable, const RunWish* run);
    void BindSuggested();
    [[nodiscard]] std::string Written() const;
    void TakeErrors(const audit::StationReport& report);

    void Blame(const Said* said, std::string_view key, const std::string& text);
    void Blame(int row, std::string_view key, const std::string& value, const std::string& text);
    [[nodiscard]] const Said* CellOf(std::string_view key, const RunWish* run = nullptr) const;
    [[nodiscard]] std::string Choice(std::string_view key);

    // A variable that waits for the suggestions.
    struct Open {
        binding::Variable Variable;
        const RunWish* Run = nullptr;
    };

    const StationWish& wish_;
    const Destination& to_;
    const Circumstances& circumstances_;
    Faults& faults_;
    config::StationConfig station_;
    TagPools pools_;
    bool namesOnly_ = false; // the first of two walks over the variables
    std::vector<Open> open_;
    std::vector<suggest::BoundVariable> bound_;
};

} // namespace gfc::plan
