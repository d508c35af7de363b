#include "forms/runs/EnableFault.h"

#include "forms/main_window/StationNodes.h"

#include <array>

namespace gfc::forms {

namespace {

using binding::ExpectedTag;
using binding::ExpectedTags;

// The letters are deliberately those of each class: "lof", "Dou you", "inconsistecies", the blanks.
constexpr EnableFault common{
    "Error : Configuration errors or inconsistencies found in ",
    "A log file describing the error and its cause has been generated in:",
    "Do you wish to see the log file of errors ?",
};
constexpr EnableFault ofLong{
    "Error : Configuration errors or inconsistencies found in ",
    "A lof file describing the error and its cause has been generated in:",
    "Dou you wish to see the log file of  errors ?",
};
constexpr EnableFault ofFloat{
    "Error : Configuration errors or inconsistecies found in ",
    "A log file describing the error and its cause has been generated in:",
    "Do you wish to see the log file of errors ?",
};
// The runs share the composition. No entry bears that location at present; the branch stays for one that
// does.
constexpr EnableFault ofComposition{
    "Error : Configuration errors or inconsistencies found in the I/O tags Composition Gas ",
    "A log file describing the error and its cause has been generated in :",
    "Do you wish to see the log file of errors ?",
    true,
};
constexpr std::string_view compositionLocation = "Gas Composition";

struct ClassRow {
    std::vector<ExpectedTag> ExpectedTags::*Entries;
    const EnableFault& OfRun;
    const EnableFault* OfComposition;
};

constexpr std::array<ClassRow, 4> classes{{
    {&ExpectedTags::ExpectedAnalog, common, nullptr},
    {&ExpectedTags::ExpectedDigital, common, nullptr},
    {&ExpectedTags::ExpectedLong, ofLong, nullptr},
    {&ExpectedTags::ExpectedFloat, ofFloat, &ofComposition},
}};

} // namespace

std::optional<EnableFault> FindEnableFault(const ExpectedTags& expected, int run) {
    const std::string location = "Run" + std::to_string(run);
    for (const ClassRow& row : classes)
        for (const ExpectedTag& entry : expected.*row.Entries) {
            if (entry.Found)
                continue;
            if (entry.Location == location)
                return row.OfRun;
            if (row.OfComposition != nullptr && entry.Location == compositionLocation)
                return *row.OfComposition;
        }
    return std::nullopt;
}

std::string EnableFaultText(const EnableFault& fault, int run, std::string_view log) {
    std::string text(fault.FirstLine);
    if (!fault.OfAllRuns)
        text += node::RunText(run);
    return text.append("\r\n")
        .append(fault.SecondLine)
        .append("\r\n")
        .append(log)
        .append("\r\n\r\n")
        .append(fault.LastLine);
}

} // namespace gfc::forms
