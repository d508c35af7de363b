#pragma once

#include <concepts>
#include <memory>
#include <string>
#include <string_view>

namespace gfc::project {

// A text of a tag; empty unless given. It is never changed in place, so that copies share it: the memory of a
// hundred thousand tags takes longer than all that is done with them.
class TagText {
public:
    TagText() = default;
    // Implicit, as whoever makes a tag has a text like any other.
    TagText(std::string_view text);
    TagText(const std::string& text) : TagText(std::string_view(text)) {}
    TagText(const char* text) : TagText(std::string_view(text)) {}

    [[nodiscard]] std::string_view View() const;
    operator std::string_view() const { return View(); }
    operator std::string() const { return std::string(View()); }

    friend bool operator==(const TagText& a, const TagText& b) {
        // Neighbours mostly share theirs.
        return a.kept_ == b.kept_ || a.View() == b.View();
    }
    template <class Text>
    requires(std::convertible_to<const Text&, std::string_view> && !std::same_as<Text, TagText>) friend bool
    operator==(const TagText& a, const Text& b) {
        return a.View() == std::string_view(b);
    }

private:
    friend class TagTexts;

    // The size and then the characters, amid all that was kept together. Null for the empty text.
    std::shared_ptr<const char> kept_;
};

// Keeps many texts in few pieces of memory; a piece lives as long as any text in it.
class TagTexts {
public:
    [[nodiscard]] TagText Keep(std::string_view text);

private:
    std::shared_ptr<char[]> piece_;
    std::size_t used_ = 0;
    std::size_t size_ = 0;
};

} // namespace gfc::project
