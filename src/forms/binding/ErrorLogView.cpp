#include "forms/binding/ErrorLogView.h"

#include "forms/program/Program.h"

namespace gfc::forms {

namespace {

void Tell(Program& program, const std::string& what, const std::string& path) {
    program.Screen.Ask(
        {.Title = "Gas Flow Computer", .Text = what + "\r\n" + path, .TheIcon = ui::Icon::Exclamation});
}

} // namespace

void ViewErrorLog(Program& program, const std::string& path, ui::WindowState state) {
    if (!program.Ini.FileExists(path))
        return Tell(program, "There is no error log file for this station:", path);
    if (!program.Screen.ViewText(path, state))
        Tell(program, "No text viewer could be started to show the error log file:", path);
}

} // namespace gfc::forms
