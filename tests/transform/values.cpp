// What does not change the result by a bit: working in place, the alignment of the data, who supplies the work
// buffer and where it stands, the hint. And that a transform undoes its inverse.
#include "transform/samples.h"

#include <cstring>
#include <gtest/gtest.h>

namespace zors::test {
namespace {

class Values : public testing::TestWithParam<const Transform*> {
protected:
    const Transform& t = *GetParam();
    Random random;

    std::vector<std::byte> bytesOf(const void* p, std::size_t count) const
    {
        const auto* first = static_cast<const std::byte*>(p);
        return {first, first + count};
    }
};

TEST_P(Values, DoNotDependOnPlaceAndBuffer)
{
    for (int order = 0; order <= longestOrder(20); ++order) {
        const Spec spec(*t.kind, order, ZOR_FFT_SCALE_SQRT);
        const std::size_t inBytes = t.in.bytes(order), outBytes = t.out.bytes(order);
        Memory in(inBytes + 64), out(outBytes + 64);
        writeNumbers(randomNumbers(t.in, order, random), t.in.number, in.get());
        ASSERT_EQ(t.run(in.get(), out.get(), spec.get(), order, 2, nullptr), zorStsOk);
        const auto expected = bytesOf(out.get(), outBytes);

        int size = 0;
        ASSERT_EQ(t.kind->getBufSize(spec.get(), &size), zorStsOk);
        const std::size_t inStep = zors::test::bytesOf(t.in.number),
                          outStep = zors::test::bytesOf(t.out.number);
        for (const std::size_t place : {0U, 1U, 3U, 5U}) {
            Memory movedIn(inBytes + 64), movedOut(outBytes + 64), work(static_cast<std::size_t>(size) + 64);
            auto* src = static_cast<std::byte*>(movedIn.get()) + place * inStep;
            auto* dst = static_cast<std::byte*>(movedOut.get()) + place * outStep;
            std::memcpy(src, in.get(), inBytes);
            auto* buffer = static_cast<Zor8u*>(work.get()) + place;
            ASSERT_EQ(t.run(src, dst, spec.get(), order, 2, buffer), zorStsOk);
            EXPECT_EQ(std::memcmp(dst, expected.data(), outBytes), 0)
                << "order " << order << ", elements past alignment " << place;
            if (!t.runInPlace) continue;
            Memory both(std::max(inBytes, outBytes) + 64);
            auto* data = static_cast<std::byte*>(both.get()) + place * inStep;
            std::memcpy(data, in.get(), inBytes);
            ASSERT_EQ(t.runInPlace(data, spec.get(), order, 2, buffer), zorStsOk);
            EXPECT_EQ(std::memcmp(data, expected.data(), outBytes), 0)
                << "order " << order << ", in place, elements past alignment " << place;
        }
    }
}

TEST_P(Values, DoNotDependOnHint)
{
    for (const int order : {2, 3, 5, 9, 15}) {
        Memory in(t.in.bytes(order));
        writeNumbers(randomNumbers(t.in, order, random), t.in.number, in.get());
        std::vector<std::byte> first;
        for (const int hint : {int{ZOR_ALG_ANY}, int{ZOR_ALG_SPEED}, int{ZOR_ALG_PRECISION}, 77, -5}) {
            void* spec = nullptr;
            ASSERT_EQ(t.kind->initAlloc(&spec, order, ZOR_FFT_SCALE_FWD, static_cast<ZorHintAlgorithm>(hint)),
                      zorStsOk);
            Memory out(t.out.bytes(order));
            EXPECT_EQ(t.run(in.get(), out.get(), spec, order, 0, nullptr), zorStsOk);
            if (first.empty()) first = bytesOf(out.get(), t.out.bytes(order));
            EXPECT_EQ(std::memcmp(out.get(), first.data(), first.size()), 0) << "hint " << hint;
            EXPECT_EQ(t.kind->free(spec), zorStsOk);
        }
    }
}

// The zeros of a CCS spectrum are not read.
TEST_P(Values, DoNotDependOnZerosOfCcs)
{
    if (t.in.format != Format::ccs) return;
    for (int order = 0; order <= 12; ++order) {
        const Spec spec(*t.kind, order);
        auto numbers = randomNumbers(t.in, order, random);
        Memory in(t.in.bytes(order)), one(t.out.bytes(order)), other(t.out.bytes(order));
        writeNumbers(numbers, t.in.number, in.get());
        ASSERT_EQ(t.run(in.get(), one.get(), spec.get(), order, 0, nullptr), zorStsOk);
        numbers[1] = 5;
        numbers.back() = 7;
        writeNumbers(numbers, t.in.number, in.get());
        ASSERT_EQ(t.run(in.get(), other.get(), spec.get(), order, 0, nullptr), zorStsOk);
        EXPECT_EQ(std::memcmp(one.get(), other.get(), t.out.bytes(order)), 0) << order;
    }
}

std::vector<const Transform*> all()
{
    std::vector<const Transform*> list;
    for (const Transform& t : transforms()) list.push_back(&t);
    return list;
}

INSTANTIATE_TEST_SUITE_P(All, Values, testing::ValuesIn(all()),
                         [](const auto& test) { return test.param->name; });

// There and back gives the input again, times N where nothing scales.
TEST(RoundTrip, GivesTheInput)
{
    const auto& list = transforms();
    Random random;
    for (std::size_t at = 0; at + 1 < list.size(); at += 2) {
        const Transform &forward = list[at], &inverse = list[at + 1];
        if (!isFloating(forward.in.number)) continue;
        for (int order = 0; order <= longestOrder(20); order += order < 14 ? 1 : 3)
            for (const int flag : flags) {
                const Spec spec(*forward.kind, order, flag);
                const Wide n = flag == ZOR_FFT_SCALE_NONE ? std::ldexp(1.0L, order) : 1;
                RelativeError error;
                for (int i = 0; i < RelativeError::samples(order); ++i) {
                    const auto input = randomNumbers(forward.in, order, random);
                    Memory a(forward.in.bytes(order)), b(forward.out.bytes(order));
                    writeNumbers(input, forward.in.number, a.get());
                    ASSERT_EQ(forward.run(a.get(), b.get(), spec.get(), order, 0, nullptr), zorStsOk);
                    ASSERT_EQ(inverse.run(b.get(), a.get(), spec.get(), order, 0, nullptr), zorStsOk);
                    auto output = readNumbers(a.get(), forward.in.number, input.size());
                    for (Wide& x : output) x /= n;
                    error.add(output, input);
                }
                EXPECT_LE(error.value(), forward.epsilon() * (0.8 * std::sqrt(order) + 0.6))
                    << forward.name << ", order " << order << ", flag " << flag;
            }
    }
}

} // namespace
} // namespace zors::test
