#pragma once

#include "audit/ReportWriter.h"
#include "config/Recorder.h"
#include "platform/Machine.h"
#include "report/Report.h"

#include <functional>
#include <memory>
#include <string>

namespace gfc::report {

// The bytes of a report in a form that takes its time, made in steps.
class Rendering {
public:
    virtual ~Rendering() = default;
    // False once it is through; nothing can be had of it before.
    virtual bool Advance() = 0;
    virtual std::string Bytes() = 0;
};

// Makes reports as files for the windows. Without the means for a PDF (empty) one that is asked for is HTML.
class ReportFileWriter : public audit::ReportWriter {
public:
    using MakePdf = std::function<std::unique_ptr<Rendering>(const Report& report, bool letter)>;
    // All must outlive it. version: of the program, for the cover.
    ReportFileWriter(platform::Machine machine, config::Recorder& recorder, std::string version, MakePdf pdf)
        : machine_(machine), recorder_(recorder), version_(std::move(version)), pdf_(std::move(pdf)) {}

    std::unique_ptr<audit::ReportWork> Begin(const project::Project& project, project::AddOnLibrary& library,
                                             const audit::ReportOrder& order) override;

private:
    platform::Machine machine_;
    config::Recorder& recorder_;
    std::string version_;
    MakePdf pdf_;
};

} // namespace gfc::report
