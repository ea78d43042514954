// ZORS_BIND(name, implementation) ties a public function to the implementation of the variant being compiled.
//
// In the baseline the line is the slot itself, filled by ordinary relocation. In a wider variant it is an entry
// of that variant's list of redirects; the initialiser re-points the slots of the best variant. A wider variant
// may bind fewer functions: what it leaves out stays at the baseline.
#pragma once

#include "slots.h"

#define ZORS_TEXT_OF(text) #text
#define ZORS_TEXT(macro) ZORS_TEXT_OF(macro)

namespace zors {

// Same layout for every function type, so that a section full of them is an array.
template <class Function>
struct Redirect {
    Function** slot;
    Function* implementation;
};

} // namespace zors

#if ZORS_BASELINE
#define ZORS_BIND(name, ...)                                                                                 \
    extern "C" {                                                                                             \
    constinit decltype(&::name) name##_arraddr = __VA_ARGS__;                                                \
    }
#else
#define ZORS_BIND(name, ...)                                                                                 \
    [[gnu::section("zors_redirects_" ZORS_TEXT(ZORS_VARIANT)),                                               \
      gnu::used]] constinit const ::zors::Redirect<decltype(::name)>                                         \
        redirect_##name{&::name##_arraddr, __VA_ARGS__};
#endif
