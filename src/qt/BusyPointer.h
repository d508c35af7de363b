#pragma once

#include <QElapsedTimer>
#include <QObject>

namespace gfc::qt {

// Shows the busy pointer once an operation has kept the event loop from waiting for a person for half a
// second, until it waits again; a quick operation shows nothing.
class BusyPointer : public QObject {
public:
    explicit BusyPointer(int patience = 500); // milliseconds
    ~BusyPointer() override { Rest(); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;

    // Something begins, or goes on: looks at how long it has.
    void Note();

private:
    void Rest();

    int patience_;
    QElapsedTimer since_; // not valid while a person is waited for
    bool busy_ = false;
};

} // namespace gfc::qt
