#pragma once

#include <optional>
#include <string>
#include <vector>

namespace gfc::test {

// A file of lines that end in CR LF, changed by rules of this test alone: a key that is there changes in its
// place and takes the given form, a new one goes behind the last key of its section. Names match without
// regard to case.
class FileText {
public:
    explicit FileText(const std::string& bytes);

    [[nodiscard]] std::optional<std::string> Value(const std::string& section, const std::string& key) const;
    FileText& Set(const std::string& section, const std::string& key, const std::string& value);
    // The value stays; a key that is not there does not come.
    FileText& Touch(const std::string& section, const std::vector<std::string>& keys);
    // A new one behind all others, without keys.
    FileText& AddSection(const std::string& section);
    FileText& Remove(const std::string& section, const std::string& key);
    // Nothing but these lines below the header.
    FileText& Replace(const std::string& section, const std::vector<std::string>& lines);
    [[nodiscard]] std::string Bytes() const;

private:
    struct Range {
        std::size_t Begin; // of the lines below the header
        std::size_t End;
    };
    [[nodiscard]] Range LinesOf(const std::string& section) const;
    [[nodiscard]] std::optional<std::size_t> LineOf(const std::string& section, const std::string& key) const;

    std::string rest_; // a last line without a break
    std::vector<std::string> lines_;
};

// The bytes are the same; if not, the first line that differs is told.
void ExpectSameFile(const std::string& file, const std::string& expected);

// As a person leaves it who edits by hand: comments, blank lines, sections of others, keys in mixed case.
[[nodiscard]] std::string EditedByHand(const std::string& file);

} // namespace gfc::test
