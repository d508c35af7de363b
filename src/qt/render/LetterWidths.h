#pragma once

#include <QFont>

#include <array>
#include <string>

namespace gfc::qt {

// What texts take, letter by letter and without a look at which letters meet: near enough to tell the widest
// of many, which alone is then measured. To measure a text takes as long as to paint it.
class LetterWidths {
public:
    // Those of the font that was asked for last are kept: nearly all lists have the same one.
    [[nodiscard]] static const LetterWidths& In(const QFont& font);

    // In pixels. All letters beyond ASCII count as a wide one.
    [[nodiscard]] int Of(const std::string& utf8) const;

private:
    explicit LetterWidths(const QFont& font);

    std::array<int, 128> widths_{};
};

} // namespace gfc::qt
