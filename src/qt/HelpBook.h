#pragma once

#include <QStringList>

#include <vector>

namespace gfc::qt {

struct HelpPage {
    QString File; // inside the manual's folder
    QString Title;
    int Level = 0;             // its depth in the contents, 0 at the top
    std::vector<int> Contexts; // the help numbers that lead to it
    QStringList Forms;         // the windows without a number of their own that it tells of
    QString Text;              // what a reader sees of it below its title, in one line
};

struct HelpHit {
    const HelpPage* Page = nullptr; // lives as long as the book
    int Count = 0;
    QString Around; // the text around the first of them
};

// The manual as it lies on the disk: pages, and contents.txt, which says in which order they stand, how deep,
// and which help numbers and windows lead to each.
class HelpBook {
public:
    // Without contents.txt in the folder, and for each page that cannot be read, there is nothing.
    explicit HelpBook(const QString& folder);

    [[nodiscard]] const std::vector<HelpPage>& Pages() const { return pages_; }
    // The first page for a number that leads nowhere; null if there are no pages.
    [[nodiscard]] const HelpPage* PageOf(int context) const;
    // The same for the name of a form that has no number.
    [[nodiscard]] const HelpPage* PageOfForm(const QString& form) const;
    // Null if the book has no such file.
    [[nodiscard]] const HelpPage* PageIn(const QString& file) const;
    // The pages on which all of these words occur, in any order and case: first those whose title bears them.
    [[nodiscard]] std::vector<HelpHit> Find(const QString& words) const;

private:
    std::vector<HelpPage> pages_;
};

// The words that a search looks for, and none of them empty.
[[nodiscard]] QStringList WordsOf(const QString& words);

} // namespace gfc::qt
