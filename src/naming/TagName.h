#pragma once

#include "naming/Words.h"

#include <array>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

// A tag's name taken apart. Nobody prescribes names: what is not recognised stays a part without a meaning.
namespace gfc::naming {

// Capitals without accents, for comparing and searching: "Presión" gives "PRESION". Characters of no known
// letter stay as they are.
[[nodiscard]] std::string Fold(std::string_view text);

// What a part speaks of: of two subjects a word, and an instrument's letters of one more at most. Names are
// taken apart by the ten thousand, and this needs no memory of its own.
class Meanings {
public:
    using value_type = Subject;
    using const_iterator = const Subject*;

    Meanings() = default;
    Meanings(std::initializer_list<Subject> subjects) {
        for (const Subject subject : subjects)
            push_back(subject);
    }
    void push_back(Subject subject) { subjects_.at(size_++) = subject; }
    [[nodiscard]] const_iterator begin() const { return subjects_.data(); }
    [[nodiscard]] const_iterator end() const { return begin() + size_; }
    [[nodiscard]] Subject front() const { return subjects_.front(); }
    [[nodiscard]] std::size_t size() const { return size_; }
    [[nodiscard]] bool empty() const { return size_ == 0; }

private:
    std::array<Subject, 3> subjects_{};
    std::size_t size_ = 0;
};

enum class PartKind { Letters, Digits, Sign };

struct Part {
    PartKind Kind = PartKind::Sign;
    std::string Text;            // folded; it may hold digits where they belong to a word ("CO2")
    std::size_t Begin = 0;       // where it stands in the folded name
    Meanings Means;              // empty where nothing is known of it
    const Word* Known = nullptr; // the word of the table, where it is one
    bool Cut = false;            // the beginning of a longer word only
    bool Device = false;         // letters of an instrument, or of a plant's code
};

// The letters of an instrument in front of a loop's number, as ISA-5.1 (1984, table 1) has them, or those of
// a power plant's code (KKS, measuring circuits).
struct Device {
    std::string Letters;    // "PDIT", "CP"; empty for none
    std::string Loop;       // "101", with its zeros; empty for none
    std::string LoopSuffix; // "A" of "PDIT-101A"; mostly empty
    Meanings Means;
    bool IsKks = false;
    bool Transmits = false; // measures, against computing, totalizing, switching
    bool Totalizes = false; // a flow: with the letter Q, by which ISA-5.1 tells the quantity from its rate
};

struct TagName {
    std::string Folded;
    std::vector<Part> Parts;
    naming::Device Device;
    std::vector<Subject> Subjects;    // of all words, each once, without the device's
    std::vector<std::string> Unknown; // words of two letters and more that the table does not know
    int Run = 0;                      // that a word names ("Tramo 1", "R1"), 1 to 5; 0 for none
    std::string RunText;              // the word with its number
    bool ToolSuffix = false;          // ends as tools mark a second one of a name: "~1", "(2)"

    [[nodiscard]] bool Says(Subject subject) const;
};

[[nodiscard]] TagName Parse(std::string_view name);

} // namespace gfc::naming
