// A function beside the plain form of what it promises.
#pragma once

#include "support/control.h"
#include "support/count.h"
#include "support/random.h"

#include <gtest/gtest.h>
#include <zortypes.h>

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

namespace zors::test {

// How many elements a source and a destination have for each of a length.
struct Each {
    int source = 1;
    int destination = 1;
};

enum class Lengths { small, smallAndLong };

// Not a part of the templates below, which are many: the message alone takes long to compile.
inline void expectResult(ZorStatus status, const RandomBytes& got, const RandomBytes& want, int len,
                         const char* where)
{
    ASSERT_EQ(status, zorStsOk) << where;
    ASSERT_TRUE(got == want) << "byte " << got.firstDifference(want) << " of the destination, length " << len
                             << ", " << where;
}

// Calls function(pSrc, pDst, len) and oracle(pSrc, pDst, len) on the same random bits, at every length up to 257
// and at long ones, and wants the same bits in and around pDst.
template <class S, class D, class Function, class Oracle>
void expectSame(Function function, Oracle oracle, Each each = {}, Lengths lengths = Lengths::smallAndLong)
{
    Random random;
    const auto compare = [&](int len, int srcOffset, int dstOffset) {
        const RandomVector<S> src(std::ptrdiff_t{len} * each.source, srcOffset, random);
        RandomVector<D> got(std::ptrdiff_t{len} * each.destination, dstOffset, random), want = got;
        const ZorStatus status = function(src.data(), got.data(), len);
        oracle(src.data(), want.data(), len);
        compared(std::ptrdiff_t{len} * each.destination);
        expectResult(status, got, want, len, __PRETTY_FUNCTION__);
    };
    constexpr int offsets[][2] = {{0, 0}, {1, 0}, {0, 1}, {1, 1}, {3, 5}, {7, 2}};
    for (int len = 1; len <= 257; ++len)
        for (const auto& [src, dst] : offsets) {
            compare(len, src, dst);
            if (testing::Test::HasFatalFailure()) return;
        }
    if (lengths == Lengths::small) return;
    constexpr auto size = static_cast<std::ptrdiff_t>(sizeof(D));
    const int many = static_cast<int>(longBytes / size);
    compare(many + 3, 1, 1);
    compare(many + 64, 2, 6); // several destinations have the same alignment
}

// The function with its last arguments.
template <class Function, class... Last>
auto with(Function function, Last... last)
{
    return [=](auto... first) { return function(first..., last...); };
}

template <class T>
std::vector<T> everyValue()
{
    std::vector<T> all(std::size_t{1} << 8 * sizeof(T));
    std::iota(all.begin(), all.end(), std::numeric_limits<T>::min());
    return all;
}

// The plain form of what makes one element of each.
template <class Operation>
auto elementwise(Operation operation)
{
    return [=](const auto* pSrc, auto* pDst, int len) { std::transform(pSrc, pSrc + len, pDst, operation); };
}

// The same for values that matter, under every control word of the caller.
template <class D, class S, class Function, class Oracle>
void expectValues(const std::vector<S>& src, Function function, Oracle oracle, int parts = 1)
{
    const auto size = static_cast<std::size_t>(parts);
    std::vector<D> got(src.size() * size), want = got;
    const int len = static_cast<int>(src.size());
    oracle(src.data(), want.data(), len);
    for (const unsigned control : controls) {
        ASSERT_EQ(under(control, function)(src.data(), got.data(), len), zorStsOk);
        compared(len);
        std::size_t n = 0;
        while (n < src.size() && std::memcmp(&got[n * size], &want[n * size], size * sizeof(D)) == 0) ++n;
        ASSERT_EQ(n, src.size()) << "of " << +src[n] << " came " << +got[n * size] << ", not "
                                 << +want[n * size] << ", control " << std::hex << control << ", "
                                 << __PRETTY_FUNCTION__;
    }
}

// What makes one element of each, for values that matter and at every length.
template <class S, class D, class Function, class Operation>
void expectAll(const std::vector<S>& src, Function function, Operation operation,
               Lengths lengths = Lengths::smallAndLong)
{
    expectValues<D>(src, function, elementwise(operation));
    expectSame<S, D>(function, elementwise(operation), {}, lengths);
}

// Bits, but for what is not a number: which of two is left is nobody's promise.
template <class T>
bool same(T got, T want)
{
    if constexpr (Complex<T>)
        return same(got.re, want.re) && same(got.im, want.im);
    else
        return std::memcmp(&got, &want, sizeof got) == 0 || (got != got && want != want);
}

// Elements that find faults, in the place of random bits: of floats some, because among bits is what is not finite.
template <class T>
void sow(T* p, int len, Random& random)
{
    for (int n = 0; n < len; ++n)
        if constexpr (std::is_floating_point_v<T>) {
            using Limits = std::numeric_limits<T>;
            const T special[] = {Limits::infinity(), -Limits::max(), Limits::denorm_min(), Limits::min(), 1};
            const auto kind = random() % 15;
            if (kind < 10) p[n] = kind < 5 ? special[kind] : element<T>(random);
        } else if (std::is_integral_v<T> || random() % 2) {
            p[n] = element<T>(random);
        }
}

// Calls function(pSrc1, pSrc2, pDst, len) and wants operation(src1, src2, dst) of the elements that were there, and
// nothing else changed.
template <class A, class B, class D, class Function, class Operation>
void expectEach(int len, Function function, Operation operation)
{
    static Random random;
    RandomVector<A> a(len, len % 5, random);
    RandomVector<B> b(len, 1, random);
    RandomVector<D> got(len, len % 3, random);
    sow(a.data(), len, random);
    sow(b.data(), len, random);
    sow(got.data(), len, random);
    RandomVector<D> want = got;
    const ZorStatus status = function(std::as_const(a).data(), std::as_const(b).data(), got.data(), len);
    for (int n = 0; n < len; ++n) {
        const D value = operation(a.data()[n], b.data()[n], want.data()[n]);
        want.data()[n] = same(got.data()[n], value) ? got.data()[n] : value;
    }
    compared(len);
    expectResult(status, got, want, len, __PRETTY_FUNCTION__);
}

} // namespace zors::test
