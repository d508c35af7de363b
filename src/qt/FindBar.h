#pragma once

#include <QString>
#include <QWidget>

class QLabel;
class QLineEdit;
class QPushButton;

namespace gfc::ui {
class ListView;
}

namespace gfc::qt {

class FormWindow;

// The first row from that one on, counted from 1, that holds the text in a column other than that of its own
// number; upper and lower case are the same. Goes through all rows once, downwards or upwards, past the end
// and on at the other one. 0 if there is none, or if the text is empty.
[[nodiscard]] int FindRow(const ui::ListView& list, const QString& text, int from, bool upwards);

// A bar at the foot of a window in which a person looks for rows of its lists: Enter or F3 goes to the next
// one, with Shift to the one before, exactly as a click on that row would; Escape closes it.
class FindBar : public QWidget {
public:
    explicit FindBar(FormWindow& window);

    // For the list that has the focus, else the one looked in before, else the first that can be used. Stays
    // closed if there is none.
    void Open();
    void Next() { Jump(false); }
    void Previous() { Jump(true); }
    void Close();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Jump(bool upwards);
    void Click(int row);
    void Tell(int row, bool again);
    void TellOfTyped();
    // The list that is looked in now; null if there is none.
    [[nodiscard]] ui::ListView* List() const;
    [[nodiscard]] QWidget* WidgetOf(const ui::ListView& list) const;
    QPushButton* AddButton(const QString& text, const QString& keys);

    FormWindow& window_;
    QString list_; // its name
    QLabel* where_;
    QLineEdit* text_;
    QLabel* result_;
};

} // namespace gfc::qt
