#pragma once

#include "forms/program/Program.h"
#include "services/Counted.h"
#include "services/TableText.h"
#include "ui/Exchange.h"

#include <functional>
#include <string>

namespace gfc::forms {

// What the windows of the menu Tools share: their help, and the ways by which what they list leaves them.
class ToolForm : public ProgramForm {
public:
    ToolForm(Program& program, std::string name, std::string caption, int helpContext)
        : ProgramForm(program, std::move(name), std::move(caption)), helpContext_(helpContext) {}

protected:
    bool KeyDown(ui::Key key) override;

    void OpenHelp();
    void CopyTable(const services::TextTable& table);
    // Asks for a file, ".csv" or ".html". what: "the findings"; title stands over the page.
    void SaveTable(const services::TextTable& table, const std::string& what, const std::string& title);

    // Asks where to write and writes. bytesFor gets the path that was chosen.
    void SaveTo(const ui::TargetChoice& choice, const std::string& what,
                const std::function<std::string(const std::string& file)>& bytesFor);
    // The same without the question; says so in a box where it fails.
    bool Write(const std::string& file, const std::string& bytes, const std::string& what);

    // A box with the window's title.
    ui::Answer Tell(std::string text, ui::Icon icon);

private:
    int helpContext_;
};

[[nodiscard]] bool IsPage(const std::string& file);

using services::Counted;

} // namespace gfc::forms
