#include "workshop/import/SystemEncoding.h"

#include <array>
#include <cerrno>
#include <iconv.h>

namespace gfc::workshop {

namespace {

class Converter {
public:
    explicit Converter(const std::string& encoding) : handle_(iconv_open("UTF-8", encoding.c_str())) {}
    ~Converter() {
        if (IsOpen()) {
            iconv_close(handle_);
        }
    }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    // As the interface has it: a handle of all bits for none.
    [[nodiscard]] bool IsOpen() const { return handle_ != reinterpret_cast<iconv_t>(-1); }

    [[nodiscard]] std::optional<std::string> Convert(std::string_view bytes) {
        std::string copy(bytes); // the interface takes no constant text
        char* from = copy.data();
        std::size_t left = copy.size();
        std::string utf8;
        while (left > 0) {
            std::array<char, 16384> part{};
            char* to = part.data();
            std::size_t room = part.size();
            const bool whole = iconv(handle_, &from, &left, &to, &room) != static_cast<std::size_t>(-1);
            utf8.append(part.data(), part.size() - room);
            if (!whole && errno != E2BIG) {
                return std::nullopt;
            }
        }
        return utf8;
    }

private:
    iconv_t handle_;
};

} // namespace

SystemText ToUtf8(std::string_view bytes, const std::string& encoding) {
    Converter converter(encoding);
    if (!converter.IsOpen()) {
        return {};
    }
    return {true, converter.Convert(bytes)};
}

} // namespace gfc::workshop
