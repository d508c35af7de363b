#pragma once

#include "suggest/Suggest.h"

#include <map>
#include <string>
#include <vector>

namespace gfc::test {

// The right tags of one variable of one run.
struct RightTag {
    std::size_t Tag = 0;   // its place in the list
    bool MayBeSure = true; // false where nothing in the table proves it
};

// One table of tags/suggest/plants: a station with what is right for it.
struct Plant {
    std::string Name, About, Named, Standard, Source;
    bool IsHeld = false;
    bool FixedComposition = false;
    std::vector<int> Runs;
    project::TagList Tags;
    std::map<std::pair<int, std::string>, std::vector<RightTag>> Right; // by run and stem

    // All variables of all runs, in tree order, as the station would ask for them.
    [[nodiscard]] std::vector<suggest::Want> Wants() const;
    [[nodiscard]] suggest::Question Question() const;
    [[nodiscard]] const std::vector<RightTag>* RightFor(const suggest::Want& want) const;
};

// All plants, in the order of their names.
[[nodiscard]] std::vector<Plant> ReadPlants();
[[nodiscard]] Plant ReadPlant(const std::string& name);

} // namespace gfc::test
