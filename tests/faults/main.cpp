// Makes every operation on files fail and die at every call, and says what became of the files.
#include "faults/Series.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <iomanip>
#include <iostream>
#include <string_view>
#include <vector>

namespace gfc::test::faults {

namespace {

void PrintHead() {
    std::cout << std::left << std::setw(34) << "operation" << std::right << std::setw(6) << "calls"
              << " | " << std::setw(7) << "faults" << std::setw(7) << "old" << std::setw(7) << "new"
              << std::setw(9) << "between" << std::setw(6) << "torn" << std::setw(7) << "told"
              << std::setw(10) << "not told"
              << " | " << std::setw(7) << "kills" << std::setw(7) << "old" << std::setw(7) << "new"
              << std::setw(9) << "between" << std::setw(6) << "torn" << std::setw(10) << "restarts"
              << "\n";
}

void PrintRow(const std::string& name, long calls, const Tally& failures, const Tally& kills) {
    std::cout << std::left << std::setw(34) << name << std::right << std::setw(6) << calls;
    for (const Tally* tally : {&failures, &kills}) {
        std::cout << " | " << std::setw(7) << tally->Runs << std::setw(7) << tally->Of[0] << std::setw(7)
                  << tally->Of[1] << std::setw(9) << tally->Of[2] << std::setw(6) << tally->Of[3];
        if (tally == &failures)
            std::cout << std::setw(7) << tally->Spoke << std::setw(10) << tally->NotTold;
        else
            std::cout << std::setw(10) << tally->Restarts;
    }
    std::cout << std::endl;
}

std::vector<Operation> AllOperations() {
    std::vector<Operation> all;
    for (auto* some :
         {ProgramOperations, WorkshopOperations, PlanOperations, DraftOperations, RecordOperations})
        for (Operation& operation : some())
            all.push_back(std::move(operation));
    return all;
}

void ListAll() {
    for (const Operation& operation : AllOperations())
        std::cout << operation.Name << "\n";
}

bool IsMeant(const Operation& operation, const Settings& settings) {
    return settings.One.empty() ? operation.Name.find(settings.Only) != std::string::npos
                                : operation.Name == settings.One;
}

bool PlayAll(const Settings& settings) {
    const std::vector<Operation> operations = AllOperations();
    Tally failures;
    Tally kills;
    long calls = 0;
    long faulty = 0;
    long played = 0;
    PrintHead();
    for (const Operation& operation : operations) {
        if (!IsMeant(operation, settings))
            continue;
        Series series(operation, settings);
        series.Play(settings.RandomKills / static_cast<long>(operations.size()));
        PrintRow(operation.Name, series.Calls(), series.Failures(), series.Kills());
        failures += series.Failures();
        kills += series.Kills();
        calls += series.Calls();
        faulty += series.Faulty();
        ++played;
    }
    if (settings.One.empty())
        PrintRow("together", calls, failures, kills);
    std::cout << faulty << " faulty\n";
    return faulty == 0 && played > 0;
}

} // namespace

} // namespace gfc::test::faults

int main(int argc, char** argv) {
    using namespace gfc::test::faults;
    ::testing::InitGoogleTest(&argc, argv);
    Settings settings;
    for (int i = 1; i < argc; ++i) {
        const std::string_view word = argv[i];
        const bool more = i + 1 < argc;
        if (word == "--deep")
            settings.Deep = true;
        else if (word == "--kills" && more)
            settings.RandomKills = std::atol(argv[++i]);
        else if (word == "--seed" && more)
            settings.Seed = static_cast<unsigned>(std::atol(argv[++i]));
        else if (word == "--only" && more)
            settings.Only = argv[++i];
        else if (word == "--one" && more)
            settings.One = argv[++i];
        else if (word == "--list")
            return ListAll(), EXIT_SUCCESS;
        else
            return std::cerr << "usage: faults [--deep] [--kills N] [--seed S] [--only PART | --one NAME]\n"
                                "       faults --list\n",
                   EXIT_FAILURE;
    }
    return PlayAll(settings) ? EXIT_SUCCESS : EXIT_FAILURE;
}
