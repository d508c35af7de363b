#include "workshop/import/SystemEncoding.h"

#include "workshop/text/Letters.h"

#include <charconv>
#include <windows.h>

namespace gfc::workshop {

namespace {

struct Named {
    std::string_view Name; // as Plainly() leaves it
    unsigned Number;
};
constexpr Named Names[] = {
    {"utf 8", 65001},       {"us ascii", 20127},   {"iso 8859 1", 28591}, {"latin1", 28591},
    {"iso 8859 2", 28592},  {"iso 8859 5", 28595}, {"iso 8859 7", 28597}, {"iso 8859 9", 28599},
    {"iso 8859 15", 28605}, {"latin 9", 28605},    {"koi8 r", 20866},     {"macintosh", 10000},
};

// "windows-1252", "cp850" or a name of the table; 0 for none. UTF-16 is told by its mark and needs no name.
unsigned NumberOfCodePage(const std::string& encoding) {
    const std::string plain = Plainly(encoding);
    for (const Named& named : Names) {
        if (named.Name == plain) {
            return named.Number;
        }
    }
    const std::size_t digits = plain.find_first_of("0123456789");
    const std::string_view word = std::string_view(plain).substr(0, digits);
    unsigned number = 0;
    if (digits != std::string::npos && (word == "cp" || word == "windows " || word == "ibm")) {
        std::from_chars(plain.data() + digits, plain.data() + plain.size(), number);
    }
    return IsValidCodePage(number) != 0 ? number : 0;
}

std::optional<std::string> Narrow(const std::wstring& wide) {
    const int size = WideCharToMultiByte(CP_UTF8, 0, wide.data(), static_cast<int>(wide.size()), nullptr, 0,
                                         nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, wide.data(), static_cast<int>(wide.size()), utf8.data(), size, nullptr,
                        nullptr);
    return utf8;
}

} // namespace

SystemText ToUtf8(std::string_view bytes, const std::string& encoding) {
    const unsigned page = NumberOfCodePage(encoding);
    if (page == 0) {
        return {};
    }
    const int size = MultiByteToWideChar(page, MB_ERR_INVALID_CHARS, bytes.data(),
                                         static_cast<int>(bytes.size()), nullptr, 0);
    if (size == 0) {
        return {true, bytes.empty() ? std::optional<std::string>("") : std::nullopt};
    }
    std::wstring wide(static_cast<std::size_t>(size), L'\0');
    MultiByteToWideChar(page, 0, bytes.data(), static_cast<int>(bytes.size()), wide.data(), size);
    return {true, Narrow(wide)};
}

} // namespace gfc::workshop
