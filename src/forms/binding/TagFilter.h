#pragma once

#include "ui/ListView.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace gfc::forms {

// Which rows of lists of tags hold the words that a person types: in any order, case and accents aside.
class TagFilter {
public:
    // The name of the module of a tag, which is looked through besides the cells.
    using ModuleOf = std::function<std::string_view(std::string_view type, std::string_view address)>;

    explicit TagFilter(ModuleOf moduleOf) : moduleOf_(std::move(moduleOf)) {}

    // The words, as they are typed; without any, every row holds them.
    void SetWords(std::string_view typed);
    [[nodiscard]] bool HasWords() const { return !words_.empty(); }
    // The rows with all words, ascending. What is looked through is kept for each list: whoever changes its
    // rows tells of it.
    [[nodiscard]] std::vector<int> RowsOf(const ui::ListView& list);
    // From row first on so many rows have gone, and these have come. They are without their numbers.
    void RowsChanged(const ui::ListView& list, int first, std::size_t gone,
                     const std::vector<ui::ListView::Row>& come);
    // Of all lists the rows are others.
    void Forget() { texts_.clear(); }

private:
    struct Texts {
        const ui::ListView* List;
        std::vector<std::string> Rows; // folded
    };

    [[nodiscard]] Texts* Known(const ui::ListView& list);
    [[nodiscard]] const std::vector<std::string>& TextsOf(const ui::ListView& list);
    [[nodiscard]] std::string TextOf(std::string_view name, std::string_view type, std::string_view address);
    [[nodiscard]] bool Holds(const std::string& text) const;

    ModuleOf moduleOf_;
    std::vector<std::string> words_;
    std::vector<Texts> texts_;
    std::string line_; // of one row, with room from the rows before
};

} // namespace gfc::forms
