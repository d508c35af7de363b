#include "platform/Machine.h"
#include "platform/windows/Wide.h"

#include <sddl.h>

namespace gfc::platform {
namespace {

using windows::Handle;

// Its maker may do everything with the mark, and everybody else of the machine may see it.
constexpr const wchar_t* SeenByAll = L"D:(A;;GA;;;OW)(A;;GA;;;SY)(A;;GA;;;BA)(A;;0x00100000;;;WD)";

class Rights {
public:
    Rights() {
        ::ConvertStringSecurityDescriptorToSecurityDescriptorW(SeenByAll, SDDL_REVISION_1,
                                                               &attributes_.lpSecurityDescriptor, nullptr);
    }
    Rights(const Rights&) = delete;
    Rights& operator=(const Rights&) = delete;
    ~Rights() { ::LocalFree(attributes_.lpSecurityDescriptor); }
    // Without a descriptor, if it could not be made, the rights are the usual ones.
    [[nodiscard]] SECURITY_ATTRIBUTES* Get() { return &attributes_; }

private:
    SECURITY_ATTRIBUTES attributes_{sizeof(SECURITY_ATTRIBUTES), nullptr, FALSE};
};

enum class Claim { Made, Taken, Impossible };

Claim ClaimMutex(const std::string& name, Handle& mutex) {
    Rights rights;
    const std::wstring wide = windows::Wide(name);
    mutex = Handle(::CreateMutexW(rights.Get(), FALSE, wide.c_str()));
    const DWORD error = ::GetLastError();
    if (mutex)
        return error == ERROR_ALREADY_EXISTS ? Claim::Taken : Claim::Made;
    if (error != ERROR_ACCESS_DENIED)
        return Claim::Impossible;
    // Another user's, which may be seen and no more, or a place where this user may put nothing.
    const Handle seen(::OpenMutexW(SYNCHRONIZE, FALSE, wide.c_str()));
    return seen || ::GetLastError() == ERROR_ACCESS_DENIED ? Claim::Taken : Claim::Impossible;
}

// A named mutex of the machine, or of the user's session where the machine's cannot be had; the system drops
// it with its last process.
class WindowsSingleInstance : public SingleInstance {
public:
    bool Acquire(std::string_view name) override {
        if (mutex_)
            return true;
        Handle mutex;
        Claim claim = ClaimMutex("Global\\" + std::string(name), mutex);
        if (claim == Claim::Impossible)
            claim = ClaimMutex("Local\\" + std::string(name), mutex);
        if (claim == Claim::Made)
            mutex_ = std::move(mutex);
        return claim != Claim::Taken;
    }

private:
    Handle mutex_;
};

} // namespace

std::unique_ptr<SingleInstance> MakeSingleInstance() {
    return std::make_unique<WindowsSingleInstance>();
}

} // namespace gfc::platform
