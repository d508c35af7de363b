#pragma once

#include "config/Recorder.h"
#include "platform/Machine.h"
#include "project/AddOnLibrary.h"
#include "project/Project.h"
#include "report/Report.h"

#include <cstdint>
#include <string>
#include <vector>

namespace gfc::report {

struct Request {
    std::vector<std::string> Stations; // names as the project writes them
    std::string User;
    // Changes are listed from behind this entry on; nothing for no list.
    std::optional<std::int64_t> Since;
    std::string Version; // of the program
};

// What reports are made from; all must outlive the call. Without a library there are no modules, and the
// rules about tags are left out.
struct Sources {
    platform::Machine& Machine;
    project::AddOnLibrary* Library;
    const project::Project& Project;
    config::Recorder& Recorder;
};

// One in the making: a station with each step.
class ReportMaking {
public:
    // What sources refers to must outlive it.
    ReportMaking(Sources sources, Request request);

    // False once all stations are in.
    bool Advance();
    [[nodiscard]] const Report& Made() const { return report_; }

private:
    Sources sources_;
    Request request_;
    Report report_;
};

[[nodiscard]] Report MakeReport(const Sources& sources, const Request& request);

} // namespace gfc::report
