#include "ui/Tree.h"

namespace gfc::ui {

int Tree::Add(int parent, std::string key, std::string text, std::string image, std::string selectedImage) {
    Node& node = nodes_.emplace_back();
    node.Key = std::move(key);
    node.Text = std::move(text);
    node.Image = std::move(image);
    node.SelectedImage = std::move(selectedImage);
    node.Parent = parent;
    if (parent > 0) {
        auto& children = Mutable(parent).Children;
        // A plant has thousands of branches, nearly all of them small: one piece of memory does for each.
        if (children.empty())
            children.reserve(8);
        children.push_back(Count());
    }
    if (observer_ != nullptr)
        observer_->NodeAdded(Count());
    return Count();
}

void Tree::Clear() {
    nodes_.clear();
    selected_ = 0;
    if (observer_ != nullptr)
        observer_->TreeReset();
}

std::string Tree::FullPath(int node) const {
    std::string path = At(node).Text;
    for (int parent = At(node).Parent; parent > 0; parent = At(parent).Parent)
        path = At(parent).Text + "\\" + path;
    return path;
}

int Tree::FindPath(std::string_view fullPath) const {
    for (int node = 1; node <= Count(); ++node)
        if (fullPath.ends_with(At(node).Text) && FullPath(node) == fullPath)
            return node;
    return 0;
}

int Tree::FindKey(std::string_view key) const {
    for (int node = 1; node <= Count(); ++node)
        if (At(node).Key == key)
            return node;
    return 0;
}

void Tree::SetText(int node, std::string text) {
    if (Mutable(node).Text == text)
        return;
    Mutable(node).Text = std::move(text);
    NodeChanged(node);
}

void Tree::SetImage(int node, std::string image) {
    if (Mutable(node).Image == image)
        return;
    Mutable(node).Image = std::move(image);
    NodeChanged(node);
}

void Tree::SetColour(int node, Colour colour) {
    Mutable(node).TheColour = colour;
    NodeChanged(node);
}

void Tree::SetBold(int node, bool bold) {
    Mutable(node).Bold = bold;
    NodeChanged(node);
}

void Tree::SetNote(int node, std::string note, std::string hint, Colour colour) {
    Node& its = Mutable(node);
    if (its.Note == note && its.Hint == hint && its.NoteColour == colour)
        return;
    its.Note = std::move(note);
    its.Hint = std::move(hint);
    its.NoteColour = colour;
    NodeChanged(node);
}

void Tree::SetExpanded(int node, bool expanded) {
    if (Mutable(node).Expanded == expanded)
        return;
    Mutable(node).Expanded = expanded;
    NodeChanged(node);
}

void Tree::EnsureVisible(int node) {
    if (node < 1 || node > Count())
        return;
    for (int parent = At(node).Parent; parent > 0; parent = At(parent).Parent)
        SetExpanded(parent, true);
    if (observer_ != nullptr)
        observer_->ScrollTo(node);
}

void Tree::Select(int node) {
    if (node == selected_)
        return;
    selected_ = node;
    if (observer_ != nullptr)
        observer_->SelectionChanged();
}

bool Tree::PersonClicks(int node) {
    if (node < 1 || node > Count() || !PersonActs())
        return false;
    Select(node);
    Fire([this, node] {
        if (OnNodeClick)
            OnNodeClick(node);
    });
    return true;
}

bool Tree::PersonPresses(MouseButton button) {
    if (!PersonActs())
        return false;
    Fire([this, button] {
        if (OnMouseDown)
            OnMouseDown(button);
    });
    return true;
}

void Tree::NoteExpanded(int node, bool expanded) {
    Mutable(node).Expanded = expanded;
}

void Tree::NodeChanged(int node) {
    if (observer_ != nullptr)
        observer_->NodeChanged(node);
}

} // namespace gfc::ui
