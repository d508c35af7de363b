#pragma once

#include <nlohmann/json.hpp>

#include <optional>
#include <ostream>
#include <string>

namespace gfc::commands {

using Json = nlohmann::ordered_json;

inline Json OrNull(const std::optional<std::string>& text) {
    return text ? Json(*text) : Json(nullptr);
}

// What is no valid UTF-8 is replaced: a path may hold it.
inline void WriteJson(std::ostream& out, const Json& json) {
    out << json.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
}

} // namespace gfc::commands
