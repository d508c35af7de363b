#include "record/BackgroundRecorder.h"

#include <algorithm>
#include <chrono>
#include <iterator>
#include <utility>

namespace gfc::record {

namespace {

// Far below what anybody notices, and some files' time where one is written after the other.
constexpr std::chrono::milliseconds Succession(10);

// What has piled up for a record goes in at once: each list by itself would wait for the disk some times.
// None is empty.
std::vector<std::vector<config::FileChange>> Together(std::vector<std::vector<config::FileChange>> handed) {
    std::vector<std::vector<config::FileChange>> lists;
    for (auto& changes : handed)
        if (!lists.empty() && lists.back().back().Record == changes.front().Record)
            std::ranges::move(changes, std::back_inserter(lists.back()));
        else
            lists.push_back(std::move(changes));
    return lists;
}

} // namespace

BackgroundRecorder::BackgroundRecorder(config::Recorder& recorder)
    : recorder_(recorder), worker_([this] { Work(); }) {}

BackgroundRecorder::~BackgroundRecorder() {
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    something_.notify_one();
    hurry_.notify_one();
    worker_.join();
}

// Takes all that waits at once, and ends only when nothing does.
void BackgroundRecorder::Work() {
    std::unique_lock lock(mutex_);
    for (;;) {
        something_.wait(lock, [this] { return ending_ || !waiting_.empty(); });
        if (waiting_.empty())
            return;
        hurry_.wait_for(lock, Succession, [this] { return ending_ || settling_ > 0; });
        auto handed = std::exchange(waiting_, {});
        busy_ = true;
        lock.unlock();
        for (auto& changes : Together(std::move(handed)))
            recorder_.Record(std::move(changes));
        std::string trouble = recorder_.Trouble();
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
    ++settling_;
    hurry_.notify_one();
    nothing_.wait(lock, [this] { return waiting_.empty() && !busy_; });
    --settling_;
}

bool BackgroundRecorder::IsBusy() {
    const std::lock_guard lock(mutex_);
    return busy_ || !waiting_.empty();
}

std::string BackgroundRecorder::Trouble() {
    const std::lock_guard lock(mutex_);
    return trouble_;
}

// A reading waits, and what keeps it from its end is the trouble that is told.
class BackgroundRecorder::Reading {
public:
    explicit Reading(BackgroundRecorder& owner) : owner_(owner) { owner.Settle(); }
    ~Reading() {
        const std::lock_guard lock(owner_.mutex_);
        if (auto trouble = owner_.recorder_.Trouble(); !trouble.empty())
            owner_.trouble_ = std::move(trouble);
    }
    Reading(const Reading&) = delete;
    Reading& operator=(const Reading&) = delete;

private:
    BackgroundRecorder& owner_;
};

std::vector<config::RecordEntry> BackgroundRecorder::Entries(const std::string& record,
                                                             std::string_view station) {
    const Reading reading(*this);
    return recorder_.Entries(record, station);
}

std::vector<config::KeyChange> BackgroundRecorder::Changes(const std::string& record, std::int64_t number) {
    const Reading reading(*this);
    return recorder_.Changes(record, number);
}

config::FileState BackgroundRecorder::Generation(const std::string& record, std::int64_t number) {
    const Reading reading(*this);
    return recorder_.Generation(record, number);
}

std::vector<config::EntryChanges> BackgroundRecorder::ChangesOf(const std::string& record, std::int64_t first,
                                                                std::int64_t last) {
    const Reading reading(*this);
    return recorder_.ChangesOf(record, first, last);
}

std::unique_ptr<config::RecordVerification> BackgroundRecorder::BeginVerification(const std::string& record) {
    Settle();
    return recorder_.BeginVerification(record);
}

} // namespace gfc::record
