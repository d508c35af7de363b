#include "workshop/demo/TagPattern.h"

#include <algorithm>

namespace gfc::workshop {

namespace {

using Words = std::vector<std::string>;

Words Split(std::string_view text, char separator) {
    Words pieces;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(separator), text.size());
        if (end > 0) {
            pieces.emplace_back(text.substr(0, end));
        }
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return pieces;
}

std::string Padded(int number, std::size_t width) {
    const std::string digits = std::to_string(number);
    return std::string(width - std::min(width, digits.size()), '0') + digits;
}

Words Choices(std::string_view brace) {
    const std::size_t dots = brace.find("..");
    if (dots == std::string_view::npos) {
        return Split(brace, ',');
    }
    const std::string first(brace.substr(0, dots));
    const int last = std::stoi(std::string(brace.substr(dots + 2)));
    Words numbers;
    for (int number = std::stoi(first); number <= last; ++number) {
        numbers.push_back(Padded(number, first.size()));
    }
    return numbers;
}

void ExpandWord(const std::string& word, Words& names) {
    const std::size_t open = word.find('{');
    const std::size_t close = word.find('}', open);
    if (open == std::string::npos || close == std::string::npos) {
        names.push_back(word);
        return;
    }
    for (const std::string& choice : Choices(std::string_view(word).substr(open + 1, close - open - 1))) {
        ExpandWord(word.substr(0, open) + choice + word.substr(close + 1), names);
    }
}

std::string ForRun(std::string word, int run) {
    std::replace(word.begin(), word.end(), '#', static_cast<char>('0' + run));
    return word;
}

} // namespace

Words ExpandTags(std::string_view pattern, int runs) {
    Words names;
    for (int run = 1; run <= std::max(runs, 1); ++run) {
        for (const std::string& word : Split(pattern, ' ')) {
            ExpandWord(ForRun(word, run), names);
        }
    }
    return names;
}

} // namespace gfc::workshop
