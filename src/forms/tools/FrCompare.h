#pragma once

#include "audit/Comparison.h"
#include "forms/tools/CompareSide.h"
#include "forms/tools/TakeOver.h"
#include "forms/tools/ToolForm.h"
#include "ui/Buttons.h"
#include "ui/CheckableList.h"
#include "ui/DropDownList.h"
#include "ui/Furniture.h"
#include "ui/Label.h"
#include "ui/TextBox.h"

#include <map>
#include <string>
#include <vector>

namespace gfc::forms {

// Two configurations side by side, or what has changed in the whole project since a day. Rows that are marked
// can be taken over from the right side into the left one, which must be what a station has now.
class FrCompare : public ToolForm {
public:
    explicit FrCompare(Program& program);

    ui::Label Label1{*this, "Label1", "Left"};
    ui::DropDownList Combo1{*this, "Combo1"};
    ui::DropDownList Combo2{*this, "Combo2"};
    ui::DropDownList Combo3{*this, "Combo3"};
    ui::CommandButton Command1{*this, "Command1", "Swap"};
    ui::Label Label2{*this, "Label2", "Right"};
    ui::DropDownList Combo4{*this, "Combo4"};
    ui::DropDownList Combo5{*this, "Combo5"};
    ui::DropDownList Combo6{*this, "Combo6"};
    ui::Label Label3{*this, "Label3", "Find"};
    ui::TextBox Text1{*this, "Text1"};
    ui::CheckBox Check1{*this, "Check1", "Show equal rows"};
    ui::CommandButton Command2{*this, "Command2", "What changed since"};
    ui::TextBox Text2{*this, "Text2"};
    ui::CheckableList ListView1{*this, "ListView1"};
    ui::Label Label4{*this, "Label4"};
    ui::CommandButton Command3{*this, "Command3", "Help"};
    ui::CommandButton Command4{*this, "Command4", "Choose all"};
    ui::CommandButton Command5{*this, "Command5", "Choose none"};
    ui::CommandButton Command6{*this, "Command6", "Take over..."};
    ui::CommandButton Command7{*this, "Command7", "Stop"};
    ui::CommandButton Command8{*this, "Command8", "Copy"};
    ui::CommandButton Command9{*this, "Command9", "Save as..."};
    ui::CommandButton Command10{*this, "Command10", "Close"};
    // Compares one station of the project with each tick.
    ui::Timer Timer1{*this, "Timer1", 1};

    // To be called before it is shown: what the entry left, beside what its station has now.
    void LookAt(const config::RecordEntry& entry);

protected:
    void Load() override;
    void Unloading() override;

private:
    struct Row {
        std::string Station; // whose file the left side is
        audit::ComparedRow Compared;
    };
    enum class Mode { TwoSides, SinceADay };

    void ChooseAtFirst();
    void AlignRuns(CompareSide& changed, CompareSide& other);
    void Compare();
    void BeginSince();
    void SinceOn();
    void CompareSince(const std::string& station);
    void EndSince(const char* how);
    void Clear(Mode mode);
    void MakeColumns();
    void AddRows(std::size_t from);
    void ShowRows();
    [[nodiscard]] bool IsWanted(const Row& row) const;
    [[nodiscard]] ui::ListView::Row CellsOf(const Row& row) const;
    void ShowState();
    void MarkAll(bool marked);
    [[nodiscard]] std::string ReasonAgainstMarking(const Row& row) const;
    [[nodiscard]] bool MayMark(int row);
    void TakeMarkedOver();
    [[nodiscard]] std::string SectionOf(const Row& row) const;
    [[nodiscard]] services::TextTable TableOfShown() const;
    [[nodiscard]] const Row& RowAt(int row) const { return rows_[shown_[static_cast<std::size_t>(row - 1)]]; }

    std::string record_;
    CompareSide left_{program_, {Combo1, Combo2, Combo3}};
    CompareSide right_{program_, {Combo4, Combo5, Combo6}};
    config::RecordEntry first_; // number 0 for none
    Mode mode_ = Mode::TwoSides;
    std::vector<Row> rows_;
    std::vector<std::size_t> shown_;          // which of them stand in the list
    std::map<std::string, std::string> seen_; // the bytes of the left side, by station
    std::string trouble_;                     // why there is nothing to compare
    std::string unread_;                      // stations whose files are there and cannot be read
    std::vector<std::string> stations_;
    std::size_t next_ = 0; // of them, to be compared since a day
    std::string since_;
    std::string how_;
};

} // namespace gfc::forms
