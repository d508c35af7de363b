#include "qt/FindBar.h"

#include "qt/FormWindow.h"
#include "qt/Renderer.h"
#include "qt/Texts.h"
#include "ui/ListView.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>

#include <algorithm>

namespace gfc::qt {

namespace {

bool Holds(const ui::ListView& list, int row, const QString& text) {
    const auto& cells = list.At(row);
    for (std::size_t column = 1; column < cells.size(); ++column)
        if (ToQt(cells[column]).contains(text, Qt::CaseInsensitive))
            return true;
    return false;
}

} // namespace

int FindRow(const ui::ListView& list, const QString& text, int from, bool upwards) {
    const int count = list.Count();
    if (text.isEmpty())
        return 0;
    for (int passed = 0; passed < count; ++passed) {
        const int at = from - 1 + (upwards ? -passed : passed);
        const int row = (at % count + count) % count + 1;
        if (list.PlaceOfRow(row) > 0 && Holds(list, row, text))
            return row;
    }
    return 0;
}

FindBar::FindBar(FormWindow& window)
    : QWidget(&window), window_(window), where_(new QLabel(this)), text_(new QLineEdit(this)),
      result_(new QLabel(this)) {
    setObjectName("layoutFindBar");
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(9, 4, 9, 4);
    row->addWidget(where_);
    row->addWidget(text_, 1);
    QObject::connect(AddButton(tr("Next"), tr("F3")), &QPushButton::clicked, this, [this] { Next(); });
    QObject::connect(AddButton(tr("Previous"), tr("Shift+F3")), &QPushButton::clicked, this,
                     [this] { Previous(); });
    row->addWidget(result_, 1);
    QObject::connect(AddButton(tr("Close"), tr("Escape")), &QPushButton::clicked, this, [this] { Close(); });
    where_->setObjectName("layoutFindWhere");
    where_->setBuddy(text_);
    text_->setObjectName("layoutFindText");
    result_->setObjectName("layoutFindResult");
    result_->setMinimumWidth(fontMetrics().averageCharWidth() * 28);
    QObject::connect(text_, &QLineEdit::textEdited, this, [this] { TellOfTyped(); });
    hide();
}

QPushButton* FindBar::AddButton(const QString& text, const QString& keys) {
    auto* button = new QPushButton(text, this);
    button->setObjectName("layoutFind" + text);
    button->setAccessibleName(text);
    button->setToolTip(keys);
    layout()->addWidget(button);
    return button;
}

ui::ListView* FindBar::List() const {
    if (window_.Form() == nullptr)
        return nullptr;
    auto* list = dynamic_cast<ui::ListView*>(window_.Form()->Find(FromQt(list_)));
    return list != nullptr && list->Usable() ? list : nullptr;
}

QWidget* FindBar::WidgetOf(const ui::ListView& list) const {
    return window_.WidgetNamed(list.Name());
}

void FindBar::Open() {
    if (window_.Form() == nullptr)
        return;
    if (const auto* focused = dynamic_cast<ui::ListView*>(window_.Form()->FocusedControl()))
        list_ = ToQt(focused->Name());
    for (const ui::Control* control : window_.Form()->Controls())
        if (List() == nullptr && control->TheKind() == ui::Kind::ListView && control->Usable())
            list_ = ToQt(control->Name());
    const ui::ListView* list = List();
    if (list == nullptr)
        return;
    const QString name = WidgetOf(*list)->accessibleName();
    where_->setText(tr("Find in %1:").arg(name));
    text_->setAccessibleName(tr("Text to find in %1").arg(name));
    show();
    window_.GrowToContent();
    text_->selectAll();
    text_->setFocus(Qt::OtherFocusReason);
    TellOfTyped();
}

void FindBar::Close() {
    const ui::ListView* list = List();
    hide();
    if (list != nullptr)
        WidgetOf(*list)->setFocus(Qt::OtherFocusReason);
}

void FindBar::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Escape:
        return Close();
    case Qt::Key_Enter:
    case Qt::Key_Return:
        if (auto* button = qobject_cast<QPushButton*>(focusWidget()); button != nullptr)
            return button->click();
        return Jump(event->modifiers().testFlag(Qt::ShiftModifier));
    default:
        return QWidget::keyPressEvent(event);
    }
}

void FindBar::Jump(bool upwards) {
    ui::ListView* list = List();
    if (list == nullptr || text_->text().isEmpty())
        return Open();
    const int selected = list->SelectedRow();
    const int from = upwards ? selected - 1 : selected + 1;
    const int row = FindRow(*list, text_->text(), from, upwards);
    Tell(row, upwards ? row >= selected && selected > 0 : row <= selected);
    if (row > 0)
        Click(row);
}

// The click takes the focus to the list, and may end in the window's going.
void FindBar::Click(int row) {
    ui::ListView* list = List();
    Renderer* renderer = window_.RendererOf(list);
    const bool typing = text_->hasFocus();
    const QPointer<QLineEdit> text = text_;
    window_.Act(*renderer, [list, row] { (void)list->PersonClicksRow(row); });
    if (typing && text != nullptr && list == List() && window_.Form()->FocusedControl() == list)
        text->setFocus(Qt::OtherFocusReason);
}

void FindBar::Tell(int row, bool again) {
    if (row == 0)
        result_->setText(tr("No row holds this text"));
    else if (again)
        result_->setText(tr("Row %1, past the end of the list").arg(row));
    else
        result_->setText(tr("Row %1").arg(row));
    result_->setAccessibleName(result_->text());
}

// Nothing is clicked while the text is still being typed.
void FindBar::TellOfTyped() {
    const ui::ListView* list = List();
    if (list == nullptr || text_->text().isEmpty())
        result_->clear();
    else if (const int row = FindRow(*list, text_->text(), std::max(1, list->SelectedRow()), false); row == 0)
        Tell(row, false);
    else
        result_->setText(tr("Enter goes to row %1").arg(row));
}

} // namespace gfc::qt
