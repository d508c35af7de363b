#include "qt/FindBar.h"

#include "qt/FormWindow.h"
#include "qt/Renderer.h"
#include "qt/Texts.h"
#include "qt/render/ItemRole.h"
#include "ui/ListView.h"
#include "ui/Tree.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTableView>

#include <algorithm>

namespace gfc::qt {

namespace {

bool RowHolds(const ui::ListView& list, int row, const QString& text) {
    const auto& cells = list.At(row);
    for (std::size_t column = 1; column < cells.size(); ++column)
        if (ToQt(cells[column]).contains(text, Qt::CaseInsensitive))
            return true;
    return false;
}

bool NodeHolds(const ui::Tree& tree, int node, const QString& text) {
    return ToQt(tree.At(node).Text).contains(text, Qt::CaseInsensitive) ||
           ToQt(tree.At(node).Note).contains(text, Qt::CaseInsensitive);
}

// The first place from that one on; goes through all of them once, past the end and on at the other one.
int FindPlace(int count, int from, bool upwards, const std::function<bool(int place)>& holds) {
    for (int passed = 0; passed < count; ++passed) {
        const int at = from - 1 + (upwards ? -passed : passed);
        const int place = (at % count + count) % count + 1;
        if (holds(place))
            return place;
    }
    return 0;
}

void OpenBranchOf(ui::Tree& tree, int node) {
    for (int parent = tree.At(node).Parent; parent > 0; parent = tree.At(parent).Parent)
        tree.SetExpanded(parent, true);
}

} // namespace

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

ui::Control* FindBar::Where() const {
    if (window_.Form() == nullptr)
        return nullptr;
    ui::Control* where = window_.Form()->Find(FromQt(name_));
    return where != nullptr && where->Usable() ? where : nullptr;
}

QWidget* FindBar::WidgetOf(const ui::Control& where) const {
    return window_.WidgetNamed(where.Name());
}

void FindBar::Open() {
    if (window_.Form() == nullptr)
        return;
    const ui::Control* focused = window_.Form()->FocusedControl();
    if (dynamic_cast<const ui::ListView*>(focused) != nullptr ||
        dynamic_cast<const ui::Tree*>(focused) != nullptr)
        name_ = ToQt(focused->Name());
    for (const ui::Control* control : window_.Form()->Controls())
        if (Where() == nullptr && control->TheKind() == ui::Kind::ListView && control->Usable())
            name_ = ToQt(control->Name());
    const ui::Control* where = Where();
    if (where == nullptr)
        return;
    const QString name = WidgetOf(*where)->accessibleName();
    where_->setText(tr("Find in %1:").arg(name));
    text_->setAccessibleName(tr("Text to find in %1").arg(name));
    show();
    window_.GrowToContent();
    text_->selectAll();
    text_->setFocus(Qt::OtherFocusReason);
    TellOfTyped();
}

void FindBar::Close() {
    const ui::Control* where = Where();
    hide();
    if (where != nullptr)
        WidgetOf(*where)->setFocus(Qt::OtherFocusReason);
}

FindBar::Places FindBar::PlacesOf(ui::Control& where) const {
    auto* tree = dynamic_cast<ui::Tree*>(&where);
    return tree != nullptr ? PlacesOf(*tree) : PlacesOf(static_cast<ui::ListView&>(where));
}

// A list that a person has sorted is gone through as it stands there.
FindBar::Places FindBar::PlacesOf(ui::ListView& list) const {
    const auto* view = static_cast<QTableView*>(WidgetOf(list));
    const QAbstractItemModel* rows = view->model();
    const auto rowAt = [rows](int place) { return rows->index(place - 1, 0).data(ItemRole).toInt(); };
    return {.Count = rows->rowCount(),
            .Selected = list.SelectedRow() == 0 ? 0 : view->currentIndex().row() + 1,
            .ItemAt = rowAt,
            .Holds = [this, &list](int row) { return row > 0 && RowHolds(list, row, text_->text()); },
            .NameOf = [](int row) { return tr("row %1").arg(row); }};
}

FindBar::Places FindBar::PlacesOf(ui::Tree& tree) const {
    return {.Count = tree.Count(),
            .Selected = tree.SelectedNode(),
            .ItemAt = [](int node) { return node; },
            .Holds = [this, &tree](int node) { return NodeHolds(tree, node, text_->text()); },
            .NameOf = [&tree](int node) { return ToQt(tree.At(node).Text); }};
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
    ui::Control* where = Where();
    if (where == nullptr || text_->text().isEmpty())
        return Open();
    const Places places = PlacesOf(*where);
    const int selected = places.Selected;
    const int place = FindPlace(places.Count, upwards ? selected - 1 : selected + 1, upwards,
                                [&](int at) { return places.Holds(places.ItemAt(at)); });
    if (place == 0)
        return TellOfTyped();
    const bool again = upwards ? place >= selected && selected > 0 : place <= selected;
    const int item = places.ItemAt(place);
    QString name = places.NameOf(item);
    name.front() = name.front().toUpper();
    Tell(again ? tr("%1, past the end of the list").arg(name) : name);
    Click(item);
}

// The click takes the focus to the list or tree, and may end in the window's going.
void FindBar::Click(int item) {
    ui::Control* where = Where();
    Renderer* renderer = window_.RendererOf(where);
    const bool typing = text_->hasFocus();
    const QPointer<QLineEdit> text = text_;
    window_.Act(*renderer, [where, item] {
        if (auto* tree = dynamic_cast<ui::Tree*>(where); tree != nullptr) {
            OpenBranchOf(*tree, item);
            (void)tree->PersonClicks(item);
        } else {
            (void)static_cast<ui::ListView*>(where)->PersonClicksRow(item);
        }
    });
    if (typing && text != nullptr && where == Where() && window_.Form()->FocusedControl() == where)
        text->setFocus(Qt::OtherFocusReason);
}

void FindBar::Tell(const QString& words) {
    result_->setText(words);
    result_->setAccessibleName(words);
}

// Nothing is clicked while the text is still being typed.
void FindBar::TellOfTyped() {
    ui::Control* where = Where();
    if (where == nullptr || text_->text().isEmpty())
        return Tell({});
    const Places places = PlacesOf(*where);
    const int place = FindPlace(places.Count, std::max(1, places.Selected), false,
                                [&](int at) { return places.Holds(places.ItemAt(at)); });
    const bool isTree = where->TheKind() == ui::Kind::Tree;
    if (place == 0)
        Tell(isTree ? tr("No node holds this text") : tr("No row holds this text"));
    else
        Tell(tr("Enter goes to %1").arg(places.NameOf(places.ItemAt(place))));
}

} // namespace gfc::qt
