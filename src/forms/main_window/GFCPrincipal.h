#pragma once

#include "forms/main_window/SummaryTabs.h"
#include "forms/program/Program.h"
#include "ui/DropDownList.h"
#include "ui/Frame.h"
#include "ui/Furniture.h"
#include "ui/Label.h"
#include "ui/ListView.h"
#include "ui/Menu.h"
#include "ui/OpenableList.h"
#include "ui/TabbedPane.h"
#include "ui/Tree.h"

#include <array>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace gfc::audit {
struct StationReport;
}

namespace gfc::forms {

// The main window: the stations of the project as a tree, what is configured at the selected node, and the
// menu of commands.
class GFCPrincipal : public ProgramForm {
public:
    explicit GFCPrincipal(Program& program);

    ui::MenuEntry Config{*this, "Config", "&Menu"};
    ui::MenuEntry ConfigWiard{Config, "ConfigWiard", "Configuration  Wizard"};
    ui::MenuEntry linea1{Config, "linea1", "-"};
    ui::MenuEntry ConfigPar{Config, "ConfigPar", "Configure"};
    ui::MenuEntry linea2{Config, "linea2", "-"};
    ui::MenuEntry optRun{Config, "optRun", "Run"};
    ui::MenuEntry erun{optRun, "erun", "Enable run"};
    ui::MenuEntry dRun{optRun, "dRun", "Disable run"};
    ui::MenuEntry linea3{Config, "linea3", "-"};
    ui::MenuEntry copiar{Config, "copiar", "Copy to"};
    ui::MenuEntry copiar1{copiar, "copiar1", "Configuration to another station"};
    ui::MenuEntry copiar2{copiar, "copiar2", "Configuration to a different project"};
    ui::MenuEntry linea4{Config, "linea4", "-"};
    ui::MenuEntry undo{Config, "undo", "Delete"};
    ui::MenuEntry linea5{Config, "linea5", "-"};
    ui::MenuEntry exit{Config, "exit", "Exit"};
    ui::MenuEntry Tools{*this, "Tools", "&Tools"};
    std::vector<std::unique_ptr<ui::MenuEntry>> ToolEntries = MakeToolEntries();
    ui::MenuEntry HelpPrincipal{*this, "HelpPrincipal", "&Help"};

    ui::Tree TreeGFC{*this, "TreeGFC"};
    // The frame around the right-hand panes.
    ui::Frame TabStrip1{*this, "TabStrip1"};
    // The line of a summary that has no list.
    ui::Label Label1{TabStrip1, "Label1"};
    ui::TabbedPane SSTab1{TabStrip1, "SSTab1", {"Common Parameters", "Working Modules", "Gas Density"}};
    ui::TabbedPane SSTab2{TabStrip1,
                          "SSTab2",
                          {"AGA-3 Input Tags", "AGA-3 Output Tags", "AGA8/ISO-12213-2 Input Tags",
                           "AGA8/ISO-12213-2 Output Tags", "Parameters"}};
    ui::Label Label3{TabStrip1, "Label3"};
    // A row of the table of stations leads to its node.
    ui::OpenableList ListView1{TabStrip1, "ListView1"};
    ui::ListView ListView2{TabStrip1, "ListView2"};
    ui::ListView ListView3{TabStrip1, "ListView3"};
    ui::Label Label4{TabStrip1, "Label4"};
    ui::Label Label2{*this, "Label2", "User ID :"};
    // Never seen: the names of the working modules while a station is open, analog, long and float.
    ui::DropDownList Combo1{*this, "Combo1"};
    ui::DropDownList Combo2{*this, "Combo2"};
    ui::DropDownList Combo3{*this, "Combo3"};
    ui::StatusBar StatusBar1{*this, "StatusBar1"};
    // Runs while the record is at work behind the program.
    ui::Timer recordTimer{*this, "recordTimer", 300};
    ui::ImageList ImageList1{
        *this, "ImageList1", {"Carpeta", "CarpetaOpen", "StationConfig", "StationNoConfig", "Run", "NoRun"}};
    // Pictures of the menu, in the order in which the list counts them from 1.
    ui::ImageList ImageList2{
        *this, "ImageList2", {"MenuWizard", "MenuConfigure", "MenuDelete", "MenuCopy", "MenuRun"}};

    // Fills TreeGFC and ListView1, which must be empty, from the project and the files on disk.
    void BuildTree();
    void MarkRunNodes();
    // How every command ends: colours and images come from the files that stand now.
    void RebuildAfterCommand();
    // Shows what belongs to the node of that path; a path that is none leaves the panes as they are.
    void ShowPaneFor(const std::string& path);
    // The node of the path gets the image "Run" or "NoRun"; nothing happens if there is no such node.
    void SetRunImage(const std::string& path, bool enabled);

    // Once the record has done what it was handed, says in the status bar if that could not be written; of
    // the same trouble once only.
    void WatchRecord();
    // What a check found in the stations' files. It counts as open, and errors mark the station in the tree,
    // until the file is another one, or the tags are as far as the program learns of it: then the station
    // counts as not checked.
    void MarkChecked(std::span<const audit::StationReport* const> reports);
    // The library has answered for the station's tags.
    void TagsAnswered(const std::string& station, const project::TagList& tags);
    // Selects the node of the station, or of its run (1 to 5), as a click does; nothing happens where there
    // is none.
    void GoTo(const std::string& station, int run);

    // For those who fill the three lists: rows and columns away, all three hidden.
    void ClearLists();

protected:
    void Load() override;
    void Unloading() override;
    void Activate() override;
    bool KeyDown(ui::Key key) override;

private:
    [[nodiscard]] std::vector<std::unique_ptr<ui::MenuEntry>> MakeToolEntries();
    void ConnectMenu();
    void ConnectPanes();

    // The steps of Load.
    void SettlePaths();
    [[nodiscard]] bool IsOnlyInstance();
    void AttachMenuImages();
    void PrepareWindow();
    [[nodiscard]] bool LoadProjectAndStations();
    // What helps on is offered behind the message, if anything does.
    void RefuseToStart(const std::string& title, const std::string& text,
                       const std::function<void()>& offer = {});

    void TellTrouble();
    void Exit();
    void RegisterFiles();
    void OpenHelp(ui::Key key);
    [[nodiscard]] int HelpContext() const;

    void ApplyMenuState();
    void TreePressed(ui::MouseButton button);
    void NodeClicked(int node);
    void SelectRememberedNode();
    [[nodiscard]] const std::string& StationOf(int treeNode) const;

    using RunFlags = std::array<std::string, config::MaxRuns>; // what the file says of each

    void FillStationTable();
    void AddStation(int root, const project::Station& station, std::size_t index);
    void AddStationChildren(int stationNode, const std::string& station, std::size_t index,
                            const RunFlags& flags);
    [[nodiscard]] const char* ConfiguredImage(const std::string& station) const;
    void ForgetWhatChanged();
    // Nothing where there is no file that can be read.
    [[nodiscard]] std::optional<std::size_t> FileMarkOf(const std::string& station) const;
    void AddRunNode(int parent, const std::string& station, int run, bool enabled);
    void HidePanes();
    void ShowStations(const std::string& statusText);
    void OpenStationRow(int row);
    void Remember(const audit::StationReport& report);
    void ShowMark(const std::string& station);
    // The project, how much of it is configured, and what checks found that is still open.
    void ShowOverview();
    [[nodiscard]] std::string OpenFindings() const;
    void PlacePane(ui::TabbedPane& shown, ui::TabbedPane& hidden);
    void LoadRun(int run);
    void ShowCommon(const std::string& station);
    void ShowRun(const std::string& station, int run);

    SummaryTabs summary_{*this, program_};
    bool listShowsStations_ = false;
    std::string toldTrouble_; // of the record
    // What a check found in a station that stands as it was then.
    struct Checked {
        std::size_t FileMark = 0; // of its bytes
        std::size_t TagsMark = 0;
        std::size_t Errors = 0;
        std::size_t Warnings = 0;
    };
    std::map<std::string, Checked> checked_; // by station
    int exitCode_ = 0;
};

} // namespace gfc::forms
