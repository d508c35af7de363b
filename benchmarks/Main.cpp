#include "Contest.h"
#include "Table.h"

#include <QApplication>

#include <cstdlib>
#include <iostream>
#include <string_view>

namespace {

using namespace gfc::bench;

struct Options {
    std::string Document; // gets the tables; none if empty
    BuildTimes Times;
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
        else
            argv[kept++] = argv[i];
    }
    argc = kept;
    return options;
}

} // namespace

int main(int argc, char* argv[]) {
    const Options options = TakeOptions(argc, argv);
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return EXIT_FAILURE;
    for (auto* contest :
         {ContestKeys, ContestStations, ContestTree, ContestTags, ContestWindows, ContestProcesses})
        contest();
    Figures figures;
    Collector collector(figures);
    benchmark::RunSpecifiedBenchmarks(&collector);
    const std::string tables = TablesOf(figures, options.Times);
    std::cout << "\n" << tables;
    if (options.Document.empty() || PutBetweenMarks(options.Document, tables))
        return EXIT_SUCCESS;
    std::cerr << options.Document << " lacks the two marks\n";
    return EXIT_FAILURE;
}
