#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace gfc::fuzz {

// A second account of the accesses to a profile: a list of lines, gone through from its top each time. It
// shares nothing with the real one but the folding of letters.
class PlainProfile {
public:
    explicit PlainProfile(std::string_view bytes) { Split(std::string(bytes)); }

    [[nodiscard]] std::string Read(std::string_view section, std::string_view key) const;
    void Write(std::string_view section, std::string_view key, std::optional<std::string_view> value);
    // The items each end with a NUL.
    void ReplaceSection(std::string_view section, std::string_view body);

    [[nodiscard]] std::string Bytes() const;

    // The lines that stand in no section of one of these names, without their breaks.
    [[nodiscard]] std::vector<std::string> LinesOutside(const std::vector<std::string>& sections) const;

private:
    void Split(const std::string& bytes);
    [[nodiscard]] std::size_t LineOfSection(std::string_view section) const;
    [[nodiscard]] std::size_t EndOfSection(std::size_t header) const;
    void InsertAt(std::size_t line, const std::string& text);

    std::vector<std::string> lines_; // with their breaks
};

} // namespace gfc::fuzz
