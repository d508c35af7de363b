#pragma once

#include "qt/support/StoryScreen.h"

#include <QString>

#include <set>

class QWidget;

namespace gfc::tour {

// Plays a story as the window tests do, and leaves a picture of each window that it meets.
class TourScreen : public test::StoryScreen {
public:
    // The folder must exist; pictures are numbered in the order in which the windows are met.
    // They begin behind so many that are there.
    explicit TourScreen(QString folder, int pictures = 0);

    [[nodiscard]] int Pictures() const { return pictures_; }

    // In the program's own window, which is gone again behind its picture.
    bool ViewText(const std::string& path, ui::WindowState state) override;

private:
    void Look();
    void TakePicture(QWidget& window);
    // A window is pictured anew where it shows something else: another title, another page.
    [[nodiscard]] static QString SightOf(const QWidget& window);

    QString folder_;
    std::set<QString> seen_;
    int pictures_ = 0;
};

} // namespace gfc::tour
