#include "Contest.h"
#include "Table.h"

#include <QApplication>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace gfc::bench;

struct Options {
    std::string Document; // gets the tables; none if empty
    BuildTimes Times;
    std::vector<std::string> Rows; // all if empty
};

// Takes its own arguments out of the list; the rest is the library's.
Options TakeOptions(int& argc, char** argv) {
    Options options;
    int kept = 1;
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        const std::string value(argument.substr(std::min(argument.find('=') + 1, argument.size())));
        if (argument.starts_with("--write="))
            options.Document = value;
        else if (argument.starts_with("--clean-build="))
            options.Times.CleanBuild = std::atof(value.c_str());
        else if (argument.starts_with("--suite="))
            options.Times.Suite = std::atof(value.c_str());
        else if (!argument.starts_with('-'))
            options.Rows.emplace_back(argument);
        else
            argv[kept++] = argv[i];
    }
    argc = kept;
    return options;
}

// The contenders of a row take turns, one figure each in an order drawn by lot, so that a machine that is
// slow for a moment is slow for all of them. The rows follow each other: large ones leave a process that
// others would feel.
void Run(const std::string& row, Collector& collector) {
    for (const int scale : Scales)
        benchmark::RunSpecifiedBenchmarks(&collector, "^" + row + "/[^/]*/" + std::to_string(scale) + "/");
}

// False, once it has said so, for options that the library does not know.
bool Initialize(int argc, char** argv) {
    std::vector<char*> arguments(argv, argv + argc);
    std::string turns = "--benchmark_enable_random_interleaving=true";
    arguments.insert(arguments.begin() + 1, turns.data());
    int count = argc + 1;
    arguments.push_back(nullptr);
    benchmark::Initialize(&count, arguments.data());
    return !benchmark::ReportUnrecognizedArguments(count, arguments.data());
}

// In the order in which their contests were made.
std::vector<std::string> AllRows() {
    std::vector<std::string> rows;
    for (const Entry& entry : Entries())
        if (rows.empty() || rows.back() != entry.Row)
            rows.push_back(entry.Row);
    return rows;
}

// Those that are asked for; none, once it has said so, if one of them is not there.
std::vector<std::string> ChooseRows(const std::vector<std::string>& wanted) {
    const std::vector<std::string> all = AllRows();
    for (const std::string& row : wanted) {
        if (std::ranges::find(all, row) != all.end())
            continue;
        std::cerr << "There is no row \"" << row << "\". The rows are:\n";
        for (const std::string& there : all)
            std::cerr << "  " << there << "\n";
        return {};
    }
    return wanted.empty() ? all : wanted;
}

} // namespace

int main(int argc, char* argv[]) {
    const Options options = TakeOptions(argc, argv);
    const QApplication application(argc, argv);
    if (!Initialize(argc, argv))
        return EXIT_FAILURE;
    for (auto* contest : {ContestKeys, ContestStations, ContestRecord, ContestTree, ContestTags, ContestAudit,
                          ContestPlan, ContestWindows, ContestProcesses})
        contest();
    const std::vector<std::string> rows = ChooseRows(options.Rows);
    if (rows.empty())
        return EXIT_FAILURE;
    Figures figures;
    for (const Entry& entry : Entries())
        figures.Enter(entry.Row, entry.Contender);
    Collector collector(figures);
    for (const std::string& row : rows)
        Run(row, collector);
    const std::string tables = TablesOf(figures, options.Times);
    std::cout << "\n" << tables;
    if (options.Document.empty() || PutBetweenMarks(options.Document, tables))
        return EXIT_SUCCESS;
    std::cerr << options.Document << " lacks the two marks\n";
    return EXIT_FAILURE;
}
