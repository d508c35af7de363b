#pragma once

// What the dialogs of a station do with the main window behind them, and with the station when they are done.
namespace gfc::forms {

struct Program;
struct Session;

void HideMainWindow(Program& program);
// A main window that is not there any more stays away: the program is about to end.
void ShowMainWindow(Program& program);

// Everything that belongs to the station, the records of its runs and its tag lists too.
void ForgetStation(Session& session);

} // namespace gfc::forms
