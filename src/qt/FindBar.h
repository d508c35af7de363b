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

// The first row from that one on, counted from 1, that holds the text in a column other than that of its own
// number; upper and lower case are the same. Goes through all rows once, downwards or upwards, past the end
// and on at the other one. 0 if there is none, or if the text is empty.
[[nodiscard]] int FindRow(const ui::ListView& list, const QString& text, int from, bool upwards);

// The same for the nodes of a tree, those of closed branches included: the first whose text or note holds it.
[[nodiscard]] int FindNode(const ui::Tree& tree, const QString& text, int from, bool upwards);

// A bar at the foot of a window in which a person looks for rows of its lists, in the order in which they are
// seen, and for nodes of its trees: Enter or F3 goes to the next one, with Shift to the one before, exactly
// as a click on it would; Escape closes it.
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
