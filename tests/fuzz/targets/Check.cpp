#include "binding/ErrorLog.h"
#include "binding/ExpectedTags.h"
#include "config/VarINIFile.h"
#include "fuzz/Input.h"
#include "fuzz/Target.h"
#include "support/MemoryFiles.h"

#include <algorithm>

// Any bytes as a station's file, held against a station's tags: what differs is logged, and the runs that it
// concerns are turned off.
namespace gfc::fuzz {

namespace {

const std::string Path = "case.ini";

// A small station: one tag of each class.
const project::TagInventory& Tags() {
    static const project::TagInventory inventory = [] {
        project::TagInventory made;
        project::BuildInventory({{"F", 1, "FX", "M", "Virtual Module"},
                                 {"A", 2, "AX", "M", "Card"},
                                 {"L", 3, "LX", "M", "Virtual Module"},
                                 {"D", 4, "X", "M", "Card"}},
                                made);
        return made;
    }();
    return inventory;
}

bool AnyRunFails(const binding::ExpectedTags& expected) {
    const auto fails = [](const binding::ExpectedTag& entry) {
        return !entry.Found && entry.Location.starts_with("Run");
    };
    return std::ranges::any_of(expected.ExpectedFloat, fails) ||
           std::ranges::any_of(expected.ExpectedAnalog, fails) ||
           std::ranges::any_of(expected.ExpectedLong, fails) ||
           std::ranges::any_of(expected.ExpectedDigital, fails);
}

bool Check(config::FileIni& ini, binding::ExpectedTags& expected) {
    config::StationConfig station;
    BuildExpectedTags(ini, Path, station, expected);
    return CheckExpectedTags(expected, Tags());
}

} // namespace

void Check(std::string_view bytes) {
    test::MemoryFiles files;
    files.Content[Path] = bytes;
    config::FileIni ini(files);
    binding::ExpectedTags expected;
    const bool passes = Check(ini, expected);
    Require(!passes || ErrorLogSections(expected).size() == 1, "what passes logs the example alone");
    Require(files.Replaces == 0, "a check changes nothing");
    WriteErrorLog(ini, expected, binding::ErrorLogPath(Path));
    Require(files.Content[Path] == bytes, "the log is a file of its own");
    DisableRunsWithErrors(ini, expected, Path);
    if (files.Content[Path] != bytes) // or it is what was checked before
        (void)Check(ini, expected);
    Require(!AnyRunFails(expected), "no run with an error stays turned on");
}

} // namespace gfc::fuzz
