#pragma once

#include "config/VarINIFile.h"
#include "ui/ListView.h"

#include <array>
#include <string>
#include <vector>

namespace gfc::forms {

// What a showing of TagRuns has done, so that it can be undone and done again. The lists may hold many
// thousands of rows, so of these each act tells which it has changed.
class BindingHistory {
public:
    static constexpr std::size_t Lists = 3;
    static constexpr std::size_t Fields = 7;

    // All that an act may change, but for the rows.
    struct Picture {
        struct List {
            bool HasBareNumbers = false; // as after any renumbering
            int ClickedRow = 1;

            bool operator==(const List&) const = default;
        };

        std::vector<config::TagBinding> Shown; // by position; as the tree writes them
        std::vector<std::string> Images;       // by position
        std::array<List, Lists> ListOf;
        std::array<std::string, Fields> FieldTexts;
    };

    // From row First on, counted from 1, a list has other rows than before. They are without their numbers,
    // which follow from their order.
    struct RowChange {
        std::size_t List = 0;
        int First = 1;
        std::vector<ui::ListView::Row> Before, After;
    };

    // What there is to be done to go one step back or forth: the rows first, in this order.
    struct Move {
        Picture To;
        std::vector<RowChange> Rows;
    };

    // An act is done; nothing is noted if it changed nothing. What could be done again is forgotten.
    void Note(std::string what, Picture before, Picture after, std::vector<RowChange> rows);
    void Clear();

    // What would be undone or done again, as it was noted; empty for nothing.
    [[nodiscard]] std::string ToUndo() const;
    [[nodiscard]] std::string ToRedo() const;
    // Where a field was typed into since, it keeps what it holds. There must be something to undo or to do
    // again.
    [[nodiscard]] Move Undo(const Picture& now);
    [[nodiscard]] Move Redo(const Picture& now);

    // The change from some rows to others, without those at both ends that stay; nothing in it if all do.
    [[nodiscard]] static RowChange ChangeOf(std::size_t list, const std::vector<ui::ListView::Row>& before,
                                            const std::vector<ui::ListView::Row>& after);

private:
    struct Step {
        std::string What;
        Picture Before, After;
        std::vector<RowChange> Rows;
    };

    static void KeepWhatWasTyped(const Picture& left, const Picture& now, Picture& to);

    std::vector<Step> steps_;
    std::size_t done_ = 0; // of the steps
};

} // namespace gfc::forms
