// Random numbers: known answers worked out from the recurrences by other means, a plain oracle, any split of calls,
// records, and the moments of the distributions.
#include "support/allocator.h"
#include "support/count.h"

#include <zors.h>

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace zors::test {
namespace {

// One step at a time, as the recurrences are written.
class Oracle {
public:
    explicit Oracle(Zor32u seed) : x1_(seed), x2_(69069 * x1_ + 1013904243), x3_(69069 * x2_ + 1013904243) {}

    double word()
    {
        Zor32u t = x2_ - x3_ - (borrow_ ? 1u : 0u);
        borrow_ = t >= 0x80000000u;
        if (borrow_) t -= 18;
        x3_ = x2_;
        x2_ = x1_;
        x1_ = t;
        y_ = 69069 * y_ + 1013904243;
        return static_cast<Zor32s>(t + y_);
    }

    double uniform(double low, double high)
    {
        return (low + high) * 0.5 + (high - low) * 2.3283064365387e-10 * word();
    }

    double normal(double mean, double stdDev)
    {
        if (pending_) {
            pending_ = false;
            return u1_ * (stdDev * factor_) + mean;
        }
        double s;
        do {
            u1_ = word() * 4.656612873077e-10;
            u2_ = word() * 4.656612873077e-10;
            s = u1_ * u1_ + u2_ * u2_;
        } while (s >= 1 || s == 0);
        factor_ = std::sqrt(-2.0 * std::log(s) / s);
        pending_ = true;
        return u2_ * (stdDev * factor_) + mean;
    }

    Zor32u newest() const { return x1_; }

private:
    Zor32u x1_, x2_, x3_, y_ = 1131199209;
    bool borrow_ = true, pending_ = false;
    double u1_ = 0, u2_ = 0, factor_ = 0;
};

template <class T>
T toElement(double v)
{
    if constexpr (std::is_floating_point_v<T>)
        return static_cast<T>(v);
    else
        return static_cast<T>(std::clamp<double>(std::nearbyint(v), std::numeric_limits<T>::min(),
                                                 std::numeric_limits<T>::max()));
}

// The functions of one distribution and type, and the oracle's.
template <class T, class State>
struct Family {
    ZorStatus (*getSize)(int*);
    ZorStatus (*init)(State*, T, T, Zor32u);
    ZorStatus (*initAlloc)(State**, T, T, Zor32u);
    ZorStatus (*free)(State*);
    ZorStatus (*draw)(T*, int, State*);
    double (Oracle::*expected)(double, double);
    int size, tag;
    T first, second;
};

#define FAMILY(dist, t, expected, size, tag, ...)                                                            \
    Family<Zor##t, ZorRand##dist##State_##t>                                                                 \
    {                                                                                                        \
        zorsRand##dist##GetSize_##t, zorsRand##dist##Init_##t, zorsRand##dist##InitAlloc_##t,                \
            zorsRand##dist##Free_##t, zorsRand##dist##_##t, &Oracle::expected, size, tag, __VA_ARGS__        \
    }

template <class Body>
void forEachFamily(Body body)
{
    body(FAMILY(Uniform, 8u, uniform, 56, 35, 10, 250));
    body(FAMILY(Uniform, 16s, uniform, 56, 36, -32768, 32767));
    body(FAMILY(Uniform, 32f, uniform, 56, 37, -1.5f, 4.0f));
    body(FAMILY(Gauss, 8u, normal, 64, 38, 20, 60));
    body(FAMILY(Gauss, 16s, normal, 64, 39, -100, 15000));
    body(FAMILY(Gauss, 32f, normal, 72, 40, 0.5f, 2.0f));
}

// Calls draw(pDst, len) and wants the oracle's next numbers.
template <class T, class Draw>
void expectDrawn(Draw draw, double (Oracle::*expected)(double, double), Oracle& oracle, T first, T second,
                 int len)
{
    std::vector<T> got(static_cast<std::size_t>(len)), want = got;
    ASSERT_EQ(draw(got.data(), len), zorStsOk);
    for (T& v : want) v = toElement<T>((oracle.*expected)(first, second));
    compared(len);
    ASSERT_EQ(got, want) << len;
}

template <class T>
std::vector<T> drawn(ZorStatus (*direct)(T*, int, T, T, Zor32u*), int len, T first, T second, Zor32u& seed)
{
    std::vector<T> v(static_cast<std::size_t>(len));
    EXPECT_EQ(direct(v.data(), len, first, second, &seed), zorStsOk);
    return v;
}

TEST(Random, KnownAnswers)
{
    // Over [-2^31, 2^31] a uniform number is the word itself, but for the 14 digits of the factor.
    const struct {
        Zor32u seed, next;
        std::vector<Zor64f> words;
    } answers[] = {
        {0,
         1998354204u,
         {-2143376656, -1588453546, -1238212167, -415855842, -631588969, 1034660151, 1394023789,
          -1131461971}},
        {12345,
         713992268u,
         {-852021644, 1853869290, 53130500, 1735112000, 1512398141, 1894285325, 1387043057, 1879143389}},
        {0xffffffffu,
         572021150u,
         {-1667886260, -1588384478, -762721770, -891277170, -156167640, 83748426, -1950100850, 1737172271}},
    };
    for (const auto& answer : answers) {
        Zor32u seed = answer.seed;
        auto v = drawn(zorsRandUniform_Direct_64f, 8, -2147483648.0, 2147483648.0, seed);
        EXPECT_EQ(seed, answer.next);
        for (double& d : v) d = std::round(d);
        EXPECT_EQ(v, answer.words);
    }

    Zor32u seed = 12345;
    EXPECT_EQ(drawn<Zor16s>(zorsRandUniform_Direct_16s, 8, -1000, 2000, seed),
              (std::vector<Zor16s>{-95, 1795, 537, 1712, 1556, 1823, 1469, 1813}));
    seed = 12345;
    EXPECT_EQ(drawn<Zor16s>(zorsRandGauss_Direct_16s, 8, 100, 3000, seed),
              (std::vector<Zor16s>{1334, -467, 2866, 185, -4514, 1230, -181, -2108}));
    seed = 12345;
    const auto normal = drawn(zorsRandGauss_Direct_64f, 9, 0.5, 2.0, seed);
    EXPECT_EQ(seed, 2750862402u);
    const double expected[] = {1.3224486111003166, 0.12201001898294117, 2.344155736297717,
                               0.5564695053387712, -2.5760276705491303, 1.2535712863081305,
                               0.3125796218995138, -0.9716998689607343, 2.5890025023235377};
    for (std::size_t i = 0; i < 9; ++i) EXPECT_DOUBLE_EQ(normal[i], expected[i]);
}

// Every call continues the sequence, whatever the lengths, and a record may lie at any multiple of 8.
TEST(Random, AnySplitGivesTheSameSequence)
{
    forEachFamily([]<class T, class State>(Family<T, State> f) {
        constexpr Zor64u beside = 0xa5a5a5a5a5a5a5a5u;
        alignas(64) Zor64u memory[17];
        std::fill(std::begin(memory), std::end(memory), beside);
        auto* state = reinterpret_cast<State*>(memory + 3);
        ASSERT_EQ(f.init(state, f.first, f.second, 20261121), zorStsOk);
        Oracle oracle(20261121);
        for (int i = 0; i < 4; ++i)
            for (const int len : {1, 2, 3, 5, 255, 256, 257, 7, 511, 513, 1, 1000})
                expectDrawn([=](T* p, int n) { return f.draw(p, n, state); }, f.expected, oracle, f.first,
                            f.second, len);
        ASSERT_EQ(f.free(state), zorStsOk);
        for (int i = 0; i < 17; ++i)
            ASSERT_TRUE((i >= 3 && i < 3 + f.size / 8) || memory[i] == beside) << "beside the record";
    });
}

template <class T>
void expectDirect(ZorStatus (*direct)(T*, int, T, T, Zor32u*), double (Oracle::*expected)(double, double),
                  T first, T second)
{
    for (const Zor32u start : {7u, 0u, ~0u}) {
        Zor32u seed = start;
        for (const int len : {1, 2, 3, 256, 257, 1000, 200000}) {
            Oracle oracle(seed);
            expectDrawn([&](T* p, int n) { return direct(p, n, first, second, &seed); }, expected, oracle,
                        first, second, len);
            ASSERT_EQ(seed, oracle.newest()) << len;
        }
    }
}

TEST(Random, DirectFormsStartAnew)
{
    expectDirect<Zor16s>(zorsRandUniform_Direct_16s, &Oracle::uniform, -7, 30000);
    expectDirect<Zor32f>(zorsRandUniform_Direct_32f, &Oracle::uniform, 3, 3);
    expectDirect<Zor64f>(zorsRandUniform_Direct_64f, &Oracle::uniform, 5, -1);
    expectDirect<Zor16s>(zorsRandGauss_Direct_16s, &Oracle::normal, 0, 32767);
    expectDirect<Zor32f>(zorsRandGauss_Direct_32f, &Oracle::normal, 1, 0.5f);
    expectDirect<Zor64f>(zorsRandGauss_Direct_64f, &Oracle::normal, -3, 2);
}

TEST(Random, Records)
{
    forEachFamily([]<class T, class State>(Family<T, State> f) {
        int size = 0;
        EXPECT_EQ(f.getSize(&size), zorStsOk);
        EXPECT_EQ(size, f.size);
        State* state = nullptr;
        ASSERT_EQ(f.initAlloc(&state, f.first, f.second, 1), zorStsOk);
        T v[4] = {}, w[4] = {};
        EXPECT_EQ(f.draw(v, 4, state), zorStsOk);
        EXPECT_EQ(f.init(state, f.first, f.second, 1), zorStsOk) << "starts again";
        EXPECT_EQ(f.draw(w, 4, state), zorStsOk);
        EXPECT_TRUE(std::equal(v, v + 4, w));
        // That made the record the caller's.
        EXPECT_EQ(f.free(state), zorStsOk);
        EXPECT_EQ(f.draw(w, 4, state), zorStsWrongContext);
        EXPECT_EQ(f.free(state), zorStsWrongContext);
        EXPECT_EQ(allocator.live.size(), 1u);
        zorsFree(state);
        ASSERT_EQ(f.initAlloc(&state, f.first, f.second, 1), zorStsOk);
        EXPECT_EQ(allocator.live.size(), 1u);
        EXPECT_EQ(f.free(state), zorStsOk);
        EXPECT_TRUE(allocator.live.empty());
    });
}

// Pointers, then the length, then the tag or the memory; nothing is written.
TEST(Random, Checks)
{
    forEachFamily([]<class T, class State>(Family<T, State> f) {
        State* state = nullptr;
        EXPECT_EQ(f.getSize(nullptr), zorStsNullPointer);
        EXPECT_EQ(f.init(nullptr, f.first, f.second, 1), zorStsNullPointer);
        EXPECT_EQ(f.free(nullptr), zorStsNullPointer);
        allocator.reply = nullptr;
        EXPECT_EQ(f.initAlloc(&state, f.first, f.second, 1), zorStsNoMemory);
        EXPECT_EQ(f.initAlloc(nullptr, f.first, f.second, 1), zorStsNullPointer);
        allocator.reply.reset();

        Zor64u memory[10] = {};
        state = reinterpret_cast<State*>(memory);
        T v[2] = {T(1), T(2)};
        EXPECT_EQ(f.draw(nullptr, 0, state), zorStsNullPointer);
        EXPECT_EQ(f.draw(v, 0, nullptr), zorStsNullPointer);
        EXPECT_EQ(f.draw(v, 0, state), zorStsBadSize);
        EXPECT_EQ(f.draw(v, 2, state), zorStsWrongContext);
        ASSERT_EQ(f.init(state, f.first, f.second, 1), zorStsOk);
        // Every tag but the family's own is another kind's.
        const auto own = static_cast<Zor32u>(f.tag);
        ASSERT_EQ(static_cast<Zor32u>(memory[0]), own);
        for (Zor32u tag = 35; tag <= 40; ++tag) {
            if (tag == own) continue;
            memory[0] ^= own ^ tag;
            EXPECT_EQ(f.draw(v, 2, state), zorStsWrongContext);
            EXPECT_EQ(f.free(state), zorStsWrongContext);
            memory[0] ^= own ^ tag;
        }
        EXPECT_TRUE(v[0] == T(1) && v[1] == T(2));
    });
}

// The first four moments of a standardised sample against their expectations, within four standard errors of each.
void expectMoments(const std::vector<Zor32f>& sample, double mean, double deviation, double fourth,
                   const double (&errors)[4])
{
    const double expected[] = {0, 1, 0, fourth}, size = static_cast<double>(sample.size());
    for (int k = 0; k < 4; ++k) {
        double sum = 0;
        for (const Zor32f v : sample) sum += std::pow((v - mean) / deviation, k + 1);
        EXPECT_NEAR(sum / size, expected[k], 4 * errors[k] / std::sqrt(size)) << "moment " << k + 1;
    }
}

TEST(Random, Distributions)
{
    for (Zor32u seed : {1u, 20261121u, 0xdeadbeefu}) {
        const auto uniform = drawn(zorsRandUniform_Direct_32f, 200000, -2.0f, 6.0f, seed);
        expectMoments(uniform, 2, 8 / std::sqrt(12.0), 1.8, {1, 0.894, 1.964, 2.4});
        const auto normal = drawn(zorsRandGauss_Direct_32f, 200000, 3.0f, 0.5f, seed);
        expectMoments(normal, 3, 0.5, 3, {1, 1.414, 3.873, 9.798});
    }
}

} // namespace
} // namespace zors::test
