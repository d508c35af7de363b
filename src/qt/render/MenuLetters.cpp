#include "qt/render/MenuLetters.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QKeySequence>

namespace gfc::qt {

namespace {

bool CanBeChosen(const QAction& entry) {
    return entry.isVisible() && entry.isEnabled() && !entry.isSeparator();
}

QString MarkedLetterOf(const QAction& entry) {
    const QKeySequence marked = QKeySequence::mnemonic(entry.text());
    return marked.isEmpty() ? QString() : QString(QChar(marked[0].key()));
}

// The letter that was pressed by itself; empty for any other key.
QString LetterOf(const QEvent& event) {
    if (event.type() != QEvent::KeyPress)
        return {};
    const auto& key = static_cast<const QKeyEvent&>(event);
    const bool alone = (key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::NoModifier;
    const QString text = key.text().toUpper();
    return alone && text.size() == 1 && text.front().isLetterOrNumber() ? text : QString();
}

} // namespace

MenuLetters::MenuLetters(QMenu& menu) : QObject(&menu), menu_(menu) {
    menu.installEventFilter(this);
}

bool MenuLetters::eventFilter(QObject*, QEvent* event) {
    const QString letter = LetterOf(*event);
    const auto entries = letter.isEmpty() ? QList<QAction*>() : EntriesWith(letter);
    if (entries.empty())
        return false;
    GoTo(entries);
    return true;
}

// None where a caption marks the letter: that one is the toolkit's to choose.
QList<QAction*> MenuLetters::EntriesWith(const QString& letter) const {
    QList<QAction*> entries;
    for (QAction* entry : menu_.actions()) {
        if (!CanBeChosen(*entry))
            continue;
        const QString marked = MarkedLetterOf(*entry);
        if (marked == letter)
            return {};
        if (marked.isEmpty() && entry->text().startsWith(letter, Qt::CaseInsensitive))
            entries.push_back(entry);
    }
    return entries;
}

void MenuLetters::GoTo(const QList<QAction*>& entries) {
    const auto next = entries.indexOf(menu_.activeAction()) + 1; // the first where none of them is
    menu_.setActiveAction(entries[next % entries.size()]);
    if (entries.size() > 1)
        return;
    // What opens a menu behind an entry and closes those before it is the menu's own affair.
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(&menu_, &enter);
}

} // namespace gfc::qt
