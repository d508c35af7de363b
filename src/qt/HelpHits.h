#pragma once

#include <QListWidget>

namespace gfc::qt {

struct HelpHit;

// The pages that a search has found: each with its title and, below it, the text around the words.
class HelpHits : public QListWidget {
public:
    HelpHits();

    // Nothing is told of the change: no page is shown until a person goes to one.
    void Show(const std::vector<HelpHit>& hits);
    // The file of the page; empty for none.
    [[nodiscard]] static QString FileOf(const QListWidgetItem* item);
};

} // namespace gfc::qt
