#include "Plant.h"

#include "config/Vocabulary.h"
#include "support/TestFolders.h"

#include <algorithm>
#include <fstream>
#include <sstream>

namespace gfc::test {

namespace {

std::vector<std::string> Split(const std::string& text, char at) {
    std::vector<std::string> parts;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, at);)
        parts.push_back(part);
    return parts;
}

// "1,2,3:GC_C1KDIO?"
void AddRight(const std::string& text, Plant& plant) {
    const auto colon = text.find(':');
    const bool sure = text.back() != '?';
    const std::string stem = text.substr(colon + 1, text.size() - colon - (sure ? 1 : 2));
    for (const std::string& run : Split(text.substr(0, colon), ','))
        plant.Right[{std::stoi(run), stem}].push_back({plant.Tags.size() - 1, sure});
}

void AddTag(const std::vector<std::string>& fields, Plant& plant) {
    plant.Tags.push_back({.TagName = fields.at(1),
                          .RegAddr = std::stoi(fields.at(3)),
                          .RegType = fields.at(2),
                          .ModuleName = fields.at(4),
                          .ModuleType = fields.at(5)});
    if (fields.size() > 6)
        AddRight(fields[6], plant);
}

void ReadLine(const std::string& line, Plant& plant) {
    const auto fields = Split(line, '\t');
    const std::map<std::string, std::string*> texts = {{"about", &plant.About},
                                                       {"named", &plant.Named},
                                                       {"standard", &plant.Standard},
                                                       {"source", &plant.Source}};
    if (const auto text = texts.find(fields.at(0)); text != texts.end())
        *text->second = fields.at(1);
    else if (fields[0] == "held")
        plant.IsHeld = fields.at(1) == "yes";
    else if (fields[0] == "extra")
        plant.FixedComposition = fields.at(1) == "fixed";
    else if (fields[0] == "runs")
        for (const std::string& run : Split(fields.at(1), ' '))
            plant.Runs.push_back(std::stoi(run));
    else
        AddTag(fields, plant);
}

std::filesystem::path Folder() {
    return SourceFolder().parent_path() / "tests" / "suggest" / "plants";
}

} // namespace

std::vector<suggest::Want> Plant::Wants() const {
    binding::Conditions conditions;
    conditions.FlowAlgorithm = Standard;
    conditions.GasDensitySource = Source;
    conditions.Measured = Source == config::source::Measured;
    conditions.CompositionMeasured = !FixedComposition;
    std::vector<suggest::Want> wants;
    for (const int run : Runs)
        std::ranges::copy(suggest::VariablesOfRun(run, conditions), std::back_inserter(wants));
    return wants;
}

suggest::Question Plant::Question() const {
    project::TagInventory inventory;
    project::BuildInventory(Tags, inventory);
    return {suggest::OfferedTags(inventory, {}), Runs, Wants(), {}, {}};
}

const std::vector<RightTag>* Plant::RightFor(const suggest::Want& want) const {
    const auto right = Right.find({want.Run, std::string(want.Row->Stem)});
    return right == Right.end() ? nullptr : &right->second;
}

Plant ReadPlant(const std::string& name) {
    Plant plant;
    plant.Name = name;
    std::ifstream file(Folder() / (name + ".txt"));
    for (std::string line; std::getline(file, line);)
        ReadLine(line, plant);
    return plant;
}

std::vector<Plant> ReadPlants() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(Folder()))
        if (entry.path().extension() == ".txt")
            names.push_back(entry.path().stem().string());
    std::ranges::sort(names);
    std::vector<Plant> plants;
    for (const std::string& name : names)
        plants.push_back(ReadPlant(name));
    return plants;
}

} // namespace gfc::test
