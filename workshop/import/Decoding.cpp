#include "workshop/import/Decoding.h"

#include "workshop/import/CsvFile.h"
#include "workshop/import/SystemEncoding.h"
#include "workshop/store/Failure.h"
#include "workshop/text/CodePage.h"

#include <algorithm>

namespace gfc::workshop {

namespace {

enum class Order { Little, Big };

constexpr std::size_t LookedAt = 4096;

// A text of our languages in UTF-16 has a zero in nearly every second byte, and none in any other encoding.
bool HasZerosAt(std::string_view bytes, std::size_t place) {
    const std::size_t size = std::min(bytes.size(), LookedAt) / 2;
    std::size_t zeros = 0;
    for (std::size_t at = 0; at < size; ++at) {
        zeros += bytes[2 * at + place] == '\0' ? 1 : 0;
    }
    return size > 4 && zeros * 10 > size * 7;
}

std::size_t RowOf(std::string_view text, std::size_t at) {
    return 1 + static_cast<std::size_t>(
                   std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(at), '\n'));
}

void Append(std::string& utf8, char32_t code) {
    if (code < 0x80) {
        utf8 += static_cast<char>(code);
        return;
    }
    const int followers = code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
    constexpr unsigned char Leads[] = {0x00, 0xC0, 0xE0, 0xF0};
    utf8 += static_cast<char>(Leads[followers] | (code >> (6 * followers)));
    for (int left = followers - 1; left >= 0; --left) {
        utf8 += static_cast<char>(0x80 | ((code >> (6 * left)) & 0x3F));
    }
}

class Utf16Reader {
public:
    Utf16Reader(std::string_view bytes, Order order, std::string_view file)
        : bytes_(bytes), order_(order), file_(file) {}

    [[nodiscard]] std::string Read() {
        std::string utf8;
        utf8.reserve(bytes_.size() / 2);
        while (at_ + 1 < bytes_.size()) {
            Append(utf8, TakeCharacter());
        }
        if (at_ < bytes_.size()) {
            Fail();
        }
        return utf8;
    }

private:
    [[nodiscard]] char32_t TakeUnit() {
        const auto first = static_cast<unsigned char>(bytes_[at_]);
        const auto second = static_cast<unsigned char>(bytes_[at_ + 1]);
        at_ += 2;
        return order_ == Order::Little ? static_cast<char32_t>(first | (second << 8))
                                       : static_cast<char32_t>(second | (first << 8));
    }

    [[nodiscard]] char32_t TakeCharacter() {
        const char32_t unit = TakeUnit();
        if (unit < 0xD800 || unit > 0xDFFF) {
            return unit;
        }
        const char32_t low = unit < 0xDC00 && at_ + 1 < bytes_.size() ? TakeUnit() : 0;
        if (low < 0xDC00 || low > 0xDFFF) {
            Fail();
        }
        return 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
    }

    [[noreturn]] void Fail() const {
        throw Failure(std::string(file_) + ": is a text in UTF-16 that is broken near its byte " +
                      std::to_string(at_) + "; save it from the spreadsheet as \"CSV UTF-8\".");
    }

    std::string_view bytes_;
    Order order_;
    std::string_view file_;
    std::size_t at_ = 0;
};

DecodedText FromUtf16(std::string_view bytes, Order order, std::string_view file) {
    return {Utf16Reader(bytes, order, file).Read(), "UTF-16", ""};
}

DecodedText Utf8OrElse(std::string bytes) {
    const std::size_t fault = FirstByteNotUtf8(bytes);
    if (fault == std::string::npos) {
        return {std::move(bytes), "UTF-8", ""};
    }
    std::string note = "line " + std::to_string(RowOf(bytes, fault)) +
                       " is not UTF-8, so the whole file was read as Windows-1252; if letters come out "
                       "wrong, save it as UTF-8";
    return {FromCodePage(bytes), "Windows-1252", std::move(note)};
}

} // namespace

DecodedText Decode(std::string bytes, std::string_view file) {
    const std::string_view all = bytes;
    if (all.starts_with(ByteOrderMark)) {
        return Utf8OrElse(bytes.substr(ByteOrderMark.size()));
    }
    if (all.starts_with("\xFF\xFE")) {
        return FromUtf16(all.substr(2), Order::Little, file);
    }
    if (all.starts_with("\xFE\xFF")) {
        return FromUtf16(all.substr(2), Order::Big, file);
    }
    if (HasZerosAt(all, 1)) {
        return FromUtf16(all, Order::Little, file);
    }
    return HasZerosAt(all, 0) ? FromUtf16(all, Order::Big, file) : Utf8OrElse(std::move(bytes));
}

DecodedText DecodeAs(std::string_view bytes, const std::string& encoding, std::string_view file) {
    const SystemText text = ToUtf8(bytes, encoding);
    if (!text.Known) {
        throw Failure(
            "--encoding: this system knows no encoding \"" + encoding +
            "\"; usual ones are UTF-8, UTF-16, Windows-1252, ISO-8859-1, ISO-8859-15, CP437 and CP850.");
    }
    if (!text.Utf8) {
        throw Failure(std::string(file) + ": is no text in " + encoding + ", which --encoding names.");
    }
    std::string utf8 = *text.Utf8;
    utf8.erase(0, utf8.starts_with(ByteOrderMark) ? ByteOrderMark.size() : 0);
    return {std::move(utf8), encoding, ""};
}

} // namespace gfc::workshop
