// Points of a spectrum beside the sum of their definition in long double, with exact fractions of a turn.
#include "filter/faults.h"
#include "support/control.h"
#include "support/count.h"
#include "support/random.h"

#include <gtest/gtest.h>
#include <zors.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace zors::test {
namespace {

using Wide = long double;
__extension__ using Exact = __float128;

struct Point {
    Wide re, im;
};

// e^(2 pi i f m): the turns are exact, and so is every quarter of them.
Point turned(double frequency, int m)
{
    const Exact turns = static_cast<Exact>(frequency) * m;
    const auto turn = static_cast<Wide>(turns - static_cast<Exact>(static_cast<long long>(turns)));
    const Wide quarters = std::nearbyint(4 * turn);
    const Wide angle = 2 * std::numbers::pi_v<Wide> * (turn - quarters / 4);
    const Wide c = std::cos(angle), s = std::sin(angle);
    switch (static_cast<int>(quarters) % 4) {
    case 0:
        return {c, s};
    case 1:
        return {-s, c};
    case 2:
        return {-c, -s};
    default:
        return {s, -c};
    }
}

// Angles of one frequency, for as many samples as were asked for.
class Angles {
public:
    explicit Angles(double frequency) : frequency_(frequency) {}
    Point operator()(int m)
    {
        while (std::ssize(points_) <= m)
            points_.push_back(turned(frequency_, static_cast<int>(points_.size())));
        return points_[static_cast<std::size_t>(m)];
    }
    double frequency() const { return frequency_; }
    bool isQuarters() const { return std::floor(4 * frequency_) == 4 * frequency_; }

private:
    double frequency_;
    std::vector<Point> points_;
};

struct Sum {
    Point value{};
    Wide magnitude = 0;
};

template <class T>
Sum sumOf(const T* p, int len, Angles& angles)
{
    Sum sum;
    for (int n = 0; n < len; ++n) {
        const Point e = angles(len - n);
        Wide re, im = 0;
        if constexpr (Complex<T>)
            re = p[n].re, im = p[n].im;
        else
            re = p[n];
        sum.value.re += re * e.re - im * e.im;
        sum.value.im += re * e.im + im * e.re;
        sum.magnitude += std::abs(re) + std::abs(im);
    }
    return sum;
}

// The functions of a type of elements, all with a scale factor, which floating-point types ignore.
template <class T>
struct Functions;

#define FLOATING(type, result, frequency)                                                                    \
    template <>                                                                                              \
    struct Functions<Zor##type> {                                                                            \
        using Result = Zor##result;                                                                          \
        using Frequency = Zor##frequency;                                                                    \
        static ZorStatus one(const Zor##type* p, int len, Result* to, int, Frequency f)                      \
        {                                                                                                    \
            return zorsGoertz_##type(p, len, to, f);                                                         \
        }                                                                                                    \
        static ZorStatus two(const Zor##type* p, int len, Result* to, int, const Frequency* f)               \
        {                                                                                                    \
            return zorsGoertzTwo_##type(p, len, to, f);                                                      \
        }                                                                                                    \
    };
FLOATING(32f, 32fc, 32f)
FLOATING(64f, 64fc, 64f)
FLOATING(32fc, 32fc, 32f)
FLOATING(64fc, 64fc, 64f)
#undef FLOATING

template <>
struct Functions<Zor16s> {
    using Result = Zor16sc;
    using Frequency = Zor32f;
    static constexpr auto one = zorsGoertz_16s_Sfs;
};
template <>
struct Functions<Zor16sc> {
    using Result = Zor16sc;
    using Frequency = Zor32f;
    static constexpr auto one = zorsGoertz_16sc_Sfs;
};

template <class T>
ZorStatus two(const T* p, int len, typename Functions<T>::Result* to, int scaleFactor,
              const typename Functions<T>::Frequency* f)
{
    if constexpr (std::is_same_v<T, Zor16sc>)
        return zorsGoertzTwo_16sc_Sfs(p, len, to, scaleFactor, f);
    else
        return Functions<T>::two(p, len, to, scaleFactor, f);
}

template <class R>
R roundedTo(Wide value, int scaleFactor)
{
    if constexpr (std::is_floating_point_v<R>) return static_cast<R>(value);
    const Wide scaled = std::nearbyint(std::ldexp(value, -scaleFactor));
    return static_cast<R>(std::clamp<Wide>(scaled, -32768, 32767));
}

// A part of a result is a rounding of something within the bound.
template <class R>
void expectWithin(R got, Wide want, Wide bound, int scaleFactor, const char* where)
{
    EXPECT_GE(got, roundedTo<R>(want - bound, scaleFactor)) << where;
    EXPECT_LE(got, roundedTo<R>(want + bound, scaleFactor)) << where;
}

template <class T>
class Goertzel : public testing::Test {
public:
    using F = Functions<T>;
    using Result = typename F::Result;
    using Frequency = typename F::Frequency;

    // Where a recurrence is at its worst, where angles are exact, and between.
    static std::vector<Angles> frequencies()
    {
        std::vector<Angles> all;
        for (const double f : {0.0, 1e-9, 0.0001, 0.1, 0.25, 0.32127, 0.5, 0.75, 0.87654321})
            all.emplace_back(static_cast<Frequency>(f));
        for (const Frequency f : {0.0f, 0.5f, 1.0f}) all.emplace_back(std::nextafter(f, Frequency{0.25}));
        return all;
    }

    static bool isExact(const Angles& angles)
    {
        return std::is_same_v<Result, Zor16sc> && angles.isQuarters();
    }

    // So that most results are in range; one more than fits now and then.
    static int scaleFactorFor(int len, Random& random)
    {
        if constexpr (!std::is_same_v<Result, Zor16sc>) return 0;
        return static_cast<int>(std::log2(len)) / 2 + below(4, random) - 1;
    }

    void expectPoint(const T* p, int len, Angles& angles, Result got, int scaleFactor)
    {
        const Sum sum = sumOf(p, len, angles);
        const Wide bound =
            isExact(angles) ? 0 : (28 + std::min(len, 512) / 8.0L + len / 500.0L) * 0x1p-53L * sum.magnitude;
        char where[96];
        std::snprintf(where, sizeof where, "length %d, frequency %.17g, factor %d", len, angles.frequency(),
                      scaleFactor);
        expectWithin(got.re, sum.value.re, bound, scaleFactor, where);
        expectWithin(got.im, sum.value.im, bound, scaleFactor, where);
        compared(2);
    }
};

using Types = testing::Types<Zor32f, Zor64f, Zor32fc, Zor64fc, Zor16s, Zor16sc>;
TYPED_TEST_SUITE(Goertzel, Types);

TYPED_TEST(Goertzel, IsTheSumOfItsDefinition)
{
    using T = TypeParam;
    Random random;
    auto all = this->frequencies();
    std::vector<int> lengths(257);
    std::iota(lengths.begin(), lengths.end(), 1);
    for (const int len : {511, 512, 513, 1023, 1024, 1025, 4096, 8191, 8193, 16401, 100003})
        lengths.push_back(len);
    for (const int len : lengths) {
        RandomVector<T> src(len, len % 7, random);
        for (int n = 0; n < len; ++n) src.data()[n] = element<T>(random);
        for (auto& angles : all) {
            typename TestFixture::Result got;
            const int factor = this->scaleFactorFor(len, random);
            const auto f = static_cast<typename TestFixture::Frequency>(angles.frequency());
            ASSERT_EQ(Functions<T>::one(src.data(), len, &got, factor, f), zorStsOk);
            this->expectPoint(src.data(), len, angles, got, factor);
            if (testing::Test::HasFailure()) return;
        }
    }
}

// Twice a frequency after the other, in one pass: every pair of neighbours.
TYPED_TEST(Goertzel, TwoAreTwice)
{
    using T = TypeParam;
    if constexpr (std::is_same_v<T, Zor16s>) {
        GTEST_SKIP() << "not offered";
    } else {
        Random random;
        const auto all = this->frequencies();
        for (int len = 1; len < 4000; len += 1 + len / 9) {
            RandomVector<T> src(len, len % 5, random);
            for (int n = 0; n < len; ++n) src.data()[n] = element<T>(random);
            for (std::size_t i = 0; i + 1 < all.size(); ++i) {
                typename TestFixture::Frequency f[2];
                for (std::size_t k = 0; k < 2; ++k)
                    f[k] = static_cast<typename TestFixture::Frequency>(all[i + k].frequency());
                typename TestFixture::Result got[2], want[2];
                ASSERT_EQ(two<T>(src.data(), len, got, 3, f), zorStsOk);
                for (int k = 0; k < 2; ++k) {
                    ASSERT_EQ(Functions<T>::one(src.data(), len, want + k, 3, f[k]), zorStsOk);
                    EXPECT_EQ(std::memcmp(got + k, want + k, sizeof *got), 0) << "length " << len;
                }
                compared(4);
            }
        }
    }
}

TYPED_TEST(Goertzel, AtZeroIsTheSum)
{
    using T = TypeParam;
    using Value = typename TestFixture::Result;
    T src[300];
    Wide re = 0, im = 0;
    for (int n = 0; n < 300; ++n) {
        if constexpr (Complex<T>) {
            src[n].re = static_cast<decltype(T::re)>(n - 40);
            src[n].im = static_cast<decltype(T::re)>(7 - n);
            im += 7 - n;
        } else {
            src[n] = static_cast<T>(n - 40);
        }
        re += n - 40;
        Value got{};
        ASSERT_EQ(Functions<T>::one(src, n + 1, &got, 0, 0), zorStsOk);
        EXPECT_EQ(got.re, roundedTo<decltype(got.re)>(re, 0));
        EXPECT_EQ(got.im, roundedTo<decltype(got.re)>(im, 0));
        if constexpr (!Complex<T>) {
            EXPECT_FALSE(std::signbit(static_cast<double>(got.im)));
        }
    }
}

// The bits are those of a frequency in single precision.
TEST(GoertzelQ15, IsTheSame)
{
    Random random;
    for (const int len : {1, 2, 33, 1000, 1100}) {
        std::vector<Zor16sc> src(static_cast<std::size_t>(len));
        for (auto& x : src) x = element<Zor16sc>(random);
        for (const int q : {0, 1, 77, 8192, 16384, 20000, 32767}) {
            const Zor16s q15[] = {static_cast<Zor16s>(q), static_cast<Zor16s>(32767 - q)};
            const Zor32f f[] = {static_cast<Zor32f>(q) / 32768, static_cast<Zor32f>(32767 - q) / 32768};
            Zor16sc got, gotTwo[2], want[2];
            ASSERT_EQ(zorsGoertzQ15_16sc_Sfs(src.data(), len, &got, q15[0], 4), zorStsOk);
            ASSERT_EQ(zorsGoertzTwoQ15_16sc_Sfs(src.data(), len, gotTwo, q15, 4), zorStsOk);
            ASSERT_EQ(zorsGoertzTwo_16sc_Sfs(src.data(), len, want, 4, f), zorStsOk);
            EXPECT_EQ(std::memcmp(&got, want, sizeof got), 0) << q;
            EXPECT_EQ(std::memcmp(gotTwo, want, sizeof want), 0) << q;
            compared(6);
        }
    }
}

// Ties to even, saturation and factors beyond every result, whatever the caller's rounding control.
TEST(GoertzelSfs, ScalesByTheRule)
{
    const Zor16s src[] = {20000, 20000, 20000, 1};
    for (const unsigned control : roundings)
        for (const auto& [len, factor, want] : {std::array{1, 0, 20000},
                                                {3, 0, 32767},
                                                {3, 1, 30000},
                                                {3, 5, 1875},
                                                {3, 6, 938},
                                                {4, 1, 30000},
                                                {3, 15, 2},
                                                {3, 16, 1},
                                                {3, 17, 0},
                                                {3, 2000, 0},
                                                {1, -1, 32767},
                                                {1, -2000, 32767}}) {
            Zor16sc got{};
            const auto call = under(control, zorsGoertz_16s_Sfs);
            ASSERT_EQ(call(src, len, &got, factor, 0.0f), zorStsOk);
            EXPECT_EQ(got.re, want) << len << " elements, factor " << factor;
            EXPECT_EQ(got.im, 0);
            ASSERT_EQ(call(src, len, &got, factor, 0.5f), zorStsOk);
            EXPECT_EQ(got.im, 0);
        }
    Zor16sc got{};
    const Zor16s least[] = {-32768, -32768};
    ASSERT_EQ(zorsGoertz_16s_Sfs(least, 2, &got, 0, 0), zorStsOk);
    EXPECT_EQ(got.re, -32768);
    ASSERT_EQ(zorsGoertz_16s_Sfs(least, 1, &got, 2, 0.25f), zorStsOk);
    EXPECT_EQ(got.im, -8192);
}

// Null pointers, lengths, then the frequencies one after the other.
TYPED_TEST(Goertzel, FailsInOrder)
{
    using T = TypeParam;
    using Relative = typename TestFixture::Frequency;
    using Limits = std::numeric_limits<Relative>;
    const T src[4] = {};
    for (const Relative bad : {Relative{1}, -Limits::denorm_min(), Limits::quiet_NaN(), Limits::infinity()})
        for (const int badLength : badLengths) {
            Untouched memory;
            auto* to = reinterpret_cast<typename TestFixture::Result*>(memory.get());
            expectOrder("one", {zorStsNullPointer, zorStsNullPointer, zorStsBadSize, zorStsBadRelFreq},
                        [&](unsigned faults) {
                            return Functions<T>::one(unless(faults & 1, src), faults & 4 ? badLength : 4,
                                                     unless(faults & 2, to), 0,
                                                     faults & 8 ? bad : Relative{0});
                        });
            if constexpr (!std::is_same_v<T, Zor16s>)
                expectOrder("two",
                            {zorStsNullPointer, zorStsNullPointer, zorStsNullPointer, zorStsBadSize,
                             zorStsBadRelFreq, zorStsBadRelFreq},
                            [&](unsigned faults) {
                                const Relative f[] = {faults & 16 ? bad : Relative{0},
                                                      faults & 32 ? bad : Relative{0}};
                                return two<T>(unless(faults & 1, src), faults & 8 ? badLength : 4,
                                              unless(faults & 2, to), 0, unless(faults & 4, f));
                            });
        }
    typename TestFixture::Result got;
    EXPECT_EQ(Functions<T>::one(src, 4, &got, 0, std::nextafter(Relative{1}, Relative{0})), zorStsOk);
    EXPECT_EQ(Functions<T>::one(src, 4, &got, 0, Relative{-0.0}), zorStsOk);
}

TEST(GoertzelQ15, FailsInOrder)
{
    const Zor16sc src[4] = {};
    for (const int badLength : badLengths) {
        Untouched memory;
        auto* to = reinterpret_cast<Zor16sc*>(memory.get());
        expectOrder("one", {zorStsNullPointer, zorStsNullPointer, zorStsBadSize, zorStsBadRelFreq},
                    [&](unsigned faults) {
                        return zorsGoertzQ15_16sc_Sfs(unless(faults & 1, src), faults & 4 ? badLength : 4,
                                                      unless(faults & 2, to),
                                                      faults & 8 ? Zor16s{-1} : Zor16s{}, 0);
                    });
        expectOrder("two",
                    {zorStsNullPointer, zorStsNullPointer, zorStsNullPointer, zorStsBadSize, zorStsBadRelFreq,
                     zorStsBadRelFreq},
                    [&](unsigned faults) {
                        const Zor16s f[] = {faults & 16 ? Zor16s{-32768} : Zor16s{},
                                            faults & 32 ? Zor16s{-1} : Zor16s{}};
                        return zorsGoertzTwoQ15_16sc_Sfs(unless(faults & 1, src), faults & 8 ? badLength : 4,
                                                         unless(faults & 2, to), unless(faults & 4, f), 0);
                    });
    }
}

} // namespace
} // namespace zors::test
