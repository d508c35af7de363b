#include "platform/Files.h"

#include <algorithm>
#include <utility>

namespace gfc::platform {
namespace {

constexpr std::string_view Separators = "/\\";
constexpr char OtherSeparator = Separator == '/' ? '\\' : '/';

std::string_view WithoutEndSeparators(std::string_view path) {
    const auto last = path.find_last_not_of(Separators);
    return last == std::string_view::npos ? std::string_view{} : path.substr(0, last + 1);
}

} // namespace

std::string ParentFolder(std::string_view path) {
    path = WithoutEndSeparators(path);
    const auto separator = path.find_last_of(Separators);
    if (separator == std::string_view::npos)
        return {};
    return std::string(WithoutEndSeparators(path.substr(0, separator)));
}

std::string WithOwnSeparators(std::string_view path) {
    std::string own(path);
    std::replace(own.begin(), own.end(), OtherSeparator, Separator);
    return own;
}

std::optional<std::string> Files::ReadStart(const std::string& path, std::size_t) {
    return Read(path);
}

bool Files::Fail(std::string reason) {
    lastFailure_ = std::move(reason);
    return false;
}

} // namespace gfc::platform
