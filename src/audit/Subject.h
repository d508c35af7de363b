#pragma once

#include "audit/Check.h"
#include "audit/FileText.h"
#include "audit/OneFile.h"
#include "config/FileIni.h"
#include "config/VarINIFile.h"
#include "project/TagInventory.h"

#include <array>
#include <string>
#include <vector>

namespace gfc::audit {

// One run as its section says; empty records where it has none.
struct RunSubject {
    int Number = 0;          // 1 to 5
    bool On = false;         // enabled: Run<n>
    bool Configured = false; // Run<n><n>
    bool HasSection = false;
    std::string Section; // "Run1"
    config::RunIO IO;
    config::RunGas Gas;
    config::RunMechanical Mechanical;
    config::RunGas Fixed; // fixed gas values, in the Tag texts

    // Whether there is anything to be looked at.
    [[nodiscard]] bool IsThere() const { return HasSection && (On || Configured); }
};

// A station's file, taken up once for all rules.
class Subject {
public:
    // The file is read with the reader of the program itself.
    Subject(const Whose& whose, std::string bytes);

    [[nodiscard]] const Whose& Of() const { return whose_; }
    [[nodiscard]] const FileText& Text() const { return text_; }
    [[nodiscard]] const config::FileIni& Ini() const { return ini_; }
    [[nodiscard]] const config::StationConfig& Station() const { return station_; }
    [[nodiscard]] const std::array<RunSubject, config::MaxRuns>& Runs() const { return runs_; }
    [[nodiscard]] std::string FlowSection() const;
    // Empty for a densimeter, which has none.
    [[nodiscard]] std::string GasSection() const;

private:
    void LoadRun(int number);

    Whose whose_;
    mutable OneFile file_;
    FileText text_;
    config::FileIni ini_{file_};
    config::StationConfig station_;
    std::array<RunSubject, config::MaxRuns> runs_;
};

// The rules, group by group. Each puts what it finds into the sink.
void CheckNames(const Subject& subject, Sink& sink);
void CheckLayout(const Subject& subject, Sink& sink);
void CheckValues(const Subject& subject, Sink& sink);
void CheckRuns(const Subject& subject, Sink& sink);

} // namespace gfc::audit
