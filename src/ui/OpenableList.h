#pragma once

#include "ui/ListView.h"

namespace gfc::ui {

// A table whose rows lead somewhere.
class OpenableList : public ListView {
public:
    using ListView::ListView;

    // A person double-clicked a row, or pressed Enter on it.
    std::function<void(int row)> OnRowOpened;

    // A row that a person has to do something about is shown in red; without it none is. Asked when a row is
    // painted: it must be quick. What makes a row red must stand in it in words as well.
    std::function<bool(int row)> IsMarked;

    // A person may have a window show the rows in another order, by a click on a heading. Rows are counted as
    // before. To be decided before the columns are added.
    bool SortsByHeading = false;

    bool PersonOpensRow(int row) {
        if (row < 1 || row > Count() || !PersonActs())
            return false;
        SelectRow(row);
        Fire([this, row] {
            if (OnRowOpened)
                OnRowOpened(row);
        });
        return true;
    }
};

} // namespace gfc::ui
