#include "support/NamedEnd.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>

#ifndef _WIN32
#include <unistd.h>
#endif

namespace gfc::test {
namespace {

constexpr unsigned patienceInSeconds = 120;

// Made beforehand: a program that is being ended can hardly put texts together.
std::string last = "before the first test\n";

extern "C" void Tell(int signal) {
    std::fputs(last.c_str(), stderr);
    std::fflush(stderr);
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

// Whoever runs a program by hand may stand in a debugger for as long as he likes.
void Watch([[maybe_unused]] unsigned seconds) {
#ifndef _WIN32
    if (std::getenv("GTEST_TOTAL_SHARDS"))
        ::alarm(seconds);
#endif
}

class Names : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo& test) override {
        last = std::string("[  ENDED   ] ") + test.test_suite_name() + "." + test.name() + "\n";
        Watch(patienceInSeconds);
    }
    void OnTestEnd(const testing::TestInfo& test) override {
        Watch(0);
        last = std::string("[  ENDED   ] after ") + test.test_suite_name() + "." + test.name() + "\n";
    }
};

} // namespace

void NameTheTestOfAnEnd() {
    testing::UnitTest::GetInstance()->listeners().Append(new Names); // which takes it over
    std::signal(SIGABRT, Tell);
#ifndef _WIN32
    std::signal(SIGALRM, Tell);
#endif
#ifndef GFC_SANITIZED // whose own report holds more
    for (const int signal : {SIGSEGV, SIGFPE, SIGILL})
        std::signal(signal, Tell);
#endif
}

} // namespace gfc::test
