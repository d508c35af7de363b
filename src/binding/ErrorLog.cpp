#include "binding/ErrorLog.h"

#include "binding/Assignment.h"
#include "binding/Catalogue.h"

#include <algorithm>
#include <optional>

namespace gfc::binding {

namespace {

using Entries = std::vector<ExpectedTag>;
// The line's text for an entry; nothing for one that the section does not list.
using LineOf = std::optional<std::string> (*)(const ExpectedTag& entry, int number);

std::string Line(std::string_view kind, int number, const ExpectedTag& entry, std::string_view fault) {
    std::string line(kind);
    line.append(" ").append(std::to_string(number)).append(" =");
    for (const std::string_view text :
         {entry.Caption, std::string_view(entry.Tag), std::string_view(entry.RegAddr),
          std::string_view(entry.Type), std::string_view(entry.Location)})
        line.append(" [").append(text).append("]");
    return line.append(" [").append(fault).append("]");
}

std::optional<std::string> Error(const ExpectedTag& entry, int number) {
    const auto fault = ErrorOf(entry);
    if (!fault)
        return std::nullopt;
    // The blank before the bracket belongs to the note.
    return Line("Error", number, entry, std::string(*fault) + (*fault == entry.Note ? " " : ""));
}

std::optional<std::string> Warning(const ExpectedTag& entry, int number) {
    const auto fault = WarningOf(entry);
    return fault ? std::optional(Line("Warning", number, entry, *fault)) : std::nullopt;
}

struct SectionRow {
    std::string_view Name;
    Entries ExpectedTags::*Of;
    std::string_view Group;
    LineOf Faults;
};

constexpr auto Float = &ExpectedTags::ExpectedFloat;
constexpr auto Analog = &ExpectedTags::ExpectedAnalog;
constexpr auto Digital = &ExpectedTags::ExpectedDigital;
constexpr auto Long = &ExpectedTags::ExpectedLong;

// The names are uneven on purpose. The digital that enables the composition has no section: a bad one fails
// the check without a line.
// clang-format off
constexpr SectionRow Sections[] = {
    {"I/O tags Float AGA 3/7 Inputs : Errors",                Float,   group::Inputs,        Error},
    {"I/O tags Float AGA 3/7 Outputs : Errors",               Float,   group::Outputs,       Error},
    {"I/O tags Float gas composition Inputs : Errors",        Float,   group::Composition,   Error},
    {"I/O tags Float AGA 8 Outputs : Errors",                 Float,   group::GasOutputs,    Error},
    {"I/O tags Float gas parameters SGERG88 Inputs : Errors", Float,   group::GasParameters, Error},
    {"I/O tags Analog AGA 3/7 Outputs : Errors",              Analog,  group::Outputs,       Error},
    {"I/O tags Analog AGA 8 Outputs : Errors",                Analog,  group::GasOutputs,    Error},
    {"I/O tags Digital AGA 3/7 Inputs : Errors",              Digital, group::Inputs,        Error},
    {"I/O tags Long AGA 7 Inputs : Errors",                   Long,    group::Inputs,        Error},
    {"I/O tags float AGA 3/7 Inputs : Warnings",              Float,   group::Inputs,        Warning},
    {"I/O tags float AGA 3/7 Outputs : Warnings",             Float,   group::Outputs,       Warning},
    {"I/O tags float AGA 8 Outputs : Warnings",               Float,   group::GasOutputs,    Warning},
    {"I/O tags float gas composition Inputs: Warnings",       Float,   group::Composition,   Warning},
    {"I/O tags digital AGA 3/7 Inputs : Warnings",            Digital, group::Inputs,        Warning},
    {"I/O tags analog AGA 3/7 Output : Warnings",             Analog,  group::Outputs,       Warning},
    {"I/O tags analog AGA 8 Output : Warnings",               Analog,  group::GasOutputs,    Warning},
    {"I/O tags long AGA 3/7 Inputs : Warnings",               Long,    group::Inputs,        Warning},
};
// clang-format on

LogSection Example() {
    return {"Example Error Log File",
            {"Error Nº ## = [Variable] [Tag Name] [Reg. Addr.] [Type] [Location into runs] [Type of Error]",
             "Warning Nº ## = [Variable] [Tag Name] [Reg. Addr] [Type] [Location into runs] "
             "[Type of warning]"}};
}

// Numbered from 1 in each section.
std::vector<std::string> LinesOf(const SectionRow& row, const ExpectedTags& expected) {
    std::vector<std::string> lines;
    for (const ExpectedTag& entry : expected.*row.Of) {
        if (entry.Group != row.Group)
            continue;
        if (auto line = row.Faults(entry, static_cast<int>(lines.size()) + 1))
            lines.push_back(*std::move(line));
    }
    return lines;
}

} // namespace

std::string ErrorLogPath(std::string_view configFile) {
    constexpr std::string_view ending = ".ini";
    if (configFile.empty())
        return {};
    if (configFile.ends_with(ending))
        configFile.remove_suffix(ending.size());
    return std::string(configFile) + "_Errors.log";
}

std::optional<std::string_view> ErrorOf(const ExpectedTag& entry) {
    if (entry.Found)
        return std::nullopt;
    return entry.Tag == NotConfigured ? entry.Note : "No found in I/O data base";
}

std::optional<std::string_view> WarningOf(const ExpectedTag& entry) {
    return entry.Tag.empty() ? std::optional<std::string_view>("Tag without name") : std::nullopt;
}

std::vector<LogSection> ErrorLogSections(const ExpectedTags& expected) {
    std::vector<LogSection> sections = {Example()};
    for (const SectionRow& row : Sections)
        if (auto lines = LinesOf(row, expected); !lines.empty())
            sections.push_back({row.Name, std::move(lines)});
    return sections;
}

std::vector<std::string> Findings(const ExpectedTags& expected) {
    std::vector<std::string> lines;
    for (const auto list : {Float, Analog, Digital, Long})
        for (const ExpectedTag& entry : expected.*list) {
            const int number = static_cast<int>(lines.size()) + 1;
            if (auto error = Error(entry, number))
                lines.push_back(*std::move(error));
            else if (auto warning = Warning(entry, number))
                lines.push_back(*std::move(warning));
        }
    return lines;
}

bool LogsGasInputErrors(const ExpectedTags& expected) {
    return std::ranges::any_of(expected.ExpectedFloat, [](const ExpectedTag& entry) {
        return !entry.Found && (entry.Group == group::Composition || entry.Group == group::GasParameters);
    });
}

void WriteErrorLog(config::FileIni& ini, const ExpectedTags& expected, const std::string& file) {
    const config::FileBatch batch(ini, file);
    for (const LogSection& section : ErrorLogSections(expected))
        ini.WriteLines(section.Name, section.Lines, file);
}

} // namespace gfc::binding
