#include "forms/files/WaitForFile.h"

namespace gfc::forms {

WaitForFile::WaitForFile(Program& program) : ProgramForm(program, "WaitForFile", "Gas Flow Computer") {
    Command1.OnClick = [this] { Unload(); };
    timerWait.OnTimer = [this] { Try(); };
    SetCancelButton(Command1);
}

void WaitForFile::Load() {
    Label2.SetCaption(File);
    timerWait.SetEnabled(true);
    Try();
}

void WaitForFile::Try() {
    const auto outcome = program_.Storage.TryToDelete(File);
    Gone = outcome || !program_.Ini.FileExists(File);
    if (Gone)
        return Unload();
    Label3.SetCaption("The system says: " + outcome.Reason());
}

bool DeletePatiently(Program& program, const std::string& file) {
    if (!program.Ini.FileExists(file))
        return true;
    auto& waiting = program.Forms.Get<WaitForFile>();
    const auto alive = waiting.KeepAlive();
    waiting.File = file;
    waiting.ShowModal();
    return waiting.Gone;
}

} // namespace gfc::forms
