// What is kept of this window while a pass goes on, and how it comes back.
#include "forms/binding/TagRuns.h"

#include <algorithm>

namespace gfc::forms {

void TagRuns::FollowPass(const drafts::OpenDialog* leftIn, std::function<void(drafts::OpenDialog)> onChange) {
    if (leftIn != nullptr)
        leftIn_ = *leftIn;
    onChange_ = std::move(onChange);
}

void TagRuns::TellWhatStands() const {
    if (!onChange_)
        return;
    drafts::OpenDialog stands;
    for (int position = 0; position < VariablesShown(); ++position)
        stands.Bound.push_back(IsBound(position) ? ShownBinding(position) : config::TagBinding());
    if (Stage() == BindingStage::RunInputs) {
        const auto fields = TakePicture().FieldTexts;
        stands.Fields.assign(fields.begin(), fields.end());
    }
    onChange_(std::move(stands));
}

// Each takes its row out of its list, as it did then.
void TagRuns::GoOn(const drafts::OpenDialog& left) {
    const int count = std::min(VariablesShown(), static_cast<int>(left.Bound.size()));
    for (int position = 0; position < count; ++position)
        if (const auto& bound = left.Bound[static_cast<std::size_t>(position)]; bound.IsMade())
            Bind(position, bound);
    if (left.Fields.size() != BindingHistory::Fields)
        return;
    BindingHistory::Picture picture;
    std::ranges::copy(left.Fields, picture.FieldTexts.begin());
    ShowFields(picture);
}

} // namespace gfc::forms
