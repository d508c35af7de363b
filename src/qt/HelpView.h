#pragma once

#include <QTextBrowser>

namespace gfc::qt {

// One page of the manual: no line longer than reads well, and the words of a search marked.
class HelpView : public QTextBrowser {
public:
    explicit HelpView(QWidget* parent);

    // The words to mark on this page and on those that follow; none to mark nothing.
    void Mark(const QStringList& words);
    // Goes to the next marked word, or to the one before; round at the end.
    void GoToMark(bool backward);
    [[nodiscard]] int Marks() const { return static_cast<int>(extraSelections().size()); }

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void ShowMarks();
    void FitLines();
    void TakeColours();

    QStringList words_;
};

} // namespace gfc::qt
