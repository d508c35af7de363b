#pragma once

#include "audit/Subject.h"
#include "binding/Catalogue.h"
#include "binding/ExpectedTags.h"

#include <string>
#include <string_view>
#include <vector>

namespace gfc::audit {

// A variable that the configuration binds, with its run.
struct Bound {
    const binding::VariableRow* Row;
    const config::TagBinding* Binding; // may be empty; part of the subject
    int Run;                           // 0 for the common atmospheric pressure
    bool On;
    std::string_view Section;
    bool InCheck; // the check of a file looks there

    [[nodiscard]] bool IsMade() const { return Binding->IsMade(); }
    [[nodiscard]] bool IsOutput() const;
    [[nodiscard]] std::string Variable() const { return std::string(Row->Captions.Summary); }
    [[nodiscard]] std::string WhoseRun() const; // "run 2", "the station"
};

// All variables of the configured runs, on or off, that their tree shows, and the common atmospheric
// pressure. They point into the subject.
[[nodiscard]] std::vector<Bound> BindingsOf(const Subject& subject);

// The sink takes what follows as said of the variable's run.
void About(const Bound& bound, Sink& sink);
// A finding about the variable.
Finding& Add(Sink& sink, RuleId rule, const Bound& bound, std::initializer_list<std::string_view> words);

// What the check of a file asks a station's tags for, of the runs that are on and of those that are off.
struct ExpectedOfFile {
    explicit ExpectedOfFile(const Subject& subject);
    binding::ExpectedTags On;
    binding::ExpectedTags Off;
};

// The rules about bindings; all are those of the subject. The first looks at the station's tags, the others
// at the file alone.
void CheckTags(const Subject& subject, const std::vector<Bound>& all, ExpectedOfFile expected,
               project::TagList tags, Sink& sink);
void CheckDirections(const std::vector<Bound>& all, Sink& sink);
void CheckSharedTags(std::vector<Bound> all, Sink& sink);
void CheckTagNames(const std::vector<Bound>& all, const config::StationConfig& station, Sink& sink);

} // namespace gfc::audit
