#pragma once

#include "support/Story.h"

#include <QString>

// What helps at the desk beside the windows' own buttons, told on the sample project.
namespace gfc::tour {

// In the main window a station is looked for and the table sorted. In the wizard on that station, which must
// have no configuration, a key is refused and a tip is read; its tags are suggested, filtered and taken, and
// the pass is thrown away.
void TellDesk(test::Story& story, const QString& station);

} // namespace gfc::tour
