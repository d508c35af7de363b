#pragma once

#include "config/VarINIFile.h"
#include "plan/Assemble.h"
#include "plan/TagPools.h"

#include <set>

namespace gfc::plan {

// Takes a station's wish into a configuration, step by step; each step needs those before it.
class Assembler {
public:
    Assembler(const StationWish& wish, Destination to, const Circumstances& circumstances, Faults& faults)
        : wish_(wish), to_(std::move(to)), circumstances_(circumstances), faults_(faults) {}

    std::optional<Checked> Assemble(config::FileState before);

private:
    // A variable to bind.
    struct Open {
        binding::Variable Variable;
        const RunWish* Run = nullptr; // null for what all runs share
        const Said* Named = nullptr;  // null where no cell names its tag
        [[nodiscard]] int RunNumber() const { return Run == nullptr ? 0 : Run->Run; }
    };

    [[nodiscard]] bool TakeChoices();
    void TakeCommonTexts();
    void TakeRuns();
    void RefuseUnfit();
    void RefuseUnfitPressure();
    void TakeModules();
    void DemandCapacity();
    void Bind();
    [[nodiscard]] std::vector<Open> AllVariables();
    void BindNamed(const Open& open);
    void BindUnnamed(const Open& open);
    void BindTo(const Open& open, const project::Tag& tag);
    void BindSuggested();
    [[nodiscard]] std::string Written() const;
    void TakeErrors(const audit::StationReport& report);

    void Blame(const Said* said, std::string_view key, const std::string& text);
    void Blame(int row, std::string_view key, const std::string& value, const std::string& text);
    void Blame(const Open& open, const std::string& text);
    [[nodiscard]] const Said* CellOf(std::string_view key, const RunWish* run = nullptr) const;
    [[nodiscard]] std::string Choice(std::string_view key);

    const StationWish& wish_;
    Destination to_;
    const Circumstances& circumstances_;
    Faults& faults_;
    config::StationConfig station_;
    TagPools pools_;
    std::vector<Open> open_; // that wait for the suggestions
    std::vector<suggest::BoundVariable> bound_;
};

} // namespace gfc::plan
