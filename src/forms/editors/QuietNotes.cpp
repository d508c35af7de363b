#include "forms/editors/QuietNotes.h"

namespace gfc::forms {

namespace {

// The worst one in full, since a line has room for one.
std::string LineOf(const audit::Findings& findings) {
    if (findings.empty())
        return {};
    const std::size_t more = findings.size() - 1;
    return findings.front().Text + (more == 0 ? "" : " (And " + std::to_string(more) + " more.)");
}

} // namespace

QuietNotes::QuietNotes(ui::Label& line, std::function<void(audit::Sink& sink)> judge)
    : line_(line), judge_(std::move(judge)) {
    line_.HintOf = [this] { return Hint(); };
}

std::string QuietNotes::Hint() const {
    std::string text;
    for (const audit::Finding& finding : findings_)
        text.append(text.empty() ? "" : "\r\n").append(finding.Text).append(" ").append(finding.Row().Advice);
    return text;
}

void QuietNotes::Follow(std::initializer_list<ui::TextBox*> fields) {
    for (ui::TextBox* field : fields)
        field->OnEdited = [this] { Refresh(); };
}

void QuietNotes::FollowChoices(std::initializer_list<std::function<void()>*> clicks) {
    for (std::function<void()>* click : clicks)
        *click = [this, before = std::move(*click)] {
            if (before)
                before();
            Refresh();
        };
}

void QuietNotes::Refresh() {
    findings_.clear();
    audit::Sink sink(findings_);
    judge_(sink);
    // The nearest published gas is worth knowing, but nothing is wrong with it.
    std::erase_if(findings_,
                  [](const audit::Finding& finding) { return finding.Rule == audit::RuleId::GasNearest; });
    audit::SortBySeverity(findings_);
    line_.SetCaption(LineOf(findings_));
}

} // namespace gfc::forms
