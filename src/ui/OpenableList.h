#pragma once

#include "ui/ListView.h"

namespace gfc::ui {

// A table whose rows lead somewhere.
class OpenableList : public ListView {
public:
    using ListView::ListView;

    // A person double-clicked a row, or pressed Enter on it.
    std::function<void(int row)> OnRowOpened;

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
