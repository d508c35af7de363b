#pragma once

#include "platform/windows/Wide.h"

namespace gfc::platform::windows {

// Looks whether a viewer that was started has shown its file.
class ViewerWatch {
public:
    // Of this process from now on, and of no other.
    void Begin(Handle process) { process_ = std::move(process); }

    // True, once, if it has ended by now, with another exit code than 0 and so soon after its start that
    // nobody can have read anything. Who is ended later, by the task manager for instance, was seen.
    [[nodiscard]] bool Failed();

private:
    Handle process_;
};

} // namespace gfc::platform::windows
