#pragma once

#include "Choice.h"
#include "PlainStation.h"
#include "support/FileText.h"

#include <string>

// What adding a run makes of a file, written out once more: it changes key by key, in an order and in names
// that are not those of a file written as a whole.
namespace gfc::test::sweep {

struct PlainAddedRun {
    Choice The;  // of the configuration; whether the diameters are external is that of the new run alone
    int Run = 3; // 1 to 5, not configured yet
    Pools Tags;  // of the station, whether in use or not
    std::string ContractHour;
    std::string ContractMin;
};

// The dialogs are answered as AddRunStory answers them.
void AddPlainRun(FileText& file, const PlainAddedRun& added);

} // namespace gfc::test::sweep
