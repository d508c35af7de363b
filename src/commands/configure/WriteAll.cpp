#include "commands/Listing.h"
#include "commands/Steps.h"
#include "commands/configure/Configure.h"
#include "platform/Console.h"
#include "services/Counted.h"
#ifdef GFC_RECORD
#include "record/BackgroundRecorder.h"
#include "record/ProjectRecorder.h"
#endif

#include <algorithm>
#include <iostream>

namespace gfc::commands {

namespace {

#ifdef GFC_RECORD
// Enters what was written while the next files are: waiting for the disk for each would take longer than all
// else.
struct Recording {
    explicit Recording(const platform::Machine& machine)
        : entries_(machine.Clock, machine.TimeZone, machine.Paths.UserName()) {}

private:
    record::ProjectRecorder entries_;

public:
    record::BackgroundRecorder Recorder{entries_};
};
#else
struct Recording {
    explicit Recording(const platform::Machine&) {}
    config::NoRecorder Recorder;
};
#endif

} // namespace

std::vector<plan::Written> WriteAll(OpenProject& open, const std::vector<plan::Checked>& targets,
                                    const std::string& user, Context context) {
    Recording recording(context.Machine);
    config::Recorder& recorder = recording.Recorder;
    const plan::Writer writer{context.Machine.Files, *open.Library, recorder, open.Project, user};
    std::vector<plan::Written> results;
    {
        Steps steps("Writing", targets.size());
        for (const plan::Checked& target : targets)
            results.push_back(steps.Begin(target.Change.Station)
                                  ? plan::Write(writer, target.Change)
                                  : plan::Written{false, "Broken off before it."});
    }
    recorder.Settle();
    if (const std::string trouble = recorder.Trouble(); !trouble.empty())
        Tell("what was written is not entered in the history. " + trouble);
    return results;
}

int CodeOf(const std::vector<plan::Checked>& targets, const std::vector<plan::Written>& results) {
    if (!std::ranges::all_of(results, &plan::Written::Done))
        return platform::WasInterrupted() ? exitcode::BrokenOff : exitcode::NotToBeHad;
    const bool sound = std::ranges::all_of(targets, [](const plan::Checked& target) {
        return audit::CountOf(target.Report.Findings, audit::Severity::Error) == 0;
    });
    return sound ? exitcode::Clean : exitcode::Found;
}

void PutResults(const std::vector<plan::Checked>& targets, const std::vector<plan::Written>& results) {
    const auto listing = MakeTextListing(std::cout, audit::Severity::Warning);
    std::size_t written = 0;
    for (std::size_t i = 0; i < targets.size(); ++i) {
        if (results[i].Done) {
            listing->Put(targets[i].Report);
            ++written;
        } else {
            Tell(targets[i].Change.Station + ": not written. " + results[i].Reason);
        }
    }
    std::cout << "\n"
              << written << " of " << services::Counted(targets.size(), "station", "stations")
              << " written\n";
}

} // namespace gfc::commands
