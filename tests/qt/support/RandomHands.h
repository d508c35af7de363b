#pragma once

#include <QAbstractItemView>
#include <QPoint>
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
    RandomHands(QWidget& window, unsigned seed) : window_(window), random_(seed) {}

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
    std::mt19937 random_;
    Qt::MouseButton down_ = Qt::NoButton;
    QPoint last_; // where the pointer stands, in the window
};

// Success if each list, tree and drop-down list of the window highlights what its control has selected, and
// nothing else.
[[nodiscard]] ::testing::AssertionResult HighlightsWhatIsSelected(const ui::Form& form, QWidget& window);

} // namespace gfc::test
