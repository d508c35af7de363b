#include "forms/tools/TakeOver.h"

#include "audit/Check.h"
#include "audit/OneFile.h"
#include "forms/main_window/GFCPrincipal.h"
#include "forms/program/Agreement.h"
#include "forms/program/CommandRecord.h"
#include "forms/tools/ToolForm.h"
#include "platform/Machine.h"
#include "platform/Profile.h"
#include "services/CodePage.h"
#include "services/Text.h"

#include <algorithm>

namespace gfc::forms {

namespace {

constexpr std::size_t linesShown = 8;

std::string Lines(const std::vector<std::string>& texts) {
    std::string lines;
    for (std::size_t at = 0; at < std::min(texts.size(), linesShown); ++at)
        lines += "\r\n" + texts[at];
    if (texts.size() > linesShown)
        lines += "\r\n... and " + std::to_string(texts.size() - linesShown) + " more";
    return lines;
}

// What a reader would trim is kept between quotes.
std::string Kept(const std::string& value) {
    constexpr std::string_view trimmed = " \t\v\"'";
    const bool plain = value.empty() || (trimmed.find(value.front()) == std::string_view::npos &&
                                         trimmed.find(value.back()) == std::string_view::npos);
    return plain ? value : "\"" + value + "\"";
}

std::string With(const std::string& bytes, const std::vector<TakenValue>& values) {
    const auto onDisk = [](const std::string& text) { return services::ToCodePage(text).value_or("?"); };
    platform::Profile profile(bytes);
    for (const TakenValue& value : values) {
        const auto wanted = value.Value ? std::optional(Kept(onDisk(*value.Value))) : std::nullopt;
        profile.Write(onDisk(value.Section), onDisk(value.Key), wanted);
    }
    return profile.Bytes();
}

audit::Findings Check(const project::Project& project, const std::string& station, const std::string& bytes,
                      const project::TagList& tags) {
    const std::string file = project.ConfigFileOf(station);
    audit::OneFile files(file, bytes);
    return audit::CheckFile(files, {file, project.ProjectFile, project.ProjectName, station}, &tags).Findings;
}

// What would be found that is not found now, the worst first.
std::vector<std::string> NewFindings(Program& program, const std::string& station, const std::string& now,
                                     const std::string& then) {
    const auto& project = program.Session.Project;
    const auto tags = program.Library.ReadTags(station, project.ProjectFile, {});
    const auto before = Check(project, station, now, tags);
    std::vector<std::string> texts;
    for (const audit::Finding& finding : Check(project, station, then, tags))
        if (std::ranges::find(before, finding) == before.end())
            texts.push_back(std::string(audit::WordOf(finding.Severity)) + ": " + finding.Text);
    return texts;
}

std::string Question(const std::string& station, const std::vector<TakenValue>& values,
                     const std::vector<std::string>& findings) {
    std::vector<std::string> words;
    for (const TakenValue& value : values)
        words.push_back(value.Words);
    return "Take " + Counted(values.size(), "value", "values") + " over into the configuration of " +
           station + "?\r\n" + Lines(words) + "\r\n\r\n" +
           (findings.empty() ? "The check finds nothing in it that it does not find now."
                             : "The check then finds what it does not find now:\r\n" + Lines(findings));
}

// Another program may have written it since it was compared, or while the question stood.
bool IsAsSeen(Program& program, const std::string& file, const std::string& seen, const std::string& title) {
    if (program.Machine.Files.Read(file) == seen)
        return true;
    program.Screen.Ask({.Title = title,
                        .Text = "Nothing was taken over: the configuration is another one by now.\r\n" +
                                file + "\r\n\r\nIt is compared anew; please choose again.",
                        .TheIcon = ui::Icon::Exclamation});
    return false;
}

} // namespace

std::string ReasonAgainstTaking(const std::string& section, const std::string& key) {
    const bool says = services::EqualNoCase(section, "General") &&
                      (services::EqualNoCase(key, "Project") || services::EqualNoCase(key, "OrmStation"));
    return says ? "A configuration keeps the names of its own project and station." : std::string();
}

bool TakeOver(Program& program, const std::string& station, const std::string& seen,
              const std::vector<TakenValue>& values, const std::string& title) {
    const std::string file = program.Session.Project.ConfigFileOf(station);
    const std::string then = With(seen, values);
    const auto findings = NewFindings(program, station, seen, then);
    if (program.Screen.Ended() || !IsAgreed(program, title, Question(station, values, findings), station))
        return false;
    if (!IsAsSeen(program, file, seen, title))
        return true;
    bool stored = false;
    RunRecorded(program, config::command::TakeOver, [&] {
        stored = program.Storage.Put({.Lost = "The values were not taken over.", .Title = title}, file, then);
        if (stored && !program.Screen.Ended())
            program.Forms.Get<GFCPrincipal>().RebuildAfterCommand();
    });
    return stored;
}

} // namespace gfc::forms
