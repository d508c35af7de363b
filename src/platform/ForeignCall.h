#pragma once

#include <cfenv>
#include <cstdint>
#include <initializer_list>

// On 32-bit Windows the one who is called mostly takes his arguments off the stack, and one who takes more or
// fewer than he was given leaves his caller with a stack that fits no more.
#if defined(_WIN32) && defined(__i386__) && defined(__GNUC__)
#define GFC_CALLEE_CLEARS_STACK
#endif

// Calls of functions of which nothing is known but their address and what they are said to take.
namespace gfc::platform {

// Keeps how this program calculates over a call: a foreign function may leave the processor with another
// rounding or precision, with traps switched on, or with one that is about to go off.
class FloatingPointKept {
public:
    FloatingPointKept() { std::fegetenv(&before_); }
    FloatingPointKept(const FloatingPointKept&) = delete;
    FloatingPointKept& operator=(const FloatingPointKept&) = delete;
    ~FloatingPointKept() {
#if defined(__i386__) || defined(__x86_64__)
        // Whatever loads the former state looks first for a trap that is due; this does not.
        __asm__ volatile("fninit");
#endif
        std::fesetenv(&before_);
#ifdef __SSE__
        __builtin_ia32_ldmxcsr(control_);
#endif
    }

private:
    std::fenv_t before_{};
#ifdef __SSE__
    // MinGW's account of the environment leaves it out.
    unsigned control_ = __builtin_ia32_stmxcsr();
#endif
};

#ifdef GFC_CALLEE_CLEARS_STACK
struct ForeignReturn {
    std::uint32_t Value;   // what a result of at most four bytes stands in
    std::int32_t TakenOff; // bytes that the function took off the stack
};

// Calls the function with these words on the stack, and goes on with its own stack whatever that one took
// off. The function must keep the registers that every convention has it keep.
[[nodiscard]] ForeignReturn CallForeign(const void* function, std::initializer_list<std::uint32_t> words);
#endif

} // namespace gfc::platform
