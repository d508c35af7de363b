#pragma once

#include "config/Recorder.h"
#include "record/History.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace gfc::record {

// Reads all of a record, some entries with each step: that each entry has the next number, its own hash and
// that of the entry before, that its file and its changes can be had from what is kept and the file has its
// hash, that it is found by its station, that none is missing at the end, and that tables, rules and the
// database itself are as they were made. What no reading ever comes to, such as the rest of a page behind its
// last row, is not looked at. A record that is not there has no entries and no damage. Does not throw.
class Verification : public config::RecordVerification {
public:
    explicit Verification(std::string file) : file_(std::move(file)) {}

    bool Advance() override;
    [[nodiscard]] const config::RecordCheck& SoFar() const override { return check_; }

private:
    // The file that the last entry of a station left.
    struct Left {
        std::int64_t Entry = 0;
        std::string File;
    };

    bool CheckSome();
    void CheckEntry(const StoredEntry& entry, Statement& byStation);
    [[nodiscard]] const char* DoubtOn(const StoredEntry& entry, Statement& byStation);
    [[nodiscard]] bool HasItsFile(const StoredEntry& entry);
    void CheckTheFile();

    std::string file_;
    std::optional<History> history_;
    std::map<std::string, Left> left_; // by station
    config::RecordCheck check_;
    bool through_ = false;
};

[[nodiscard]] config::RecordCheck VerifyRecord(const std::string& file);

} // namespace gfc::record
