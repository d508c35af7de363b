#pragma once

#include <QTreeWidget>

namespace gfc::qt {

class HelpBook;

// The pages of the manual by their titles, each below the one that it belongs to.
class HelpContents : public QTreeWidget {
public:
    explicit HelpContents(const HelpBook& book);

    // The file of the page; empty for none.
    [[nodiscard]] static QString FileOf(const QTreeWidgetItem* item);
    void Select(const QString& file);
    // So wide that no title is cut, in pixels.
    [[nodiscard]] int WidthOfTitles() const;
};

} // namespace gfc::qt
