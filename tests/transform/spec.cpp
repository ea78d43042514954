// Sizes and statuses of the records, and what lies in them.
#include "transform/kinds.h"
#include "transform/samples.h"

#include <climits>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <numbers>

namespace zors::test {
namespace {

using Size = long long;

constexpr Size roundedDown(Size x)
{
    return x / 64 * 64;
}

// The parts of a record as the formulas give them, with the place to align where they are not 0.
struct Formula {
    Size element; // bytes of a complex number
    int mostSmallReal, firstTwoLevel;

    Size bitReversal(int order) const { return roundedDown((Size{1} << order) / 4 * 4 + 67); }
    Size quarterWave(int order) const
    {
        return element == 8 ? bitReversal(order) : roundedDown(8 * ((Size{1} << order) / 4) + 71);
    }
    Size factors(int order) const { return roundedDown((element << order) + element + 63); }
    Size init(int order) const { return order < 11 ? 0 : quarterWave(order) + 64; }
    Size work(int order) const { return order < 6 ? 0 : roundedDown((element << order) + 63) + 64; }
    Sizes complex(int order) const
    {
        const Size spec = order < 6 ? 208 : factors(order) + bitReversal(order) + 256;
        return {static_cast<int>(spec), static_cast<int>(init(order)), static_cast<int>(work(order))};
    }
    Size recombination(int order) const
    {
        const Size pairs = order >= firstTwoLevel ? (Size{1} << (order - 12)) + 1024 : (Size{1} << order) / 4;
        return roundedDown(element * pairs + 63);
    }
    Sizes real(int order) const
    {
        if (order <= mostSmallReal) return {208, 0, 0};
        const bool hasComplex = order > 6;
        const Size inner = hasComplex ? factors(order - 1) + bitReversal(order - 1) : 0;
        return {static_cast<int>(inner + 2 * recombination(order) + 256), static_cast<int>(init(order)),
                static_cast<int>(hasComplex ? work(order - 1) : 0)};
    }
};

constexpr Formula single{8, 4, 19}, twice{16, 5, 18};

TEST(Sizes, FollowTheFormulas)
{
    // To the last order in cache.
    const struct {
        const char* name;
        Sizes (Formula::*sizes)(int) const;
        const Formula& formula;
        int mostOrder;
    } floats[] = {{"C_32fc", &Formula::complex, single, 16}, {"C_32f", &Formula::complex, single, 16},
                  {"R_32f", &Formula::real, single, 17},     {"C_64fc", &Formula::complex, twice, 16},
                  {"C_64f", &Formula::complex, twice, 16},   {"R_64f", &Formula::real, twice, 17}};
    // The integers' work begins with the converted data.
    const struct {
        const char *name, *nested;
        int pair;
    } integers[] = {{"C_16sc", "C_32fc", 8},
                    {"C_16s", "C_32f", 8},
                    {"R_16s", "R_32f", 8},
                    {"C_32sc", "C_64fc", 16},
                    {"C_32s", "C_64f", 16}};
    for (const int flag : flags) {
        for (const auto& [name, sizes, formula, mostOrder] : floats)
            for (int order = 0; order <= mostOrder; ++order)
                EXPECT_EQ(sizesOf(kind(name), order, flag), (formula.*sizes)(order)) << name << ' ' << order;
        for (const auto& [name, nested, pair] : integers)
            for (int order = 0; order <= 20; ++order) {
                const int inside = std::max(sizesOf(kind(nested), order, flag).work - 64, 0);
                EXPECT_EQ(sizesOf(kind(name), order, flag).work, inside + (pair << order) + 64)
                    << name << ' ' << order;
            }
    }
}

// A few by hand, in case the formulas above are wrong.
TEST(Sizes, AreTheseNumbers)
{
    EXPECT_EQ(sizesOf(kind("C_32fc"), 10), (Sizes{9600, 0, 8256}));
    EXPECT_EQ(sizesOf(kind("C_32fc"), 16), (Sizes{590208, 65664, 524352}));
    EXPECT_EQ(sizesOf(kind("C_64fc"), 12), (Sizes{70016, 8320, 65600}));
    EXPECT_EQ(sizesOf(kind("R_32f"), 5), (Sizes{384, 0, 0}));
    EXPECT_EQ(sizesOf(kind("R_32f"), 11), (Sizes{17792, 2176, 8256}));
}

TEST(Sizes, StayWithin32BitsAtEveryOrder)
{
    for (const Kind& k : kinds())
        for (int order = 0, work = 0; order <= k.mostOrder; ++order) {
            const Sizes s = sizesOf(k, order);
            EXPECT_TRUE(s.spec > 0 && s.init >= 0 && s.work >= work) << k.name << ' ' << order;
            work = s.work;
        }
}

TEST(Statuses, OfGetSize)
{
    for (const Kind& k : kinds()) {
        SCOPED_TRACE(k.name);
        const int none = ZOR_FFT_SCALE_NONE;
        int a = 77, b = 78, c = 79;
        const auto status = [&](int order, int flag, int* p, int* q, int* r) {
            return k.getSize(order, flag, ZOR_ALG_ANY, p, q, r);
        };
        for (const int order : {-1, INT_MIN, 31, INT_MAX})
            EXPECT_EQ(status(order, 0, nullptr, nullptr, nullptr), zorStsBadFftOrder);
        EXPECT_EQ(status(30, 0, nullptr, &b, &c), zorStsNullPointer);
        EXPECT_EQ(status(30, 0, &a, nullptr, &c), zorStsNullPointer);
        EXPECT_EQ(status(30, 0, &a, &b, nullptr), zorStsNullPointer);
        for (const int flag : {0, 3, 5, 16, -1}) EXPECT_EQ(status(30, flag, &a, &b, &c), zorStsBadFftFlag);
        for (int order = k.mostOrder + 1; order <= 30; ++order)
            EXPECT_EQ(status(order, none, &a, &b, &c), zorStsBadFftOrder) << order;
        EXPECT_EQ(a + b + c, 77 + 78 + 79) << "a size was written in spite of an error";
        EXPECT_EQ(status(k.mostOrder, none, &a, &b, &c), zorStsOk);
    }
}

TEST(Statuses, OfInit)
{
    for (const Kind& k : kinds()) {
        SCOPED_TRACE(k.name);
        const bool floating = k.tag >= 4 && k.tag <= 9;
        Memory memory(1 << 20), scratch(1 << 20);
        auto* spec = static_cast<Zor8u*>(memory.get());
        auto* init = static_cast<Zor8u*>(scratch.get());
        char mark;
        void* handle = &mark;
        const auto status = [&](void** pp, int order, int flag, Zor8u* p, Zor8u* q) {
            return k.init(pp, order, flag, ZOR_ALG_ANY, p, q);
        };
        EXPECT_EQ(status(nullptr, -1, 0, nullptr, nullptr), zorStsNullPointer);
        for (const int order : {-1, 31, floating ? k.mostOrder + 1 : INT_MAX})
            EXPECT_EQ(status(&handle, order, 0, nullptr, nullptr), zorStsBadFftOrder) << order;
        EXPECT_EQ(status(&handle, 11, 0, nullptr, nullptr), zorStsNullPointer);
        const auto tag = [&] { return *reinterpret_cast<Zor32u*>(spec); };
        std::memset(spec, 0x11, 64);
        EXPECT_EQ(status(&handle, 11, 0, spec, nullptr), zorStsBadFftFlag);
        EXPECT_EQ(tag(), 0U);
        if (!floating) {
            EXPECT_EQ(status(&handle, 30, ZOR_FFT_SCALE_NONE, spec, init), zorStsBadFftOrder);
        }
        std::memset(spec, 0x11, 64);
        EXPECT_EQ(status(&handle, 11, ZOR_FFT_SCALE_NONE, spec, nullptr), zorStsNullPointer);
        EXPECT_EQ(tag(), 0U);
        EXPECT_EQ(handle, &mark) << "a record was handed out in spite of an error";
        EXPECT_EQ(status(&handle, 10, ZOR_FFT_SCALE_NONE, spec, nullptr), zorStsOk) << "no scratch is needed";
        EXPECT_EQ(handle, spec);
        EXPECT_EQ(tag(), k.tag);
    }
}

TEST(Statuses, OfInitAllocFreeAndGetBufSize)
{
    for (const Kind& k : kinds()) {
        SCOPED_TRACE(k.name);
        char mark;
        void* spec = &mark;
        int size = 77;
        EXPECT_EQ(k.initAlloc(nullptr, -1, 0, ZOR_ALG_ANY), zorStsNullPointer);
        EXPECT_EQ(k.initAlloc(&spec, -1, 0, ZOR_ALG_ANY), zorStsBadFftOrder);
        EXPECT_EQ(k.initAlloc(&spec, 5, 0, ZOR_ALG_ANY), zorStsBadFftFlag);
        EXPECT_EQ(spec, &mark);
        EXPECT_EQ(k.free(nullptr), zorStsNullPointer);
        EXPECT_EQ(k.getBufSize(nullptr, nullptr), zorStsNullPointer);
        for (const Kind& other : kinds()) {
            if (other.tag == k.tag) continue;
            const Spec wrong(other, 3);
            EXPECT_EQ(k.free(wrong.get()), zorStsWrongContext);
            EXPECT_EQ(k.getBufSize(wrong.get(), nullptr), zorStsWrongContext);
        }
        for (const int order : {0, 5, 6, 8, 18}) {
            ASSERT_EQ(k.initAlloc(&spec, order, ZOR_FFT_SCALE_NONE, ZOR_ALG_ANY), zorStsOk);
            EXPECT_EQ(k.getBufSize(spec, nullptr), zorStsNullPointer);
            EXPECT_EQ(k.getBufSize(spec, &size), zorStsOk);
            EXPECT_EQ(size, sizesOf(k, order).work);
            EXPECT_EQ(k.free(spec), zorStsOk);
        }
    }
}

// The caller keeps memory of his own: Free makes the record invalid and no more. It may lie at any address.
TEST(Records, LiveInMemoryOfTheCaller)
{
    for (const Kind& k : kinds())
        for (const std::size_t offset : {0U, 1U, 63U}) {
            const Sizes sizes = sizesOf(k, 12);
            Memory memory(static_cast<std::size_t>(sizes.spec) + 64);
            Memory scratch(static_cast<std::size_t>(sizes.init) + 64);
            auto* place = static_cast<Zor8u*>(memory.get()) + offset;
            void* spec = nullptr;
            ASSERT_EQ(k.init(&spec, 12, ZOR_FFT_SCALE_NONE, ZOR_ALG_ANY, place,
                             static_cast<Zor8u*>(scratch.get()) + offset),
                      zorStsOk);
            EXPECT_EQ(spec, static_cast<Zor8u*>(memory.get()) + (offset ? 64 : 0)) << k.name;
            EXPECT_EQ(k.free(spec), zorStsOk);
            EXPECT_EQ(k.free(spec), zorStsWrongContext);
            int size = 0;
            EXPECT_EQ(k.getBufSize(spec, &size), zorStsWrongContext);
        }
}

// The part of a floating record that its users read.
template <class T>
struct FloatingRecord {
    Zor32u tag;
    Zor32s order, scalesForward, scalesInverse;
    T factor;
    Zor32s hint, workSize, owned;
    void* block;
    const Zor32s* bitReversal;
    const T* factors;
    const T* realRecombination;
    const T* ccsRecombination;
};

template <class T>
void expectScale(const char* name)
{
    for (const int order : {0, 3, 7, 13, 17, 20})
        for (const int flag : flags) {
            const Spec spec(kind(name), order, flag);
            const auto& r = *static_cast<const FloatingRecord<T>*>(spec.get());
            const bool both = flag == ZOR_FFT_SCALE_SQRT;
            const double n = std::ldexp(1.0, order), factor = both ? 1 / std::sqrt(n) : 1 / n;
            EXPECT_EQ(r.order, order);
            EXPECT_EQ(r.scalesForward, flag == ZOR_FFT_SCALE_FWD || both);
            EXPECT_EQ(r.scalesInverse, flag == ZOR_FFT_SCALE_INV || both);
            EXPECT_EQ(r.factor, flag == ZOR_FFT_SCALE_NONE ? T(0) : static_cast<T>(factor));
            EXPECT_EQ(r.owned, 1);
        }
}

TEST(Records, HoldTheScale)
{
    for (const char* name : {"C_32fc", "C_32f", "R_32f"}) expectScale<Zor32f>(name);
    for (const char* name : {"C_64fc", "C_64f", "R_64f"}) expectScale<Zor64f>(name);
}

// Of complex transforms in cache; a real one has that of half its length.
template <class T>
void expectBitReversal(const char* name, int half, int lastOrder)
{
    for (int order = 6; order <= lastOrder; ++order) {
        const Spec spec(kind(name), order + half);
        const Zor32s* table = static_cast<const FloatingRecord<T>*>(spec.get())->bitReversal;
        const int count = 1 << (order - 2);
        for (int k = 0; k < count; ++k) {
            int reversed = 0;
            for (int bit = 0; bit < order - 2; ++bit) reversed = 2 * reversed + (k >> bit & 1);
            ASSERT_EQ(table[k], 2 * reversed) << name << ", order " << order << ", entry " << k;
        }
        EXPECT_EQ(table[count], 0);
    }
}

template <class T>
void expectRecombination(const char* name, int firstOrder, int lastOrder)
{
    const double eps = std::numeric_limits<T>::epsilon();
    for (int order = firstOrder; order <= lastOrder; ++order) {
        const Spec spec(kind(name), order);
        const auto& r = *static_cast<const FloatingRecord<T>*>(spec.get());
        const int n = 1 << order;
        for (int k = 0; k < n / 4; ++k) {
            const double angle = 2 * std::numbers::pi * k / n, c = std::cos(angle), s = std::sin(angle);
            ASSERT_NEAR(r.realRecombination[2 * k], 0.5 * c, 0.5 * eps) << order << ' ' << k;
            ASSERT_NEAR(r.realRecombination[2 * k + 1], 0.5 - 0.5 * s, 0.5 * eps) << order << ' ' << k;
            ASSERT_NEAR(r.ccsRecombination[2 * k], c, eps) << order << ' ' << k;
            ASSERT_NEAR(r.ccsRecombination[2 * k + 1], -s, eps) << order << ' ' << k;
        }
    }
}

TEST(Records, HoldTheirTables)
{
    expectBitReversal<Zor32f>("C_32fc", 0, 16);
    expectBitReversal<Zor32f>("R_32f", 1, 16);
    expectBitReversal<Zor64f>("C_64fc", 0, 16);
    expectBitReversal<Zor64f>("R_64f", 1, 16);
    expectRecombination<Zor32f>("R_32f", 5, 18);
    expectRecombination<Zor64f>("R_64f", 6, 17);
}

struct NarrowRecord {
    Zor32u tag;
    Zor32s order, forwardShift, inverseShift, oddOrder;
};

TEST(Records, HoldTheShiftsOf16Bits)
{
    for (const char* name : {"C_16sc", "C_16s", "R_16s"})
        for (const int order : {0, 2, 9}) {
            const auto shifts = [&](int flag) {
                const Spec spec(kind(name), order, flag);
                const auto& r = *static_cast<const NarrowRecord*>(spec.get());
                return std::vector<int>{r.order, r.forwardShift, r.inverseShift, r.oddOrder};
            };
            EXPECT_EQ(shifts(ZOR_FFT_SCALE_FWD), (std::vector<int>{order, order, 0, 0}));
            EXPECT_EQ(shifts(ZOR_FFT_SCALE_INV), (std::vector<int>{order, 0, order, 0}));
            EXPECT_EQ(shifts(ZOR_FFT_SCALE_SQRT), (std::vector<int>{order, order / 2, order / 2, order % 2}));
            EXPECT_EQ(shifts(ZOR_FFT_SCALE_NONE), (std::vector<int>{order, 0, 0, 0}));
        }
}

} // namespace
} // namespace zors::test
