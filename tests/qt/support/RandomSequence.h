#pragma once

#include "qt/QtScreen.h"
#include "qt/support/RandomHands.h"

#include <QPointer>
#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <string>

namespace gfc::test {

// Of all random sequences: GFC_SEED of the environment, or the usual one.
[[nodiscard]] unsigned Seed();

// Says on the way how much was done, and how to do it again.
void TellOf(const char* what, int events);

// Boxes are answered at once, menus and help stay closed.
class QuickScreen : public qt::QtScreen {
public:
    std::function<ui::Answer(const ui::Box&)> OnAsk;
    ui::Answer Ask(const ui::Box& box) override;
    void PopUp(ui::MenuEntry&) override {}
    void OpenHelp(const std::string&, int) override {}
    bool ViewText(const std::string&, ui::WindowState) override { return true; }
};

// Events at random, with what the form's side does in between, until something is not as it is shown.
class Sequence {
public:
    Sequence(ui::Form& form, QWidget& window, unsigned seed)
        : Hands(window, seed), form_(form), window_(&window), seed_(seed) {}

    RandomHands Hands;
    std::function<std::string()> Between; // something of the form's own; the text says what
    std::function<::testing::AssertionResult()> Also;

    // The events that were sent until the window went, at most that many.
    int Run(int events);

private:
    bool Holds();
    void Note(const std::string& event);
    void Tell(int sent);

    ui::Form& form_;
    QPointer<QWidget> window_;
    unsigned seed_;
    std::deque<std::string> trail_;
    ::testing::AssertionResult outcome_ = ::testing::AssertionSuccess();
};

} // namespace gfc::test
