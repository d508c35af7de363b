#pragma once

#include "config/FileIni.h"
#include "config/VarINIFile.h"

#include <string>

// What an edit of one run's configuration writes, and to which file: the station's own, or the copy on which
// it is tried.
namespace gfc::forms {

struct Session;
class Storage;

// What a person has chosen to edit.
struct ModifySelection {
    bool RunInputs = false;
    bool RunOutputs = false;
    bool Mechanical = false;
    bool GasOutputs = false;
    bool GasInputs = false; // tags
    bool FixedGas = false;  // values

    [[nodiscard]] bool IsNothing() const { return *this == ModifySelection{}; }
    [[nodiscard]] bool IsMechanicalOnly() const { return *this == ModifySelection{.Mechanical = true}; }
    [[nodiscard]] bool HasGas() const { return GasInputs || FixedGas; }
    bool operator==(const ModifySelection&) const = default;
};

// The first run, 1 to 5, whose flag in the model is "Yes"; 0 if there is none.
[[nodiscard]] int EditedRun(const config::StationConfig& station);

// Writes what is selected, of the edited run from element 0 of the run arrays. Everything else in the file
// stays. Without an edited run only the section of the gas model is written.
void ApplyModifiedTags(config::FileIni& ini, const config::StationConfig& station,
                       const ModifySelection& selection, const std::string& file);

// The mechanical parameters alone, with the common values beside them. Unlike all other edits this one does
// not enable the run.
void ApplyMechanicalParameters(config::FileIni& ini, const config::StationConfig& station,
                               const std::string& file);

// Beside the configuration files. Empty where the station can have no file.
[[nodiscard]] std::string TrialFile(const Session& session);

// A copy of a configuration file for as long as it takes to try an edit on it. What a crash has left there
// goes first.
class TrialCopy {
public:
    // What is lost without one.
    static const char* const Lost;

    TrialCopy(Storage& storage, const std::string& original, std::string copy);
    ~TrialCopy();
    TrialCopy(const TrialCopy&) = delete;
    TrialCopy& operator=(const TrialCopy&) = delete;

    [[nodiscard]] const std::string& Path() const { return copy_; }
    // False where the copy could not be made, and a person was told and has given it up.
    [[nodiscard]] bool IsMade() const { return made_; }

private:
    Storage& storage_;
    std::string copy_;
    bool made_ = false;
};

// Empties the station, its runs, its tag lists and what was expected of them, so that the next command reads
// everything anew. The project and the user stay.
void ClearModifyState(Session& session);

} // namespace gfc::forms
