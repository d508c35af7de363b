#pragma once

#include "config/Recorder.h"

#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

namespace gfc::record {

// Lets another recorder work behind the program, since three waits for the disk would double a save. What is
// handed over goes in its order; whoever reads waits until it has been worked off, and so does the end. What
// comes in quick succession goes in together, since each time of its own would hold up the disk for the next
// file.
class BackgroundRecorder : public config::Recorder {
public:
    // The other one must outlive it and be used by nobody else.
    explicit BackgroundRecorder(config::Recorder& recorder);
    ~BackgroundRecorder() override;
    BackgroundRecorder(const BackgroundRecorder&) = delete;
    BackgroundRecorder& operator=(const BackgroundRecorder&) = delete;

    void Record(std::vector<config::FileChange> changes) override;
    void Settle() override;
    bool IsBusy() override;
    // Of what has been worked off, and of what was read since; does not wait.
    std::string Trouble() override;
    std::vector<config::RecordEntry> Entries(const std::string& record, std::string_view station) override;
    std::vector<config::KeyChange> Changes(const std::string& record, std::int64_t number) override;
    config::FileState Generation(const std::string& record, std::int64_t number) override;
    std::vector<config::EntryChanges> ChangesOf(const std::string& record, std::int64_t first,
                                                std::int64_t last) override;
    std::unique_ptr<config::RecordVerification> BeginVerification(const std::string& record) override;

private:
    class Reading;
    using Handed = std::vector<config::FileChange>;

    void Work();

    config::Recorder& recorder_;
    std::mutex mutex_; // of all below
    std::condition_variable something_;
    std::condition_variable nothing_;
    std::condition_variable hurry_;
    std::vector<Handed> waiting_;
    int settling_ = 0; // who wait for the end of it
    std::string trouble_;
    bool busy_ = false;
    bool ending_ = false;
    std::thread worker_; // the last, since it uses all above
};

} // namespace gfc::record
