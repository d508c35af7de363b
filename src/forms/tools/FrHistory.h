#pragma once

#include "audit/Comparison.h"
#include "config/RecordFilter.h"
#include "forms/tools/ToolForm.h"
#include "ui/Buttons.h"
#include "ui/DropDownList.h"
#include "ui/Furniture.h"
#include "ui/Label.h"
#include "ui/OpenableList.h"
#include "ui/TextBox.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace gfc::forms {

// What was changed in the project's configurations, when and by whom: the entries of the record, newest
// first, and below them the keys that the selected one changed.
class FrHistory : public ToolForm {
public:
    explicit FrHistory(Program& program);

    ui::Label Label1{*this, "Label1", "Station"};
    ui::DropDownList Combo1{*this, "Combo1"};
    ui::Label Label2{*this, "Label2", "Run"};
    ui::DropDownList Combo2{*this, "Combo2"};
    ui::Label Label3{*this, "Label3", "Variable or key"};
    ui::TextBox Text1{*this, "Text1"};
    ui::Label Label4{*this, "Label4", "User ID"};
    ui::TextBox Text2{*this, "Text2"};
    ui::Label Label5{*this, "Label5", "From (UTC)"};
    ui::TextBox Text3{*this, "Text3"};
    ui::Label Label6{*this, "Label6", "To (UTC)"};
    ui::TextBox Text4{*this, "Text4"};
    ui::OpenableList ListView1{*this, "ListView1"}; // the entries
    ui::ListView ListView2{*this, "ListView2"};     // what the selected one changed
    ui::Label Label7{*this, "Label7"};
    ui::CommandButton Command1{*this, "Command1", "Help"};
    ui::CommandButton Command2{*this, "Command2", "Verify"};
    ui::CommandButton Command3{*this, "Command3", "Stop"};
    ui::CommandButton Command4{*this, "Command4", "Show..."};
    ui::CommandButton Command5{*this, "Command5", "Compare..."};
    ui::CommandButton Command6{*this, "Command6", "Bring back..."};
    ui::CommandButton Command7{*this, "Command7", "Copy"};
    ui::CommandButton Command8{*this, "Command8", "Save as..."};
    ui::CommandButton Command9{*this, "Command9", "Close"};
    // Looks for entries, and verifies them: some with each tick, so that a person can go on or stop it.
    ui::Timer Timer1{*this, "Timer1", 1};
    ui::Timer Timer2{*this, "Timer2", 1};

protected:
    void Load() override;
    void Unloading() override;

private:
    void ReadEntries();
    void FillStations();
    void LookAnew();
    void LookOn();
    void AddRowsOf(const std::vector<config::EntryChanges>& changes);
    [[nodiscard]] config::RecordFilter Wanted() const;
    [[nodiscard]] std::vector<config::KeyChange> WantedOf(std::vector<config::KeyChange> changes) const;
    struct Units {
        std::optional<audit::ShownUnits> Old;
        std::optional<audit::ShownUnits> New;
    };
    [[nodiscard]] Units UnitsOf(const config::RecordEntry& entry,
                                const std::vector<config::KeyChange>& changes);
    // Of the changes that are wanted, as the lower list shows them.
    [[nodiscard]] std::vector<ui::ListView::Row> RowsOf(const config::RecordEntry& entry);
    void ShowState();
    void SelectEntry(int row);
    [[nodiscard]] const config::RecordEntry* Selected() const;
    void OfferCommands();

    void ShowGeneration();
    void CompareWithPresent();
    void BringBack();
    void Verify();
    void VerifyOn();
    void TellVerified(const config::RecordCheck& check);
    void Stop();
    [[nodiscard]] services::TextTable TableOfAll();

    std::string record_;
    std::vector<config::RecordEntry> entries_; // in the order of their numbers
    config::RecordFilter filter_;
    std::size_t next_ = 0;           // so many of them are still to be looked at, from the newest on
    std::vector<std::size_t> shown_; // which of them stand in the rows
    std::unique_ptr<config::RecordVerification> verification_;
    bool stopped_ = false;
};

} // namespace gfc::forms
