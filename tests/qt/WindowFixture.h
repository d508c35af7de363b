#pragma once

#include "qt/FormWindow.h"
#include "qt/ProbeForm.h"
#include "qt/QtScreen.h"
#include "qt/support/WindowDriver.h"
#include "qt/support/WindowLooks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace gfc::test {

// A probe in its window, shown among others without a loop of its own: acts and looks follow each other.
class ProbeInWindow : public ::testing::Test {
protected:
    ProbeInWindow() {
        Screen.AddDesign({"Probe", SetUpProbe});
        Screen.AddDesign({"Second", SetUpProbe});
        Form->Show();
        Settle();
        Form->Log.clear();
    }

    template <class W>
    [[nodiscard]] W& Widget(const char* name) {
        return *FindIn<W>(FindWindow("Probe"), name);
    }
    [[nodiscard]] qt::FormWindow& Window() { return *Screen.WindowOf(*Form); }

    qt::QtScreen Screen;
    std::shared_ptr<ProbeForm> Form = std::make_shared<ProbeForm>(Screen);
    WindowDriver Hands;
};

} // namespace gfc::test
