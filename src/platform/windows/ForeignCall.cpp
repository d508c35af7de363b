#include "platform/ForeignCall.h"

#ifdef GFC_CALLEE_CLEARS_STACK

namespace gfc::platform {

// ESI keeps this function's stack, EBX the place from which the called one was entered; both are kept by who
// is called. The gap below ESI is what a function that takes too much off may come to stand in.
ForeignReturn CallForeign(const void* function, std::initializer_list<std::uint32_t> words) {
    const std::uint32_t* first = words.begin();
    std::uint32_t count = words.size();
    std::uint32_t value = reinterpret_cast<std::uint32_t>(function);
    __asm__ volatile("movl %%esp, %%esi\n\t"
                     "subl $256, %%esp\n\t"
                     "leal (,%%ecx,4), %%edi\n\t"
                     "subl %%edi, %%esp\n\t"
                     "andl $-16, %%esp\n\t"
                     "addl %%edi, %%esp\n\t" // so that the arguments start on a multiple of sixteen
                     "1: testl %%ecx, %%ecx\n\t"
                     "jz 2f\n\t"
                     "pushl -4(%%edx,%%ecx,4)\n\t"
                     "decl %%ecx\n\t"
                     "jmp 1b\n\t"
                     "2: movl %%esp, %%ebx\n\t"
                     "call *%%eax\n\t"
                     "movl %%esp, %%ecx\n\t"
                     "subl %%ebx, %%ecx\n\t"
                     "movl %%esi, %%esp\n\t"
                     "cld"
                     : "+a"(value), "+c"(count), "+d"(first)
                     :
                     : "ebx", "esi", "edi", "memory", "cc", "st", "st(1)", "st(2)", "st(3)", "st(4)", "st(5)",
                       "st(6)", "st(7)", "xmm0", "xmm1", "xmm2", "xmm3", "xmm4", "xmm5", "xmm6", "xmm7");
    return {value, static_cast<std::int32_t>(count)};
}

} // namespace gfc::platform

#endif
