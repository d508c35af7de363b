#pragma once

#include "audit/Export.h"
#include "audit/Plant.h"
#include "forms/tools/ToolForm.h"
#include "ui/Buttons.h"
#include "ui/Furniture.h"
#include "ui/Label.h"
#include "ui/OpenableList.h"
#include "ui/TextBox.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace gfc::forms {

// Looks all stations of the project over, one with each tick of a timer, and lists what is found. It changes
// nothing; a row that is opened leads to its node in the main window.
class FrCheckStations : public ToolForm {
public:
    explicit FrCheckStations(Program& program);

    ui::Label Label1{*this, "Label1", "Find"};
    ui::TextBox Text1{*this, "Text1"};
    ui::CheckBox Check1{*this, "Check1", "Errors"};
    ui::CheckBox Check2{*this, "Check2", "Warnings"};
    ui::CheckBox Check3{*this, "Check3", "Notes"};
    ui::OpenableList ListView1{*this, "ListView1"};
    ui::Label Label2{*this, "Label2"};
    ui::CommandButton Command1{*this, "Command1", "Help"};
    ui::CommandButton Command2{*this, "Command2", "Stop"};
    ui::CommandButton Command3{*this, "Command3", "Copy"};
    ui::CommandButton Command4{*this, "Command4", "Save as..."};
    ui::CommandButton Command5{*this, "Command5", "Close"};
    // Between two stations the window takes what a person does.
    ui::Timer Timer1{*this, "Timer1", 1};

protected:
    void Load() override;
    void Unloading() override;

private:
    void CheckNext();
    void End(const std::string& how);
    void ShowProgress(const std::string& lead);
    void ShowRows();
    void AddRowsOf(const audit::StationReport& report);
    [[nodiscard]] bool IsWanted(const audit::StationReport& report, const audit::Finding& finding) const;
    void OpenRow(int row);
    void Copy();
    void Save();

    std::unique_ptr<audit::Plant> plant_;
    std::unique_ptr<audit::PlantCheck> check_;
    bool isAsking_ = false;
    std::vector<std::unique_ptr<audit::StationReport>> reports_;
    std::vector<audit::FindingAt> shown_; // in the order of the rows
    std::size_t errors_ = 0, warnings_ = 0, notes_ = 0;
};

} // namespace gfc::forms
