#include "record/BackgroundRecorder.h"

#include <utility>

namespace gfc::record {

BackgroundRecorder::BackgroundRecorder(config::Recorder& recorder)
    : recorder_(recorder), worker_([this] { Work(); }) {}

BackgroundRecorder::~BackgroundRecorder() {
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    something_.notify_one();
    worker_.join();
}

// Takes all that waits at once, and ends only when nothing does.
void BackgroundRecorder::Work() {
    std::unique_lock lock(mutex_);
    for (;;) {
        something_.wait(lock, [this] { return ending_ || !waiting_.empty(); });
        if (waiting_.empty())
            return;
        auto handed = std::exchange(waiting_, {});
        busy_ = true;
        lock.unlock();
        std::string trouble;
        for (auto& changes : handed) {
            recorder_.Record(std::move(changes));
            if (trouble.empty())
                trouble = recorder_.Trouble();
        }
        lock.lock();
        trouble_ = std::move(trouble);
        busy_ = false;
        nothing_.notify_all();
    }
}

void BackgroundRecorder::Record(std::vector<config::FileChange> changes) {
    if (changes.empty())
        return;
    {
        const std::lock_guard lock(mutex_);
        waiting_.push_back(std::move(changes));
    }
    something_.notify_one();
}

void BackgroundRecorder::Settle() {
    std::unique_lock lock(mutex_);
    nothing_.wait(lock, [this] { return waiting_.empty() && !busy_; });
}

bool BackgroundRecorder::IsBusy() {
    const std::lock_guard lock(mutex_);
    return busy_ || !waiting_.empty();
}

std::string BackgroundRecorder::Trouble() {
    const std::lock_guard lock(mutex_);
    return trouble_;
}

std::vector<config::RecordEntry> BackgroundRecorder::Entries(const std::string& record,
                                                             std::string_view station) {
    Settle();
    return recorder_.Entries(record, station);
}

std::vector<config::KeyChange> BackgroundRecorder::Changes(const std::string& record, std::int64_t number) {
    Settle();
    return recorder_.Changes(record, number);
}

config::FileState BackgroundRecorder::Generation(const std::string& record, std::int64_t number) {
    Settle();
    return recorder_.Generation(record, number);
}

config::RecordCheck BackgroundRecorder::Verify(const std::string& record) {
    Settle();
    return recorder_.Verify(record);
}

} // namespace gfc::record
