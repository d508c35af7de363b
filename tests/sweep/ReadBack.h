#pragma once

#include "Choice.h"
#include "PlainFile.h"
#include "config/VarINIFile.h"

// That the model holds what the file says, field by field. The fields' keys are written out once more here.
namespace gfc::test::sweep {

void ExpectStation(const config::StationConfig& station, const Choice& choice, const PlainFile& file);
void ExpectRun(const config::StationConfig& station, const Choice& choice, const PlainFile& file, int run);

} // namespace gfc::test::sweep
