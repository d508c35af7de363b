#pragma once

#include "qt/render/ItemRole.h"
#include "ui/Tree.h"

#include <QAbstractItemModel>
#include <QIcon>

#include <map>
#include <string>
#include <vector>

namespace gfc::qt {

// A tree's nodes as the view reads them: straight from the control. What is kept here is only which node
// stands where, for the nodes that the view has been told of.
class TreeModel final : public QAbstractItemModel {
public:
    static constexpr int ImageRole = Qt::UserRole; // the image's name
    static constexpr int PathRole = Qt::UserRole + 1;

    explicit TreeModel(const ui::Tree& tree) : tree_(&tree) { Reset(); }

    // Nodes are counted from 1, as in the control; 0 and the invalid index stand for each other.
    [[nodiscard]] QModelIndex IndexOf(int node) const;
    [[nodiscard]] static int NodeOf(const QModelIndex& index) {
        return index.isValid() ? static_cast<int>(index.internalId()) : 0;
    }

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex& child) const override;
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

    void Reset();
    void Added(int node);
    void Altered(int node);
    // The control has gone: there is nothing to read any more.
    void Release();

private:
    void Learn(int node);
    [[nodiscard]] QVariant Picture(int node) const;
    [[nodiscard]] static QVariant NoteData(const ui::Tree::Node& node, int role);

    const ui::Tree* tree_;
    std::vector<std::vector<int>> children_;        // of node 0, the roots
    std::vector<int> row_;                          // of each node among its siblings
    mutable std::map<std::string, QIcon> pictures_; // drawn once, not at every painting
};

} // namespace gfc::qt
