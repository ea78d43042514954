// The analytic signal beside its definition, and the records and statuses of its functions.
#include "support/allocator.h"
#include "support/count.h"
#include "support/random.h"
#include "transform/oracle.h"

#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <numbers>
#include <zors.h>

namespace zors::test {
namespace {

// By the spectrum of the definition: points between 0 and N/2 doubled, none above.
WideVector analytic(const std::vector<Wide>& x)
{
    const std::size_t n = x.size();
    WideVector points(x.begin(), x.end());
    if (n <= 2) return points;
    points = dftOfAnyLength(points);
    for (std::size_t k = 1; k < n; ++k) points[k] *= 2 * k < n ? 2 : 2 * k == n ? 1 : 0;
    points = inverseFromForward(dftOfAnyLength(points));
    for (auto& p : points) p /= static_cast<Wide>(n);
    return points;
}

std::vector<Wide> words(std::size_t n, Random& random)
{
    std::vector<Wide> x(n);
    for (Wide& v : x) v = static_cast<Wide>(static_cast<Zor16s>(random()));
    return x;
}

template <class To>
std::vector<To> as(const std::vector<Wide>& x)
{
    return {x.begin(), x.end()};
}

template <class Spec>
class Record {
public:
    explicit Record(int n) { status = init(n); }
    ~Record() { release(); }
    Record(const Record&) = delete;
    Record& operator=(const Record&) = delete;

    const Spec* get() const { return spec_; }
    ZorStatus status;

private:
    ZorStatus init(int n)
    {
        if constexpr (std::is_same_v<Spec, ZorsHilbertSpec_32f32fc>)
            return zorsHilbertInitAlloc_32f32fc(&spec_, n, ZOR_ALG_ANY);
        else if constexpr (std::is_same_v<Spec, ZorsHilbertSpec_16s32fc>)
            return zorsHilbertInitAlloc_16s32fc(&spec_, n, ZOR_ALG_ANY);
        else
            return zorsHilbertInitAlloc_16s16sc(&spec_, n, ZOR_ALG_ANY);
    }
    void release()
    {
        if constexpr (std::is_same_v<Spec, ZorsHilbertSpec_32f32fc>)
            EXPECT_EQ(zorsHilbertFree_32f32fc(spec_), zorStsOk);
        else if constexpr (std::is_same_v<Spec, ZorsHilbertSpec_16s32fc>)
            EXPECT_EQ(zorsHilbertFree_16s32fc(spec_), zorStsOk);
        else
            EXPECT_EQ(zorsHilbertFree_16s16sc(spec_), zorStsOk);
    }

    Spec* spec_ = nullptr;
};

TEST(Hilbert, IsTheAnalyticSignal)
{
    Random random;
    std::vector<int> lengths = {128, 1000, 1009, 4410};
    for (int n = 1; n <= 130; ++n) lengths.push_back(n);
    for (const int length : lengths) {
        const auto n = static_cast<std::size_t>(length);
        const std::vector<Wide> x = words(n, random);
        const WideVector want = analytic(x);
        const auto wordsOfX = as<Zor16s>(x);
        const auto floatsOfX = as<Zor32f>(x);
        const Record<ZorsHilbertSpec_32f32fc> floats(length);
        const Record<ZorsHilbertSpec_16s32fc> mixed(length);
        const Record<ZorsHilbertSpec_16s16sc> narrow(length);
        std::vector<Zor32fc> got(n), gotMixed(n);
        ASSERT_EQ(zorsHilbert_32f32fc(floatsOfX.data(), got.data(), floats.get()), zorStsOk);
        ASSERT_EQ(zorsHilbert_16s32fc(wordsOfX.data(), gotMixed.data(), mixed.get()), zorStsOk);
        EXPECT_EQ(std::memcmp(got.data(), gotMixed.data(), n * sizeof(Zor32fc)), 0) << n;
        RelativeError error;
        WideVector points(n);
        for (std::size_t i = 0; i < n; ++i) points[i] = {got[i].re, got[i].im};
        error.add(points, want);
        const double unit = 0x1p-23 * std::max(2.5, std::sqrt(std::log2(static_cast<double>(n))));
        EXPECT_LE(error.value(), 2.4 * unit) << n;
        // Rounded, one bit down; saturation included.
        for (const int scaleFactor : {-1, 0, 3}) {
            std::vector<Zor16sc> rounded(n);
            ASSERT_EQ(zorsHilbert_16s16sc_Sfs(wordsOfX.data(), rounded.data(), narrow.get(), scaleFactor),
                      zorStsOk);
            for (std::size_t i = 0; i < n; ++i)
                for (const auto& [value, exact] : {std::pair<Wide, Wide>{rounded[i].re, want[i].real()},
                                                   std::pair<Wide, Wide>{rounded[i].im, want[i].imag()}}) {
                    const Wide scaled =
                        std::clamp(std::ldexp(exact, -scaleFactor), -0x8000L + 0.0L, 0x7fffL + 0.0L);
                    ASSERT_LE(std::abs(value - scaled), 0.55L) << n << ", scale factor " << scaleFactor;
                }
        }
        compared(length);
    }
}

// Of whole periods of a cosine the imaginary part is the sine.
TEST(Hilbert, TurnsACosineIntoASine)
{
    constexpr int n = 90, periods = 7;
    std::vector<Zor32f> x(n);
    std::vector<Zor32fc> z(n);
    const auto angle = [](int i) { return 2 * std::numbers::pi * periods * i / n; };
    for (int i = 0; i < n; ++i) x[static_cast<std::size_t>(i)] = static_cast<Zor32f>(std::cos(angle(i)));
    const Record<ZorsHilbertSpec_32f32fc> record(n);
    ASSERT_EQ(zorsHilbert_32f32fc(x.data(), z.data(), record.get()), zorStsOk);
    for (int i = 0; i < n; ++i) {
        const Zor32fc v = z[static_cast<std::size_t>(i)];
        EXPECT_NEAR(v.re, std::cos(angle(i)), 1e-6);
        EXPECT_NEAR(v.im, std::sin(angle(i)), 1e-6);
    }
}

TEST(Hilbert, Statuses)
{
    char mark;
    auto* spec = reinterpret_cast<ZorsHilbertSpec_32f32fc*>(&mark);
    EXPECT_EQ(zorsHilbertInitAlloc_32f32fc(nullptr, 0, ZOR_ALG_ANY), zorStsNullPointer);
    EXPECT_EQ(zorsHilbertInitAlloc_32f32fc(&spec, 0, ZOR_ALG_ANY), zorStsBadSize);
    EXPECT_EQ(zorsHilbertInitAlloc_32f32fc(&spec, (1 << 27) - 1, ZOR_ALG_ANY), zorStsBadSize);
    EXPECT_EQ(static_cast<void*>(spec), &mark);
    EXPECT_EQ(zorsHilbertFree_32f32fc(nullptr), zorStsNullPointer);
    EXPECT_EQ(zorsHilbertFree_16s32fc(nullptr), zorStsNullPointer);
    EXPECT_EQ(zorsHilbertFree_16s16sc(nullptr), zorStsNullPointer);

    const Record<ZorsHilbertSpec_32f32fc> floats(8);
    const Record<ZorsHilbertSpec_16s32fc> mixed(8);
    const Record<ZorsHilbertSpec_16s16sc> narrow(8);
    Zor32f x[8] = {};
    Zor16s w[8] = {};
    Zor32fc z[8] = {{1, 1}};
    Zor16sc y[8] = {{1, 1}};
    const auto* wrong = reinterpret_cast<const ZorsHilbertSpec_32f32fc*>(mixed.get());
    const auto* wrongMixed = reinterpret_cast<const ZorsHilbertSpec_16s32fc*>(narrow.get());
    const auto* wrongNarrow = reinterpret_cast<const ZorsHilbertSpec_16s16sc*>(floats.get());
    // All pointers before the kind of the record.
    EXPECT_EQ(zorsHilbert_32f32fc(nullptr, z, wrong), zorStsNullPointer);
    EXPECT_EQ(zorsHilbert_32f32fc(x, nullptr, wrong), zorStsNullPointer);
    EXPECT_EQ(zorsHilbert_32f32fc(x, z, nullptr), zorStsNullPointer);
    EXPECT_EQ(zorsHilbert_32f32fc(x, z, wrong), zorStsWrongContext);
    EXPECT_EQ(zorsHilbert_16s32fc(nullptr, z, wrongMixed), zorStsNullPointer);
    EXPECT_EQ(zorsHilbert_16s32fc(w, nullptr, wrongMixed), zorStsNullPointer);
    EXPECT_EQ(zorsHilbert_16s32fc(w, z, nullptr), zorStsNullPointer);
    EXPECT_EQ(zorsHilbert_16s32fc(w, z, wrongMixed), zorStsWrongContext);
    EXPECT_EQ(zorsHilbert_16s16sc_Sfs(nullptr, y, wrongNarrow, 0), zorStsNullPointer);
    EXPECT_EQ(zorsHilbert_16s16sc_Sfs(w, nullptr, wrongNarrow, 0), zorStsNullPointer);
    EXPECT_EQ(zorsHilbert_16s16sc_Sfs(w, y, nullptr, 0), zorStsNullPointer);
    EXPECT_EQ(zorsHilbert_16s16sc_Sfs(w, y, wrongNarrow, 0), zorStsWrongContext);
    EXPECT_EQ(zorsHilbertFree_32f32fc(const_cast<ZorsHilbertSpec_32f32fc*>(wrong)), zorStsWrongContext);
    EXPECT_TRUE(z[0].re == 1 && z[0].im == 1 && y[0].re == 1 && y[0].im == 1);
    Zor32u tag = 0;
    std::memcpy(&tag, floats.get(), sizeof tag);
    EXPECT_EQ(tag, 0x434D4145U);
    std::memcpy(&tag, narrow.get(), sizeof tag);
    EXPECT_EQ(tag, 0x434D4147U);
}

// Of a record's making, and of calls, whose transforms take a work buffer each.
TEST(Hilbert, EveryAllocationMayFail)
{
    for (const int n : {8, 60, 1000, 1009}) {
        allocator = {};
        std::size_t needed = 0;
        {
            const Record<ZorsHilbertSpec_16s16sc> record(n);
            needed = allocator.sizesAsked.size();
            ASSERT_EQ(record.status, zorStsOk);
        }
        EXPECT_TRUE(allocator.live.empty());
        for (std::size_t i = 0; i < needed; ++i) {
            allocator = {};
            allocator.untilFailure = static_cast<int>(i);
            ZorsHilbertSpec_16s16sc* spec = nullptr;
            EXPECT_EQ(zorsHilbertInitAlloc_16s16sc(&spec, n, ZOR_ALG_ANY), zorStsNoMemory);
            EXPECT_EQ(spec, nullptr);
            EXPECT_TRUE(allocator.live.empty()) << "allocation " << i;
            EXPECT_FALSE(allocator.strayRelease);
        }
        allocator = {};
        const Record<ZorsHilbertSpec_16s16sc> record(n);
        const std::size_t kept = allocator.live.size();
        std::vector<Zor16s> x(static_cast<std::size_t>(n), 3);
        std::vector<Zor16sc> z(x.size());
        allocator.sizesAsked.clear();
        ASSERT_EQ(zorsHilbert_16s16sc_Sfs(x.data(), z.data(), record.get(), 0), zorStsOk);
        needed = allocator.sizesAsked.size();
        EXPECT_EQ(allocator.live.size(), kept);
        for (std::size_t i = 0; i < needed; ++i) {
            std::fill(z.begin(), z.end(), Zor16sc{7, 7});
            allocator.untilFailure = static_cast<int>(i);
            EXPECT_EQ(zorsHilbert_16s16sc_Sfs(x.data(), z.data(), record.get(), 0), zorStsNoMemory);
            EXPECT_TRUE(std::all_of(z.begin(), z.end(), [](Zor16sc v) { return v.re == 7 && v.im == 7; }));
            EXPECT_EQ(allocator.live.size(), kept);
        }
        allocator.untilFailure = -1;
    }
}

} // namespace
} // namespace zors::test
