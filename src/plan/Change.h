#pragma once

#include "audit/Check.h"
#include "config/Recorder.h"
#include "project/AddOnLibrary.h"
#include "project/Project.h"

#include <string>
#include <string_view>

// One station's file as it is to become, and how it gets there.
namespace gfc::plan {

// As the record names what was done here; copies are entered as those of the menu.
namespace command {
inline constexpr std::string_view BindAnew = "Bind anew";
inline constexpr std::string_view ApplyPlan = "Apply plan";
} // namespace command

struct Change {
    std::string Station;
    std::string File;         // full path
    config::FileState Before; // as it stood when this was planned
    std::string After;        // the whole file
    std::string Command;
};

// What stands at the path. False where a file is there that cannot be read: nothing is planned over it.
[[nodiscard]] bool ReadState(platform::Files& files, const std::string& file, config::FileState& state);

// Who writes, and what is told of it.
struct Writer {
    platform::Files& Files;
    project::AddOnLibrary& Library;
    config::Recorder& Recorder;
    const project::Project& Project;
    std::string User; // the identity that a person gave; empty for none
};

struct Written {
    bool Done = false;
    std::string Reason; // why not, a sentence with what stands there now
};

// Puts the file in its place by one atomic replace, has it recorded and entered among the station's files to
// load. Not done, with nothing changed, where the file is neither what it was when this was planned nor what
// it is to become. Where it cannot be said to be safe on the disk it is not done, but recorded all the same.
[[nodiscard]] Written Write(const Writer& writer, const Change& change);

// One that fits, with what the check says of the new file: it need not be asked again once that is written.
struct Checked {
    plan::Change Change;
    audit::StationReport Report;
};

// What the check says of the new bytes, before or after they are written.
[[nodiscard]] audit::StationReport CheckOf(const project::Project& project, const Change& change,
                                           project::TagList tags);

} // namespace gfc::plan
