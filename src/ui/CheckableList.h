#pragma once

#include "ui/OpenableList.h"

namespace gfc::ui {

// A table whose rows can be marked, one by one, for what is to be done with them. The mark is the text of the
// first column, which a window shows as a check box; the column has no heading.
class CheckableList : public OpenableList {
public:
    using OpenableList::OpenableList;

    static constexpr const char* Mark = "x";

    [[nodiscard]] bool IsMarked(int row) const { return Cell(row, 0) == Mark; }
    [[nodiscard]] int MarkedCount() const {
        int count = 0;
        for (int row = 1; row <= Count(); ++row)
            count += IsMarked(row) ? 1 : 0;
        return count;
    }
    // By program: runs no event.
    void SetMarked(int row, bool marked) {
        if (marked != IsMarked(row))
            SetCell(row, 0, marked ? Mark : "");
    }

    // Whether a person may mark it; without it every row can be.
    std::function<bool(int row)> MayMark;
    std::function<void()> OnMarked;

    // A person pressed the box of a row, or the space bar on it.
    bool PersonMarksRow(int row) {
        if (row < 1 || row > Count() || !PersonActs())
            return false;
        SelectRow(row);
        Fire([this, row] {
            if (MayMark && !IsMarked(row) && !MayMark(row))
                return;
            SetMarked(row, !IsMarked(row));
            if (OnMarked)
                OnMarked();
        });
        return true;
    }
};

} // namespace gfc::ui
