#pragma once

#include <optional>
#include <string>
#include <vector>

namespace gfc::ui {

// A kind of file that can be written.
struct TargetKind {
    std::string Name;    // "Table"
    std::string Pattern; // "*.csv"
};

struct TargetChoice {
    std::string Title;
    std::string Name; // offered at first, with its ending
    std::vector<TargetKind> Kinds;
};

// What a screen with a machine behind it offers besides: ways for what a window shows to leave it. A screen
// that has them is this, too.
class Exchange {
public:
    virtual ~Exchange() = default;
    virtual void CopyText(const std::string& text) = 0;
    // The path of a file to be written, which a person has agreed to replace if it is there; nothing on
    // cancel.
    virtual std::optional<std::string> ChooseTarget(const TargetChoice& choice) = 0;
};

} // namespace gfc::ui
