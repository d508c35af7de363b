#include "forms/program/Storage.h"

#include "ui/Screen.h"

#include <array>
#include <string_view>

namespace gfc::forms {

namespace {

// In the order of the enumeration.
constexpr std::array<std::string_view, 5> StandingWords = {
    "The file stands as it was before.",
    "The file holds the new values, but the system does not confirm that they are safe on the disk.",
    "There is no such file now.",
    "The file holds something else now: another program has written it.",
    "What stands there now cannot be read.",
};

std::string TextOf(const std::string& lost, const std::string& file, const config::Outcome& outcome) {
    std::string text = lost + "\r\n" + file + "\r\n\r\nThe system says: " + outcome.Reason() + "\r\n";
    return text.append(StandingWords.at(static_cast<std::size_t>(outcome.Stands())));
}

} // namespace

bool Storage::WishesToRetry(const Telling& telling, const std::string& file, const config::Outcome& outcome) {
    const auto answer = screen_.Ask({.Title = telling.Title,
                                     .Text = TextOf(telling.Lost, file, outcome),
                                     .TheIcon = ui::Icon::Exclamation,
                                     .TheButtons = ui::Buttons::RetryClose});
    return answer == ui::Answer::Retry && !screen_.Ended();
}

template <class Try>
bool Storage::UntilStored(const Telling& telling, const std::string& file, Try tryOnce) {
    for (;;) {
        const config::Outcome outcome = tryOnce();
        if (outcome)
            return true;
        if (screen_.Ended() || !WishesToRetry(telling, file, outcome))
            return false;
    }
}

bool Storage::Change(const Telling& telling, const std::string& file,
                     const config::FileIni::Changes& changes) {
    return UntilStored(telling, file, [&] { return ini_.Store(file, changes); });
}

bool Storage::PutAnew(const Telling& telling, const std::string& file,
                      const config::FileIni::Changes& changes, const std::function<bool()>& makeWay) {
    bool givenUp = false;
    const auto way = [&] { return !(givenUp = !makeWay()); };
    const bool stored = UntilStored(telling, file, [&] {
        auto outcome = ini_.StoreAnew(file, changes, way);
        return givenUp ? config::Outcome() : outcome;
    });
    return stored && !givenUp;
}

bool Storage::Put(const Telling& telling, const std::string& file, std::string_view bytes) {
    return UntilStored(telling, file, [&] { return ini_.StoreBytes(file, bytes); });
}

bool Storage::Copy(const Telling& telling, const std::string& from, const std::string& to) {
    bool tried = false;
    return UntilStored(telling, to, [&] {
        // A failing disk may have kept the copy from being taken back, which would be in its own way now.
        if (std::exchange(tried, true) && AreAlike(from, to))
            (void)ini_.DeleteConfigFile(to);
        return ini_.CopyConfigFile(from, to);
    });
}

bool Storage::AreAlike(const std::string& one, const std::string& other) {
    const auto bytes = files_.Read(one);
    return bytes && bytes == files_.Read(other);
}

config::Outcome Storage::TryToDelete(const std::string& file) {
    return ini_.DeleteConfigFile(file);
}

} // namespace gfc::forms
