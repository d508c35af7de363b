#include "drafts/DraftStore.h"

#include "project/Project.h"

#include <algorithm>
#include <utility>

namespace gfc::drafts {

namespace {

// Two projects of one name, in two folders, have a file each.
std::string FileOf(platform::Paths& paths, const std::string& projectFile) {
    const std::string folder = paths.OwnFolder();
    return folder.empty() ? folder : folder + platform::Separator + MarkOf(projectFile) + ".drafts";
}

bool IsOf(const KeptDraft& kept, const std::string& id) {
    return kept.TheDraft && kept.TheDraft->Id == id;
}

// Another instance may have put a draft behind one that was cut off, and a line end between them.
bool IsSame(const KeptDraft& kept, const std::string& bytes) {
    return kept.Bytes == bytes || kept.Bytes == bytes + '\n';
}

} // namespace

DraftStore::DraftStore(platform::Machine& machine, const std::string& projectFile)
    : files_(machine.Files), file_(FileOf(machine.Paths, projectFile)) {}

std::optional<std::vector<KeptDraft>> DraftStore::All() {
    if (file_.empty() || !files_.Exists(file_))
        return std::vector<KeptDraft>();
    const auto bytes = files_.Read(file_);
    if (!bytes) {
        Fail(files_.LastFailure() + ".");
        return std::nullopt;
    }
    return DraftsIn(*bytes);
}

bool DraftStore::Keep(const Draft& draft) {
    if (file_.empty())
        return Fail("The machine tells no folder for it.");
    auto drafts = All();
    if (!drafts)
        return false;
    KeptDraft kept{BytesOf(draft), draft, draft.Station.CurrentStation};
    const auto old =
        std::ranges::find_if(*drafts, [&](const KeptDraft& each) { return IsOf(each, draft.Id); });
    if (old == drafts->end())
        drafts->push_back(std::move(kept));
    else
        *old = std::move(kept);
    return Write(*drafts);
}

bool DraftStore::Remove(const std::string& id) {
    auto drafts = All();
    if (!drafts)
        return false;
    const auto gone = std::erase_if(*drafts, [&](const KeptDraft& each) { return IsOf(each, id); });
    return gone == 0 || Write(*drafts);
}

bool DraftStore::Remove(const KeptDraft& kept) {
    if (kept.TheDraft)
        return Remove(kept.TheDraft->Id);
    auto drafts = All();
    if (!drafts)
        return false;
    const auto gone = std::erase_if(*drafts, [&](const KeptDraft& each) { return IsSame(each, kept.Bytes); });
    return gone == 0 || Write(*drafts);
}

bool DraftStore::Write(const std::vector<KeptDraft>& drafts) {
    if (drafts.empty() && files_.Delete(file_))
        return true;
    std::string bytes;
    for (const KeptDraft& kept : drafts) {
        // One that was cut off within a line must not take the next one with it.
        if (!bytes.empty() && !bytes.ends_with('\n'))
            bytes += '\n';
        bytes += kept.Bytes;
    }
    return files_.Replace(file_, bytes) || Fail(files_.LastFailure() + ".");
}

bool DraftStore::Fail(std::string reason) {
    reason_ = std::move(reason);
    return false;
}

} // namespace gfc::drafts
