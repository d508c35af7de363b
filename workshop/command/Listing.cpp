#include "workshop/command/Listing.h"

#include "workshop/text/CodePage.h"

#include <algorithm>

namespace gfc::workshop {

namespace {

std::vector<std::size_t> Widths(const std::vector<std::vector<std::string>>& rows) {
    std::vector<std::size_t> widths;
    for (const auto& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t at = 0; at < row.size(); ++at) {
            widths[at] = std::max(widths[at], CharacterCount(row[at]));
        }
    }
    return widths;
}

} // namespace

void PrintListing(std::ostream& out, const std::vector<std::vector<std::string>>& headingAndRows) {
    const std::vector<std::size_t> widths = Widths(headingAndRows);
    for (const auto& row : headingAndRows) {
        std::string line;
        for (std::size_t at = 0; at < row.size(); ++at) {
            line += row[at] + std::string(widths[at] - CharacterCount(row[at]) + 2, ' ');
        }
        line.erase(line.find_last_not_of(' ') + 1);
        out << line << '\n';
    }
}

} // namespace gfc::workshop
