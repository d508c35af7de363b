#pragma once

#include "config/Recorder.h"

#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace gfc::project {
struct Project;
}

// What the record is told of the program's commands, in this one place: the gates to the files say which
// files a command touches, whichever form does it.
namespace gfc::forms {

struct Program;

// Notes each configuration file that is touched while it lives, with its bytes from before.
class TouchedFiles {
public:
    explicit TouchedFiles(Program& program);
    ~TouchedFiles();
    TouchedFiles(const TouchedFiles&) = delete;
    TouchedFiles& operator=(const TouchedFiles&) = delete;

    // What has become of them. One that could not be read before is only looked at, and found changed. One
    // that cannot be read now is left out and named in unread: the next command finds it changed.
    [[nodiscard]] std::vector<config::FileChange> Changes(std::string_view command,
                                                          std::vector<std::string>& unread) const;

private:
    void Note(const std::string& file);

    Program& program_;
    std::map<std::string, config::FileState> before_; // by path
    std::set<std::string> unknown_;                   // those whose bytes from before could not be had
};

// Runs a command and has the record enter what came of it. The entries of the command before are waited for,
// so that never more than those of one command can get lost.
void RunRecorded(Program& program, std::string_view name, const std::function<void()>& command);

// What "Configure" is about to do at the selected node: the commands of the record are those of a person.
[[nodiscard]] std::string_view NameOfConfigure(Program& program);

// Has the record look at the file of every station of the project, and enter what it does not know.
void LookAtAllStations(Program& program);

} // namespace gfc::forms
