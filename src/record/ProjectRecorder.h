#pragma once

#include "config/Recorder.h"
#include "services/Clock.h"
#include "services/TimeZone.h"

#include <string>
#include <utility>

namespace gfc::record {

class History;

// Keeps the records in databases beside the configuration files, each opened for as long as one call takes,
// so that neither another program nor a share is held up.
class ProjectRecorder : public config::Recorder {
public:
    // Clock and zone must outlive it.
    ProjectRecorder(const services::Clock& clock, const services::TimeZone& zone, std::string machineUser)
        : clock_(clock), zone_(zone), machineUser_(std::move(machineUser)) {}

    void Record(std::vector<config::FileChange> changes) override;
    // All is entered when Record returns.
    void Settle() override {}
    bool IsBusy() override { return false; }
    std::string Trouble() override { return trouble_; }
    std::vector<config::RecordEntry> Entries(const std::string& record, std::string_view station) override;
    std::vector<config::KeyChange> Changes(const std::string& record, std::int64_t number) override;
    config::FileState Generation(const std::string& record, std::int64_t number) override;
    std::vector<config::EntryChanges> ChangesOf(const std::string& record, std::int64_t first,
                                                std::int64_t last) override;
    std::unique_ptr<config::RecordVerification> BeginVerification(const std::string& record) override;

private:
    // What a station's file was when it was entered last.
    struct Known;

    [[nodiscard]] static Known LastKnown(History& history, const std::string& station);
    [[nodiscard]] static bool IsNews(const std::string& record,
                                     const std::vector<config::FileChange>& changes);
    void EnterAll(const std::vector<config::FileChange>& changes);
    void Enter(History& history, const config::FileChange& change);
    void Append(History& history, const config::FileChange& change, const config::FileState& before);
    // Runs what may throw; its message becomes the trouble.
    template <class Work>
    void Trying(Work work);

    const services::Clock& clock_;
    const services::TimeZone& zone_;
    std::string machineUser_;
    std::string trouble_;
};

} // namespace gfc::record
