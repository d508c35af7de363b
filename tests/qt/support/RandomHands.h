#pragma once

#include <QAbstractItemView>
#include <QPoint>
#include <QPointer>
#include <QWidget>
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace gfc::ui {
class Form;
}

namespace gfc::test {

// A hurried person before a window: presses, drags and lets go with any button wherever lists, trees and
// drop-down lists stand, turns the wheel and types, without waiting for anything to be worked off in between.
class RandomHands {
public:
    // The same seed does the same to the same window.
    RandomHands(QWidget& window, unsigned seed) : window_(window), still_(&window), random_(seed) {}
    // Lets go of what is pressed: the next hands find the mouse as it should be.
    ~RandomHands();
    RandomHands(const RandomHands&) = delete;
    RandomHands& operator=(const RandomHands&) = delete;

    // Sends one event and tells which.
    std::string Act();
    // 0 to count - 1.
    [[nodiscard]] int Draw(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random_); }
    [[nodiscard]] bool OneIn(int count) { return Draw(count) == 0; }

private:
    [[nodiscard]] QPoint SomePoint();
    std::string Mouse();
    std::string Wheel();
    std::string Key();
    std::string Popup(QWidget& popup);

    QWidget& window_;
    QPointer<QWidget> still_; // null once the window has gone
    std::mt19937 random_;
    Qt::MouseButton down_ = Qt::NoButton;
    QPoint last_; // where the pointer stands, in the window
};

// Success if each list, tree and drop-down list of the window highlights what its control has selected, and
// nothing else.
[[nodiscard]] ::testing::AssertionResult HighlightsWhatIsSelected(const ui::Form& form, QWidget& window);

} // namespace gfc::test
