#pragma once

#include "config/Recorder.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace gfc::test {

// A record in memory: what a project's record promises, without a file and without proof.
class MemoryRecorder : public config::Recorder {
public:
    std::string Time = "2023-03-15T12:00:00Z"; // of the entries that come
    std::string TheTrouble;
    config::RecordCheck Check; // what a verification comes to
    int Steps = 1;             // and in how many

    void Record(std::vector<config::FileChange> changes) override {
        for (config::FileChange& change : changes)
            Enter(std::move(change));
    }
    void Settle() override {}
    bool IsBusy() override { return false; }
    std::string Trouble() override { return TheTrouble; }

    std::vector<config::RecordEntry> Entries(const std::string&, std::string_view station) override {
        std::vector<config::RecordEntry> entries;
        for (const Kept& kept : kept_)
            if (station.empty() || kept.Entry.Station == station)
                entries.push_back(kept.Entry);
        return entries;
    }
    std::vector<config::KeyChange> Changes(const std::string&, std::int64_t number) override {
        return kept_.at(static_cast<std::size_t>(number - 1)).Keys;
    }
    std::vector<config::EntryChanges> ChangesOf(const std::string&, std::int64_t first,
                                                std::int64_t last) override {
        std::vector<config::EntryChanges> changes;
        for (const Kept& kept : kept_)
            if (kept.Entry.Number >= first && kept.Entry.Number <= last)
                changes.push_back({kept.Entry.Number, kept.Keys});
        return changes;
    }
    config::FileState Generation(const std::string&, std::int64_t number) override {
        return kept_.at(static_cast<std::size_t>(number - 1)).File;
    }
    std::unique_ptr<config::RecordVerification> BeginVerification(const std::string&) override {
        return std::make_unique<Verification>(*this);
    }

private:
    struct Kept {
        config::RecordEntry Entry;
        std::vector<config::KeyChange> Keys;
        config::FileState File;
    };

    class Verification : public config::RecordVerification {
    public:
        explicit Verification(const MemoryRecorder& recorder)
            : check_(recorder.Check), left_(recorder.Steps) {}
        bool Advance() override { return --left_ > 0; }
        [[nodiscard]] const config::RecordCheck& SoFar() const override { return check_; }

    private:
        config::RecordCheck check_;
        int left_;
    };

    void Enter(config::FileChange change) {
        if (change.Before == change.After)
            return;
        const auto number = static_cast<std::int64_t>(kept_.size()) + 1;
        const std::string hash = change.After ? std::string(64, static_cast<char>('a' + number % 6)) : "";
        kept_.push_back(
            {{number, Time, change.User, "operator", change.Command, change.Station, hash, "hash"},
             config::ChangesOf(change.Before.value_or(""), change.After.value_or("")),
             change.After});
    }

    std::vector<Kept> kept_;
};

} // namespace gfc::test
