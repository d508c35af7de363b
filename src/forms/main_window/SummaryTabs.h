#pragma once

#include "binding/SummaryCommon.h"
#include "forms/program/Program.h"

namespace gfc::forms {

class GFCPrincipal;

// What the summary panes show, read-only, in the three lists of the main window.
class SummaryTabs {
public:
    SummaryTabs(GFCPrincipal& window, Program& program) : window_(window), program_(program) {}

    // Whose file the panes read from now on, whatever is selected in the tree meanwhile. run is 1 to 5; 0 for
    // the station's common parameters.
    void LookAt(const std::string& station, int run);
    // Fills the page that SSTab1 is on from the station's common parameters, and from the sections of the
    // enabled runs in its file. The status bar names the station.
    void FillCommon();
    // Fills the page that SSTab2 is on. The headings follow the algorithm and the density source; the status
    // bar names the station and the run.
    void FillRun();

private:
    [[nodiscard]] std::string File() const { return program_.Session.Project.ConfigFileOf(station_); }
    // What the file holds now.
    [[nodiscard]] config::StationConfig Read() const;
    [[nodiscard]] std::vector<binding::EnabledRun>
    ReadEnabledRuns(const config::StationConfig& station) const;
    [[nodiscard]] binding::EnabledRun ReadRun(int run, const std::string& file) const;
    void Show(binding::SummaryPage page);

    GFCPrincipal& window_;
    Program& program_;
    std::string station_;
    int run_ = 0;
};

} // namespace gfc::forms
