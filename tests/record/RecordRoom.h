#pragma once

#include "record/ProjectRecorder.h"
#include "support/FakeTime.h"
#include "support/TempFolder.h"

#include <sqlite3.h>

#include <fstream>
#include <sstream>
#include <string>

namespace gfc::test {

inline std::string BytesAt(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}

inline void PutBytes(const std::string& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
}

// A folder with a record in it, and a recorder whose clock the test moves.
struct RecordRoom {
    TempFolder Folder;
    FixedZone Zone{0};
    FixedClock Clock{2023, 3, 15, 12, 0};
    std::string Record = Folder.Path("KDOrmAGA_plant_History.sqlite");
    record::ProjectRecorder Recorder{Clock, Zone, "operator"};

    [[nodiscard]] config::FileChange Change(const std::string& station, std::string_view command,
                                            config::FileState before, config::FileState after,
                                            const std::string& user = "ana") const {
        return {Record, station, std::string(command), user, std::move(before), std::move(after)};
    }

    void Enter(const std::string& station, std::string_view command, config::FileState before,
               config::FileState after, const std::string& user = "ana") {
        Recorder.Record({Change(station, command, std::move(before), std::move(after), user)});
    }

    // The statements of somebody who has taken the rules away first. True if they could be run.
    bool Tamper(const std::string& statements, bool withoutRules = true) {
        sqlite3* handle = nullptr;
        sqlite3_open(Record.c_str(), &handle);
        const std::string drop = withoutRules ? "DROP TRIGGER entry_stays; DROP TRIGGER entry_is_kept;"
                                                "DROP TRIGGER entry_follows;"
                                              : "";
        const int result = sqlite3_exec(handle, (drop + statements).c_str(), nullptr, nullptr, nullptr);
        sqlite3_close(handle);
        return result == SQLITE_OK;
    }
};

} // namespace gfc::test
