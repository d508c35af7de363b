#pragma once

#include "forms/program/Program.h"
#include "forms/runs/ModifyFlowFile.h"

#include <string_view>

namespace gfc::forms {

// The edit of one run of a stored configuration, from the free tags to the question about saving. Everything
// happens in memory; the result is tried on a copy of the file, and reaches the file at the very end only.
class ModifyFlow {
public:
    ModifyFlow(Program& program, const ModifySelection& selection);

    // working names the modules whose tags are not offered. Returns when the edit is saved, dropped or
    // cancelled, or the program has ended.
    void Run(const project::WorkingModuleNames& working);

private:
    // The editors, one after the other. False once one was cancelled.
    [[nodiscard]] bool Edit();
    [[nodiscard]] bool EditMechanical();
    template <class Editor>
    [[nodiscard]] bool ShowMechanical(std::string_view caption);
    [[nodiscard]] bool EditGas();
    template <class Editor>
    [[nodiscard]] bool ShowGas();
    [[nodiscard]] bool Bind(BindingStage stage, bool selected);
    [[nodiscard]] bool Goes() const;

    void SaveMechanical();
    void TryAndSave();
    [[nodiscard]] bool TrialPasses();
    void SaveIfWished();
    void SaveIfIgnored();
    void Save(const config::FileIni::Changes& changes);
    void WriteWithErrors(config::FileIni& ini);
    void DisableRun(config::FileIni& ini, int run);

    Program& program_;
    Session& session_;
    config::StationConfig& station_;
    const ModifySelection selection_;
    const int run_; // 1 to 5; 0 if no run is enabled
    const std::string file_;
};

} // namespace gfc::forms
