#pragma once

#include "forms/tools/ToolForm.h"
#include "plan/Copy.h"
#include "ui/Buttons.h"
#include "ui/DropDownList.h"
#include "ui/Furniture.h"
#include "ui/Label.h"
#include "ui/OpenableList.h"

#include <memory>
#include <string>
#include <vector>

namespace gfc::forms {

// Copies a station's configuration to several others, or binds stations anew whose tags were renamed.
// Stations are chosen in the upper list; what becomes of the variables of the one that is selected stands in
// the lower one, where a person may choose another tag. Tags are looked up and files written one station with
// each tick of a timer.
class FrPlanStations : public ToolForm {
public:
    explicit FrPlanStations(Program& program);

    // To be called before it is shown: the station to be copied from, or empty to bind anew.
    void CopyFrom(const std::string& station) { copied_ = station; }
    [[nodiscard]] bool HasWritten() const { return hasWritten_; }

    ui::Label Label1{*this, "Label1", "Stations"};
    ui::OpenableList ListView1{*this, "ListView1"};
    ui::CommandButton Command1{*this, "Command1", "Choose or leave out"};
    ui::CommandButton Command2{*this, "Command2", "Choose all"};
    ui::CommandButton Command3{*this, "Command3", "Choose none"};
    ui::Label Label2{*this, "Label2", "Tags"};
    ui::CheckBox Check1{*this, "Check1", "Only what is missing or not sure"};
    ui::OpenableList ListView2{*this, "ListView2"};
    ui::Label Label3{*this, "Label3", "Tag for the selected variable"};
    ui::DropDownList Combo1{*this, "Combo1"};
    ui::CommandButton Command4{*this, "Command4", "Use this tag"};
    ui::Label Label4{*this, "Label4"};
    ui::CommandButton Command5{*this, "Command5", "Help"};
    ui::CommandButton Command6{*this, "Command6", "Stop"};
    ui::CommandButton Command7{*this, "Command7", "Write complete ones"};
    ui::CommandButton Command8{*this, "Command8", "Write all"};
    ui::CommandButton Command9{*this, "Command9", "Close"};
    // Between two stations the window takes what a person does.
    ui::Timer Timer1{*this, "Timer1", 1};

protected:
    void Load() override;
    void Unloading() override;

private:
    enum class State { Unread, Planned, Waiting, Written, Failed };
    struct Item {
        std::string Station;
        bool IsChosen = false;
        bool IsEdited = false; // by hand, and not written yet
        forms::FrPlanStations::State State = FrPlanStations::State::Unread;
        std::shared_ptr<plan::Source> Source; // shared by all that are copied from it
        plan::StationPlan Plan = {};
        project::TagList Tags = {};
        std::string Note = {}; // what came of writing it
    };

    [[nodiscard]] bool IsCopy() const { return !copied_.empty(); }
    [[nodiscard]] bool IsConfigured(const Item& item) const;
    void ListStations();
    void ShowItem(std::size_t item);
    [[nodiscard]] std::string StatusOf(const Item& item) const;
    void Choose(std::size_t item, bool chosen);
    void ChooseAll(bool chosen);
    [[nodiscard]] Item* Selected();
    void ShowLines();
    void OfferTags();
    void UseTag();

    void Tick();
    void PlanNext(Item& item);
    void WriteNext(Item& item);
    [[nodiscard]] project::TagList TagsOf(const std::string& station);
    [[nodiscard]] std::string TakeSource(Item& item);
    void Write(bool incompleteToo);
    [[nodiscard]] bool MayReplace(const Item& item);
    void Stop();
    void ShowProgress();
    void Leave();

    std::string copied_;
    std::shared_ptr<plan::Source> source_; // of a copy, once it was read
    std::vector<Item> items_;
    std::vector<std::size_t> shown_; // of the selected station's lines, in the order of the rows
    std::vector<config::TagBinding> offered_;
    bool hasWritten_ = false;
};

// The commands of the menu.
void CopyToSeveralCommand(Program& program);
void BindAnewCommand(Program& program);

} // namespace gfc::forms
