#pragma once

#include "config/VarINIFile.h"
#include "ui/ListView.h"

#include <array>
#include <string>
#include <vector>

namespace gfc::forms {

// What a showing of TagRuns has done, so that it can be undone and done again.
class BindingHistory {
public:
    static constexpr std::size_t Lists = 3;
    static constexpr std::size_t Fields = 7;

    // All that an act may change. The rows are without their numbers, which follow from their order.
    struct Picture {
        struct List {
            std::vector<ui::ListView::Row> Rows;
            bool HasBareNumbers = false; // as after any renumbering
            int ClickedRow = 1;

            bool operator==(const List&) const = default;
        };

        std::vector<config::TagBinding> Shown; // by position; as the tree writes them
        std::array<List, Lists> ListOf;
        std::array<std::string, Fields> FieldTexts;

        bool operator==(const Picture&) const = default;
    };

    // An act is done; nothing is noted if it changed nothing. What could be done again is forgotten.
    void Note(std::string what, const Picture& before, const Picture& after);
    void Clear();

    // What would be undone or done again, as it was noted; empty for nothing.
    [[nodiscard]] std::string ToUndo() const;
    [[nodiscard]] std::string ToRedo() const;
    // The picture to go back or forth to. Where a field was typed into since, it keeps what it holds. There
    // must be something to undo or to do again.
    [[nodiscard]] Picture Undo(Picture now);
    [[nodiscard]] Picture Redo(Picture now);

private:
    // The rows from First on that were others, so that a step in a list of many thousands stays small.
    struct ListChange {
        std::size_t First = 0;
        std::vector<ui::ListView::Row> Before, After;
        Picture::List StateBefore, StateAfter; // without rows
    };
    struct Step {
        std::string What;
        std::vector<config::TagBinding> Before, After;
        std::array<ListChange, Lists> Lists;
        std::array<std::string, Fields> FieldsBefore, FieldsAfter;
    };

    static ListChange ChangeOf(const Picture::List& before, const Picture::List& after);
    static void Apply(const Step& step, bool back, Picture& picture);

    std::vector<Step> steps_;
    std::size_t done_ = 0; // of the steps
};

} // namespace gfc::forms
