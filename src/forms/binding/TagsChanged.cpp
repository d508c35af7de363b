#include "forms/binding/TagsChanged.h"

#include "binding/ErrorLog.h"
#include "forms/binding/ErrorLogView.h"
#include "forms/main_window/GFCPrincipal.h"

namespace gfc::forms {

TagsChanged::TagsChanged(Program& program)
    : ProgramForm(program, "TagsChanged", "Configuration errors alert") {
    Command1.OnClick = [this] { ViewErrorLog(program_, logPath_, ui::WindowState::Normal); };
    CmdIgnore.OnClick = [this] { Answer(TagsChangedChoice::Ignore); };
    Command3.OnClick = [this] { Answer(TagsChangedChoice::BackToConfigure); };
    Command2.OnClick = [this] { Discard(); };
}

// The log belongs to the station, also where what was checked is a trial copy of its file.
void TagsChanged::Load() {
    RemoveCloseCommand();
    session_.TagsChangedChoice = TagsChangedChoice::None;
    logPath_ = binding::ErrorLogPath(session_.ConfigFile());
    // Given up, the window goes on with what the last check left there.
    (void)program_.Storage.Change(
        {"The error log file was not written."}, logPath_,
        [&](config::FileIni& ini) { binding::WriteErrorLog(ini, session_.Expected, logPath_); });
    if (binding::LogsGasInputErrors(session_.Expected))
        session_.GasInputsValid = false;
    Label3.SetCaption(Label3.Caption() + "\r\n" + logPath_);
}

void TagsChanged::Answer(TagsChangedChoice choice) {
    session_.TagsChangedChoice = choice;
    Unload();
}

void TagsChanged::Discard() {
    Answer(TagsChangedChoice::Discard);
    // The main window's own end registers the files that stand, and ends the program.
    program_.Forms.Unload<GFCPrincipal>();
    if (!program_.Screen.Ended())
        program_.Screen.EndProgram(0);
}

} // namespace gfc::forms
