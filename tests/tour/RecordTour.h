#pragma once

#include "support/Story.h"

#include <QDir>

// What an auditor and a technician do with the history, told on the sample project.
namespace gfc::tour {

// Another person begins work on a station of the project in that folder, of which run 1 is configured, and
// changes it. The history tells of both, a comparison of the change; a copy to other stations and a binding
// anew are looked at and not done, and a report is made. Then somebody writes into the station's file: the
// report says so when it is held against it. What the report shows is brought back, and the report holds
// again.
void TellRecord(test::Story& story, const QDir& folder, const QString& station);

} // namespace gfc::tour
