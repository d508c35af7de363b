// Makes every operation on files fail and die at every call, and says what became of the files.
#include "faults/Series.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <iomanip>
#include <iostream>
#include <string_view>

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

bool PlayAll(const Settings& settings) {
    std::vector<Operation> operations = ProgramOperations();
    for (Operation& operation : WorkshopOperations())
        operations.push_back(std::move(operation));
    for (Operation& operation : PlanOperations())
        operations.push_back(std::move(operation));
    for (Operation& operation : DraftOperations())
        operations.push_back(std::move(operation));
    for (Operation& operation : RecordOperations())
        operations.push_back(std::move(operation));
    Tally failures;
    Tally kills;
    long calls = 0;
    long faulty = 0;
    PrintHead();
    for (const Operation& operation : operations) {
        if (operation.Name.find(settings.Only) == std::string::npos)
            continue;
        Series series(operation, settings);
        series.Play(settings.RandomKills / static_cast<long>(operations.size()));
        PrintRow(operation.Name, series.Calls(), series.Failures(), series.Kills());
        failures += series.Failures();
        kills += series.Kills();
        calls += series.Calls();
        faulty += series.Faulty();
    }
    PrintRow("together", calls, failures, kills);
    std::cout << faulty << " faulty\n";
    return faulty == 0;
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
        else
            return std::cerr << "usage: faults [--deep] [--kills N] [--seed S] [--only PART]\n", EXIT_FAILURE;
    }
    return PlayAll(settings) ? EXIT_SUCCESS : EXIT_FAILURE;
}
