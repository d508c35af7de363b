#include "forms/binding/TagFilter.h"

#include "forms/binding/TagLists.h"
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

std::vector<int> TagFilter::RowsOf(const ui::ListView& list) {
    const auto& texts = TextsOf(list);
    std::vector<int> rows;
    for (std::size_t row = 0; row < texts.size(); ++row)
        if (Holds(texts[row]))
            rows.push_back(static_cast<int>(row) + 1);
    return rows;
}

void TagFilter::RowsChanged(const ui::ListView& list, int first, std::size_t gone,
                            const std::vector<ui::ListView::Row>& come) {
    Texts* known = Known(list);
    if (known == nullptr)
        return;
    auto& rows = known->Rows;
    const auto begin = rows.begin() + (first - 1);
    auto at = rows.erase(begin, begin + static_cast<std::ptrdiff_t>(gone));
    // A tag of no register class has a row with a number only.
    for (const auto& cells : come)
        at = rows.insert(at, cells.size() < 3 ? std::string() : TextOf(cells[0], cells[1], cells[2])) + 1;
}

TagFilter::Texts* TagFilter::Known(const ui::ListView& list) {
    const auto known = std::ranges::find(texts_, &list, &Texts::List);
    return known == texts_.end() ? nullptr : &*known;
}

const std::vector<std::string>& TagFilter::TextsOf(const ui::ListView& list) {
    if (const Texts* known = Known(list))
        return known->Rows;
    texts_.push_back({&list, {}});
    auto& rows = texts_.back().Rows;
    rows.reserve(static_cast<std::size_t>(list.Count()));
    for (int row = 1; row <= list.Count(); ++row)
        rows.push_back(TextOf(list.Cell(row, tag_column::Name), list.Cell(row, tag_column::Type),
                              list.Cell(row, tag_column::Register)));
    return rows;
}

// The number of the row is left out: whoever types "12" means a tag or a register.
std::string TagFilter::TextOf(std::string_view name, std::string_view type, std::string_view address) {
    line_.assign(name).append(" ").append(type).append(" ").append(address).append(" ");
    return naming::Fold(line_.append(moduleOf_(type, address)));
}

bool TagFilter::Holds(const std::string& text) const {
    return std::ranges::all_of(words_,
                               [&](const std::string& word) { return text.find(word) != std::string::npos; });
}

} // namespace gfc::forms
