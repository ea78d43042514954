// Transforms of any length: their errors, their methods, their sizes and statuses, and whose memory they touch.
#include "contract/arena.h"
#include "support/count.h"
#include "transform/samples.h"

#include <cstdio>
#include <cstring>
#include <gtest/gtest.h>
#include <map>
#include <numbers>

namespace zors::test {
namespace {

using contract::Arena;

bool isPowerOfTwo(std::size_t n)
{
    return (n & (n - 1)) == 0;
}

// By the definition of the methods; Double tells the width.
bool isConvolution(std::size_t n, bool isDouble)
{
    if (n <= 16 || isPowerOfTwo(n)) return false;
    const std::size_t most = isDouble ? 90 : 50;
    std::size_t rest = n;
    while (rest % 4 == 0) rest /= 4;
    const std::size_t mostLeft = rest < n ? 150 : most;
    if (rest % 2 == 0) rest /= 2;
    for (std::size_t d = 3; d <= most && d * d <= rest; d += 2)
        while (rest % d == 0) rest /= d;
    const bool hasFactors = rest < n && rest <= mostLeft;
    return !hasFactors && n > most;
}

double boundOf(const Transform& t, std::size_t n)
{
    const bool isDouble = t.epsilon() < 1e-10;
    const bool isReal = !Places{t.in.format, n}.isComplex();
    const double unit = n > 16 ? std::sqrt(std::log2(static_cast<double>(n))) : 2.5;
    const bool convolves =
        isConvolution(n, isDouble) || (isReal && n % 2 == 0 && isConvolution(n / 2, isDouble));
    return (convolves ? 1.20 : 0.60) * unit;
}

constexpr double roundingOfFactor = 0.30;

std::vector<std::size_t> lengths()
{
    using Lengths = std::initializer_list<std::size_t>;
    const std::size_t all = longestOrder(22) < 22 ? 130 : 700;
    std::vector<std::size_t> lengths;
    for (std::size_t n = 1; n <= all; ++n) lengths.push_back(n);
    for (const std::size_t n : Lengths{808, 1000, 1009, 1024, 2018, 2401, 3127, 4410, 5329, 12508})
        lengths.push_back(n);
    if (all == 700)
        for (const std::size_t n : Lengths{44100, 48000, 65537, 100003, 510510, 1000000})
            lengths.push_back(n);
    return lengths;
}

struct Sample {
    std::vector<Wide> input;
    WideVector expected;
};

// Transforms share their samples.
const Sample& sampleFor(const Transform& t, std::size_t n)
{
    static std::map<std::tuple<Format, Number, bool>, Sample> all;
    static std::size_t length = 0;
    if (n != length) all.clear();
    length = n;
    Sample& sample = all[{t.in.format, t.in.number, t.inverse}];
    if (!sample.input.empty()) return sample;
    Random random(n);
    sample.input = randomNumbers(t.in, n, random);
    const WideVector forward = dftOfAnyLength(pointsFrom(sample.input, t.in.format, n));
    sample.expected = t.inverse ? inverseFromForward(forward) : forward;
    return sample;
}

std::vector<Wide> run(const Transform& t, const Spec& spec, const std::vector<Wide>& input, std::size_t n,
                      int scaleFactor)
{
    Memory in(t.in.bytes(n)), out(t.out.bytes(n));
    writeNumbers(input, t.in.number, in.get());
    EXPECT_EQ(t.run(in.get(), out.get(), spec.get(), n, scaleFactor, nullptr), zorStsOk);
    return readNumbers(out.get(), t.out.number, t.out.numbers(n));
}

// Both ways of the oracle.
TEST(Lengths, Oracle)
{
    Random random;
    constexpr std::size_t n = 133;
    const WideVector x =
        pointsFrom(randomNumbers({Format::pairs, Number::float64}, n, random), Format::pairs, n);
    const WideVector fast = dftOfAnyLength(x);
    WideVector plain(n);
    for (std::size_t k = 0; k < n; ++k)
        for (std::size_t j = 0; j < n; ++j)
            plain[k] +=
                x[j] * std::polar(1.0L, -2 * std::numbers::pi_v<Wide> * static_cast<Wide>(j * k % n) / n);
    RelativeError error;
    error.add(fast, plain);
    EXPECT_LE(error.value(), 1e-17);
}

TEST(Lengths, ErrorsOfFloatingTransforms)
{
    std::map<std::string, double> worst, worstConvolution;
    for (const std::size_t n : lengths())
        for (const Transform& t : transformsOfAnyLength()) {
            if (!isFloating(t.in.number)) continue;
            if (n > 5000 && t.in.format != Format::pairs && t.out.format != Format::ccs) continue;
            if (n > 50000 && (t.inverse || t.in.format != Format::pairs)) continue; // the oracle's time
            const Sample& sample = sampleFor(t, n);
            for (const int flag : flags) {
                if (n > 40 && flag != ZOR_FFT_SCALE_NONE && flag != ZOR_FFT_SCALE_SQRT) continue;
                if (n > 5000 && flag != ZOR_FFT_SCALE_NONE) continue;
                const Spec spec(*t.kind, static_cast<int>(n), flag);
                const Wide factor = factorOf(flag, t.inverse, n);
                WideVector expected = sample.expected;
                for (auto& p : expected) p *= factor;
                RelativeError error;
                error.add(pointsFrom(run(t, spec, sample.input, n, 0), t.out.format, n), expected);
                const double got = error.value() / t.epsilon(), more = factor == 1 ? 0 : roundingOfFactor;
                EXPECT_LE(got, boundOf(t, n) + more) << t.name << ", length " << n << ", flag " << flag;
                compared(static_cast<long long>(n));
                if (n <= 16 || more > 0) continue;
                auto& most = isConvolution(n, t.epsilon() < 1e-10) ? worstConvolution : worst;
                const double unit = std::sqrt(std::log2(static_cast<double>(n)));
                most[t.name] = std::max(most[t.name], got / unit);
            }
        }
    for (const auto& [name, error] : worst)
        std::printf("%-18s at most %.3f eps sqrt(log2 N), convolutions %.3f\n", name.c_str(), error,
                    worstConvolution[name]);
}

TEST(Lengths, IntegerTransformsAreRounded)
{
    for (const std::size_t n : lengths()) {
        if (n > 13000) break;
        if (n > 130 && n % 5) continue;
        for (const Transform& t : transformsOfAnyLength()) {
            if (isFloating(t.in.number)) continue;
            const Sample& sample = sampleFor(t, n);
            const std::vector<Wide> expected = numbersFrom(sample.expected, t.out.format);
            Wide power = 0;
            for (const Wide x : expected) power += x * x;
            const Wide size = std::sqrt(power / static_cast<Wide>(expected.size()));
            for (const int flag : {ZOR_FFT_SCALE_NONE, ZOR_FFT_SCALE_SQRT})
                for (const int scaleFactor : {0, 8, 40}) {
                    const Spec spec(*t.kind, static_cast<int>(n), flag);
                    const Wide factor = std::ldexp(factorOf(flag, t.inverse, n), -scaleFactor);
                    const Wide slack = 0.5L + 10 * (static_cast<Wide>(boundOf(t, n)) + roundingOfFactor) *
                                                  static_cast<Wide>(t.epsilon()) * size * factor;
                    const std::vector<Wide> got = run(t, spec, sample.input, n, scaleFactor);
                    for (std::size_t i = 0; i < got.size(); ++i) {
                        const Wide want = expected[i] * factor;
                        const Wide low = std::clamp(want - slack, -0x8000L + 0.0L, 0x7fffL + 0.0L);
                        const Wide high = std::clamp(want + slack, -0x8000L + 0.0L, 0x7fffL + 0.0L);
                        ASSERT_TRUE(got[i] >= low && got[i] <= high)
                            << t.name << ", length " << n << ", scale factor " << scaleFactor << ", number "
                            << i << ": " << got[i] << " instead of " << want;
                    }
                    compared(static_cast<long long>(got.size()));
                }
        }
    }
}

// Deliberately, and not only nearly.
TEST(Lengths, PowersOfTwoHaveTheBitsOfTheFastTransform)
{
    Random random;
    for (const Transform& t : transformsOfAnyLength())
        for (const Transform& fast : transforms()) {
            if (fast.name != t.name) continue;
            for (int order = 5; order <= longestOrder(18); ++order) {
                const std::size_t n = pointsOf(order);
                const Spec spec(*t.kind, static_cast<int>(n), ZOR_FFT_SCALE_SQRT);
                const Spec ofOrder(*fast.kind, order, ZOR_FFT_SCALE_SQRT);
                const Memory in = randomInput(t, n, random);
                Memory out(t.out.bytes(n)), expected(t.out.bytes(n));
                ASSERT_EQ(t.run(in.get(), out.get(), spec.get(), n, 4, nullptr), zorStsOk);
                ASSERT_EQ(fast.run(in.get(), expected.get(), ofOrder.get(), n, 4, nullptr), zorStsOk);
                EXPECT_EQ(std::memcmp(out.get(), expected.get(), t.out.bytes(n)), 0) << t.name << ", " << n;
                compared(static_cast<long long>(n));
            }
        }
}

// A buffer that ends, or begins, at a forbidden page.
class Guarded {
public:
    Guarded(std::size_t bytes, bool atEnd)
        : arena_(bytes), place_(arena_.place(bytes, atEnd ? (64 - bytes % 64) % 64 : 0, atEnd))
    {
    }
    Zor8u* get() { return reinterpret_cast<Zor8u*>(place_); }
    bool intact() const { return arena_.canariesAlive(); }

private:
    Arena arena_;
    std::byte* place_;
};

void runGuarded(const Transform& t, std::size_t n, bool atEnd)
{
    const int length = static_cast<int>(n);
    const Sizes sizes = sizesOf(*t.kind, length);
    Guarded memory(static_cast<std::size_t>(sizes.spec), atEnd),
        scratch(static_cast<std::size_t>(sizes.init), atEnd),
        work(static_cast<std::size_t>(sizes.work), atEnd);
    const auto orNull = [](Guarded& buffer, int size) { return size > 0 ? buffer.get() : nullptr; };
    void* spec = nullptr;
    ASSERT_EQ(t.kind->init(&spec, length, ZOR_FFT_SCALE_SQRT, ZOR_ALG_ANY, memory.get(),
                           orNull(scratch, sizes.init)),
              zorStsOk);
    ASSERT_TRUE(memory.intact() && scratch.intact());
    const std::vector<Zor8u> before(memory.get(), memory.get() + sizes.spec);
    Random random;
    Guarded src(t.in.bytes(n), atEnd), dst(t.out.bytes(n), atEnd),
        both(std::max(t.in.bytes(n), t.out.bytes(n)), atEnd);
    writeNumbers(randomNumbers(t.in, n, random), t.in.number, src.get());
    const std::vector<Zor8u> input(src.get(), src.get() + t.in.bytes(n));
    ASSERT_EQ(t.run(src.get(), dst.get(), spec, n, 3, orNull(work, sizes.work)), zorStsOk);
    EXPECT_TRUE(src.intact() && dst.intact() && work.intact() && memory.intact());
    EXPECT_EQ(std::memcmp(src.get(), input.data(), input.size()), 0) << "the source was changed";
    EXPECT_EQ(std::memcmp(memory.get(), before.data(), before.size()), 0) << "the record was changed";
    std::memcpy(both.get(), input.data(), input.size());
    ASSERT_EQ(t.runInPlace(both.get(), spec, n, 3, nullptr), zorStsOk);
    EXPECT_TRUE(both.intact());
    EXPECT_EQ(std::memcmp(both.get(), dst.get(), t.out.bytes(n)), 0)
        << "in place, and with a buffer of the library's";
    int asked = -1;
    EXPECT_EQ(t.kind->getBufSize(spec, &asked), zorStsOk);
    EXPECT_EQ(asked, sizes.work);
    EXPECT_EQ(t.kind->free(spec), zorStsOk);
    EXPECT_EQ(t.kind->free(spec), zorStsWrongContext);
}

TEST(Lengths, NothingBesideTheMemoryIsTouched)
{
    for (const std::size_t n : lengths())
        for (const Transform& t : transformsOfAnyLength()) {
            if (!t.kind->getSize || n > 13000 || (n > 150 && n % 7)) continue;
            SCOPED_TRACE(t.name + ", length " + std::to_string(n));
            for (const bool atEnd : {false, true}) runGuarded(t, n, atEnd);
            if (HasFailure()) return;
        }
}

// What the methods ask for, and where they end. Fixed by the definition: sixteen points and fewer, powers of two and
// short primes.
TEST(Lengths, Sizes)
{
    const auto wholeLines = [](int bytes) { return (bytes + 63) / 64 * 64; };
    for (const Kind& k : kindsOfAnyLength()) {
        if (!k.getSize || k.name.find("16s") != std::string::npos) continue;
        SCOPED_TRACE(k.name);
        const bool isDouble = k.name.find("64") != std::string::npos;
        for (int n = 1; n <= 16; ++n) EXPECT_EQ(sizesOf(k, n), (Sizes{832, 0, 0})) << n;
        for (int order = 5; order <= 24; ++order) {
            const Sizes fast = sizesOf(kind(k.name), order), got = sizesOf(k, 1 << order);
            EXPECT_EQ(got.spec, 768 + wholeLines(fast.spec) + 64) << order;
            EXPECT_EQ(got.init, fast.init > 0 ? wholeLines(fast.init) + 64 : 0) << order;
            EXPECT_EQ(got.work, fast.work > 0 ? wholeLines(fast.work) + 64 : 0) << order;
        }
        for (const int n : {17, 19, 47})
            EXPECT_EQ(sizesOf(k, n).work, wholeLines((isDouble ? 16 : 8) * n) + 64) << n;
        const auto status = [&](int n) {
            int a = 0, b = 0, c = 0;
            return k.getSize(n, ZOR_FFT_SCALE_NONE, ZOR_ALG_ANY, &a, &b, &c);
        };
        const int most = isDouble ? 1 << 26 : 1 << 27, convolved = isDouble ? 1 << 25 : 1 << 26;
        EXPECT_EQ(status(most - 1), zorStsBadSize) << "no small factors, too long for a convolution";
        EXPECT_EQ(status(most), zorStsOk) << "a power of two";
        EXPECT_EQ(status(most + 2), zorStsBadSize);
        EXPECT_EQ(status(convolved - 5), zorStsOk) << "a prime, or without small factors";
        EXPECT_EQ(status(isDouble ? 48828125 : 120000000), zorStsOk);
    }
}

TEST(Lengths, Statuses)
{
    constexpr int length = 60, unknownFlag = 3;
    for (const Kind& k : kindsOfAnyLength()) {
        SCOPED_TRACE(k.name);
        alignas(64) static Zor8u memory[1 << 16];
        std::memset(memory, 0x5a, sizeof memory);
        void* spec = memory;
        EXPECT_EQ(k.initAlloc(nullptr, 0, unknownFlag, ZOR_ALG_ANY), zorStsNullPointer);
        EXPECT_EQ(k.initAlloc(&spec, 0, unknownFlag, ZOR_ALG_ANY), zorStsBadSize);
        EXPECT_EQ(k.initAlloc(&spec, -7, ZOR_FFT_SCALE_NONE, ZOR_ALG_ANY), zorStsBadSize);
        EXPECT_EQ(k.initAlloc(&spec, (1 << 27) - 1, unknownFlag, ZOR_ALG_ANY), zorStsBadFftFlag);
        EXPECT_EQ(k.initAlloc(&spec, (1 << 27) - 1, ZOR_FFT_SCALE_NONE, ZOR_ALG_ANY), zorStsBadSize);
        EXPECT_EQ(spec, memory) << "a record was handed out";
        if (k.getSize) {
            Sizes s{-1, -1, -1};
            EXPECT_EQ(k.getSize(0, unknownFlag, ZOR_ALG_ANY, nullptr, &s.init, &s.work), zorStsNullPointer);
            EXPECT_EQ(k.getSize(0, unknownFlag, ZOR_ALG_ANY, &s.spec, nullptr, &s.work), zorStsNullPointer);
            EXPECT_EQ(k.getSize(0, unknownFlag, ZOR_ALG_ANY, &s.spec, &s.init, nullptr), zorStsNullPointer);
            EXPECT_EQ(k.getSize(0, unknownFlag, ZOR_ALG_ANY, &s.spec, &s.init, &s.work), zorStsBadSize);
            EXPECT_EQ(k.getSize((1 << 27) - 1, unknownFlag, ZOR_ALG_ANY, &s.spec, &s.init, &s.work),
                      zorStsBadFftFlag);
            EXPECT_EQ(s, (Sizes{-1, -1, -1}));
            EXPECT_EQ(k.init(nullptr, 0, unknownFlag, ZOR_ALG_ANY, memory, nullptr), zorStsNullPointer);
            EXPECT_EQ(k.init(&spec, 0, unknownFlag, ZOR_ALG_ANY, nullptr, nullptr), zorStsNullPointer);
            EXPECT_EQ(k.init(&spec, 0, unknownFlag, ZOR_ALG_ANY, memory, nullptr), zorStsBadSize);
            EXPECT_EQ(k.init(&spec, length, unknownFlag, ZOR_ALG_ANY, memory, nullptr), zorStsBadFftFlag);
            EXPECT_EQ(k.init(&spec, 1009, ZOR_FFT_SCALE_NONE, ZOR_ALG_ANY, memory, nullptr),
                      zorStsNullPointer);
            EXPECT_EQ(spec, memory);
            EXPECT_TRUE(std::all_of(memory, memory + sizeof memory, [](int b) { return b == 0x5a; }));
        }
        int size = -1;
        EXPECT_EQ(k.getBufSize(nullptr, nullptr), zorStsNullPointer);
        EXPECT_EQ(k.getBufSize(memory, nullptr), zorStsWrongContext);
        EXPECT_EQ(k.getBufSize(memory, &size), zorStsWrongContext);
        EXPECT_EQ(k.free(nullptr), zorStsNullPointer);
        EXPECT_EQ(k.free(memory), zorStsWrongContext);
        const Spec valid(k, length);
        EXPECT_EQ(k.getBufSize(valid.get(), nullptr), zorStsNullPointer);
        Zor32u tag = 0;
        std::memcpy(&tag, valid.get(), sizeof tag);
        EXPECT_EQ(tag, k.tag);
    }
    for (const Transform& t : transformsOfAnyLength()) {
        SCOPED_TRACE(t.name);
        Zor8u data[4096] = {};
        const Spec spec(*t.kind, length);
        EXPECT_EQ(t.run(nullptr, nullptr, nullptr, 0, 0, nullptr), zorStsNullPointer);
        EXPECT_EQ(t.run(nullptr, data, spec.get(), 0, 0, nullptr), zorStsNullPointer);
        EXPECT_EQ(t.run(data, nullptr, spec.get(), 0, 0, nullptr), zorStsNullPointer);
        for (const Kind& other : kindsOfAnyLength()) {
            if (other.tag == t.kind->tag) continue;
            const Spec wrong(other, length);
            EXPECT_EQ(t.run(nullptr, nullptr, wrong.get(), 0, 0, nullptr), zorStsWrongContext);
        }
        for (const Zor8u byte : data) ASSERT_EQ(byte, 0);
    }
}

} // namespace
} // namespace zors::test
