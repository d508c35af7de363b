#include "qt/HelpContents.h"

#include "qt/HelpBook.h"

#include <QScrollBar>

#include <algorithm>
#include <vector>

namespace gfc::qt {

namespace {
constexpr int fileRole = Qt::UserRole;
} // namespace

HelpContents::HelpContents(const HelpBook& book) {
    setHeaderHidden(true);
    std::vector<QTreeWidgetItem*> above;
    for (const HelpPage& page : book.Pages()) {
        above.resize(std::min(above.size(), static_cast<std::size_t>(page.Level)));
        auto* item = above.empty() ? new QTreeWidgetItem(this) : new QTreeWidgetItem(above.back());
        item->setText(0, page.Title);
        item->setToolTip(0, page.Title);
        item->setData(0, fileRole, page.File);
        above.push_back(item);
    }
    expandAll();
}

QString HelpContents::FileOf(const QTreeWidgetItem* item) {
    return item == nullptr ? QString() : item->data(0, fileRole).toString();
}

void HelpContents::Select(const QString& file) {
    for (QTreeWidgetItemIterator at(this); *at != nullptr; ++at)
        if (FileOf(*at) == file)
            setCurrentItem(*at);
}

int HelpContents::WidthOfTitles() const {
    return sizeHintForColumn(0) + verticalScrollBar()->sizeHint().width() + 2 * frameWidth();
}

} // namespace gfc::qt
