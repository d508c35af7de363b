#include "audit/Comparison.h"

#include "audit/Finding.h"
#include "config/KeyChanges.h"
#include "config/RunLayout.h"
#include "config/Units.h"
#include "platform/Profile.h"
#include "services/CodePage.h"
#include "services/Text.h"

#include <algorithm>
#include <array>
#include <map>

namespace gfc::audit {

namespace {

using config::FileKey;
using config::Quantity;

struct UnitRow {
    std::string_view Key;
    Quantity Unit;
};

// The values that the forms show with a unit. The Accelabar's have theirs in the caption.
// clang-format off
constexpr std::array units = std::to_array<UnitRow>({
    {"StandardT",              Quantity::Temperature},
    {"StandardP",              Quantity::AbsolutePressure},
    {"GasDensityStandardT",    Quantity::Temperature},
    {"GasDensityStandardP",    Quantity::AbsolutePressure},
    {"AtmPress",               Quantity::AbsolutePressure},
    {"meterKFactor",           Quantity::MeterFactor},
    {"GasDensityStandard",     Quantity::Density},
    {"OrificeDia",             Quantity::Length},
    {"OrificeDiaRefTemp",      Quantity::Temperature},
    {"OrificeThermalExpCoeff", Quantity::ExpansionCoefficient},
    {"InternalPipeDia",        Quantity::Length},
    {"InternalPipeDiaRefTemp", Quantity::Temperature},
    {"PipeThermalExpCoeff",    Quantity::ExpansionCoefficient},
});

// The three keys of a binding, which bear the name of its variable.
constexpr std::array<std::pair<std::string_view, std::string_view>, 4> parts = {{
    {"KDIOTag", ", Name"}, {"KDIOType", ", Type"}, {"KDIORegAddr", ", Address"}, {"KDIOAddr", ", Address"},
}};
// clang-format on

constexpr std::string_view viscosity = "FlowingViscosity"; // its unit is said by the table of defaults

bool IsSection(const FileKey& key, std::string_view section) {
    return services::EqualNoCase(key.Section, section);
}

const UnitRow* UnitRowOf(const std::string& key) {
    const auto found =
        std::ranges::find_if(units, [&](const UnitRow& row) { return services::EqualNoCase(row.Key, key); });
    return found == units.end() ? nullptr : &*found;
}

// The keys of one side, and what its units depend on.
class Keys {
public:
    explicit Keys(const Side& side) : all_(config::KeysOf(side.Bytes)), units_(side.Bytes) {
        if (side.Run == 0)
            return;
        const std::string section = config::RunSection(side.Run);
        std::erase_if(all_, [&](const FileKey& key) { return !IsSection(key, section); });
    }

    [[nodiscard]] const std::vector<FileKey>& All() const { return all_; }

    [[nodiscard]] std::string UnitOf(const std::string& key, const std::optional<std::string>& value) const {
        return units_.Of(key, value);
    }

private:
    std::vector<FileKey> all_;
    ShownUnits units_;
};

// Where the keys of a side stand; within two runs the section says nothing.
class Places {
public:
    Places(const Keys& keys, bool runs) : runs_(runs) {
        for (const FileKey& key : keys.All())
            keys_.emplace(PlaceOf(key), &key);
    }
    [[nodiscard]] const FileKey* Find(const FileKey& key) const {
        const auto found = keys_.find(PlaceOf(key));
        return found == keys_.end() ? nullptr : found->second;
    }

private:
    [[nodiscard]] std::string PlaceOf(const FileKey& key) const {
        return (runs_ ? std::string() : services::FoldCase(key.Section)) + '\n' + services::FoldCase(key.Key);
    }

    bool runs_;
    std::map<std::string, const FileKey*> keys_;
};

} // namespace

ShownUnits::ShownUnits(const std::string& bytes) {
    const platform::Profile profile(bytes);
    systemUnits_ = services::FromCodePage(profile.Read("FlowRuns", "SystemUnits"));
    algorithm_ = services::FromCodePage(profile.Read("FlowRuns", "FlowAlgorithm"));
}

std::string ShownUnits::Of(const std::string& key, const std::optional<std::string>& value) const {
    if (!value || value->empty())
        return {};
    if (services::EqualNoCase(key, viscosity))
        return std::string(config::DefaultsOf(systemUnits_).ViscosityCaption);
    const UnitRow* row = UnitRowOf(key);
    return row == nullptr ? std::string()
                          : std::string(config::UnitCaption(row->Unit, systemUnits_, algorithm_));
}

bool ShownUnits::Has(const std::string& key) {
    return services::EqualNoCase(key, viscosity) || UnitRowOf(key) != nullptr;
}

std::string CaptionOf(const std::string& key) {
    const std::string caption = VariableOf(key);
    if (caption == key)
        return caption;
    for (const auto& [ending, words] : parts)
        if (key.ends_with(ending))
            return caption + std::string(words);
    return caption;
}

std::vector<ComparedRow> Compare(const Side& left, const Side& right) {
    const Keys leftKeys(left);
    const Keys rightKeys(right);
    const bool runs = left.Run != 0 && right.Run != 0;
    const Places leftPlaces(leftKeys, runs);
    const Places rightPlaces(rightKeys, runs);
    std::vector<ComparedRow> rows;
    const auto add = [&](const FileKey& key, const FileKey* ofLeft, const FileKey* ofRight) {
        ComparedRow row{key.Section, key.Key, CaptionOf(key.Key), {}, {}, {}, {}};
        if (ofLeft != nullptr)
            row.Left = ofLeft->Value;
        if (ofRight != nullptr)
            row.Right = ofRight->Value;
        row.LeftUnit = leftKeys.UnitOf(key.Key, row.Left);
        row.RightUnit = rightKeys.UnitOf(key.Key, row.Right);
        rows.push_back(std::move(row));
    };
    for (const FileKey& key : leftKeys.All())
        add(key, &key, rightPlaces.Find(key));
    for (const FileKey& key : rightKeys.All())
        if (leftPlaces.Find(key) == nullptr)
            add(key, nullptr, &key);
    // Each section's rows together, in the order in which the sections first come.
    std::map<std::string, std::size_t> order;
    for (const ComparedRow& row : rows)
        order.emplace(services::FoldCase(row.Section), order.size());
    std::ranges::stable_sort(
        rows, {}, [&](const ComparedRow& row) { return order.at(services::FoldCase(row.Section)); });
    return rows;
}

std::string ShownValue(const std::optional<std::string>& value, const std::string& unit) {
    if (!value)
        return "(none)";
    return unit.empty() ? *value : *value + " " + unit;
}

} // namespace gfc::audit
