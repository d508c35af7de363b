#pragma once

#include "config/FileIni.h"

#include <functional>
#include <string>
#include <utility>

namespace gfc::ui {
class Screen;
}

namespace gfc::forms {

// The one way by which the forms change files. What is not stored is told in a box with the file, the
// system's reason and what stands there now. Retry does it once more, on the file as it stands by then, with
// all that was entered still in hand; Close gives it up.
class Storage {
public:
    Storage(platform::Files& files, ui::Screen& screen) : files_(files), ini_(files), screen_(screen) {}

    // For reading: what is changed through it would be changed behind the back of this class.
    [[nodiscard]] const config::FileIni& Ini() const { return ini_; }

    // Told of each file before it is written, made or deleted; may be empty.
    void Watch(std::function<void(const std::string& file)> onTouch) { ini_.OnTouch = std::move(onTouch); }

    // What a person is told. Lost is a sentence: "The run was not saved."
    struct Telling {
        std::string Lost;
        std::string Title = "Gas Flow Computer";
    };

    // Each gives false once a person has given it up, and where the program has ended meanwhile.
    [[nodiscard]] bool Change(const Telling& telling, const std::string& file,
                              const config::FileIni::Changes& changes);
    // makeWay may give up too, and has then told so itself.
    [[nodiscard]] bool PutAnew(const Telling& telling, const std::string& file,
                               const config::FileIni::Changes& changes, const std::function<bool()>& makeWay);
    [[nodiscard]] bool Put(const Telling& telling, const std::string& file, std::string_view bytes);
    [[nodiscard]] bool Copy(const Telling& telling, const std::string& from, const std::string& to);

    // Once, and without a word.
    [[nodiscard]] config::Outcome TryToDelete(const std::string& file);

private:
    template <class Try>
    bool UntilStored(const Telling& telling, const std::string& file, Try tryOnce);
    [[nodiscard]] bool WishesToRetry(const Telling& telling, const std::string& file,
                                     const config::Outcome& outcome);

    [[nodiscard]] bool AreAlike(const std::string& one, const std::string& other);

    platform::Files& files_;
    config::FileIni ini_;
    ui::Screen& screen_;
};

} // namespace gfc::forms
