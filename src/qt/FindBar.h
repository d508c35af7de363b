#pragma once

#include <QString>
#include <QWidget>

#include <functional>

class QLabel;
class QLineEdit;
class QPushButton;

namespace gfc::ui {
class Control;
class ListView;
class Tree;
} // namespace gfc::ui

namespace gfc::qt {

class FormWindow;

// A bar at the foot of a window in which a person looks for rows of its lists, in the order in which they are
// seen, and for nodes of its trees: Enter or F3 goes to the next one, with Shift to the one before, exactly
// as a click on it would; Escape closes it. The number of a row is not looked at, nor the case of letters.
class FindBar : public QWidget {
public:
    explicit FindBar(FormWindow& window);

    // For the list or tree that has the focus, else the one looked in before, else the first list that can be
    // used. Stays closed if there is none.
    void Open();
    void Next() { Jump(false); }
    void Previous() { Jump(true); }
    void Close();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    // What is looked through: rows as they are seen, or nodes. Places and items are counted from 1.
    struct Places {
        int Count = 0;
        int Selected = 0; // the place of the selected item; 0 for none
        std::function<int(int place)> ItemAt;
        std::function<bool(int item)> Holds;
        std::function<QString(int item)> NameOf;
    };
    [[nodiscard]] Places PlacesOf(ui::Control& where) const;
    [[nodiscard]] Places PlacesOf(ui::ListView& list) const;
    [[nodiscard]] Places PlacesOf(ui::Tree& tree) const;

    void Jump(bool upwards);
    void Click(int item);
    void TellOfTyped();
    void Tell(const QString& words);
    // The list or tree that is looked in now; null if there is none.
    [[nodiscard]] ui::Control* Where() const;
    [[nodiscard]] QWidget* WidgetOf(const ui::Control& where) const;
    QPushButton* AddButton(const QString& text, const QString& keys);

    FormWindow& window_;
    QString name_; // of what is looked in
    QLabel* where_;
    QLineEdit* text_;
    QLabel* result_;
};

} // namespace gfc::qt
