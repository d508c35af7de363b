// The end of the wizard: the pass over the runs, the save, and the ways out.
#include "forms/WizardFC.h"

namespace gfc::forms {

namespace {

// Everything that belongs to the station, the records of its runs and its tag lists too.
void ForgetStation(Session& session) {
    config::ResetStationConfig(session.Station);
    session.Station.Runs = {};
    session.Inventory = {};
}

} // namespace

void WizardFC::Finish() {}
void WizardFC::Save() {}

void WizardFC::Quit() {
    const auto answer = program_.Screen.Ask({.Title = "Gas Flow Computer",
                                             .Text = "Do you want to quit the configuration wizard ?",
                                             .TheButtons = ui::Buttons::YesNo});
    if (answer != ui::Answer::Yes)
        return;
    Unload();
    ForgetStation(session_);
}

} // namespace gfc::forms
