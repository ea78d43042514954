// The public functions as the library sees them: each prototype with its slot, the pointer that its entry
// jumps through.
#pragma once

#include <zortypes.h>

#undef ZORSAPI
#define ZORSAPI(type, name, args)                                                                            \
    extern "C" type name args;                                                                               \
    extern "C" [[gnu::visibility("hidden")]] type(*name##_arraddr) args;
#include <zors.h>
