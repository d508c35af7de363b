#include "audit/Check.h"

#include "audit/Bindings.h"
#include "audit/Plausible.h"
#include "audit/Subject.h"
#include "platform/Files.h"
#include "project/TagsMark.h"
#include "services/Elsewhere.h"

#include <algorithm>
#include <iterator>
#include <memory>

namespace gfc::audit {

namespace {

void CheckPlausibility(const Subject& subject, Sink& sink) {
    const config::StationConfig& station = subject.Station();
    sink.AboutStation(subject.FlowSection());
    CheckCommonValues(station, sink);
    for (const RunSubject& run : subject.Runs())
        if (run.IsThere()) {
            sink.About(run.Number, run.On, run.Section);
            CheckRunValues(station, run.IO, sink);
            CheckMechanicalValues(station, run.Mechanical, sink);
            CheckGasValues(station, run.Fixed, sink);
        }
}

struct FileBytes {
    bool IsThere = false;
    std::optional<std::string> Bytes; // nothing where it cannot be read
};

FileBytes ReadFile(platform::Files& files, const std::string& file) {
    if (file.empty())
        return {};
    auto bytes = files.Read(file);
    const bool isThere = bytes.has_value() || files.Exists(file);
    return {isThere, std::move(bytes)};
}

// What is found in a station's file: first without its tags, then with them.
class FileCheck {
public:
    FileCheck(const Whose& whose, FileBytes file)
        : report_{.Station = whose.Station, .File = whose.File, .Configured = file.IsThere} {
        if (file.Bytes)
            CheckBytes(whose, *std::move(file.Bytes));
        else if (file.IsThere)
            Sink(report_.Findings).Add(RuleId::FileUnreadable, {});
    }

    StationReport With(std::optional<project::TagList> tags) && {
        report_.TagsMark = tags ? project::MarkOf(*tags) : 0;
        if (subject_ && tags) {
            Sink sink(report_.Findings);
            CheckTags(*subject_, bindings_, *std::move(expected_), *std::move(tags), sink);
        }
        std::ranges::move(ofBindings_, std::back_inserter(report_.Findings));
        SortBySeverity(report_.Findings);
        return std::move(report_);
    }

private:
    void CheckBytes(const Whose& whose, std::string bytes) {
        subject_ = std::make_unique<Subject>(whose, std::move(bytes));
        bindings_ = BindingsOf(*subject_);
        expected_.emplace(*subject_);
        CheckContent();
        CheckBindings();
    }
    void CheckContent() {
        Sink sink(report_.Findings);
        CheckNames(*subject_, sink);
        CheckLayout(*subject_, sink);
        CheckValues(*subject_, sink);
        CheckRuns(*subject_, sink);
        CheckPlausibility(*subject_, sink);
    }
    void CheckBindings() {
        Sink sink(ofBindings_);
        CheckDirections(bindings_, sink);
        CheckSharedTags(bindings_, sink);
        CheckTagNames(bindings_, subject_->Station(), sink);
    }

    StationReport report_;
    std::unique_ptr<Subject> subject_; // null for a file that cannot be read
    std::vector<Bound> bindings_;
    std::optional<ExpectedOfFile> expected_;
    Findings ofBindings_; // they stand behind those of the tags
};

} // namespace

std::string StationReport::FileName() const {
    const std::string folder = platform::ParentFolder(File);
    return folder.empty() || File.empty() ? File : File.substr(folder.size() + 1);
}

StationReport CheckFile(platform::Files& files, const Whose& whose, std::optional<project::TagList> tags) {
    return FileCheck(whose, ReadFile(files, whose.File)).With(std::move(tags));
}

StationReport CheckFile(platform::Files& files, const Whose& whose, const project::TagList* tags) {
    return CheckFile(files, whose, tags == nullptr ? std::nullopt : std::optional(*tags));
}

std::future<StationReport> BeginStation(platform::Files& files, project::AddOnLibrary& library,
                                        const project::Project& project, const std::string& station) {
    const Whose whose{project.ConfigFileOf(station), project.ProjectFile, project.ProjectName, station};
    FileBytes file = ReadFile(files, whose.File);
    if (!file.IsThere)
        return BeginFile(files, whose);
    std::promise<project::TagList> tags;
    auto report =
        std::async(services::Elsewhere, [whose, file = std::move(file), asked = tags.get_future()]() mutable {
            FileCheck check(whose, std::move(file));
            return std::move(check).With(asked.get());
        });
    tags.set_value(library.ReadTags(station, project.ProjectFile, {}));
    return report;
}

std::future<StationReport> BeginFile(platform::Files& files, const Whose& whose) {
    return std::async(services::Elsewhere, [whose, file = ReadFile(files, whose.File)]() mutable {
        return FileCheck(whose, std::move(file)).With(std::nullopt);
    });
}

} // namespace gfc::audit
