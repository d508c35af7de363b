#pragma once

#include "binding/Assignment.h"
#include "binding/Catalogue.h"
#include "drafts/Draft.h"
#include "forms/binding/BindingHistory.h"
#include "forms/binding/TagFilter.h"
#include "forms/binding/TagSuggestions.h"
#include "forms/editors/QuietNotes.h"
#include "forms/program/Program.h"
#include "ui/Buttons.h"
#include "ui/ControlArray.h"
#include "ui/DropDownList.h"
#include "ui/Frame.h"
#include "ui/Label.h"
#include "ui/ListView.h"
#include "ui/Menu.h"
#include "ui/TextBox.h"
#include "ui/Tree.h"

namespace gfc::forms {

// Binds the variables of one stage of one run to tags of the station. The caller sets BindingStage,
// RunPosition and RunNumber of the session, shows it modally and then looks at Cancelled. Nothing reaches the
// records and the lists of free tags before Continue.
class TagRuns : public ProgramForm {
public:
    explicit TagRuns(Program& program);

    ui::Label Progress{*this, "Progress"};
    ui::Label Missing{*this, "Missing"};
    ui::Tree TreeAGA{*this, "TreeAGA"};
    ui::CommandButton Command1{*this, "Command1", "Assign"};
    ui::CommandButton Command4{*this, "Command4", "Undo Tag"};
    ui::CommandButton Command3{*this, "Command3", "Undo All"};
    ui::CommandButton Command6{*this, "Command6", "Auto-Assign"};
    ui::CommandButton SuggestTags{*this, "SuggestTags", "Suggest"};
    ui::CommandButton TakeSure{*this, "TakeSure", "Take All Sure"};
    ui::Label lbFilter{*this, "lbFilter", "Filter"};
    ui::TextBox Filter{*this, "Filter"};
    ui::DropDownList FilterKind{*this, "FilterKind"};
    ui::Label FilterSays{*this, "FilterSays"};
    ui::ListView ListViewRuns{*this, "ListViewRuns"};
    ui::ListView ListLong{*this, "ListLong"};
    ui::ListView ListAnalogDig{*this, "ListAnalogDig"};

    ui::Frame Frame1{*this, "Frame1", "Flow Factors"};
    ui::Label Label2{Frame1, "Label2", "Calibration Factor"};
    ui::TextBox Text1{Frame1, "Text1"};
    ui::Label lbkfactor{Frame1, "lbkfactor", "Meter K-Factor"};
    ui::TextBox kfactor{Frame1, "kfactor"};
    ui::Label ukfactor{Frame1, "ukfactor"};

    ui::Frame Frphostd{*this, "Frphostd", "Run's Gas Properties"};
    ui::Label lbrhostd{Frphostd, "lbrhostd", "Density @ Std. Cond."};
    ui::TextBox phostd{Frphostd, "phostd"};
    ui::Label uphostd{Frphostd, "uphostd"};

    ui::Frame Frame2{*this, "Frame2", "Run's Daily Contract Time (24-hr)"};
    ui::Label lbHour{Frame2, "lbHour", "Hour"};
    ui::DropDownList ListHour{Frame2, "ListHour"};
    ui::Label lbMin{Frame2, "lbMin", "Minute"};
    ui::DropDownList ListMinx10{Frame2, "ListMinx10"};
    ui::DropDownList ListMinx1{Frame2, "ListMinx1"};
    ui::OptionButton OptionLocal{Frame2, "OptionLocal", "Local"};
    ui::OptionButton OptionGMT{Frame2, "OptionGMT", "GMT"};

    ui::Frame FrameCopy{*this, "FrameCopy", "     Copy Tag assignments from:"};
    ui::ControlArray<ui::OptionButton, config::MaxRuns> Option1{
        FrameCopy, "Option1", [](int i) { return "Run " + std::to_string(i + 1); }};
    ui::CommandButton CopyGasCompButton{FrameCopy, "CopyGasCompButton", "Copy"};

    // What the rules of the plant's check say of what is bound here.
    ui::Label Notes{*this, "Notes"};

    ui::CommandButton Command7{*this, "Command7", "Help"};
    ui::CommandButton Command2{*this, "Command2", "Cancel"};
    ui::CommandButton Command5{*this, "Command5", "Continue"};

    ui::MenuEntry borrartodo{*this, "borrartodo", "&Undo All"};
    ui::MenuEntry AutoAsociar{*this, "AutoAsociar", "&Auto-Assign"};
    ui::MenuEntry salirform{*this, "salirform", "&Cancel"};

    ui::MenuEntry edicion{*this, "edicion", "&Edit"};
    ui::MenuEntry deshacer{edicion, "deshacer", "&Undo"};
    ui::MenuEntry rehacer{edicion, "rehacer", "&Redo"};
    ui::MenuEntry lineaEdicion1{edicion, "lineaEdicion1", "-"};
    ui::MenuEntry sugerir{edicion, "sugerir", "&Suggest"};
    ui::MenuEntry tomar{edicion, "tomar", "&Take Suggestion"};
    ui::MenuEntry tomarSeguras{edicion, "tomarSeguras", "Take &All That Are Sure"};
    ui::MenuEntry repuestos{edicion, "repuestos", "&Offer Spare Registers"};
    ui::MenuEntry lineaEdicion2{edicion, "lineaEdicion2", "-"};
    ui::MenuEntry atar{edicion, "atar", "&Bind Chosen Tag"};
    ui::MenuEntry soltar{edicion, "soltar", "Take &Back"};
    ui::MenuEntry buscar{edicion, "buscar", "&Filter"};
    ui::MenuEntry dondeSeUsa{edicion, "dondeSeUsa", "&Where Used"};

    // For a pass that is kept: what stood in the window when it was left, null for none, and who is told what
    // stands in it after each act. Before the window is shown.
    void FollowPass(const drafts::OpenDialog* leftIn, std::function<void(drafts::OpenDialog)> onChange);

    // The row, from 1, that the next Assign takes from that list; past the end it takes nothing.
    [[nodiscard]] int RowToTake(binding::OfferList list) { return RowFieldOf(list); }

protected:
    void Load() override;
    bool KeyDown(ui::Key key) override;

private:
    using BindingStage = binding::BindingStage;

    // Loading
    void ShowCopySources();
    [[nodiscard]] bool IsCopySource(int run) const;
    // -1 for a run that is not active.
    [[nodiscard]] int ElementOfActiveRun(int run) const;
    void PrepareStage();
    void HideStageParts();
    void FillLists();
    void ShowRunInputs();
    void TreAGA_3_8();
    void AddVariable(const binding::Variable& variable);
    void ShowFactors();
    void ShowContractTime();

    // Picking and assigning
    [[nodiscard]] int SelectedPosition() const;
    [[nodiscard]] ui::ListView& ListOf(binding::OfferList list);
    [[nodiscard]] int& RowFieldOf(binding::OfferList list);
    void ShowRowFields();
    void ReadRowFields();
    [[nodiscard]] bool IsBound(int position) const;
    [[nodiscard]] config::TagBinding ShownBinding(int position) const;
    void ShowBinding(int position, const config::TagBinding& binding);
    void ShowUnbound(int position);
    [[nodiscard]] int VariablesShown() const;
    [[nodiscard]] int BoundVariables() const;
    void Assign();
    void UndoTag();
    void UndoAll();
    void UndoOneByOne();
    void AutoAssign();
    [[nodiscard]] bool MayAutoAssign();
    void TakeRows();
    void SelectFirstRows();

    // Suggesting, and what is seen of it at once
    void ConnectEdit();
    // Runs an act of the person and notes it, so that it can be undone.
    void Do(const std::string& what, const std::function<void()>& act);
    void UndoLast();
    void RedoLast();
    [[nodiscard]] BindingHistory::Picture TakePicture() const;
    void GoTo(const BindingHistory::Move& move);
    void ShowFields(const BindingHistory::Picture& picture);
    void Replace(const BindingHistory::RowChange& change);
    void TellFilter(const BindingHistory::RowChange& change);
    // The ways in which an act changes the lists; what they do is noted for the history.
    void TakeRow(binding::OfferList list, int row);
    // At the end, unless a row of its address and type is there already. The rows are not renumbered.
    void PutBack(binding::OfferList list, const config::TagBinding& tag);
    void Refill();
    [[nodiscard]] std::string NameOfSelected() const;
    void Suggest();
    void TakeSuggestion();
    void TakeAllSure();
    void OfferSpares();
    void BindChosen();
    [[nodiscard]] bool MayBindChosen(int position);
    void TakeBack();
    void Bind(int position, const config::TagBinding& binding);
    void Release(int position);
    [[nodiscard]] bool IsOffered(int position) const;
    void ShowNotes();
    void ShowNote(int position);
    void ShowProgress();
    void ShowMissing();
    void ShowEditState();
    // With the module where the station has the register.
    [[nodiscard]] std::string HintOfRow(const ui::ListView& list, int row) const;
    void Judge(audit::Sink& sink) const;
    [[nodiscard]] config::RunIO EnteredFactors() const;
    void ConnectMenus();
    void GiveKeys();
    void ShowWhereUsed();
    [[nodiscard]] std::vector<config::TagBinding> ShownBindings() const;

    void ConnectDragging();
    void DropOnto(int position, const ui::DragPlace& from);

    // The filter over the lists
    void ApplyFilter();
    void FilterList(binding::OfferList offer);
    [[nodiscard]] std::vector<int> RowsToShow(const ui::ListView& list);
    void SayWhatIsShown();
    // The first shown row from this one on; past the end where none is.
    [[nodiscard]] static int NextShown(const ui::ListView& list, int row);

    // What a draft keeps of it
    void GoOn(const drafts::OpenDialog& left);
    void TellWhatStands() const;

    // Leaving
    void Continue();
    [[nodiscard]] bool MayContinue();
    void StoreTree();
    void StoreFields();
    void UpdatePools();
    void Cancel();
    void Copy();
    // 0 to 4; -1 if no source is chosen.
    [[nodiscard]] int ChosenSource() const;
    [[nodiscard]] config::TagBinding BindingOfSource(const binding::VariableRow& row, int run) const;
    void Help();

    void SaySomethingIsBound();
    void Tell(const std::string& title, const std::string& text, ui::Icon icon);
    [[nodiscard]] BindingStage Stage() const { return session_.BindingStage; }
    [[nodiscard]] bool HasPulses() const;
    [[nodiscard]] std::vector<binding::Variable> Variables();
    // Null if the run arrays have no such element.
    [[nodiscard]] config::RunIO* IO();

    binding::TagCounts needed_;
    // The row last clicked in each list, from 1; 0 is read as 1.
    int floatRow_ = 1;
    int analogDigRow_ = 1;
    int longRow_ = 1;
    int selectedNode_ = 0;
    std::string configFilePath_;
    std::optional<drafts::OpenDialog> leftIn_;
    std::function<void(drafts::OpenDialog)> onChange_;
    BindingHistory history_;
    std::vector<BindingHistory::RowChange> changes_; // of the act that goes on
    TagSuggestions suggestions_;
    TagFilter filter_{[this](std::string_view type, std::string_view address) {
        return suggestions_.ModuleOf(type, address);
    }};
    QuietNotes notes_{Notes, [this](audit::Sink& sink) { Judge(sink); }};
};

} // namespace gfc::forms
