#pragma once

#include "binding/Catalogue.h"
#include "config/FileIni.h"
#include "config/VarINIFile.h"
#include "project/TagInventory.h"

#include <string>
#include <string_view>
#include <vector>

// What a configuration file expects of the station's tags, against what the station holds now: tags get new
// names, move and vanish in the project while the file goes on naming them.
namespace gfc::binding {

// One binding to look up. What it takes from the catalogue stays there, and is not copied for each of
// hundreds.
struct ExpectedTag {
    std::string RegAddr; // decimal, as the file holds it
    std::string Tag;
    std::string Type;
    std::string_view Group; // one of binding::group
    std::string_view Stem;  // as it is reported; not always that of the keys in the file
    bool Found = false;
    std::string Location; // "Run1" to "Run5", or "AGA3" for the atmospheric pressure
    std::string_view Caption;
    std::string_view Note;

    bool operator==(const ExpectedTag&) const = default;
};

// One list per class, in the order in which a file is gone through.
struct ExpectedTags {
    std::vector<ExpectedTag> ExpectedFloat;
    std::vector<ExpectedTag> ExpectedAnalog;
    std::vector<ExpectedTag> ExpectedLong;
    std::vector<ExpectedTag> ExpectedDigital;
    // The working modules: name in Tag, address and type. They stand apart from the lists since nothing looks
    // them up among the tags.
    ExpectedTag WorkingFloat;
    ExpectedTag WorkingAnalog;
    ExpectedTag WorkingLong;
};

// The one of a class.
[[nodiscard]] std::vector<ExpectedTag>& ListOf(TagClass tagClass, ExpectedTags& expected);

// Reads the file, which need not have been loaded, and lists every binding that its options call for; a key
// that it lacks gives an empty text. FlowAlgorithm, GasDensitySource and AGA8CalInput of the station become
// those of the file, the rest of the station is left alone.
void BuildExpectedTags(const config::FileIni& ini, const std::string& file, config::StationConfig& station,
                       ExpectedTags& expected);

// The same for the runs that are configured and off, as if they were on, without the atmospheric pressure.
void BuildExpectedTagsOfRunsOff(const config::FileIni& ini, const std::string& file,
                                config::StationConfig& station, ExpectedTags& expected);

// Sets Found of every entry: address, type and name of one tag must all be the same, case included. True if
// every entry was found and none has an empty name.
[[nodiscard]] bool CheckExpectedTags(ExpectedTags& expected, const project::TagInventory& inventory);

// Takes the tags that the entries name, by address and name, out of the list; the others keep their order.
void RemoveUsedTags(project::TagList& pool, const std::vector<ExpectedTag>& used);

// Turns off, in the file, every run with an entry that was not found. The lists must have been checked.
void DisableRunsWithErrors(config::FileIni& ini, const ExpectedTags& expected, const std::string& file);

} // namespace gfc::binding
