#pragma once

#include "config/Recorder.h"
#include "services/Clock.h"
#include "services/TimeZone.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

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
    std::string Trouble() override;
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
    void Note(const std::vector<config::FileChange>& changes, const std::string& trouble);
    // A reading; its failure is the trouble until the next one.
    template <class Work>
    void Reading(Work work);

    const services::Clock& clock_;
    const services::TimeZone& zone_;
    std::string machineUser_;
    std::string unread_; // why the last reading failed
    // Why a station lacks an entry, by record and station. One that could be entered does not make up for
    // another one that could not.
    std::map<std::pair<std::string, std::string>, std::string> missing_;
};

} // namespace gfc::record
