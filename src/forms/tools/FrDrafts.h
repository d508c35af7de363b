#pragma once

#include "drafts/DraftStore.h"
#include "forms/tools/ToolForm.h"
#include "ui/Buttons.h"
#include "ui/DropDownList.h"
#include "ui/Label.h"
#include "ui/OpenableList.h"

#include <functional>
#include <string>
#include <vector>

namespace gfc::forms {

// The passes of the wizard that were not brought to their end: where each stands, and the way to go on with
// it.
class FrDrafts : public ToolForm {
public:
    explicit FrDrafts(Program& program);

    // Told which draft is to go on, and for which station, once the window has gone. Set by the caller.
    std::function<void(const drafts::Draft& draft, const std::string& station)> OnGoOn;

    ui::Label Label1{*this, "Label1", "Drafts"};
    ui::OpenableList ListView1{*this, "ListView1"};
    ui::Label Label2{*this, "Label2", "For station"};
    ui::DropDownList Combo1{*this, "Combo1"};
    ui::Label Label3{*this, "Label3"};
    ui::CommandButton Command1{*this, "Command1", "Help"};
    ui::CommandButton Command2{*this, "Command2", "Delete..."};
    ui::CommandButton Command3{*this, "Command3", "Go on"};
    ui::CommandButton Command4{*this, "Command4", "Close"};

protected:
    void Load() override;

private:
    void Read();
    void AddRow(const drafts::KeptDraft& kept);
    [[nodiscard]] std::string RemarkOn(const drafts::KeptDraft& kept);
    [[nodiscard]] bool HasStation(const std::string& station) const;
    [[nodiscard]] const drafts::KeptDraft* Selected() const;
    void SelectDraft();
    void OfferCommands();
    void GoOn();
    void Delete();

    drafts::DraftStore store_{program_.Machine, session_.Project.ProjectFile};
    std::vector<drafts::KeptDraft> drafts_; // in the order of the rows
};

// The menu's command: shows the window, and takes up the draft that was chosen.
void DraftsCommand(Program& program);

} // namespace gfc::forms
