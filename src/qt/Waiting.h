#pragma once

#include <QObject>

namespace gfc::qt {

// For as long as it lives the pointer is a busy one, and clicks and keys go nowhere. A window can be closed:
// a wait that does not end must not hold the person.
class Waiting : public QObject {
public:
    Waiting();
    ~Waiting() override;
    Waiting(const Waiting&) = delete;
    Waiting& operator=(const Waiting&) = delete;

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace gfc::qt
