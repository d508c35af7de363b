#pragma once

#include "ui/ListView.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace gfc::forms {

// Which rows of lists hold the words that a person types: in any order, case and accents aside.
class TagFilter {
public:
    // What is looked through of a row, besides its cells.
    using MoreOf = std::function<std::string(int row)>;

    // The words, as they are typed; without any, every row holds them.
    void SetWords(std::string_view typed);
    [[nodiscard]] bool HasWords() const { return !words_.empty(); }
    // The rows with all words, ascending. What is looked through is kept for each list until its number of
    // rows is another or Forget is called.
    [[nodiscard]] std::vector<int> RowsOf(const ui::ListView& list, const MoreOf& more);
    void Forget() { texts_.clear(); }

private:
    struct Texts {
        const ui::ListView* List;
        std::vector<std::string> Rows; // folded
    };

    [[nodiscard]] const std::vector<std::string>& TextsOf(const ui::ListView& list, const MoreOf& more);
    [[nodiscard]] bool Holds(const std::string& text) const;

    std::vector<std::string> words_;
    std::vector<Texts> texts_;
};

} // namespace gfc::forms
