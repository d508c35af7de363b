#include "qt/HelpView.h"

#include <QEvent>
#include <QScrollBar>
#include <QTextDocument>

#include <algorithm>

namespace gfc::qt {

namespace {

// The links of many a dark palette are still those of a light one, and hardly seen on it.
QColor LinkColour(const QPalette& palette) {
    const QColor link = palette.color(QPalette::Link);
    const bool dark = palette.color(QPalette::Base).lightness() < 128;
    constexpr int readable = 205; // of 255, at which even a blue stands out
    if (!dark || link.lightness() >= readable)
        return link;
    return QColor::fromHsl(link.hslHue(), link.hslSaturation(), readable);
}

} // namespace

HelpView::HelpView(QWidget* parent) : QTextBrowser(parent) {
    setOpenExternalLinks(false);
    setFrameShape(QFrame::StyledPanel);
    document()->setDocumentMargin(fontMetrics().averageCharWidth() * 2);
    TakeColours();
    connect(this, &QTextBrowser::sourceChanged, this, &HelpView::ShowMarks);
}

void HelpView::TakeColours() {
    document()->setDefaultStyleSheet(QStringLiteral("a { color: %1 }").arg(LinkColour(palette()).name()));
}

void HelpView::Mark(const QStringList& words) {
    words_ = words;
    ShowMarks();
}

void HelpView::ShowMarks() {
    QList<QTextEdit::ExtraSelection> marks;
    for (const QString& word : words_)
        for (QTextCursor at = document()->find(word); !at.isNull(); at = document()->find(word, at)) {
            QTextEdit::ExtraSelection mark{at, {}};
            mark.format.setBackground(palette().highlight());
            mark.format.setForeground(palette().highlightedText());
            marks.append(mark);
        }
    std::sort(marks.begin(), marks.end(), [](const auto& left, const auto& right) {
        return left.cursor.selectionStart() < right.cursor.selectionStart();
    });
    setExtraSelections(marks);
}

void HelpView::GoToMark(bool backward) {
    const auto marks = extraSelections();
    if (marks.isEmpty())
        return;
    const int here = textCursor().selectionStart();
    const bool started = textCursor().hasSelection();
    qsizetype next = backward ? marks.size() - 1 : 0;
    for (qsizetype i = 0; i < marks.size(); ++i) {
        const int start = marks[i].cursor.selectionStart();
        if (backward && start < here)
            next = i;
        if (!backward && (start > here || (!started && start == here))) {
            next = i;
            break;
        }
    }
    setTextCursor(marks[next].cursor);
    ensureCursorVisible();
}

// A line of some ninety characters is still read without losing the next one.
void HelpView::FitLines() {
    constexpr int readable = 100; // averages of the font, which counts its wide letters too
    const int wide = fontMetrics().averageCharWidth() * readable;
    setLineWrapMode(QTextEdit::FixedPixelWidth);
    setLineWrapColumnOrWidth(std::min(wide, viewport()->width()));
}

void HelpView::resizeEvent(QResizeEvent* event) {
    QTextBrowser::resizeEvent(event);
    FitLines();
}

// Colours of the pages come from the palette, which may change while they are shown.
void HelpView::changeEvent(QEvent* event) {
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        TakeColours();
    if (event->type() == QEvent::PaletteChange && source().isValid()) {
        const int at = verticalScrollBar()->value();
        reload();
        verticalScrollBar()->setValue(at);
    }
    if (event->type() == QEvent::FontChange)
        FitLines();
}

} // namespace gfc::qt
