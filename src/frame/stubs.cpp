// The exported entries: one jump through the slot, arguments and return path untouched.
#include "slots.h"

#undef ZORSAPI
#define ZORSAPI(type, name, args)                                                                            \
    extern "C"                                                                                               \
        [[gnu::naked, gnu::no_profile_instrument_function, gnu::visibility("default")]] type name args       \
    {                                                                                                        \
        __asm__("movq " #name "_arraddr(%rip), %rax\n\tjmpq *%rax");                                         \
    }
#include <zors.h>
