#include "tools/ProfileReplay.h"

#include <fstream>
#include <iostream>

// profile_replay CASES.jsonl: replays the cases of a file, names those that fail, and ends with the count.
int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "Usage: profile_replay CASES.jsonl\n";
        return 2;
    }
    std::ifstream cases(argv[1], std::ios::binary);
    if (!cases) {
        std::cerr << argv[1] << ": cannot be read\n";
        return 2;
    }
    int passed = 0;
    int failed = 0;
    for (const auto& outcome : gfc::test::ReplayProfileCases(cases)) {
        ++(outcome.Failure.empty() ? passed : failed);
        if (!outcome.Failure.empty())
            std::cout << outcome.Id << ": " << outcome.Failure << '\n';
    }
    std::cout << passed << " passed, " << failed << " failed\n";
    return failed == 0 ? 0 : 1;
}
