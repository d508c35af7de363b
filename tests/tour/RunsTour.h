#pragma once

#include "support/Story.h"

#include <QDir>

// The daily work on a station that runs, told on the sample project.
namespace gfc::tour {

// On a station of the project in that folder, of which runs 1 to 3 are configured: turbines, and a gas
// composition that is fixed. Two tags of run 2 are renamed in the project, the command that enables it
// refuses, the run is bound anew, run 4 is added, the whole is copied to another station and to another
// project, a run is turned off, and the copy is deleted.
void TellRuns(test::Story& story, const QDir& folder, const QString& station);

} // namespace gfc::tour
