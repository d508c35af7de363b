#include "forms/program/MainWindow.h"

#include "forms/main_window/GFCPrincipal.h"

namespace gfc::forms {

void HideMainWindow(Program& program) {
    if (program.Forms.IsLoaded<GFCPrincipal>())
        program.Forms.Get<GFCPrincipal>().Hide();
}

void ShowMainWindow(Program& program) {
    if (program.Forms.IsLoaded<GFCPrincipal>())
        program.Forms.Get<GFCPrincipal>().Show();
}

void ForgetStation(Session& session) {
    config::ResetStationConfig(session.Station);
    session.Station.Runs = {};
    session.Inventory = {};
}

} // namespace gfc::forms
