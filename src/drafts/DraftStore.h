#pragma once

#include "drafts/DraftText.h"
#include "platform/Machine.h"

#include <string>

namespace gfc::drafts {

// The drafts of one project, in one file in the person's own folder. Each call reads the file anew and writes
// back what it does not know of, so that another instance's drafts stay. No call throws.
class DraftStore {
public:
    // projectFile is the full path of the project.
    DraftStore(platform::Machine& machine, const std::string& projectFile);

    // Nothing if the file is there and cannot be read (Reason); no drafts where there is no file.
    [[nodiscard]] std::optional<std::vector<KeptDraft>> All();
    // Puts the draft in the place of the one of its id, else behind the others. False if it is not safe on
    // the disk (Reason).
    [[nodiscard]] bool Keep(const Draft& draft);
    // Takes away the draft of that id, or the broken block of these bytes. True too if there is none.
    [[nodiscard]] bool Remove(const std::string& id);
    [[nodiscard]] bool Remove(const KeptDraft& kept);

    // Why the last call failed, in words with a full stop.
    [[nodiscard]] const std::string& Reason() const { return reason_; }
    // Empty where the machine has no folder for the person.
    [[nodiscard]] const std::string& File() const { return file_; }

private:
    bool Write(const std::vector<KeptDraft>& drafts);
    bool Fail(std::string reason);

    platform::Files& files_;
    std::string file_;
    std::string reason_;
};

} // namespace gfc::drafts
