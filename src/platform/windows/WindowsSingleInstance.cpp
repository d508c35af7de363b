#include "platform/Machine.h"
#include "platform/windows/Wide.h"

namespace gfc::platform {
namespace {

using windows::Handle;

// A named mutex of the user's session; the system drops it with its last process.
class WindowsSingleInstance : public SingleInstance {
public:
    bool Acquire(std::string_view name) override {
        if (mutex_)
            return true;
        Handle mutex(::CreateMutexW(nullptr, FALSE, windows::Wide("Local\\" + std::string(name)).c_str()));
        if (!mutex)
            return ::GetLastError() != ERROR_ACCESS_DENIED;
        if (::GetLastError() == ERROR_ALREADY_EXISTS)
            return false;
        mutex_ = std::move(mutex);
        return true;
    }

private:
    Handle mutex_;
};

} // namespace

std::unique_ptr<SingleInstance> MakeSingleInstance() {
    return std::make_unique<WindowsSingleInstance>();
}

} // namespace gfc::platform
