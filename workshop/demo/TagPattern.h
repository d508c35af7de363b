#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace gfc::workshop {

/// Tag names from a short form: words parted by blanks, each word with any number of braces that hold either
/// a list, "XV-304_{OPN,CLS}", or a range that keeps the width of its first number, "LOG_{01..32}". The last
/// brace of a word runs fastest. With `runs` above 0 the whole pattern is gone through once per run, "#"
/// standing for the run's number.
[[nodiscard]] std::vector<std::string> ExpandTags(std::string_view pattern, int runs);

} // namespace gfc::workshop
