// Linear and cyclic convolution beside their definitions.
#include "filter/convolution_oracle.h"
#include "support/control.h"
#include "support/count.h"

#include <gtest/gtest.h>
#include <limits>
#include <numeric>

namespace zors::test {
namespace {

template <class T>
class Convolution : public testing::Test {
public:
    static constexpr double eps = std::numeric_limits<T>::epsilon() / 2;

    // Of two vectors of these lengths, in both orders, all outputs or every so many.
    void check(int n, int m, ZorConvAlgType algType = ZOR_CONV_ALG_AUTO)
    {
        const auto a = randomSignal<T>(n, random_), b = randomSignal<T>(m, random_);
        checkPair(a, b, algType);
        if (n != m) checkPair(b, a, algType);
    }

    void checkPair(const std::vector<T>& a, const std::vector<T>& b, ZorConvAlgType algType)
    {
        const auto outputs = std::ssize(a) + std::ssize(b) - 1;
        std::vector<T> got(static_cast<std::size_t>(outputs), T{77});
        run(a, b, got.data(), algType);
        const auto shorter = std::min(std::ssize(a), std::ssize(b)),
                   longer = std::max(std::ssize(a), std::ssize(b));
        const bool direct = algType == ZOR_CONV_ALG_DIRECT ||
                            (algType == ZOR_CONV_ALG_AUTO && !isTransformed(shorter, longer));
        const auto& kernel = std::ssize(a) == shorter ? a : b;
        const auto& signal = std::ssize(a) == shorter ? b : a;
        const std::ptrdiff_t step = 1 + shorter * outputs / 1'000'000;
        const auto squares = sumsOfSquares(signal);
        const double kernelNorm = std::sqrt(sumsOfSquares(kernel).back());
        for (std::ptrdiff_t k = 0; k < outputs; k += step) {
            const auto want = output(a, b, k);
            const double error = std::abs(static_cast<double>(got[static_cast<std::size_t>(k)] - want.value));
            const double bound = direct ? static_cast<double>(shorter + 2) * eps * want.magnitude
                                        : eps * std::log2(4.0 * static_cast<double>(shorter)) * kernelNorm *
                                              std::sqrt(squares[clamped(k + 8 * shorter, longer)] -
                                                        squares[clamped(k - 8 * shorter, longer)]);
            ASSERT_LE(error, bound) << "output " << k << " of " << a.size() << " with " << b.size()
                                    << ", method " << algType;
            compared(1);
        }
    }

protected:
    // Of the first i elements.
    static std::vector<double> sumsOfSquares(const std::vector<T>& v)
    {
        std::vector<double> sums(1);
        for (const T x : v) sums.push_back(sums.back() + static_cast<double>(x) * static_cast<double>(x));
        return sums;
    }
    static std::size_t clamped(std::ptrdiff_t i, std::ptrdiff_t most)
    {
        return static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(i, 0, most));
    }

    // Through the buffer, and by the lengths' own choice also without; both have the same bits.
    static void run(const std::vector<T>& a, const std::vector<T>& b, T* to, ZorConvAlgType algType)
    {
        const int n = static_cast<int>(a.size()), m = static_cast<int>(b.size());
        int size = 0;
        ASSERT_EQ(zorsConvolveGetBufferSize(n, m, dataTypeOf<T>, algType, &size), zorStsOk);
        std::vector<Zor8u> buffer(static_cast<std::size_t>(size));
        ASSERT_EQ(convolve<T>(a.data(), n, b.data(), m, to, algType, buffer.data()), zorStsOk);
        if (algType != ZOR_CONV_ALG_AUTO) return;
        std::vector<T> other(a.size() + b.size() - 1);
        ASSERT_EQ(conv(a, b, other.data()), zorStsOk);
        EXPECT_EQ(std::memcmp(other.data(), to, other.size() * sizeof(T)), 0) << n << " with " << m;
    }

    Random random_;
};

using Types = testing::Types<Zor32f, Zor64f>;
TYPED_TEST_SUITE(Convolution, Types);

TYPED_TEST(Convolution, OfShortVectors)
{
    for (int n = 1; n <= 40; ++n)
        for (int m = n; m <= 40; ++m) this->check(n, m);
    for (int n = 41; n <= 257; ++n) {
        this->check(1 + n % 61, n);
        this->check(n / 2, n);
    }
}

TYPED_TEST(Convolution, DirectOfLongVectors)
{
    for (const int n : {1, 2, 17, 62, 63})
        for (const int m : {449, 450, 1000, 1024, 1025, 1100, 4095, 4096, 4097, 9001}) this->check(n, m);
    for (const auto& [n, m] : {std::pair{63, 449}, {64, 448}, {64, 447}, {255, 256}, {256, 256}})
        this->check(n, m);
    // Longer than a piece of the kernel.
    for (const auto& [n, m] :
         {std::pair{256, 900}, {257, 257}, {257, 2000}, {512, 513}, {700, 1500}, {1025, 4097}})
        this->check(n, m, ZOR_CONV_ALG_DIRECT);
}

TYPED_TEST(Convolution, ByTransforms)
{
    for (const auto& [n, m] : {std::pair{64, 449}, {64, 450},    {64, 5000},   {65, 448},    {100, 413},
                               {128, 385},         {170, 511},   {171, 512},   {171, 513},   {255, 258},
                               {256, 257},         {257, 257},   {512, 1535},  {512, 1536},  {513, 514},
                               {1000, 1000},       {1000, 2999}, {1000, 3000}, {1023, 1026}, {300, 9001},
                               {2048, 2049},       {4095, 4097}, {4096, 4096}, {777, 40000}, {3000, 20000}})
        this->check(n, m);
}

TYPED_TEST(Convolution, ByTransformsOfShortVectors)
{
    for (int n = 1; n <= 36; ++n)
        for (int m = n; m <= 3 * n + 2; ++m) this->check(n, m, ZOR_CONV_ALG_FFT);
    for (int n = 37; n <= 257; n += 5)
        for (const int m : {n, n + 1, 2 * n, 3 * n - 1, 3 * n, 5 * n + 3})
            this->check(n, m, ZOR_CONV_ALG_FFT);
    this->check(1, 5000, ZOR_CONV_ALG_FFT);
}

// What stands beside an element has no part in a direct sum, and an infinity makes no other number of it.
TYPED_TEST(Convolution, DirectSumsKeepInfinitiesApart)
{
    using T = TypeParam;
    constexpr T infinity = std::numeric_limits<T>::infinity();
    for (const int n : {1, 2, 9, 63})
        for (const int m : {1, 30, 200, 2000})
            for (const bool inKernel : {false, true}) {
                std::vector<T> a(static_cast<std::size_t>(n), 1), b(static_cast<std::size_t>(m), 1);
                auto& v = inKernel ? a : b;
                const std::size_t at = v.size() / 2;
                v[at] = infinity;
                std::vector<T> got(a.size() + b.size() - 1);
                ASSERT_EQ(conv(a, b, got.data()), zorStsOk);
                const std::size_t other = inKernel ? b.size() : a.size();
                for (std::size_t k = 0; k < got.size(); ++k)
                    if (k >= at && k < at + other)
                        ASSERT_EQ(got[k], infinity) << k << " of " << n << ", " << m;
                    else
                        ASSERT_TRUE(std::isfinite(got[k])) << k << " of " << n << ", " << m;
            }
}

void checkIntegers(const std::vector<Zor16s>& a, const std::vector<Zor16s>& b, int scaleFactor,
                   std::ptrdiff_t step = 1)
{
    std::vector<Zor16s> got(a.size() + b.size() - 1, 77);
    const int n = static_cast<int>(a.size()), m = static_cast<int>(b.size());
    ASSERT_EQ(zorsConv_16s_Sfs(a.data(), n, b.data(), m, got.data(), scaleFactor), zorStsOk);
    for (std::ptrdiff_t k = 0; k < std::ssize(got); k += step) {
        ASSERT_EQ(got[static_cast<std::size_t>(k)], scaled(output(a, b, k).value, scaleFactor))
            << "output " << k << " of " << n << " with " << m << ", factor " << scaleFactor;
        compared(1);
    }
}

TEST(ConvolutionSfs, IsExact)
{
    Random random;
    for (const auto& [n, m] : {std::pair{1, 1},
                               {1, 2},
                               {3, 3},
                               {7, 30},
                               {63, 64},
                               {63, 450},
                               {64, 448},
                               {256, 255},
                               {31, 5000},
                               {64, 449},
                               {257, 257},
                               {200, 600},
                               {200, 599},
                               {1000, 1000},
                               {500, 9000},
                               {4096, 4096}}) {
        const int middle = static_cast<int>(std::log2(std::min(n, m)) / 2) + 15;
        const auto a = randomSignal<Zor16s>(n, random), b = randomSignal<Zor16s>(m, random);
        for (const int factor : {0, 1, middle, middle + 3, 45, 2000, -1, -2000}) {
            checkIntegers(a, b, factor, 1 + n / 200);
            checkIntegers(b, a, factor, 1 + n / 200);
        }
        // Sums to 40: many ties of a rounding.
        std::vector<Zor16s> small(static_cast<std::size_t>(n)), other(static_cast<std::size_t>(m));
        for (auto* v : {&small, &other})
            for (auto& x : *v) x = static_cast<Zor16s>(below(3, random) - 1);
        for (const int factor : {1, 2, 3}) checkIntegers(small, other, factor, 1 + n / 200);
    }
}

// The largest sums that there are, in the longest vectors for which this is promised.
TEST(ConvolutionSfs, IsExactAtTheEndsOfTheRange)
{
    for (const auto& [n, m] : {std::pair{63, 700}, {16384, 16384}, {65536, 70000}}) {
        Random random;
        std::vector<Zor16s> a(static_cast<std::size_t>(n), -32768), b(static_cast<std::size_t>(m), -32768);
        checkIntegers(a, b, 29, n / 40);
        for (auto* v : {&a, &b})
            for (auto& x : *v) x = random() % 2 ? 32767 : -32768;
        // Few bits are cut off, so that an error of one would show.
        checkIntegers(a, b, 8, n / 40);
        a.assign(static_cast<std::size_t>(n), 1);
        checkIntegers(a, b, 8, n / 40);
    }
}

TEST(ConvolutionSfs, RoundsWhateverTheControl)
{
    Random random;
    const auto a = randomSignal<Zor16s>(300, random), b = randomSignal<Zor16s>(400, random);
    std::vector<Zor16s> want(699), got(699);
    for (const int n : {20, 300}) {
        const int outputs = n + 399;
        ASSERT_EQ(zorsConv_16s_Sfs(a.data(), n, b.data(), 400, want.data(), 18), zorStsOk);
        for (const unsigned control : roundings) {
            ASSERT_EQ(under(control, zorsConv_16s_Sfs)(a.data(), n, b.data(), 400, got.data(), 18), zorStsOk);
            EXPECT_EQ(std::memcmp(got.data(), want.data(), static_cast<std::size_t>(outputs) * 2), 0);
        }
    }
}

template <int N, class T, class Sum>
void checkCyclic(const T* a, const T* b, Sum sum)
{
    for (int n = 0; n < N; ++n) {
        T want = a[0] * b[n];
        for (int m = 1; m < N; ++m) want += a[m] * b[(n - m + N) % N];
        EXPECT_EQ(sum(n), want) << n;
    }
}

// Apart, and over either source.
TEST(ConvolutionCyclic, OfFloats)
{
    Random random;
    for (int run = 0; run < 300; ++run) {
        const auto a = randomSignal<Zor32f>(8, random), b = randomSignal<Zor32f>(8, random);
        for (int place = 0; place < 3; ++place) {
            auto x = a, y = b;
            std::vector<Zor32f> apart(8);
            Zor32f* to = place == 0 ? apart.data() : place == 1 ? x.data() : y.data();
            ASSERT_EQ(zorsConvCyclic8x8_32f(x.data(), y.data(), to), zorStsOk);
            checkCyclic<8>(a.data(), b.data(), [=](int n) { return to[n]; });
            compared(8);
        }
        Zor32f re[4], im[4];
        for (int n = 0; n < 4; ++n)
            re[n] = b[static_cast<std::size_t>(2 * n)], im[n] = b[static_cast<std::size_t>(2 * n + 1)];
        for (int place = 0; place < 3; ++place) {
            auto y = b;
            std::vector<Zor32f> x = a, apart(8); // four numbers; room for four pairs
            Zor32f* memory = place == 0 ? apart.data() : place == 1 ? x.data() : y.data();
            auto* to = reinterpret_cast<Zor32fc*>(memory);
            ASSERT_EQ(zorsConvCyclic4x4_32f32fc(x.data(), reinterpret_cast<const Zor32fc*>(y.data()), to),
                      zorStsOk);
            checkCyclic<4>(a.data(), re, [=](int n) { return to[n].re; });
            checkCyclic<4>(a.data(), im, [=](int n) { return to[n].im; });
            compared(8);
        }
    }
}

TEST(ConvolutionCyclic, OfIntegers)
{
    Random random;
    for (int run = 0; run < 2000; ++run) {
        Zor16s a[8], b[8], x[8], y[8], apart[8];
        for (auto* v : {a, b})
            for (int n = 0; n < 8; ++n)
                v[n] = run < 1000 ? element<Zor16s>(random) : static_cast<Zor16s>(below(7, random) - 3);
        const int factor = run < 1000 ? below(70, random) - 30 : run % 4;
        for (int place = 0; place < 3; ++place) {
            std::copy_n(a, 8, x);
            std::copy_n(b, 8, y);
            Zor16s* to = place == 0 ? apart : place == 1 ? x : y;
            ASSERT_EQ(zorsConvCyclic8x8_16s_Sfs(x, y, to, factor), zorStsOk);
            for (int n = 0; n < 8; ++n) {
                std::int64_t sum = 0;
                for (int m = 0; m < 8; ++m) sum += std::int64_t{a[m]} * b[(n - m + 8) % 8];
                ASSERT_EQ(to[n], scaled(sum, factor)) << sum << ", factor " << factor;
            }
            compared(8);
        }
    }
}

} // namespace
} // namespace zors::test
