#include "workshop/store/Project.h"

#include "workshop/store/Beside.h"
#include "workshop/store/Failure.h"
#include "workshop/text/CodePage.h"
#include "workshop/text/Paths.h"

#include <algorithm>

namespace gfc::workshop {

namespace {

constexpr std::int64_t ApplicationId = 0x4B504A57; // "KPJW"
constexpr std::int64_t SchemaVersion = 1;

// `place` is the order of delivery within a station; gaps in it mean nothing.
constexpr const char* Schema = R"(
BEGIN;
PRAGMA application_id = 1263553111;
PRAGMA user_version = 1;
CREATE TABLE properties (
    name   TEXT PRIMARY KEY,
    value  TEXT NOT NULL
) WITHOUT ROWID;
CREATE TABLE stations (
    id       INTEGER PRIMARY KEY,
    name     TEXT NOT NULL UNIQUE COLLATE NOCASE,
    type     TEXT NOT NULL DEFAULT '',
    address  TEXT NOT NULL DEFAULT '',
    serial   INTEGER NOT NULL DEFAULT 0
);
CREATE TABLE modules (
    id       INTEGER PRIMARY KEY,
    station  INTEGER NOT NULL REFERENCES stations(id) ON DELETE CASCADE,
    name     TEXT NOT NULL COLLATE NOCASE,
    type     TEXT NOT NULL DEFAULT '',
    UNIQUE (station, name)
);
CREATE TABLE tags (
    id           INTEGER PRIMARY KEY,
    station      INTEGER NOT NULL REFERENCES stations(id) ON DELETE CASCADE,
    place        INTEGER NOT NULL,
    module       INTEGER NOT NULL REFERENCES modules(id),
    name         TEXT NOT NULL COLLATE NOCASE,
    class        TEXT NOT NULL,
    register     INTEGER NOT NULL,
    description  TEXT NOT NULL DEFAULT '',
    UNIQUE (station, place),
    UNIQUE (station, name),
    UNIQUE (station, class, register)
);
CREATE INDEX tags_by_module ON tags (module);
CREATE TABLE files_to_load (
    station  INTEGER NOT NULL REFERENCES stations(id) ON DELETE CASCADE,
    target   TEXT NOT NULL,
    local    TEXT NOT NULL,
    flag     INTEGER NOT NULL,
    PRIMARY KEY (station, target)
) WITHOUT ROWID;
COMMIT;
)";
static_assert(ApplicationId == 1263553111 && SchemaVersion == 1, "the texts above say the same");

bool HoldsControl(std::string_view text) {
    return std::any_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; });
}

} // namespace

Project::Project(const std::filesystem::path& file, Access access) : file_(file), database_(file, access) {
    database_.Run("PRAGMA foreign_keys = ON");
}

Project Project::Create(const std::filesystem::path& file) {
    if (std::filesystem::exists(file)) {
        throw Failure(PathText(file) + ": there is a file of this name already; choose another name.");
    }
    // A project half made must never bear the name.
    Beside beside(file);
    Project(beside.Path(), Access::Create).MakeTables();
    beside.MoveIntoPlace();
    return Open(file, Access::Write);
}

Project Project::Open(const std::filesystem::path& file, Access access) {
    if (!std::filesystem::is_regular_file(file)) {
        throw Failure(PathText(file) + ": there is no such project; make one with \"io-workshop new\".");
    }
    Project project(file, access);
    project.CheckIdentity();
    return project;
}

void Project::MakeTables() {
    database_.Run(Schema);
}

void Project::CheckIdentity() {
    const std::int64_t version = Pragma("user_version");
    if (Pragma("application_id") != ApplicationId || version < 1) {
        throw Failure(PathText(file_) + ": it is not a project of this workshop.");
    }
    if (version > SchemaVersion) {
        throw Failure(PathText(file_) + ": the project is of version " + std::to_string(version) +
                      ", this workshop reads up to " + std::to_string(SchemaVersion) +
                      "; use the newer workshop.");
    }
}

std::int64_t Project::Pragma(std::string_view name) {
    Statement query(database_, "PRAGMA " + std::string(name));
    return query.Step() ? query.Integer(0) : 0;
}

void Project::MarkAsSample() {
    database_.Run("INSERT OR REPLACE INTO properties VALUES ('sample', 'yes')");
}

bool Project::IsSample() {
    return Statement(database_, "SELECT 1 FROM properties WHERE name = 'sample' AND value = 'yes'").Step();
}

void CheckProjectPath(const std::filesystem::path& file) {
    const std::string text = PathText(file);
    // Only these two forms are recognised where the project's name is cut from the path.
    if (file.extension() != ".KPJ" && file.extension() != ".kpj") {
        throw Failure(text + ": a project's name ends in \".KPJ\".");
    }
    if (!FitsCodePage(text) || HoldsControl(text)) {
        throw Failure(text + ": the path holds characters outside Windows-1252; move the project elsewhere.");
    }
    if (CharacterCount(text) > LongestProjectPath) {
        throw Failure(text + ": the path is longer than " + std::to_string(LongestProjectPath) +
                      " characters; move the project elsewhere.");
    }
}

} // namespace gfc::workshop
