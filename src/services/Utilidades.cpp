#include "services/Utilidades.h"

namespace gfc::services {

std::string TrimFixedString(std::string_view text) {
    return std::string(text.substr(0, text.find('\0')));
}

std::string FirstWord(std::string_view text) {
    return TrimFixedString(text.substr(0, text.find(' ')));
}

} // namespace gfc::services
