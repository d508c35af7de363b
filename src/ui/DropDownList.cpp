#include "ui/DropDownList.h"

#include <algorithm>

namespace gfc::ui {

void DropDownList::AddEntry(std::string text) {
    entries_.push_back(std::move(text));
    Changed();
}

void DropDownList::Clear() {
    entries_.clear();
    text_.clear();
    listIndex_ = None;
    Changed();
}

const std::string& DropDownList::Text() const {
    return listIndex_ == None ? text_ : entries_[static_cast<std::size_t>(listIndex_)];
}

void DropDownList::SetListIndex(int index) {
    if (index < 0 || index >= static_cast<int>(entries_.size()))
        index = None;
    if (index == listIndex_)
        return;
    listIndex_ = index;
    text_.clear();
    Changed();
    Fire(OnClick);
}

void DropDownList::SetText(const std::string& text) {
    const auto found = std::find(entries_.begin(), entries_.end(), text);
    if (found != entries_.end())
        return SetListIndex(static_cast<int>(found - entries_.begin()));
    if (listIndex_ == None && text_ == text)
        return;
    listIndex_ = None;
    text_ = text;
    Changed();
    Fire(OnClick);
}

bool DropDownList::PersonSelects(int index) {
    if (index < 0 || index >= static_cast<int>(entries_.size()) || !PersonActs())
        return false;
    if (index != listIndex_) {
        SetListIndex(index);
        return true;
    }
    Fire(OnClick);
    return true;
}

} // namespace gfc::ui
