#pragma once

#include "platform/ProfileFile.h"
#include "support/MemoryFiles.h"

#include <nlohmann/json.hpp>

#include <istream>
#include <optional>
#include <string>
#include <vector>

// Carries out recorded accesses to a profile file and compares what comes back and what stays behind. One
// case per line of JSON: "id", "initial_hex" (the file's bytes, null for no file), "ops", "results",
// "final_hex". A text of a case holds one character U+0000 to U+00FF per byte of the file.
namespace gfc::test {

struct ReplayOutcome {
    std::string Id;
    std::string Failure; // empty if the case passed
};

namespace replay {

using Json = nlohmann::json;

inline const std::string Path = "case.ini";

inline std::string BytesOf(const std::string& utf8) {
    std::string bytes;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const auto lead = static_cast<unsigned char>(utf8[i]);
        if (lead < 0x80)
            bytes += utf8[i];
        else
            bytes +=
                static_cast<char>((lead & 0x03) << 6 | (static_cast<unsigned char>(utf8.at(++i)) & 0x3F));
    }
    return bytes;
}

inline std::optional<std::string> FromHex(const Json& hex) {
    if (hex.is_null())
        return std::nullopt;
    const auto digits = hex.get<std::string>();
    std::string bytes;
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2)
        bytes += static_cast<char>(std::stoi(digits.substr(i, 2), nullptr, 16));
    return bytes;
}

inline std::string Field(const Json& operation, const char* name) {
    return BytesOf(operation.at(name));
}

inline void Apply(platform::Profile& profile, const Json& operation) {
    const std::string name = operation.at("op");
    const std::string section = Field(operation, "section");
    if (name == "write") {
        profile.Write(section, Field(operation, "key"), Field(operation, "value"));
    } else if (name == "del") {
        profile.Write(section, Field(operation, "key"), std::nullopt);
    } else if (name == "section") {
        std::vector<std::string> items;
        for (const Json& item : operation.at("items"))
            items.push_back(BytesOf(item));
        profile.ReplaceSection(section, items);
    } else {
        throw std::runtime_error("unknown operation " + name);
    }
}

// One complete access: the file is read, and replaced if the access writes.
inline bool Matches(MemoryFiles& files, const Json& operation, const Json& expected) {
    auto file = platform::ProfileFile::Open(files, Path);
    if (!file)
        return false;
    if (operation.at("op") == "read")
        return file->Profile().Read(Field(operation, "section"), Field(operation, "key")) ==
               BytesOf(expected);
    Apply(file->Edit(), operation);
    return file->Save() == expected.get<bool>();
}

inline std::string FailureOf(const Json& test) {
    MemoryFiles files;
    if (const auto initial = FromHex(test.at("initial_hex")))
        files.Content[Path] = *initial;
    const Json& operations = test.at("ops");
    const Json& results = test.at("results");
    if (operations.size() != results.size())
        return "as many results as operations are needed";
    for (std::size_t i = 0; i < operations.size(); ++i)
        if (!Matches(files, operations[i], results[i]))
            return "operation " + std::to_string(i + 1) + " gave another result: " + operations[i].dump();
    const auto left = files.Content.contains(Path) ? std::optional(files.Content[Path]) : std::nullopt;
    return left == FromHex(test.at("final_hex")) ? "" : "the file's last bytes differ";
}

} // namespace replay

// Every case of the stream; a line that cannot be understood is a failed case.
inline std::vector<ReplayOutcome> ReplayProfileCases(std::istream& lines) {
    std::vector<ReplayOutcome> outcomes;
    for (std::string line; std::getline(lines, line);) {
        if (line.find_first_not_of(" \t\r") == std::string::npos)
            continue;
        ReplayOutcome outcome{"line " + std::to_string(outcomes.size() + 1), {}};
        try {
            const auto test = nlohmann::json::parse(line);
            outcome.Id = test.at("id");
            outcome.Failure = replay::FailureOf(test);
        } catch (const std::exception& error) {
            outcome.Failure = error.what();
        }
        outcomes.push_back(std::move(outcome));
    }
    return outcomes;
}

} // namespace gfc::test
