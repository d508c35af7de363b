#include "qt/render/TreeModel.h"

#include "qt/Icons.h"
#include "qt/StateWords.h"
#include "qt/Texts.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>

#include <array>

namespace gfc::qt {

namespace {

struct Shades {
    const char* OnLight;
    const char* OnDark;
};

// In the order of ui::Colour without the default. Those on a light ground are 16711680, 255 and 32768, blue
// counted highest; on a dark one they could not be read.
constexpr std::array<Shades, 3> shades{{
    {"#0000ff", "#8fb6ff"}, // blue
    {"#ff0000", "#ff9a9a"}, // red
    {"#008000", "#7fd88f"}, // green
}};

QVariant ColourOf(ui::Colour colour) {
    if (colour == ui::Colour::Default)
        return {};
    const bool dark = QGuiApplication::palette().color(QPalette::Base).lightness() < 128;
    const Shades& shade = shades.at(static_cast<std::size_t>(colour) - 1);
    return QColor(QLatin1String(dark ? shade.OnDark : shade.OnLight));
}

// With what the picture and the colour tell.
QString InWords(const ui::Tree::Node& node) {
    const QString state = StateTold(node.Image);
    const QString text = state.isEmpty() ? ToQt(node.Text) : ToQt(node.Text) + QStringLiteral(", ") + state;
    return node.Note.empty() ? text : text + QStringLiteral(", ") + ToQt(node.Note);
}

} // namespace

QModelIndex TreeModel::IndexOf(int node) const {
    if (node < 1 || node >= static_cast<int>(row_.size()))
        return {};
    return createIndex(row_[static_cast<std::size_t>(node)], 0, static_cast<quintptr>(node));
}

QModelIndex TreeModel::index(int row, int column, const QModelIndex& parent) const {
    const auto& siblings = children_[static_cast<std::size_t>(NodeOf(parent))];
    if (row < 0 || column < 0 || column >= columnCount() || row >= static_cast<int>(siblings.size()))
        return {};
    return createIndex(row, column, static_cast<quintptr>(siblings[static_cast<std::size_t>(row)]));
}

QModelIndex TreeModel::parent(const QModelIndex& child) const {
    return tree_ == nullptr || !child.isValid() ? QModelIndex() : IndexOf(tree_->At(NodeOf(child)).Parent);
}

int TreeModel::rowCount(const QModelIndex& parent) const {
    return static_cast<int>(children_[static_cast<std::size_t>(NodeOf(parent))].size());
}

int TreeModel::columnCount(const QModelIndex&) const {
    return tree_ != nullptr && tree_->HasNotes() ? 2 : 1;
}

// The second column: what is known of the node without opening it.
QVariant TreeModel::NoteData(const ui::Tree::Node& node, int role) {
    switch (role) {
    case Qt::DisplayRole:
        return ToQt(node.Note);
    case Qt::ToolTipRole:
        return ToQt(node.Hint.empty() ? node.Note : node.Hint);
    case Qt::AccessibleTextRole:
        return ToQt(node.Hint.empty() ? node.Note : node.Note + ", " + node.Hint);
    case Qt::ForegroundRole:
        return ColourOf(node.NoteColour);
    default:
        return {};
    }
}

QVariant TreeModel::data(const QModelIndex& index, int role) const {
    if (tree_ == nullptr || !index.isValid())
        return {};
    const int node = NodeOf(index);
    const ui::Tree::Node& its = tree_->At(node);
    if (role == ItemRole)
        return node;
    if (index.column() == 1)
        return NoteData(its, role);
    switch (role) {
    case Qt::DisplayRole:
        return ToQt(its.Text);
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
        return InWords(its);
    case Qt::DecorationRole:
        return Picture(node);
    case Qt::ForegroundRole:
        return ColourOf(its.TheColour);
    case Qt::FontRole: {
        QFont font = QGuiApplication::font();
        font.setBold(its.Bold);
        return font;
    }
    case ImageRole:
        return ToQt(its.Image);
    case PathRole:
        return ToQt(tree_->FullPath(node));
    default:
        return {};
    }
}

QVariant TreeModel::Picture(int node) const {
    const ui::Tree::Node& its = tree_->At(node);
    const bool selected = node == tree_->SelectedNode() && !its.SelectedImage.empty();
    const std::string& name = selected ? its.SelectedImage : its.Image;
    const auto [found, isNew] = pictures_.try_emplace(name);
    if (isNew)
        found->second = IconNamed(name);
    return found->second;
}

void TreeModel::Reset() {
    beginResetModel();
    children_.assign(1, {});
    row_.assign(1, 0);
    for (int node = 1; tree_ != nullptr && node <= tree_->Count(); ++node)
        Learn(node);
    endResetModel();
}

void TreeModel::Added(int node) {
    const int parent = tree_->At(node).Parent;
    const int row = static_cast<int>(children_[static_cast<std::size_t>(parent)].size());
    beginInsertRows(IndexOf(parent), row, row);
    Learn(node);
    endInsertRows();
}

void TreeModel::Learn(int node) {
    auto& siblings = children_[static_cast<std::size_t>(tree_->At(node).Parent)];
    row_.push_back(static_cast<int>(siblings.size()));
    siblings.push_back(node);
    children_.emplace_back();
}

void TreeModel::Altered(int node) {
    const QModelIndex at = IndexOf(node);
    if (at.isValid())
        Q_EMIT dataChanged(at, at.siblingAtColumn(columnCount() - 1));
}

void TreeModel::Release() {
    tree_ = nullptr;
    Reset();
}

} // namespace gfc::qt
