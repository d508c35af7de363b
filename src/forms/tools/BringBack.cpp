#include "forms/tools/BringBack.h"

#include "forms/main_window/GFCPrincipal.h"
#include "forms/program/Agreement.h"
#include "forms/program/CommandRecord.h"
#include "forms/tools/EntryText.h"
#include "platform/Machine.h"

namespace gfc::forms {

namespace {

void Tell(Program& program, const std::string& title, const std::string& text, ui::Icon icon) {
    program.Screen.Ask({.Title = title, .Text = text, .TheIcon = icon});
}

std::string QuestionOf(const config::RecordEntry& entry, bool replaces) {
    return "Bring back the configuration that this entry left?\r\n" + TextOf(entry) + "\r\n\r\n" +
           (replaces ? "It takes the place of the present configuration, which stays in the history."
                     : "The station has no configuration now.");
}

// What a person does next works on the file that stands now.
void Follow(Program& program, const std::string& station, bool isNew) {
    if (isNew)
        project::RegisterStation(program.Library, program.Session.Project, station);
    program.Forms.Get<GFCPrincipal>().RebuildAfterCommand();
}

} // namespace

config::FileState GenerationOf(Program& program, const std::string& record, const config::RecordEntry& entry,
                               const std::string& title) {
    auto bytes = program.Recorder.Generation(record, entry.Number);
    if (!bytes)
        Tell(program, title,
             "The configuration of this entry cannot be had from the history.\r\n" + TextOf(entry) +
                 "\r\n\r\n" + program.Recorder.Trouble(),
             ui::Icon::Exclamation);
    return bytes;
}

bool BringBack(Program& program, const std::string& record, const config::RecordEntry& entry,
               const std::string& title) {
    const auto bytes = GenerationOf(program, record, entry, title);
    if (!bytes)
        return false;
    const std::string file = program.Session.Project.ConfigFileOf(entry.Station);
    const auto now = program.Machine.Files.Read(file);
    const std::string reason = program.Machine.Files.LastFailure(); // before the next call
    if (!now && program.Machine.Files.Exists(file)) {
        Tell(program, title,
             "The present configuration cannot be read, and is left as it is.\r\n" + file +
                 "\r\n\r\nThe system says: " + reason,
             ui::Icon::Exclamation);
        return false;
    }
    if (now == bytes) {
        Tell(program, title, "The station's configuration already is the one that this entry left.",
             ui::Icon::Information);
        return false;
    }
    if (!IsAgreed(program, title, QuestionOf(entry, now.has_value()), entry.Station))
        return false;
    bool stored = false;
    RunRecorded(program, config::command::BringBack, [&] {
        stored = program.Storage.Put({.Lost = "The configuration was not brought back.", .Title = title},
                                     file, *bytes);
        if (stored && !program.Screen.Ended())
            Follow(program, entry.Station, !now);
    });
    return stored;
}

} // namespace gfc::forms
