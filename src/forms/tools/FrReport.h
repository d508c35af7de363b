#pragma once

#include "audit/ReportWriter.h"
#include "forms/tools/ToolForm.h"
#include "ui/Buttons.h"
#include "ui/CheckableList.h"
#include "ui/DropDownList.h"
#include "ui/Frame.h"
#include "ui/Furniture.h"
#include "ui/Label.h"
#include "ui/TextBox.h"

#include <memory>
#include <string>
#include <vector>

namespace gfc::forms {

// Makes a report of the marked stations, to print and to sign, in steps that can be stopped.
class FrReport : public ToolForm {
public:
    explicit FrReport(Program& program);

    ui::Label Label1{*this, "Label1", "Stations"};
    ui::CheckableList ListView1{*this, "ListView1"};
    ui::CommandButton Command1{*this, "Command1", "Choose all"};
    ui::CommandButton Command2{*this, "Command2", "Choose none"};
    ui::Label Label2{*this, "Label2", "User ID"};
    ui::TextBox Text1{*this, "Text1"};
    ui::Label Label3{*this, "Label3", "Changes since"};
    ui::DropDownList Combo1{*this, "Combo1"};
    ui::Label Label4{*this, "Label4", "Paper"};
    ui::DropDownList Combo2{*this, "Combo2"};
    ui::Label Label5{*this, "Label5"};
    ui::CommandButton Command3{*this, "Command3", "Help"};
    ui::CommandButton Command4{*this, "Command4", "Stop"};
    ui::CommandButton Command5{*this, "Command5", "Make..."};
    ui::CommandButton Command6{*this, "Command6", "Close"};
    // Makes a part of the report with each tick.
    ui::Timer Timer1{*this, "Timer1", 1};

protected:
    void Load() override;
    void Unloading() override;

private:
    void FillStations();
    void FillChanges();
    void MarkAll(bool marked);
    void ShowState();
    void Make();
    void Begin(const std::string& file);
    void MakeOn();
    void Finish();
    void End(const std::string& state);
    [[nodiscard]] audit::ReportOrder Ordered() const;

    std::vector<std::int64_t> since_; // of the entries behind the first choice
    std::string file_;
    std::unique_ptr<audit::ReportWork> work_;
};

} // namespace gfc::forms
