#pragma once

#include <ostream>
#include <span>
#include <stdexcept>
#include <string_view>

// What reads bytes that somebody else wrote, each behind one function that takes any bytes. The fuzzer calls
// it with bytes of its own making, the test with those of the kept corpus.
namespace gfc::fuzz {

// Thrown where a target's result is not what it must be; the text says what was to hold.
class Finding : public std::logic_error {
public:
    using std::logic_error::logic_error;
};

inline void Require(bool holds, const char* what) {
    if (!holds)
        throw Finding(what);
}

struct Target {
    std::string_view Name; // also that of the corpus' folder
    void (*Run)(std::string_view bytes);

    friend void PrintTo(const Target& the, std::ostream* out) { *out << the.Name; }
};

[[nodiscard]] std::span<const Target> Targets();

void Profile(std::string_view bytes);
void Update(std::string_view bytes);
void Reader(std::string_view bytes);
void Check(std::string_view bytes);
void Wire(std::string_view bytes);
void Csv(std::string_view bytes);
void Project(std::string_view bytes);
void Entry(std::string_view bytes);
void ContractTime(std::string_view bytes);
void Drafts(std::string_view bytes);
void Mapping(std::string_view bytes);
void Plan(std::string_view bytes);
void Record(std::string_view bytes);
void Report(std::string_view bytes);

} // namespace gfc::fuzz
