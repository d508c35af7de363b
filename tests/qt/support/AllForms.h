#pragma once

#include "ui/Form.h"

#include <memory>
#include <string>
#include <vector>

namespace gfc::forms {
struct Program;
}

namespace gfc::test {

struct FormEntry {
    std::string Name;
    // Made, not loaded.
    std::shared_ptr<ui::Form> (*Make)(forms::Program&);
};

// Every form of the program, by name.
[[nodiscard]] std::vector<FormEntry> AllForms();

} // namespace gfc::test
