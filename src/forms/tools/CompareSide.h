#pragma once

#include "config/Recorder.h"
#include "forms/program/Program.h"
#include "ui/DropDownList.h"

#include <functional>
#include <string>
#include <vector>

namespace gfc::forms {

// One of the two sides of a comparison, chosen in three lists: whose file, in which state, and which part.
class CompareSide {
public:
    struct Lists {
        ui::DropDownList& Whose; // stations, "File from disk...", and files that were chosen
        ui::DropDownList& State; // as it stands, or as an entry of the history left it
        ui::DropDownList& Part;  // all of it, or one run
    };
    CompareSide(Program& program, Lists lists) : program_(program), lists_(lists) {}

    // A person has chosen something else; not called for what the program chooses.
    std::function<void()> OnChanged;

    // Offers the stations; the record is the project's.
    void Fill(const std::vector<std::string>& stations, std::string record);
    // entry 0 for the file as it stands, run 0 for all of it. A station that is not offered changes nothing.
    void Choose(const std::string& station, std::int64_t entry, int run);
    void ChooseRun(int run);
    // Takes over what the other side shows, and gives it what this one has shown.
    void Exchange(CompareSide& other);

    [[nodiscard]] bool IsFile() const { return !file_.empty(); }
    // The station; empty for a file from disk.
    [[nodiscard]] const std::string& Station() const { return station_; }
    [[nodiscard]] bool IsPresent() const { return !IsFile() && Entry() == 0; }
    [[nodiscard]] int Run() const;
    // "North as it stands", "North, entry 12, run 3".
    [[nodiscard]] std::string Name() const;
    // The whole file; nothing where there is none, and why then.
    [[nodiscard]] config::FileState Read(std::string& reason) const;

private:
    [[nodiscard]] std::int64_t Entry() const;
    void Connect();
    void TakeWhose();
    void TakeFile();
    void FillStates(std::int64_t withEntry);
    void ByProgram(const std::function<void()>& choosing);
    [[nodiscard]] int IndexOfWhose() const;

    Program& program_;
    Lists lists_;
    std::string record_;
    std::string station_;
    std::string file_;
    std::vector<std::int64_t> entries_; // of the states behind the first
    bool byProgram_ = false;
};

} // namespace gfc::forms
