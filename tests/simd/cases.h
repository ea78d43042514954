// Tests and assertions in code that is compiled for a variant. They lead out of it at once: GoogleTest's own would
// be compiled for every processor again, and with them half of what a test takes to build.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <type_traits>

namespace zors::test {

// Places in what is tested, for the message: a lane, a count.
using Places = std::initializer_list<std::ptrdiff_t>;

struct Where {
    const char* file;
    int line;
};

// Makes run() a test of GoogleTest, to be called before main.
struct Case {
    Case(const char* suite, const char* name, void (*run)(),
         Where where = {__builtin_FILE(), __builtin_LINE()});
};

void fail(Places places, Where where);
void failEqual(double got, double want, Places places, Where where);

inline bool expect(bool holds, Places places = {}, Where where = {__builtin_FILE(), __builtin_LINE()})
{
    if (!holds) fail(places, where);
    return holds;
}

template <class T>
void expectEqual(T got, std::type_identity_t<T> want, Places places = {},
                 Where where = {__builtin_FILE(), __builtin_LINE()})
{
    if (got != want) failEqual(static_cast<double>(got), static_cast<double>(want), places, where);
}

} // namespace zors::test

#define ZORS_CASE(suite, name)                                                                               \
    static void suite##name();                                                                               \
    static const test::Case suite##name##Case(#suite, #name, suite##name);                                   \
    static void suite##name()
