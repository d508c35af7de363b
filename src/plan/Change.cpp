#include "plan/Change.h"

#include "plan/FileInMemory.h"

namespace gfc::plan {

namespace {

std::string Standing(const config::FileState& now, const Change& change) {
    if (!now)
        return "There is no such file now.";
    if (now == change.Before)
        return "The file stands as it was before.";
    return now == change.After ? "The file holds the new values, but the system does not confirm that they "
                                 "are safe on the disk."
                               : "The file holds something else now.";
}

void Enter(const Writer& writer, const Change& change, const config::FileState& after) {
    writer.Recorder.Record({{.Record = config::RecordPath(writer.Project.Paths, writer.Project.ProjectName),
                             .Station = change.Station,
                             .Command = change.Command,
                             .User = writer.User,
                             .Before = change.Before,
                             .After = after}});
}

} // namespace

bool ReadState(platform::Files& files, const std::string& file, config::FileState& state) {
    state = files.Read(file);
    return state || !files.Exists(file);
}

Written Write(const Writer& writer, const Change& change) {
    config::FileState now;
    if (!ReadState(writer.Files, change.File, now))
        return {false, "The file cannot be read, and is left as it is: " + writer.Files.LastFailure()};
    if (now != change.Before && now != change.After)
        return {false,
                "Somebody has changed the file since it was looked at; it is left as it is. Look again."};
    // Also where it holds the new bytes: nobody has said yet that they are safe.
    if (!writer.Files.Replace(change.File, change.After)) {
        const std::string reason = writer.Files.LastFailure(); // before the next call
        // What cannot be read is not to be taken for a file that is not there.
        if (!ReadState(writer.Files, change.File, now))
            return {false, "The system says: " + reason + ". What stands there now cannot be read."};
        // It may stand there all the same, and then it is an entry of the record.
        if (now != change.Before)
            Enter(writer, change, now);
        return {false, "The system says: " + reason + ". " + Standing(now, change)};
    }
    Enter(writer, change, change.After);
    project::RegisterStation(writer.Library, writer.Project, change.Station);
    return {true, {}};
}

audit::StationReport CheckOf(const project::Project& project, const Change& change, project::TagList tags) {
    FileInMemory file(change.File, change.After);
    return audit::CheckFile(file, {change.File, project.ProjectFile, project.ProjectName, change.Station},
                            std::move(tags));
}

} // namespace gfc::plan
