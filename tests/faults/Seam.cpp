#include "faults/Seam.h"

#include "faults/Played.h"

#include <array>
#include <csignal>
#include <string_view>
#include <unistd.h>
#include <utility>

namespace gfc::test::faults {

namespace {

constexpr std::size_t MostDescriptors = 1024;

struct State {
    std::string Folder; // empty while nothing is watched
    bool Closed = false;
    Plan ThePlan;
    long Counted = 0;
    long Hit = 0;
    std::vector<Call> Calls;
    std::array<std::string, MostDescriptors> OpenAs; // empty for what is not watched
};

State& TheState() {
    static State state;
    return state;
}

std::string* Slot(int fd) {
    const bool known = fd >= 0 && static_cast<std::size_t>(fd) < MostDescriptors;
    return known ? &TheState().OpenAs[static_cast<std::size_t>(fd)] : nullptr;
}

bool IsMeant(long number) {
    const Plan& plan = TheState().ThePlan;
    return number >= plan.First && number - plan.First < plan.Count;
}

} // namespace

bool Concerns(const char* path) {
    const State& state = TheState();
    return !state.Folder.empty() && path != nullptr && std::string_view(path).starts_with(state.Folder);
}

bool Concerns(int fd) {
    const std::string* slot = Slot(fd);
    return !TheState().Folder.empty() && slot != nullptr && !slot->empty();
}

const std::string& NameOf(int fd) {
    static const std::string none;
    const std::string* slot = Slot(fd);
    return slot == nullptr ? none : *slot;
}

void Remember(int fd, const char* path) {
    if (std::string* slot = Slot(fd))
        *slot = path;
}

void Forget(int fd) {
    if (std::string* slot = Slot(fd))
        slot->clear();
}

void Die() {
    ::kill(::getpid(), SIGKILL);
    for (;;)
        ::pause();
}

Effect NextEffect() {
    State& state = TheState();
    if (!IsMeant(++state.Counted))
        return Effect::Nothing;
    if (state.ThePlan.TheEffect == Effect::Kills)
        Die();
    if (state.ThePlan.TheEffect != Effect::Nothing)
        ++state.Hit;
    return state.ThePlan.TheEffect;
}

int PlannedError() {
    return TheState().ThePlan.Error;
}

void NoteCall(Call call) {
    TheState().Calls.push_back(std::move(call));
}

std::size_t Portion(int fd, std::size_t count) {
    const State& state = TheState();
    const bool half = Concerns(fd) && state.ThePlan.TheEffect == Effect::Half && IsMeant(state.Counted + 1);
    return half && count > 1 ? count / 2 : count;
}

void Close(bool closed) {
    TheState().Closed = closed;
}

bool IsClosedTo(const std::string& path) {
    const State& state = TheState();
    return state.Closed && !state.Folder.empty() && path.substr(0, path.rfind('/')) == state.Folder;
}

void Watch(const std::string& folder, const Plan& plan) {
    State& state = TheState();
    state.ThePlan = plan;
    state.Counted = 0;
    state.Hit = 0;
    state.Calls.clear();
    state.Folder = folder;
}

void Heal() {
    TheState().ThePlan = {};
}

void Unwatch() {
    TheState().Folder.clear();
}

long CallsCounted() {
    return TheState().Counted;
}

long CallsHit() {
    return TheState().Hit;
}

const std::vector<Call>& CallsMade() {
    return TheState().Calls;
}

} // namespace gfc::test::faults
