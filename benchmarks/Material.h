#pragma once

#include "config/FileIni.h"
#include "config/VarINIFile.h"
#include "project/TagInventory.h"
#include "project/WireRecords.h"

#include <filesystem>
#include <string>
#include <vector>

// What the contests work on: made anew for each run, of no machine's own.
namespace gfc::bench {

// An empty folder that goes with its content.
class Folder {
public:
    Folder();
    ~Folder();
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    [[nodiscard]] std::string File(const std::string& name) const { return (path_ / name).string(); }
    [[nodiscard]] std::string Path() const { return path_.string(); }

private:
    std::filesystem::path path_;
};

void Put(const std::string& path, const std::string& bytes);

// AGA-3 over AGA-8 with a chromatograph, all runs configured and bound.
[[nodiscard]] config::StationConfig FullStation(int runs = config::MaxRuns);
// What the program writes for it: some 5 KB for one run and 22 KB for five.
[[nodiscard]] std::string StationFile(int runs = config::MaxRuns);
// The same for five runs, and then with more than a station may have until it is that long.
[[nodiscard]] std::string LongStationFile(std::size_t size);

// A station of that many tags: every class, working modules large enough, and those that FullStation is bound
// to.
[[nodiscard]] std::vector<project::TagRecord> StationRecords(std::size_t count);
[[nodiscard]] project::TagInventory StationInventory(std::size_t count);
// Floats of one virtual module.
[[nodiscard]] project::TagList FloatTags(std::size_t count);

} // namespace gfc::bench
