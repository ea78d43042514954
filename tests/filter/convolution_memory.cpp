// The memory of a convolution: its size by the rule, no byte beside it, none that is left, and what is refused.
#include "contract/arena.h"
#include "filter/convolution_oracle.h"
#include "filter/faults.h"
#include "support/allocator.h"
#include "support/count.h"

namespace zors::test {
namespace {

using contract::Arena;

constexpr int line = 64;

int wholeLines(int bytes)
{
    return (bytes + line - 1) / line * line;
}

int sizeByTheRule(int n, int m, ZorDataType type, ZorConvAlgType algType)
{
    const int shorter = std::min(n, m), longer = std::max(n, m);
    if (algType == ZOR_CONV_ALG_DIRECT || (algType == ZOR_CONV_ALG_AUTO && !isTransformed(shorter, longer)))
        return line;
    const bool single = type == zorDataType32f;
    const int order = orderOf(shorter, longer);
    int spec = 0, init = 0, work = 0;
    const auto getSize = single ? zorsFFTGetSize_R_32f : zorsFFTGetSize_R_64f;
    EXPECT_EQ(getSize(order, ZOR_FFT_SCALE_INV, ZOR_ALG_ANY, &spec, &init, &work), zorStsOk);
    return wholeLines(spec) + wholeLines(init) + wholeLines(work) + wholeLines((single ? 8 : 16) << order) +
           line;
}

TEST(ConvolutionBuffer, HasTheSizeOfTheRule)
{
    const auto expect = [](int n, int m, ZorConvAlgType algType) {
        for (const ZorDataType type : {zorDataType32f, zorDataType64f})
            for (const bool swapped : {false, true}) {
                int size = -1;
                ASSERT_EQ(zorsConvolveGetBufferSize(swapped ? m : n, swapped ? n : m, type, algType, &size),
                          zorStsOk);
                ASSERT_EQ(size, sizeByTheRule(n, m, type, algType)) << n << ", " << m << ", " << type;
                compared(1);
            }
    };
    for (const ZorConvAlgType algType : {ZOR_CONV_ALG_AUTO, ZOR_CONV_ALG_DIRECT, ZOR_CONV_ALG_FFT}) {
        for (int n = 1; n <= 130; ++n)
            for (const int m :
                 {n, n + 1, 2 * n, 3 * n - 1, 3 * n, 3 * n + 1, 511 - n, 512 - n, 513 - n, 514 - n, 5000})
                if (m >= n) expect(n, m, algType);
        for (int n = 1 << 8; n <= 1 << 22; n *= 2)
            for (const int d : {-1, 0, 1})
                for (const int m : {n + d, 2 * n, 3 * (n + d) - 1, 3 * (n + d), 3 * (n + d) + 1})
                    expect(n + d, m, algType);
    }
    // Only the lowest byte of the selector counts.
    int size = 0, other = 0;
    EXPECT_EQ(zorsConvolveGetBufferSize(5, 5, zorDataType32f, 0x100 + ZOR_CONV_ALG_FFT, &size), zorStsOk);
    EXPECT_EQ(zorsConvolveGetBufferSize(5, 5, zorDataType32f, ZOR_CONV_ALG_FFT, &other), zorStsOk);
    EXPECT_EQ(size, other);
}

TEST(ConvolutionBuffer, FailsInOrder)
{
    for (const int badLength : badLengths)
        for (const int badType : {14, 0, -1}) {
            Untouched memory;
            auto* size = reinterpret_cast<int*>(memory.get());
            expectOrder("size", {zorStsNullPointer, zorStsBadSize, zorStsBadSize, zorStsBadAlgType},
                        [&](unsigned faults) {
                            return zorsConvolveGetBufferSize(faults & 2 ? badLength : 5,
                                                             faults & 4 ? badLength : 5,
                                                             faults & 16 ? badType : zorDataType32f,
                                                             faults & 8 ? 3 : 0, unless(faults & 1, size));
                        });
            int cleared = 77;
            EXPECT_EQ(zorsConvolveGetBufferSize(5, 5, badType, 3, &cleared), zorStsBadAlgType);
            EXPECT_EQ(cleared, 77);
            EXPECT_EQ(zorsConvolveGetBufferSize(5, 5, badType, 255, &cleared), zorStsBadAlgType);
            EXPECT_EQ(zorsConvolveGetBufferSize(5, 5, badType, 0, &cleared), zorStsBadDataType);
            EXPECT_EQ(cleared, 0);
            cleared = 77;
            EXPECT_EQ(zorsConvolveGetBufferSize(INT_MAX, INT_MAX, badType, 0, &cleared), zorStsBadDataType);
            EXPECT_EQ(cleared, 0);
        }
    // Beyond the transforms, and beyond 2^31 - 1 bytes.
    for (const auto& [n, m, type, status] : {std::tuple{INT_MAX, INT_MAX, zorDataType32f, zorStsBadFftOrder},
                                             {1 << 29, 1 << 29, zorDataType32f, zorStsBadFftOrder},
                                             {1 << 28, INT_MAX, zorDataType64f, zorStsBadFftOrder},
                                             {1 << 27, 1 << 27, zorDataType32f, zorStsBadSize},
                                             {1 << 26, 1 << 26, zorDataType64f, zorStsBadSize}}) {
        int size = 77;
        EXPECT_EQ(zorsConvolveGetBufferSize(n, m, type, ZOR_CONV_ALG_AUTO, &size), status) << n << ", " << m;
        EXPECT_EQ(size, 0);
        // Nothing is read: the vectors are not there.
        Untouched memory;
        auto* none = memory.get();
        if (type == zorDataType32f) {
            EXPECT_EQ(zorsConvolve_32f(reinterpret_cast<Zor32f*>(none), n, reinterpret_cast<Zor32f*>(none), m,
                                       reinterpret_cast<Zor32f*>(none), ZOR_CONV_ALG_AUTO, none),
                      status);
        } else {
            EXPECT_EQ(zorsConvolve_64f(reinterpret_cast<Zor64f*>(none), n, reinterpret_cast<Zor64f*>(none), m,
                                       reinterpret_cast<Zor64f*>(none), ZOR_CONV_ALG_AUTO, none),
                      status);
        }
    }
}

TEST(ConvolutionStatus, FailsInOrder)
{
    for (const int badLength : badLengths) {
        Untouched memory;
        const auto all = [&]<class T>(const char* what, auto function, T*, auto... last) {
            const T a[70] = {}, b[700] = {};
            auto* to = reinterpret_cast<T*>(memory.get());
            for (const auto& [n, m] : {std::pair{3, 4}, {70, 700}})
                expectOrder(
                    what,
                    {zorStsNullPointer, zorStsNullPointer, zorStsNullPointer, zorStsBadSize, zorStsBadSize},
                    [&, n = n, m = m](unsigned faults) {
                        return function(unless(faults & 1, a), faults & 8 ? badLength : n,
                                        unless(faults & 2, b), faults & 16 ? badLength : m,
                                        unless(faults & 4, to), last...);
                    });
        };
        all("32f", zorsConv_32f, static_cast<Zor32f*>(nullptr));
        all("64f", zorsConv_64f, static_cast<Zor64f*>(nullptr));
        all("16s", zorsConv_16s_Sfs, static_cast<Zor16s*>(nullptr), 0);
        const auto withBuffer = [&]<class T>(const char* what, auto function, T*) {
            const T a[3] = {}, b[4] = {};
            auto* to = reinterpret_cast<T*>(memory.get());
            auto* buffer = memory.get() + 1024;
            for (const int badMethod : {3, 255, 0x103})
                expectOrder(what,
                            {zorStsNullPointer, zorStsNullPointer, zorStsNullPointer, zorStsNullPointer,
                             zorStsBadSize, zorStsBadSize, zorStsBadAlgType},
                            [&](unsigned faults) {
                                return function(
                                    unless(faults & 1, a), faults & 16 ? badLength : 3, unless(faults & 2, b),
                                    faults & 32 ? badLength : 4, unless(faults & 4, to),
                                    faults & 64 ? badMethod : ZOR_CONV_ALG_FFT, unless(faults & 8, buffer));
                            });
        };
        withBuffer("32f", zorsConvolve_32f, static_cast<Zor32f*>(nullptr));
        withBuffer("64f", zorsConvolve_64f, static_cast<Zor64f*>(nullptr));
    }
}

// Two vectors, a destination and a buffer between forbidden pages.
template <class T>
class Guarded {
public:
    void check(int n, int m, ZorConvAlgType algType, bool atEnd, std::size_t elements)
    {
        const auto a = randomSignal<T>(n, random_), b = randomSignal<T>(m, random_);
        std::vector<T> want(a.size() + b.size() - 1);
        int size = 0;
        ASSERT_EQ(zorsConvolveGetBufferSize(n, m, dataTypeOf<T>, algType, &size), zorStsOk);
        std::vector<Zor8u> buffer(static_cast<std::size_t>(size));
        ASSERT_EQ(convolve<T>(a.data(), n, b.data(), m, want.data(), algType, buffer.data()), zorStsOk);
        const auto* x = hold(first_, a, atEnd, elements);
        const auto* y = hold(second_, b, atEnd, elements + 1);
        auto* to = hold(destination_, std::vector<T>(want.size()), atEnd, elements + 2);
        auto* memory = reinterpret_cast<Zor8u*>(buffer_.place(buffer.size(), elements % line, atEnd));
        for (auto& byte : buffer) byte = 0x77;
        ASSERT_EQ(convolve<T>(x, n, y, m, to, algType, memory), zorStsOk);
        EXPECT_EQ(std::memcmp(to, want.data(), want.size() * sizeof(T)), 0) << n << ", " << m;
        for (const auto* arena : {&first_, &second_, &destination_, &buffer_})
            EXPECT_TRUE(arena->canariesAlive()) << n << ", " << m << ", method " << algType;
        compared(std::ssize(want));
    }

private:
    static T* hold(Arena& arena, const std::vector<T>& v, bool atEnd, std::size_t elements)
    {
        auto* p = reinterpret_cast<T*>(arena.place(v.size() * sizeof(T), elements * sizeof(T) % line, atEnd));
        std::copy(v.begin(), v.end(), p);
        return p;
    }

    static constexpr std::size_t most = 200'000;
    Arena first_{most}, second_{most}, destination_{most}, buffer_{2 * most};
    Random random_;
};

template <class T>
void checkGuards()
{
    Guarded<T> guarded;
    std::size_t elements = 0;
    for (const bool atEnd : {false, true}) {
        for (const ZorConvAlgType algType : {ZOR_CONV_ALG_DIRECT, ZOR_CONV_ALG_FFT})
            for (int n = 1; n <= 70; n += 1 + n / 20)
                for (const int m : {n, n + 1, 3 * n - 1, 3 * n, 257, 1030})
                    guarded.check(n, m, algType, atEnd, ++elements);
        for (const auto& [n, m] :
             {std::pair{63, 5000}, {64, 449}, {256, 258}, {300, 4000}, {600, 700}, {1500, 1600}}) {
            guarded.check(n, m, ZOR_CONV_ALG_AUTO, atEnd, ++elements);
            guarded.check(n, m, ZOR_CONV_ALG_DIRECT, atEnd, ++elements);
        }
    }
}

TEST(ConvolutionGuards, NothingBesideIsTouched)
{
    checkGuards<Zor32f>();
    checkGuards<Zor64f>();
}

TEST(ConvolutionGuards, NothingBesideIntegersIsTouched)
{
    Random random;
    Arena first(4096), second(20000), destination(20000);
    for (const bool atEnd : {false, true})
        for (const auto& [n, m] : {std::pair{1, 1}, {1, 7}, {5, 33}, {63, 3000}, {64, 449}, {300, 1000}}) {
            const auto a = randomSignal<Zor16s>(n, random), b = randomSignal<Zor16s>(m, random);
            const auto hold = [&](Arena& arena, const std::vector<Zor16s>& v, std::size_t offset) {
                auto* p = reinterpret_cast<Zor16s*>(arena.place(2 * v.size(), offset, atEnd));
                std::copy(v.begin(), v.end(), p);
                return p;
            };
            const auto* x = hold(first, a, 2);
            const auto* y = hold(second, b, 38);
            auto* to = hold(destination, std::vector<Zor16s>(a.size() + b.size() - 1), 14);
            ASSERT_EQ(zorsConv_16s_Sfs(x, n, y, m, to, 20), zorStsOk);
            for (std::ptrdiff_t k = 0; k < n + m - 1; ++k)
                ASSERT_EQ(to[k], scaled(output(a, b, k).value, 20));
            for (const auto* arena : {&first, &second, &destination}) EXPECT_TRUE(arena->canariesAlive());
        }
}

// Direct sums ask for no memory, and transforms for what the rule gives at the most; where there is none nothing is
// written, and nothing is left in any case. So this shows which way was taken.
template <class T, class Run>
void checkAllocation(int n, int m, ZorDataType type, Run run)
{
    SCOPED_TRACE(std::to_string(n) + ", " + std::to_string(m));
    const std::vector<T> a(static_cast<std::size_t>(n), T{1}), b(static_cast<std::size_t>(m), T{1});
    std::vector<T> to(a.size() + b.size() - 1);
    allocator = {};
    EXPECT_EQ(run(a.data(), n, b.data(), m, to.data()), zorStsOk);
    EXPECT_TRUE(allocator.live.empty());
    EXPECT_FALSE(allocator.strayRelease);
    const bool transforms = isTransformed(std::min(n, m), std::max(n, m));
    const auto count = std::ssize(allocator.sizesAsked);
    EXPECT_EQ(count > 0, transforms);
    for (const int size : allocator.sizesAsked)
        EXPECT_TRUE(type == 0 || size <= sizeByTheRule(n, m, type, ZOR_CONV_ALG_AUTO));
    for (int failing = 0; failing < count; ++failing) {
        allocator = {};
        allocator.untilFailure = failing;
        to.assign(to.size(), T{77});
        EXPECT_EQ(run(a.data(), n, b.data(), m, to.data()), zorStsNoMemory);
        EXPECT_TRUE(allocator.live.empty());
        EXPECT_EQ(to, std::vector<T>(to.size(), T{77})) << "written in spite of an error";
    }
    allocator = {};
}

TEST(ConvolutionAllocation, AsTheMethodAsksFor)
{
    for (const auto& [n, m] : {std::pair{1, 1},
                               {63, 448},
                               {63, 449},
                               {63, 100'000},
                               {64, 448},
                               {64, 449},
                               {65, 447},
                               {255, 256},
                               {255, 257},
                               {256, 256},
                               {256, 257},
                               {300, 899},
                               {300, 900},
                               {5000, 4000}}) {
        for (const bool swapped : {false, true}) {
            const int first = swapped ? m : n, second = swapped ? n : m;
            checkAllocation<Zor32f>(first, second, zorDataType32f, zorsConv_32f);
            checkAllocation<Zor64f>(first, second, zorDataType64f, zorsConv_64f);
            checkAllocation<Zor16s>(first, second, 0,
                                    [](auto... arguments) { return zorsConv_16s_Sfs(arguments..., 3); });
        }
    }
}

TEST(ConvolutionAllocation, ABufferIsEnough)
{
    for (const auto& [n, m] : {std::pair{1, 1}, {64, 449}, {300, 900}, {1000, 1000}}) {
        const std::vector<Zor32f> a(static_cast<std::size_t>(n), 1), b(static_cast<std::size_t>(m), 1);
        std::vector<Zor32f> to(a.size() + b.size() - 1);
        int size = 0;
        ASSERT_EQ(zorsConvolveGetBufferSize(n, m, zorDataType32f, ZOR_CONV_ALG_FFT, &size), zorStsOk);
        std::vector<Zor8u> buffer(static_cast<std::size_t>(size));
        allocator = {};
        EXPECT_EQ(zorsConvolve_32f(a.data(), n, b.data(), m, to.data(), ZOR_CONV_ALG_FFT, buffer.data()),
                  zorStsOk);
        EXPECT_TRUE(allocator.sizesAsked.empty() && allocator.pointersFreed.empty());
    }
}

} // namespace
} // namespace zors::test
