#pragma once

#include "ui/Control.h"

#include <vector>

namespace gfc::ui {

// A closed list of texts with at most one selected. Entries are counted from 0.
class DropDownList : public Control {
public:
    static constexpr int None = -1;

    DropDownList(Place place, std::string name) : Control(place, Kind::DropDownList, std::move(name)) {}

    [[nodiscard]] const std::vector<std::string>& Entries() const { return entries_; }
    void AddEntry(std::string text);
    // Takes the entries and the selection away, without running OnClick.
    void Clear();

    [[nodiscard]] int ListIndex() const { return listIndex_; }
    // The selected entry's text; empty if none is selected, unless SetText gave one.
    [[nodiscard]] const std::string& Text() const;
    // Selects and runs OnClick, exactly as a person's choice does. The selection it has already runs nothing.
    // An index outside the list selects nothing.
    void SetListIndex(int index);
    // Selects the entry of this text; a text that is no entry is shown with nothing selected, and OnClick
    // runs.
    void SetText(const std::string& text);

    std::function<void()> OnClick;
    // A person chose an entry; the same one again runs OnClick too.
    bool PersonSelects(int index);

private:
    std::vector<std::string> entries_;
    std::string text_;
    int listIndex_ = None;
};

} // namespace gfc::ui
