#include "project/TagText.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace gfc::project {

namespace {

constexpr std::size_t pieceSize = 64 * 1024;

void Put(std::string_view text, char* to) {
    const std::size_t size = text.size();
    std::memcpy(to, &size, sizeof size);
    std::memcpy(to + sizeof size, text.data(), size);
}

} // namespace

TagText::TagText(std::string_view text) {
    if (text.empty())
        return;
    const auto own = std::make_shared_for_overwrite<char[]>(sizeof(std::size_t) + text.size());
    Put(text, own.get());
    kept_ = std::shared_ptr<const char>(own, own.get());
}

std::string_view TagText::View() const {
    if (kept_ == nullptr)
        return {};
    std::size_t size = 0;
    std::memcpy(&size, kept_.get(), sizeof size);
    return {kept_.get() + sizeof size, size};
}

TagText TagTexts::Keep(std::string_view text) {
    TagText kept;
    if (text.empty())
        return kept;
    const std::size_t needed = sizeof(std::size_t) + text.size();
    if (size_ - used_ < needed) {
        size_ = std::max(pieceSize, needed);
        piece_ = std::make_shared_for_overwrite<char[]>(size_);
        used_ = 0;
    }
    Put(text, piece_.get() + used_);
    kept.kept_ = std::shared_ptr<const char>(piece_, piece_.get() + used_);
    used_ += needed;
    return kept;
}

} // namespace gfc::project
