#include "workshop/import/TableWishes.h"

#include "workshop/store/Failure.h"

namespace gfc::workshop {

namespace {

// The text of a quoted half, and what stands behind it; nothing where the quotes do not pair.
std::optional<std::string> TakeQuoted(std::string_view& rest) {
    std::string text;
    for (std::size_t at = 1; at < rest.size(); ++at) {
        if (rest[at] != '"') {
            text += rest[at];
        } else if (rest.substr(at + 1).starts_with('"')) {
            text += rest[at++];
        } else {
            rest.remove_prefix(at + 1);
            return text;
        }
    }
    return std::nullopt;
}

// One half of a pair: quoted, or up to the last "=" (the first half) or to the end.
std::optional<std::string> TakeHalf(std::string_view& rest, std::size_t end) {
    if (rest.starts_with('"')) {
        return TakeQuoted(rest);
    }
    std::string text(rest.substr(0, end));
    rest.remove_prefix(text.size());
    return text;
}

std::string Quoted(const std::string& text) {
    std::string quoted = "\"";
    for (const char c : text) {
        quoted += c == '"' ? "\"\"" : std::string(1, c);
    }
    return quoted + '"';
}

} // namespace

TextPair SplitPair(std::string_view text, std::string_view option) {
    std::string_view rest = text;
    const auto left = TakeHalf(rest, rest.rfind('='));
    const bool parted = left && !left->empty() && rest.starts_with('=');
    rest.remove_prefix(parted ? 1 : 0);
    const auto right = parted ? TakeHalf(rest, rest.size()) : std::nullopt;
    if (!right || right->empty() || !rest.empty()) {
        throw Failure(std::string(option) + ": \"" + std::string(text) +
                      "\" is not two texts with \"=\" between them; quote one that holds \"=\", as in "
                      "\"\"\"A=B\"\"=Tag\".");
    }
    return {*left, *right};
}

std::string JoinPair(const TextPair& pair) {
    return Quoted(pair.Left) + '=' + Quoted(pair.Right);
}

void TellProgress(const Progress& progress, double share) {
    if (progress && !progress(share)) {
        throw Failure("Given up as you asked; nothing was changed.");
    }
}

} // namespace gfc::workshop
