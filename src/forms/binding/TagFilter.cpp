#include "forms/binding/TagFilter.h"

#include "naming/TagName.h"

#include <algorithm>

namespace gfc::forms {

void TagFilter::SetWords(std::string_view typed) {
    words_.clear();
    const std::string folded = naming::Fold(typed);
    for (std::size_t at = 0; at < folded.size();) {
        const std::size_t begin = folded.find_first_not_of(" \t", at);
        if (begin == std::string::npos)
            return;
        at = std::min(folded.find_first_of(" \t", begin), folded.size());
        words_.push_back(folded.substr(begin, at - begin));
    }
}

std::vector<int> TagFilter::RowsOf(const ui::ListView& list, const MoreOf& more) {
    const auto& texts = TextsOf(list, more);
    std::vector<int> rows;
    for (std::size_t row = 0; row < texts.size(); ++row)
        if (Holds(texts[row]))
            rows.push_back(static_cast<int>(row) + 1);
    return rows;
}

// The number of the row is left out: whoever types "12" means a tag or a register.
const std::vector<std::string>& TagFilter::TextsOf(const ui::ListView& list, const MoreOf& more) {
    auto known = std::ranges::find(texts_, &list, &Texts::List);
    if (known == texts_.end())
        known = texts_.insert(texts_.end(), {&list, {}});
    if (known->Rows.size() == static_cast<std::size_t>(list.Count()))
        return known->Rows;
    known->Rows.clear();
    known->Rows.reserve(static_cast<std::size_t>(list.Count()));
    for (int row = 1; row <= list.Count(); ++row) {
        std::string text;
        for (int column = 1; column < 4; ++column)
            text.append(list.Cell(row, column)).append(" ");
        known->Rows.push_back(naming::Fold(text.append(more(row))));
    }
    return known->Rows;
}

bool TagFilter::Holds(const std::string& text) const {
    return std::ranges::all_of(words_,
                               [&](const std::string& word) { return text.find(word) != std::string::npos; });
}

} // namespace gfc::forms
