#pragma once

#include "binding/Catalogue.h"
#include "binding/ExpectedTags.h"
#include "config/Vocabulary.h"
#include "support/MemoryFiles.h"
#include "support/TestFolders.h"

#include <string>
#include <string_view>
#include <vector>

namespace gfc::test {

using Texts = std::vector<std::string>;

// A configuration file in memory that is checked. It says more than any choice calls for: every run that is
// activated has all keys of the catalogue, each binding with a name and register of its own.
struct CheckedFile {
    static constexpr const char* File = "/jobs/KDOrmAGA_plant_North.ini";

    MemoryFiles Files;
    config::FileIni Ini{Files};
    config::StationConfig Station;
    binding::ExpectedTags Expected;

    CheckedFile() = default;
    CheckedFile(std::string_view algorithm, std::string_view source, std::string_view composition = "FIXED") {
        Put("FlowRuns", "FlowAlgorithm", algorithm);
        Put("FlowRuns", "GasDensitySource", source);
        Put(config::IsDetail(source) ? "AGA8" : "SGERG88", "AGA8CalInput", composition);
    }

    CheckedFile& Put(std::string_view section, std::string_view key, std::string_view value) {
        Ini.WriteKey(section, key, std::string(value), File);
        return *this;
    }
    CheckedFile& Bind(const std::string& section, const binding::VariableRow& row) {
        static constexpr std::string_view types[] = {"FX", "LX", "AX", "X"};
        Put(section, row.TagKey(), section + " " + std::string(row.Stem));
        Put(section, row.TypeKey(), types[static_cast<std::size_t>(row.Class)]);
        return Put(section, row.AddressKey(), std::to_string(nextRegister_++));
    }
    CheckedFile& Activate(int run) {
        const config::FileBatch batch(Ini, File);
        const std::string section = "Run" + std::to_string(run);
        Put("FlowRuns", section, "Yes");
        for (const auto& row : binding::Catalogue())
            if (row.Stage != binding::BindingStage::CommonInputs)
                Bind(section, row);
        return *this;
    }
    CheckedFile& UseAtmosphereTag() {
        Put("AGA3", "ExtAtmPress", "Yes");
        return Bind("AGA3", binding::CommonPressureRow());
    }
    CheckedFile& Build() {
        BuildExpectedTags(Ini, File, Station, Expected);
        return *this;
    }

private:
    int nextRegister_ = 1;
};

inline Texts CaptionsOf(const std::vector<binding::ExpectedTag>& entries) {
    Texts captions;
    for (const auto& entry : entries)
        captions.emplace_back(entry.Caption);
    return captions;
}

// The tag that an entry asks for; its address must be a number.
inline project::Tag TagOf(const binding::ExpectedTag& entry, std::string module = "Virtual Module") {
    return {entry.Tag, std::stoi(entry.RegAddr), entry.Type, "M1", std::move(module)};
}

// A station that holds all that is expected.
inline project::TagInventory StationHolding(const binding::ExpectedTags& expected) {
    project::TagList tags;
    for (const auto* entries : {&expected.ExpectedFloat, &expected.ExpectedAnalog, &expected.ExpectedLong,
                                &expected.ExpectedDigital})
        for (const auto& entry : *entries)
            tags.push_back(TagOf(entry));
    project::TagInventory inventory;
    project::BuildInventory(tags, inventory);
    return inventory;
}

// The captions of the entries that were not found, in the order float, analog, digital, long.
inline Texts Missing(const binding::ExpectedTags& expected) {
    Texts captions;
    for (const auto* entries : {&expected.ExpectedFloat, &expected.ExpectedAnalog, &expected.ExpectedDigital,
                                &expected.ExpectedLong})
        for (const auto& entry : *entries)
            if (!entry.Found)
                captions.emplace_back(entry.Caption);
    return captions;
}

} // namespace gfc::test
