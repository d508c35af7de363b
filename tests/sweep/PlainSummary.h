#pragma once

#include "Choice.h"
#include "PlainFile.h"

#include <string>
#include <vector>

// What the main window must show of a combination's file, written out from the file's own values.
namespace gfc::test::sweep {

struct PlainPage {
    std::string List; // the list that is seen; empty for a line of text alone
    std::string Line;
    std::vector<std::string> Columns;
    std::vector<std::vector<std::string>> Rows;
};

[[nodiscard]] std::vector<PlainPage> CommonPages(const Choice& choice, const PlainFile& file);
[[nodiscard]] std::vector<PlainPage> RunPages(const Choice& choice, const PlainFile& file, int run);
[[nodiscard]] std::vector<std::string> RunHeadings(const Choice& choice);

} // namespace gfc::test::sweep
