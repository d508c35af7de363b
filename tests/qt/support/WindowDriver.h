#pragma once

#include "support/Driver.h"

#include <QString>
#include <QWidget>
#include <gtest/gtest.h>

class QAbstractButton;
class QAction;
class QLineEdit;
class QMenu;

namespace gfc::test {

// A person before the real windows: finds them by name and moves mouse and keys. It knows nothing of the
// forms behind them.
class WindowDriver : public Driver {
public:
    void Click(const std::string& form, const std::string& control) override;
    void Keys(const std::string& form, const std::string& control, const std::string& keys) override;
    void Type(const std::string& form, const std::string& control, const std::string& text) override;
    void Focus(const std::string& form, const std::string& control) override;
    void Select(const std::string& form, const std::string& list, int index) override;
    void SelectTab(const std::string& form, const std::string& pane, int tab) override;
    void ClickRow(const std::string& form, const std::string& list, int row) override;
    void OpenRow(const std::string& form, const std::string& list, int row) override;
    void MarkRow(const std::string& form, const std::string& list, int row) override;
    void ClickNode(const std::string& form, const std::string& tree, const std::string& path) override;
    void RightClickNode(const std::string& form, const std::string& tree, const std::string& path) override;
    void Menu(const std::string& form, const std::string& entry) override;
    void PressKey(const std::string& form, const std::string& key) override;
    void CloseWindow(const std::string& form) override;
    void Tick(const std::string& form, const std::string& timer) override;

    bool IsShown(const std::string& form) override;
    std::string Caption(const std::string& form) override;
    bool Visible(const std::string& form, const std::string& control) override;
    bool Enabled(const std::string& form, const std::string& control) override;
    std::string Text(const std::string& form, const std::string& control) override;
    bool Checked(const std::string& form, const std::string& control) override;
    int Rows(const std::string& form, const std::string& list) override;
    std::string Cell(const std::string& form, const std::string& list, int row, int column) override;
    std::string NodeImage(const std::string& form, const std::string& tree, const std::string& path) override;
    int Tab(const std::string& form, const std::string& pane) override;
    std::string Focused(const std::string& form) override;

    // Whether the next act can be done now, or only once the platform has done its part.
    [[nodiscard]] virtual bool Ready() const { return true; }
    // In the dialogs that are none of the program's forms.
    virtual void PressButton(QAbstractButton& button);
    // Takes the place of what the field holds.
    virtual void Fill(QLineEdit& field, const std::string& text);

protected:
    // The widget if a person can use it now: shown, enabled, in a window that no other one blocks. Else null,
    // with a failure reported.
    template <class W>
    W* Usable(const std::string& form, const std::string& control) {
        QWidget* widget = UsableWidget(form, control);
        auto* fitting = dynamic_cast<W*>(widget);
        EXPECT_EQ(widget == nullptr, fitting == nullptr) << form << "." << control << " is of another kind";
        return fitting;
    }

private:
    QWidget* UsableWidget(const std::string& form, const std::string& control);
    enum class Press { Once, Twice, Box };
    void PressRow(const std::string& form, const std::string& list, int row, Press press);
    void PressNode(const std::string& form, const std::string& tree, const std::string& path,
                   Qt::MouseButton button);
    bool Enter(QLineEdit& field);
    void PressMenu(QMenu& menu, QAction& entry);
};

// The visible window of that name; null if there is none.
[[nodiscard]] QWidget* FindWindow(const std::string& form);

// Lets what the last act has left to be done be done.
void Settle();

} // namespace gfc::test
