#include "faults/Theatre.h"

#include "faults/Records.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <ctime>
#include <fstream>
#include <iostream>
#include <sstream>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace gfc::test::faults {

namespace {

constexpr std::size_t MostText = 1U << 18U;
constexpr unsigned PatienceInSeconds = 20;
// Before the last of so many more attempts the disk is mended.
constexpr long AttemptsUntilHealed = 3;

// Memory that the runner, the stage and its trials share: it outlives every one of them.
struct Board {
    Plan ThePlan;
    long KillAfter;
    bool Persists;
    bool TriedAgain;
    bool Finished;
    bool Failed;
    long Counted;
    long Hit;
    char Said[MostText];
    char Calls[MostText];
};

Board& TheBoard() {
    static Board* const board = static_cast<Board*>(
        ::mmap(nullptr, sizeof(Board), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
    return *board;
}

void Wipe(Board& board, const Plan& plan, long killAfter, bool persists) {
    board.ThePlan = plan;
    board.KillAfter = killAfter;
    board.Persists = persists;
    board.TriedAgain = false;
    board.Finished = board.Failed = false;
    board.Counted = board.Hit = 0;
    board.Said[0] = board.Calls[0] = '\0';
}

void Write(char (&to)[MostText], const std::string& text) {
    to[text.copy(to, MostText - 1)] = '\0';
}

std::string TextOf(const std::vector<Call>& calls) {
    std::string text;
    for (const Call& call : calls)
        text += call.Name + '|' + call.Path + '|' + call.Other + '|' + (call.Done ? "1" : "0") + '\n';
    return text;
}

std::vector<Call> CallsOf(const std::string& text) {
    std::vector<Call> calls;
    std::istringstream lines(text);
    std::string done;
    for (Call call; std::getline(lines, call.Name, '|'); calls.push_back(call)) {
        std::getline(lines, call.Path, '|');
        std::getline(lines, call.Other, '|');
        std::getline(lines, done);
        call.Done = done == "1";
    }
    return calls;
}

Words WordsOf(const std::string& text) {
    Words words;
    std::istringstream pieces(text);
    for (std::string piece; std::getline(pieces, piece, '\f');)
        words.push_back(piece);
    return words;
}

// SIGKILL at a moment that the machine's clock chooses.
void KillAfter(long microseconds) {
    sigevent event{};
    event.sigev_notify = SIGEV_SIGNAL;
    event.sigev_signo = SIGKILL;
    timer_t timer{};
    itimerspec when{};
    when.it_value.tv_sec = microseconds / 1'000'000;
    when.it_value.tv_nsec = microseconds % 1'000'000 * 1000 + 1;
    if (::timer_create(CLOCK_MONOTONIC, &event, &timer) == 0)
        ::timer_settime(timer, 0, &when, nullptr);
}

bool ChecksFailed() {
    return ::testing::UnitTest::GetInstance()->ad_hoc_test_result().Failed();
}

int Wait(pid_t child) {
    int status = 0;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR)
        continue;
    return status;
}

// Runs in a process of its own, which ends with it.
template <class Work>
pid_t Fork(Work work) {
    std::cout.flush();
    const pid_t child = ::fork();
    if (child != 0)
        return child;
    work();
    std::cout.flush();
    ::_exit(ChecksFailed() ? 1 : 0);
}

void NoteEnd(Board& board) {
    board.Counted = CallsCounted();
    board.Hit = CallsHit();
    Unwatch();
    Write(board.Calls, TextOf(CallsMade()));
    board.Failed = ChecksFailed();
    board.Finished = true;
}

} // namespace

Theatre::Theatre(const Operation& operation) : operation_(operation) {
    operation_.Lay(room_.Folder());
    (void)TheBoard();
    if (::pipe(orders_.data()) != 0 || ::pipe(answers_.data()) != 0)
        return;
    stage_ = Fork([this] {
        const Stage stage{[this] { Serve(); }, [this](const std::string& words) { Say(words); },
                          [this] { return TriesAgain(); }};
        operation_.Play(room_.Folder(), stage);
        NoteEnd(TheBoard()); // of a trial; the stage itself does not come here
    });
    ::close(orders_[0]);
    ::close(answers_[1]);
    int status = 0;
    ready_ = HearStatus(status);
    laid_ = ContentOf(room_.Folder());
    before_ = Look();
    Restore(room_.Folder(), laid_);
}

Theatre::~Theatre() {
    ::close(orders_[1]);
    ::close(answers_[0]);
    if (stage_ > 0)
        (void)Wait(stage_);
}

Content Theatre::Look() const {
    Content content = operation_.Look(room_.Folder());
    ReadRecords(room_.Folder(), content);
    for (auto& [name, entry] : content)
        if (operation_.Essence)
            entry.Bytes = operation_.Essence(name, std::move(entry.Bytes));
    return content;
}

bool Theatre::HearStatus(int& status) const {
    return ::read(answers_[0], &status, sizeof status) == sizeof status;
}

void Theatre::Serve() {
    ::close(orders_[1]);
    ::close(answers_[0]);
    char order = 0;
    for (int status = 0; ::write(answers_[1], &status, sizeof status) == sizeof status;) {
        if (::read(orders_[0], &order, 1) != 1)
            ::_exit(0);
        const pid_t trial = ::fork();
        if (trial == 0)
            break;
        status = Wait(trial);
    }
    ::alarm(PatienceInSeconds);
    const Board& board = TheBoard();
    if (board.KillAfter > 0)
        KillAfter(board.KillAfter);
    Watch(room_.Folder().string(), board.ThePlan);
}

void Theatre::Say(const std::string& words) {
    said_ += words + '\f';
    Write(TheBoard().Said, said_);
}

bool Theatre::TriesAgain() {
    Board& board = TheBoard();
    if (!board.Persists)
        return false;
    board.TriedAgain = true;
    if (++attempts_ >= AttemptsUntilHealed)
        Heal();
    return true;
}

Ending Theatre::Run(const Plan& plan, long killAfter, bool persists) {
    Restore(room_.Folder(), laid_);
    return RunAsLaid(plan, killAfter, persists);
}

Ending Theatre::RunAfterAddition(const std::string& file, const std::string& addition) {
    Restore(room_.Folder(), laid_);
    std::ofstream(room_.Folder() / file, std::ios::binary | std::ios::app) << addition;
    return RunAsLaid({}, 0, false);
}

Ending Theatre::RunAsLaid(const Plan& plan, long killAfter, bool persists) {
    Board& board = TheBoard();
    Wipe(board, plan, killAfter, persists);
    int status = 0;
    Ending ending;
    ending.Failed = ::write(orders_[1], "x", 1) != 1 || !HearStatus(status);
    ending.Killed = WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
    ending.Failed |= !ending.Killed && (!WIFEXITED(status) || WEXITSTATUS(status) != 0 || !board.Finished);
    ending.Persisted = board.TriedAgain;
    ending.Counted = board.Counted;
    ending.Hit = board.Hit;
    ending.Said = WordsOf(board.Said);
    ending.Calls = CallsOf(board.Calls);
    ending.Left = Look();
    return ending;
}

bool Theatre::StartsAgain() const {
    const int status = Wait(Fork([this] { operation_.StartAgain(room_.Folder()); }));
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0)
        return false;
    for (const auto& [name, entry] : ContentOf(room_.Folder()))
        if (IsLeftover(name))
            return false;
    return true;
}

} // namespace gfc::test::faults
