#pragma once

#include "forms/program/Program.h"
#include "ui/Buttons.h"
#include "ui/ControlArray.h"
#include "ui/Frame.h"

namespace gfc::forms {

// Which of the five runs a new configuration gets. Accepting a selection that the station can carry opens the
// wizard.
class SelectRuns : public ProgramForm {
public:
    explicit SelectRuns(Program& program);

    // Set by the caller before showing: the station carries AGA-7 only.
    bool FlagAGA7 = false;

    ui::Frame FrameRuns{*this, "FrameRuns", "Calculation runs"};
    ui::ControlArray<ui::CheckBox, config::MaxRuns> CheckRun{
        FrameRuns, "CheckRun", [](int i) { return "Run " + std::to_string(i + 1); }};
    ui::CommandButton Command1{*this, "Command1", "Accept"};
    ui::CommandButton Command2{*this, "Command2", "Cancel"};

protected:
    void Load() override;
    void Activate() override;
    void Unloading() override;

private:
    void ClearBoxes();
    void Accept();
    void TakeSelection();
    void TryTo();
    void Refuse();
    void Cancel();
    [[nodiscard]] int SetBoxes() const;
    [[nodiscard]] bool Fits() const;
    // False if it has nothing to say: no more runs are selected than fit.
    [[nodiscard]] bool ReportOverSelection(int fit);
};

} // namespace gfc::forms
