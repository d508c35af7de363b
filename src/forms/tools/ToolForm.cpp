#include "forms/tools/ToolForm.h"

#include "forms/program/HelpFile.h"
#include "platform/Machine.h"
#include "services/Text.h"

namespace gfc::forms {

bool IsPage(const std::string& file) {
    return services::FoldCase(file).ends_with(".html");
}

bool ToolForm::KeyDown(ui::Key key) {
    if (key != ui::Key::F1)
        return false;
    OpenHelp();
    return true;
}

void ToolForm::OpenHelp() {
    program_.Screen.OpenHelp(HelpFile, helpContext_);
}

void ToolForm::CopyTable(const services::TextTable& table) {
    if (auto* exchange = dynamic_cast<ui::Exchange*>(&program_.Screen))
        exchange->CopyText(services::AsTabbedText(table));
}

void ToolForm::SaveTable(const services::TextTable& table, const std::string& what,
                         const std::string& title) {
    const auto name = what.substr(what.find(' ') + 1); // without "the"
    SaveTo({.Title = "Save " + what,
            .Name = session_.Project.ProjectName + "_" + name + ".csv",
            .Kinds = {{"Table", "*.csv"}, {"Page", "*.html"}}},
           what, [&](const std::string& file) {
               return IsPage(file) ? services::AsHtml(table, title) : services::AsCsv(table);
           });
}

void ToolForm::SaveTo(const ui::TargetChoice& choice, const std::string& what,
                      const std::function<std::string(const std::string& file)>& bytesFor) {
    auto* exchange = dynamic_cast<ui::Exchange*>(&program_.Screen);
    if (exchange == nullptr)
        return;
    if (const auto file = exchange->ChooseTarget(choice))
        Write(*file, bytesFor(*file), what);
}

bool ToolForm::Write(const std::string& file, const std::string& bytes, const std::string& what) {
    if (program_.Machine.Files.Replace(file, bytes))
        return true;
    std::string text = what;
    text.front() = 'T'; // "the" begins the sentence
    Tell(
        text + " could not be written to\r\n" + file +
            "\r\n\r\nPlease look whether the disk is full and who may write there, or choose another folder.",
        ui::Icon::Exclamation);
    return false;
}

ui::Answer ToolForm::Tell(std::string text, ui::Icon icon) {
    return program_.Screen.Ask({.Title = Caption(), .Text = std::move(text), .TheIcon = icon});
}

} // namespace gfc::forms
