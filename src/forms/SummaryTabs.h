#pragma once

#include "forms/Session.h"

namespace gfc::forms {

class GFCPrincipal;

// What the summary panes show, read-only, in the three lists of the main window.
class SummaryTabs {
public:
    explicit SummaryTabs(GFCPrincipal& window, Session& session) : window_(window), session_(session) {}

    // Fills the page that SSTab1 is on from the station's common parameters.
    void FillCommon();
    // Fills the page that SSTab2 is on; the run's record is the single one of Session.Station.Runs.
    void FillRun();
    // The headings of SSTab2 follow the algorithm and the density source.
    void SetRunCaptions();

    // The run that SSTab2 shows, 1 to 5; 0 before the first.
    int Run = 0;

private:
    GFCPrincipal& window_;
    Session& session_;
};

} // namespace gfc::forms
