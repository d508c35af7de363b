#pragma once

#include "config/CommonLayout.h"
#include "config/RunLayout.h"
#include "platform/NameTable.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The keys that a section may hold, taken from the tables by which it is written and read.
namespace gfc::audit {

class KnownKeys {
public:
    KnownKeys(KnownKeys&&) = default; // the table points into the names

    [[nodiscard]] static const KnownKeys& OfCommon(config::CommonSection section);
    [[nodiscard]] static const KnownKeys& OfRun();

    [[nodiscard]] std::size_t Count() const { return rows_.size(); }
    // The place of a key; case does not count.
    [[nodiscard]] std::optional<std::size_t> Find(std::string_view key) const { return table_.Find(key); }
    [[nodiscard]] const std::string& operator[](std::size_t key) const { return names_[key]; }
    // Of a run's key.
    [[nodiscard]] char GroupOf(std::size_t key) const { return rows_[key].Group; }
    [[nodiscard]] bool IsBinding(std::size_t key) const { return rows_[key].IsBinding; }
    // A key that some code reads or leaves, and that no configuration has to hold.
    [[nodiscard]] bool IsExtra(std::size_t key) const { return rows_[key].IsExtra; }

private:
    struct Row {
        char Group;
        bool IsBinding;
        bool IsExtra;
    };
    KnownKeys() = default;
    void Add(std::string name, Row row);
    void Close();

    std::vector<std::string> names_;
    std::vector<Row> rows_;
    platform::NameTable table_;
};

// The groups of keys that a run's section has under the choices.
class PresentGroups {
public:
    PresentGroups(const config::StationConfig& station, const config::RunMechanical& mechanical);
    [[nodiscard]] bool Has(char group) const { return (has_ & BitOf(group)) != 0; }
    // Deliberate: an Accelabar bears the keys of pipe and orifice, but none of them says anything, and a run
    // that was added has none.
    [[nodiscard]] bool Counts(char group) const { return Has(group) && !(group == 'B' && isAccelabar_); }

private:
    static constexpr std::uint32_t BitOf(char group) { return std::uint32_t{1} << (group - 'A'); }
    std::uint32_t has_ = 0;
    bool isAccelabar_;
};

} // namespace gfc::audit
