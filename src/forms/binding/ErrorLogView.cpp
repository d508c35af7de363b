#include "forms/binding/ErrorLogView.h"

#include "forms/program/Program.h"

#include <algorithm>

namespace gfc::forms {

namespace {

void Tell(Program& program, const std::string& what, const std::string& path) {
    program.Screen.Ask({.Title = "Gas Flow Computer",
                        .Text = path.empty() ? what : what + "\r\n" + path,
                        .TheIcon = ui::Icon::Exclamation});
}

// A box holds so many lines on any screen.
constexpr std::size_t mostFindings = 12;

std::string InLines(const std::vector<std::string>& findings) {
    std::string lines;
    for (std::size_t i = 0; i < std::min(mostFindings, findings.size()); ++i)
        lines += "\r\n" + findings[i];
    if (findings.size() > mostFindings)
        lines += "\r\nand " + std::to_string(findings.size() - mostFindings) + " more";
    return lines;
}

} // namespace

void ViewFindings(Program& program, const std::string& path, const std::vector<std::string>& findings) {
    if (program.Ini.FileExists(path))
        return ViewErrorLog(program, path, ui::WindowState::Maximised);
    Tell(program,
         "No log file has been written for this station yet. The check has found:" + InLines(findings), {});
}

void ViewErrorLog(Program& program, const std::string& path, ui::WindowState state) {
    if (!program.Ini.FileExists(path))
        return Tell(program, "There is no error log file for this station:", path);
    if (!program.Screen.ViewText(path, state))
        Tell(program, "No text viewer could be started to show the error log file:", path);
}

} // namespace gfc::forms
