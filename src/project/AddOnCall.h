#pragma once

#include "platform/ForeignCall.h"
#include "project/AddOnExports.h"

#include <bit>
#include <string>
#include <string_view>
#include <type_traits>

// One function of the add-on library, so called that a library of another making ends in words.
namespace gfc::project {

// What is wrong with the library: filled by the first call that shows it, and never called again after that.
struct AddOnFault {
    std::string Text; // empty while nothing is
    // Of a function whose arguments have so many bytes, and which took off so many.
    void Note(const AddOnFunction& function, int takenOff);
};

template <class Function>
class AddOnCall;

template <class Result, class... Parameters>
class AddOnCall<Result(GFC_ADDON_CALL*)(Parameters...)> {
public:
    AddOnCall(const platform::DynamicLibrary& library, std::string_view name)
        : row_(&AddOnFunctionNamed(name)), address_(FindExport(library, *row_)) {}

    // The function's result; none, that is zero, without a call where the library has been found at fault.
    Result operator()(AddOnFault& fault, Parameters... parameters) const {
        if (!fault.Text.empty())
            return Result();
        const platform::FloatingPointKept kept;
#ifdef GFC_CALLEE_CLEARS_STACK
        static_assert((true && ... && (sizeof(Parameters) == 4)), "each parameter is one word");
        const auto returned = platform::CallForeign(address_, {std::bit_cast<std::uint32_t>(parameters)...});
        if (returned.TakenOff != static_cast<int>(4 * sizeof...(Parameters)))
            fault.Note(*row_, returned.TakenOff);
        if constexpr (!std::is_void_v<Result>)
            return fault.Text.empty() ? static_cast<Result>(returned.Value) : Result();
#else
        return reinterpret_cast<Result(GFC_ADDON_CALL*)(Parameters...)>(address_)(parameters...);
#endif
    }

private:
    const AddOnFunction* row_;
    void* address_;
};

} // namespace gfc::project
