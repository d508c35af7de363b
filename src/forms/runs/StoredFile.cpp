#include "forms/runs/StoredFile.h"

#include "forms/program/Program.h"

namespace gfc::forms {

bool FileIsStillThere(Program& program, const std::string& lost) {
    const std::string file = program.Session.ConfigFile();
    if (program.Ini.FileExists(file))
        return true;
    program.Screen.Ask(
        {.Title = "Gas Flow Computer",
         .Text = lost + " The configuration file of the station is not there any more:\r\n" + file,
         .TheIcon = ui::Icon::Exclamation});
    return false;
}

} // namespace gfc::forms
