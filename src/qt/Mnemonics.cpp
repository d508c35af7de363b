#include "qt/Mnemonics.h"

#include "qt/FormWindow.h"
#include "qt/Renderer.h"
#include "qt/Texts.h"

#include <QAbstractButton>
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>

#include <algorithm>
#include <utility>
#include <vector>

namespace gfc::qt {

namespace {

// How early the kinds choose: what is done comes before what is chosen and what is filled in.
int TurnOf(ui::Kind kind) {
    switch (kind) {
    case ui::Kind::MenuEntry:
        return 0;
    case ui::Kind::CommandButton:
        return 1;
    case ui::Kind::CheckBox:
    case ui::Kind::OptionButton:
        return 2;
    default:
        return 3;
    }
}

// The page of that pane on which the control stands; -1 if it does not stand in it.
int PageIn(const ui::Control* control, const ui::Control* pane) {
    for (; control != nullptr; control = control->Container())
        if (control->Container() == pane)
            return control->Page();
    return -1;
}

bool NeverSeenTogether(const ui::Control& one, const ui::Control& other) {
    for (const ui::Control* pane = one.Container(); pane != nullptr; pane = pane->Container())
        if (pane->TheKind() == ui::Kind::TabbedPane)
            if (const int page = PageIn(&other, pane); page >= 0 && page != PageIn(&one, pane))
                return true;
    return false;
}

bool CanBePressed(QChar character) {
    return character.isDigit() || (character >= QLatin1Char('A') && character <= QLatin1Char('Z'));
}

// What tells one of several apart, "1" of "Run 1", then what words begin with, then any letter.
QString CandidatesOf(const QString& caption) {
    const QString upper = caption.toUpper();
    QString numbers;
    QString initials;
    for (const QString& word : upper.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        (word.size() == 1 && word.front().isDigit() ? numbers : initials) += word.front();
    return numbers + initials + upper + QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ1234567890");
}

class Letters {
public:
    explicit Letters(FormWindow& window) : window_(window) {}

    void Assign() {
        auto controls = window_.Form()->Controls();
        std::stable_sort(controls.begin(), controls.end(), [](const auto* one, const auto* other) {
            return TurnOf(one->TheKind()) < TurnOf(other->TheKind());
        });
        for (const ui::Control* control : controls)
            KeepMarked(*control);
        for (const ui::Control* control : controls)
            if (!IsMarked(*control))
                Choose(*control);
    }

private:
    static QString MarkedLetter(const ui::Control& control) {
        const QKeySequence marked = QKeySequence::mnemonic(ToQt(control.Caption()));
        return marked.isEmpty() ? QString() : QString(QChar(marked[0].key()));
    }
    static bool IsMarked(const ui::Control& control) { return !MarkedLetter(control).isEmpty(); }

    // The letters of the entries of a menu count only while it is open.
    static bool StandsInAMenu(const ui::Control& control) {
        return control.Container() != nullptr && control.Container()->TheKind() == ui::Kind::MenuEntry;
    }

    void KeepMarked(const ui::Control& control) {
        if (control.TheKind() != ui::Kind::Label && IsMarked(control) && !StandsInAMenu(control))
            taken_.emplace_back(MarkedLetter(control).front(), &control);
    }

    [[nodiscard]] bool IsFree(QChar letter, const ui::Control& control) const {
        return std::none_of(taken_.begin(), taken_.end(), [&](const auto& taken) {
            return taken.first == letter && !NeverSeenTogether(*taken.second, control);
        });
    }

    void Choose(const ui::Control& control) {
        const QString caption = CaptionOf(control);
        if (caption.isEmpty())
            return;
        for (const QChar letter : CandidatesOf(caption))
            if (CanBePressed(letter) && IsFree(letter, control)) {
                taken_.emplace_back(letter, &control);
                return Give(control, QKeySequence(QStringLiteral("Alt+") + letter));
            }
    }

    // What a person reads beside it; empty for what gets no letter.
    [[nodiscard]] QString CaptionOf(const ui::Control& control) const {
        const QString caption = ToQt(control.Caption());
        if (control.TheKind() == ui::Kind::MenuEntry)
            return StandsInAMenu(control) || caption == QLatin1String("-") ? QString() : caption;
        const QWidget* widget = window_.WidgetNamed(control.Name());
        if (!control.TakesFocus() || control.TheKind() == ui::Kind::TabbedPane || widget == nullptr)
            return {};
        if (!caption.isEmpty())
            return caption;
        for (const QLabel* label : window_.findChildren<QLabel*>())
            if (label->buddy() == widget)
                return label->text();
        return widget->accessibleName();
    }

    void Give(const ui::Control& control, const QKeySequence& key) {
        if (control.TheKind() == ui::Kind::MenuEntry) {
            if (auto* entry = window_.findChild<QAction*>(ToQt(control.Name())); entry != nullptr)
                entry->setShortcut(key);
            return;
        }
        QWidget* widget = window_.WidgetNamed(control.Name());
        auto* shortcut = new QShortcut(key, widget);
        shortcut->setAutoRepeat(false);
        QObject::connect(shortcut, &QShortcut::activated, widget, [widget] { Use(*widget); });
        if (widget->toolTip().isEmpty())
            widget->setToolTip(key.toString(QKeySequence::NativeText));
    }

    static void Use(QWidget& widget) {
        if (auto* button = qobject_cast<QAbstractButton*>(&widget); button != nullptr)
            return button->click();
        widget.setFocus(Qt::ShortcutFocusReason);
        if (auto* field = qobject_cast<QLineEdit*>(&widget); field != nullptr)
            field->selectAll();
    }

    FormWindow& window_;
    std::vector<std::pair<QChar, const ui::Control*>> taken_;
};

} // namespace

void AssignMnemonics(FormWindow& window) {
    Letters(window).Assign();
}

} // namespace gfc::qt
