#pragma once

#include "binding/ExpectedTags.h"

#include <optional>
#include <string>
#include <string_view>

namespace gfc::forms {

// Why a run cannot be enabled, in the words of the class of the tag that is missing; their letters differ.
struct EnableFault {
    std::string_view FirstLine;
    std::string_view SecondLine;
    std::string_view LastLine;
    bool OfAllRuns = false; // the first line then does not end in the run
};

// The first tag of the run (1 to 5, 0 for none) that the station does not hold; analog, digital, long, float.
// Nothing if there is none: tags of other runs do not count. The lists must have been checked.
[[nodiscard]] std::optional<EnableFault> FindEnableFault(const binding::ExpectedTags& expected, int run);

// The text of the box; log is the path of the log file.
[[nodiscard]] std::string EnableFaultText(const EnableFault& fault, int run, std::string_view log);

} // namespace gfc::forms
