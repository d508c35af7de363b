#include "report/PdfAttachment.h"

#include <array>
#include <zlib.h>

namespace gfc::report {

namespace {

// What no report comes near to.
constexpr std::size_t longest = 256U << 20U;

std::optional<std::string> Inflated(std::string_view bytes) {
    z_stream stream{};
    if (inflateInit(&stream) != Z_OK)
        return std::nullopt;
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
    stream.avail_in = static_cast<uInt>(bytes.size());
    std::string all;
    std::array<char, 65536> part{};
    int result = Z_OK;
    while (result == Z_OK && all.size() < longest) {
        stream.next_out = reinterpret_cast<Bytef*>(part.data());
        stream.avail_out = part.size();
        result = inflate(&stream, Z_NO_FLUSH);
        all.append(part.data(), part.size() - stream.avail_out);
    }
    inflateEnd(&stream);
    return result == Z_STREAM_END ? std::optional(std::move(all)) : std::nullopt;
}

// The number of the object that stands behind the mark.
std::string NumberBehind(std::string_view pdf, std::string_view mark) {
    const auto at = pdf.rfind(mark);
    if (at == std::string_view::npos)
        return {};
    const auto digits = pdf.substr(at + mark.size());
    return std::string(digits.substr(0, digits.find_first_not_of("0123456789")));
}

} // namespace

// The stream ends itself, so that its length need not be looked up.
std::optional<std::string> AttachmentIn(std::string_view pdf) {
    constexpr std::string_view begin = "stream\n";
    const std::string number = NumberBehind(pdf, "(gfc-report.json)\n/EF <</F ");
    const auto object = number.empty() ? std::string_view::npos : pdf.rfind("\n" + number + " 0 obj\n");
    const auto stream = object == std::string_view::npos ? object : pdf.find(begin, object);
    if (stream == std::string_view::npos)
        return std::nullopt;
    return Inflated(pdf.substr(stream + begin.size()));
}

} // namespace gfc::report
