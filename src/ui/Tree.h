#pragma once

#include "ui/DragPlace.h"

#include <string_view>
#include <vector>

namespace gfc::ui {

enum class Colour { Default, Blue, Red, Green };
enum class MouseButton { Left, Right };

class TreeObserver {
public:
    virtual ~TreeObserver() = default;
    virtual void TreeReset() = 0;
    virtual void NodeAdded(int node) = 0;
    virtual void NodeChanged(int node) = 0;
    virtual void SelectionChanged() = 0;
    virtual void ScrollTo(int node) = 0;
};

// Nodes are counted from 1 in the order in which they were added; 0 is no node.
class Tree : public DragPlace {
public:
    struct Node {
        std::string Key;
        std::string Text;
        std::string Image;
        std::string SelectedImage; // empty: as Image
        int Parent = 0;
        std::vector<int> Children;
        Colour TheColour = Colour::Default;
        bool Bold = false;
        bool Expanded = false;
        std::string Note; // stands beside the node, if the tree has notes
        std::string Hint; // says more of the note
        Colour NoteColour = Colour::Default;
    };

    Tree(Place place, std::string name) : DragPlace(place, Kind::Tree, std::move(name)) {}

    // The new node's index. A parent of 0 makes a root.
    int Add(int parent, std::string key, std::string text, std::string image = {},
            std::string selectedImage = {});
    void Clear();
    [[nodiscard]] int Count() const { return static_cast<int>(nodes_.size()); }
    [[nodiscard]] const Node& At(int node) const { return nodes_.at(static_cast<std::size_t>(node - 1)); }
    // The texts from the root down, joined by backslashes.
    [[nodiscard]] std::string FullPath(int node) const;
    // The first node of that path, key; 0 if there is none.
    [[nodiscard]] int FindPath(std::string_view fullPath) const;
    [[nodiscard]] int FindKey(std::string_view key) const;

    void SetText(int node, std::string text);
    void SetImage(int node, std::string image);
    void SetColour(int node, Colour colour);
    void SetBold(int node, bool bold);
    void SetExpanded(int node, bool expanded);
    void EnsureVisible(int node);
    // A second column, for what is to be seen without opening a node. To be decided before the tree is shown.
    void HaveNotes() { hasNotes_ = true; }
    [[nodiscard]] bool HasNotes() const { return hasNotes_; }
    void SetNote(int node, std::string note, std::string hint, Colour colour = Colour::Default);

    [[nodiscard]] int SelectedNode() const { return selected_; }
    // By program: runs no event.
    void Select(int node);

    std::function<void(int node)> OnNodeClick;
    std::function<void(MouseButton button)> OnMouseDown;
    bool PersonClicks(int node);
    bool PersonPresses(MouseButton button);
    // A person opened or closed a node's branch; nothing is reported back.
    void NoteExpanded(int node, bool expanded);

    void SetTreeObserver(TreeObserver* observer) { observer_ = observer; }

private:
    Node& Mutable(int node) { return nodes_.at(static_cast<std::size_t>(node - 1)); }
    void NodeChanged(int node);

    std::vector<Node> nodes_;
    TreeObserver* observer_ = nullptr;
    int selected_ = 0;
    bool hasNotes_ = false;
};

} // namespace gfc::ui
