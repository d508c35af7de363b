#include "forms/station/ModuleLists.h"

#include "services/Text.h"

namespace gfc::forms {

void FillModuleNames(ui::DropDownList& list, const std::vector<project::Candidate>& candidates) {
    list.Clear();
    for (const auto& candidate : candidates)
        if (!candidate.ModuleName.empty())
            list.AddEntry(candidate.ModuleName);
}

void ShowModule(ui::DropDownList& list, const std::string& name) {
    const auto& entries = list.Entries();
    for (std::size_t i = 0; i < entries.size(); ++i)
        if (services::EqualNoCase(entries[i], name))
            return list.SetListIndex(static_cast<int>(i));
}

} // namespace gfc::forms
