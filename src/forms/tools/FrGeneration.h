#pragma once

#include "audit/StationPages.h"
#include "forms/tools/ToolForm.h"
#include "ui/Buttons.h"
#include "ui/Label.h"
#include "ui/ListView.h"

#include <string>
#include <vector>

namespace gfc::forms {

// A station's file as an entry of the history left it, on the pages of the main window's summaries.
class FrGeneration : public ToolForm {
public:
    explicit FrGeneration(Program& program);

    ui::Label Label1{*this, "Label1"};
    ui::Label Label2{*this, "Label2"};
    ui::ListView ListView1{*this, "ListView1"}; // the pages
    ui::Label Label3{*this, "Label3"};          // the line of a page without a list
    ui::ListView ListView2{*this, "ListView2"};
    ui::CommandButton Command1{*this, "Command1", "Help"};
    ui::CommandButton Command2{*this, "Command2", "Save file as..."};
    ui::CommandButton Command3{*this, "Command3", "Close"};

    // To be called before it is shown: the entry and the file that it left.
    void LookAt(config::RecordEntry entry, std::string bytes);

protected:
    void Load() override;

private:
    void ShowPage(int row);
    void SaveFile();

    config::RecordEntry entry_;
    std::string bytes_;
    std::vector<audit::SummaryTable> pages_;
};

} // namespace gfc::forms
