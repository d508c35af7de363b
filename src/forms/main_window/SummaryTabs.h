#pragma once

#include "binding/SummaryCommon.h"
#include "forms/program/Program.h"

namespace gfc::forms {

class GFCPrincipal;

// What the summary panes show, read-only, in the three lists of the main window.
class SummaryTabs {
public:
    SummaryTabs(GFCPrincipal& window, Program& program) : window_(window), program_(program) {}

    // Fills the page that SSTab1 is on from the station's common parameters, and from the sections of the
    // enabled runs in its file.
    void FillCommon();
    // Fills the page that SSTab2 is on; the run's record is the single one of Session.Station.Runs. The
    // headings follow the algorithm and the density source.
    void FillRun();

private:
    [[nodiscard]] std::vector<binding::EnabledRun> ReadEnabledRuns() const;
    [[nodiscard]] binding::EnabledRun ReadRun(int run, const std::string& file) const;
    void Show(binding::SummaryPage page);

    GFCPrincipal& window_;
    Program& program_;
};

} // namespace gfc::forms
