#pragma once

#include "qt/FormWindow.h"
#include "ui/DragPlace.h"

#include <QPoint>

#include <optional>

namespace gfc::qt {

// A person drags what is selected in one list or tree of a window to another. It needs no more than the
// events of the view that was pressed, which has the mouse until the button is let go of: nothing else goes
// on meanwhile, and no loop of its own is run. What is dragged must still be selected when it falls.
class Dragging {
public:
    Dragging(FormWindow& window, ui::DragPlace& from) : window_(window), from_(from) {}
    ~Dragging() { Cancel(); }
    Dragging(const Dragging&) = delete;
    Dragging& operator=(const Dragging&) = delete;

    // Where something would fall; nowhere without a place.
    struct Drop {
        ui::DragPlace* Onto = nullptr;
        int Item = 0;
    };

    // Points are those of the screen. The button went down on what is selected now.
    void Press(QPoint at);
    void Move(QPoint at);
    [[nodiscard]] Drop Release(QPoint at);
    // True if there was something to be cancelled.
    bool Cancel();

private:
    [[nodiscard]] bool IsStillChosen() const;
    [[nodiscard]] Drop DropAt(QPoint at) const;
    void ShowWhere(QPoint at);

    FormWindow& window_;
    ui::DragPlace& from_;
    std::optional<QPoint> pressed_;
    std::string dragged_;
    bool going_ = false; // the pointer has left the place where the button went down
};

} // namespace gfc::qt
