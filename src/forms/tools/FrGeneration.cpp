#include "forms/tools/FrGeneration.h"

#include "forms/tools/EntryText.h"

namespace gfc::forms {

namespace {

constexpr int helpContext = 8200;
constexpr int numberColumnWidth = 5;

} // namespace

FrGeneration::FrGeneration(Program& program)
    : ToolForm(program, "FrGeneration", "Configuration of the history", helpContext) {
    ListView1.OnRowClick = [this](int row) { ShowPage(row); };
    Command1.OnClick = [this] { OpenHelp(); };
    Command2.OnClick = [this] { SaveFile(); };
    Command3.OnClick = [this] { Unload(); };
    SetCancelButton(Command3);
}

void FrGeneration::LookAt(config::RecordEntry entry, std::string bytes) {
    entry_ = std::move(entry);
    bytes_ = std::move(bytes);
}

// The tags of that day are not known, so that none has a module beside it.
void FrGeneration::Load() {
    const auto& project = session_.Project;
    SetCaption(entry_.Station + ", entry " + std::to_string(entry_.Number));
    Label1.SetCaption(TextOf(entry_));
    Label2.SetCaption("SHA-256 " + entry_.FileHash);
    pages_ =
        audit::PagesOf({project.ConfigFileOf(entry_.Station), project.ProjectName, entry_.Station, bytes_},
                       {}, program_.Machine);
    ListView1.AddColumns({{"Page"}});
    std::vector<ui::ListView::Row> rows;
    for (const audit::SummaryTable& page : pages_)
        rows.push_back({page.Title});
    ListView1.AddRows(std::move(rows));
    ListView1.SelectRow(1);
    ShowPage(1);
}

void FrGeneration::ShowPage(int row) {
    const audit::SummaryTable& page = pages_.at(static_cast<std::size_t>(row - 1));
    Label3.SetCaption(page.Line);
    Label3.SetVisible(!page.Line.empty());
    ListView2.SetVisible(page.Line.empty());
    ListView2.ClearRows();
    ListView2.ClearColumns();
    std::vector<ui::ListView::Column> columns;
    for (const std::string& heading : page.Columns)
        columns.push_back({heading, columns.empty() ? numberColumnWidth : 0});
    ListView2.AddRows(page.Rows);
    ListView2.AddColumns(std::move(columns));
}

void FrGeneration::SaveFile() {
    SaveTo({.Title = "Save the configuration",
            .Name = session_.Project.ProjectName + "_" + entry_.Station + "_entry" +
                    std::to_string(entry_.Number) + ".ini",
            .Kinds = {{"Configuration", "*.ini"}}},
           "the configuration", [this](const std::string&) { return bytes_; });
}

} // namespace gfc::forms
