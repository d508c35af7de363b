#pragma once

#include "qt/HelpBook.h"
#include "qt/SideWindow.h"

#include <functional>

class QBoxLayout;
class QLabel;
class QLineEdit;
class QStackedWidget;
class QUrl;

namespace gfc::qt {

class HelpContents;
class HelpHits;
class HelpView;

// The manual beside the program: contents and search at the left, the page at the right.
class HelpWindow : public SideWindow {
public:
    explicit HelpWindow(const QString& folder);

    // Context 0 is the contents page; so is a number that leads nowhere.
    void ShowContext(int context);
    // What there is to say of a window that has no number.
    void ShowForm(const QString& form);

private:
    void AddParts();
    void AddBar(QBoxLayout& whole);
    void AddSide(QBoxLayout& side);
    void AddActions();
    void AddAction(const QString& name, const QKeySequence& key, std::function<void()> act);
    void Follow();
    void Search(const QString& words);
    void ShowHits(const QString& words);
    void ShowPage(const HelpPage* page);
    void ShowFile(const QString& file);
    void EnterHits();
    // The page that is shown is the one that is selected in the contents, also after a link or Back.
    void SelectShown(const QUrl& source);
    void SayThatThereIsNone();

    QString folder_;
    HelpBook book_;
    HelpView* view_;
    QLineEdit* words_;
    QLabel* found_;
    QStackedWidget* side_;
    HelpContents* contents_;
    HelpHits* hits_;
};

// Beside the program itself.
[[nodiscard]] QString ManualFolder();

// Opens the help window at this page, or turns the one that is open to it, and puts it over its owner.
void ShowHelpWindow(const QString& folder, int context, QWidget* owner);
void ShowHelpWindow(const QString& folder, const QString& form, QWidget* owner);

} // namespace gfc::qt
