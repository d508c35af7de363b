#pragma once

#include "qt/support/WindowDriver.h"

#include <QKeyCombination>

class QAbstractButton;

namespace gfc::test {

// A person who has no mouse: every act is made of keys that go to whatever has the focus. It reads from the
// widgets where it stands, as a person does, and reaches everything else by Tab and the arrows.
class KeyboardDriver final : public WindowDriver {
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

    // Keys go to the window in front once it is the active one.
    [[nodiscard]] bool Ready() const override;
    void PressButton(QAbstractButton& button) override;
    void Fill(QLineEdit& field, const std::string& text) override;

    // One key to the window that has the focus.
    static void Stroke(QKeyCombination key, const QString& text = {});

private:
    // How the focus came to where it should: not at all if a field that it should leave has kept it, or if it
    // does not lead there.
    enum class Way { ByTab, ByArrows, Kept, Lost };
    Way GoTo(QWidget& target);
    Way TabTo(QWidget& target);
    Way ArrowsTo(QWidget& target);
    bool Enter(QWidget& target);
    void GoToRow(const std::string& form, const std::string& list, int row);
    void Write(const std::string& text);
    void OpenMenuOf(QAction& entry);
    void ChooseInMenu(QMenu& menu, const QAction& entry);
};

} // namespace gfc::test
