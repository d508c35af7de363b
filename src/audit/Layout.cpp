#include "audit/KnownKeys.h"
#include "audit/Subject.h"
#include "config/CommonLayout.h"
#include "platform/Profile.h"
#include "project/Project.h"
#include "services/CodePage.h"
#include "services/Text.h"

#include <algorithm>
#include <set>

namespace gfc::audit {

namespace {

using config::CommonSection;

std::string Utf8(std::string_view bytes) {
    return services::FromCodePage(bytes);
}

// "A, B, C and 5 more"
std::string ListOf(const std::vector<std::string>& keys) {
    constexpr std::size_t most = 3;
    std::string text;
    for (std::size_t i = 0; i < std::min(keys.size(), most); ++i)
        text.append(i == 0 ? "" : ", ").append(keys[i]);
    if (keys.size() > most)
        text.append(" and ").append(std::to_string(keys.size() - most)).append(" more");
    return text;
}

void CheckLines(const FileSection& section, Sink& sink) {
    for (const std::string_view line : section.Strays)
        sink.Add(RuleId::LineUnknown, {}, {Utf8(line)});
    for (const auto& entry : section.Entries)
        if (entry.Value.size() > platform::ProfileValueLimit) {
            const std::string key = Utf8(entry.Key);
            sink.Add(RuleId::ValueLong, {key, Utf8(entry.Value)}, {key, std::to_string(entry.Value.size())});
        }
}

// One section with the keys that may stand in it.
class KeyCheck {
public:
    KeyCheck(const FileSection& section, const KnownKeys& known, Sink& sink)
        : known_(known), sink_(sink), values_(known.Count()) {
        for (const auto& entry : section.Entries)
            Take(entry);
    }

    // By the key's place among those that are known.
    template <class IsWanted>
    void Idle(IsWanted isWanted) {
        std::vector<std::string> idle;
        for (std::size_t key = 0; key < values_.size(); ++key)
            if (values_[key] && !values_[key]->empty() && !isWanted(key))
                idle.emplace_back(known_[key]);
        if (!idle.empty())
            sink_.Add(RuleId::KeysIdle, {idle.front()}, {ListOf(idle)});
    }
    template <class IsWanted>
    [[nodiscard]] std::vector<std::string> Missing(IsWanted isWanted) const {
        std::vector<std::string> missing;
        for (std::size_t key = 0; key < values_.size(); ++key)
            if (!values_[key] && isWanted(key))
                missing.emplace_back(known_[key]);
        return missing;
    }

private:
    void Take(const platform::profile::Entry& entry) {
        const auto key = known_.Find(entry.Key);
        if (!key) {
            const std::string name = Utf8(entry.Key);
            sink_.Add(RuleId::KeyUnknown, {name, Utf8(entry.Value)}, {name});
        } else if (values_[*key]) {
            const std::string name = Utf8(entry.Key);
            sink_.Add(RuleId::KeyDouble, {name, Utf8(entry.Value)}, {name});
        } else {
            values_[*key] = entry.Value;
        }
    }

    const KnownKeys& known_;
    Sink& sink_;
    std::vector<std::optional<std::string_view>> values_;
};

void CheckCommonKeys(const FileSection& section, CommonSection kind, Sink& sink) {
    const KnownKeys& known = KnownKeys::OfCommon(kind);
    KeyCheck keys(section, known, sink);
    keys.Idle([&](std::size_t key) { return !known.IsExtra(key); });
    for (const std::string& key : keys.Missing([&](std::size_t k) { return !known.IsExtra(k); }))
        sink.Add(RuleId::KeyMissing, {key}, {key});
}

// Bindings that are missing are the matter of the check of tags, which asks for them one by one.
void CheckRunKeys(const FileSection& section, const RunSubject& run, const config::StationConfig& station,
                  Sink& sink) {
    const KnownKeys& known = KnownKeys::OfRun();
    KeyCheck keys(section, known, sink);
    const PresentGroups present(station, run.Mechanical);
    keys.Idle([&](std::size_t key) { return present.Has(known.GroupOf(key)); });
    const auto isCopy = [](char group) { return group == 'A' || group == 'E' || group == 'I'; };
    const auto isWanted = [&](std::size_t key, bool copies) {
        const char group = known.GroupOf(key);
        return !known.IsExtra(key) && present.Counts(group) && isCopy(group) == copies &&
               (copies || !known.IsBinding(key));
    };
    for (const auto& key : keys.Missing([&](std::size_t k) { return isWanted(k, false); }))
        sink.Add(RuleId::KeyMissing, {key}, {key});
    if (const auto missing = keys.Missing([&](std::size_t k) { return isWanted(k, true); }); !missing.empty())
        sink.Add(RuleId::CopyMissing, {missing.front()}, {ListOf(missing)});
}

// How a section of this name stands to the choices of the file.
enum class Standing { Unknown, Idle, Read };

Standing StandingOf(const Subject& subject, std::string_view name) {
    const auto is = [&](std::string_view other) { return services::EqualBytesNoCase(name, other); };
    if (is("General") || is("Station") || is("FlowRuns") || is(subject.FlowSection()) ||
        (!subject.GasSection().empty() && is(subject.GasSection())))
        return Standing::Read;
    if (is("AGA3") || is("AGA7") || is("AGA8") || is("SGERG88"))
        return Standing::Idle;
    const bool isRun =
        std::ranges::any_of(subject.Runs(), [&](const RunSubject& run) { return is(run.Section); });
    return isRun ? Standing::Read : Standing::Unknown;
}

void CheckSectionNames(const Subject& subject, Sink& sink) {
    std::set<std::string> seen;
    for (const FileSection& section : subject.Text().Sections()) {
        const std::string name = Utf8(section.Name);
        sink.AboutStation(name);
        if (!seen.insert(services::FoldCase(name)).second) {
            sink.Add(RuleId::SectionDouble, {}, {name});
            continue;
        }
        const Standing standing = StandingOf(subject, section.Name);
        if (standing == Standing::Unknown)
            sink.Add(RuleId::SectionUnknown, {}, {name});
        else if (standing == Standing::Idle)
            sink.Add(RuleId::SectionIdle, {}, {name});
        CheckLines(section, sink);
    }
}

void CheckCommonSection(const Subject& subject, CommonSection kind, const std::string& name, Sink& sink) {
    sink.AboutStation(name);
    if (const FileSection* section = subject.Text().Find(name))
        CheckCommonKeys(*section, kind, sink);
    else
        sink.Add(RuleId::SectionMissing, {}, {name});
}

} // namespace

void CheckLayout(const Subject& subject, Sink& sink) {
    CheckSectionNames(subject, sink);
    CheckCommonSection(subject, CommonSection::General, "General", sink);
    CheckCommonSection(subject, CommonSection::Station, "Station", sink);
    CheckCommonSection(subject, CommonSection::FlowRuns, "FlowRuns", sink);
    CheckCommonSection(subject, CommonSection::Flow, subject.FlowSection(), sink);
    if (!subject.GasSection().empty())
        CheckCommonSection(subject, CommonSection::Gas, subject.GasSection(), sink);
    for (const RunSubject& run : subject.Runs())
        if (run.IsThere()) {
            sink.About(run.Number, run.On, run.Section);
            CheckRunKeys(*subject.Text().Find(run.Section), run, subject.Station(), sink);
        }
}

void CheckNames(const Subject& subject, Sink& sink) {
    const Whose& whose = subject.Of();
    const auto read = [&](std::string_view key) { return subject.Ini().ReadKey("General", key, whose.File); };
    sink.AboutStation("General");
    const std::string project = read("Project");
    const std::string station = read("OrmStation");
    const std::string name = project::ProjectNameOf(project);
    if (!project.empty() && !whose.ProjectName.empty() && !services::EqualNoCase(name, whose.ProjectName))
        sink.Add(RuleId::ProjectOther, {"Project", project}, {name, whose.ProjectName});
    else if (!project.empty() && !whose.ProjectFile.empty() &&
             !services::EqualNoCase(project, whose.ProjectFile))
        sink.Add(RuleId::ProjectMoved, {"Project", project}, {project});
    if (!station.empty() && !services::EqualNoCase(station, whose.Station))
        sink.Add(RuleId::StationOther, {"OrmStation", station}, {station, whose.Station});
}

} // namespace gfc::audit
