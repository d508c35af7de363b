#include "qt/render/LetterWidths.h"

#include <QFontMetrics>

#include <optional>

namespace gfc::qt {

const LetterWidths& LetterWidths::In(const QFont& font) {
    // By name: a font that is kept keeps all that the toolkit has loaded for it.
    static QString last;
    static std::optional<LetterWidths> widths;
    if (const QString name = font.key(); !widths || last != name) {
        widths = LetterWidths(font);
        last = name;
    }
    return *widths;
}

LetterWidths::LetterWidths(const QFont& font) {
    const QFontMetrics metrics(font);
    // What stands behind them is no letter: the toolkit would look for it in all fonts of the system.
    for (std::size_t letter = ' '; letter <= '~'; ++letter)
        widths_[letter] = metrics.horizontalAdvance(QChar(static_cast<char16_t>(letter)));
}

int LetterWidths::Of(const std::string& utf8) const {
    int width = 0;
    for (const char byte : utf8) {
        const auto letter = static_cast<unsigned char>(byte);
        if (letter < widths_.size())
            width += widths_[letter];
        else if (letter >= 0xC0) // the first byte of a letter
            width += widths_['W'];
    }
    return width;
}

} // namespace gfc::qt
