// What does not change the result by a bit: working in place, the alignment of the data, who supplies the work
// buffer and where it stands, the hint.
#include "transform/samples.h"

#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>

namespace zors::test {
namespace {

// What a new record makes of the input, in a work buffer of the library's.
Memory resultOf(const Transform& t, int order, const Memory& in, int flag, int hint = ZOR_ALG_ANY)
{
    Memory out(t.out.bytes(pointsOf(order)));
    void* spec = nullptr;
    EXPECT_EQ(t.kind->initAlloc(&spec, order, flag, static_cast<ZorHintAlgorithm>(hint)), zorStsOk);
    EXPECT_EQ(t.run(in.get(), out.get(), spec, pointsOf(order), 2, nullptr), zorStsOk);
    EXPECT_EQ(t.kind->free(spec), zorStsOk);
    return out;
}

TEST(Values, DoNotDependOnPlaceAndBuffer)
{
    Random random;
    for (const Transform& t : transforms())
        for (int order = 0; order <= longestOrder(20); ++order) {
            const std::size_t inBytes = t.in.bytes(pointsOf(order)), outBytes = t.out.bytes(pointsOf(order));
            const Spec spec(*t.kind, order, ZOR_FFT_SCALE_SQRT);
            const Memory in = randomInput(t, pointsOf(order), random),
                         expected = resultOf(t, order, in, ZOR_FFT_SCALE_SQRT);
            Memory work(static_cast<std::size_t>(sizesOf(*t.kind, order).work) + 64);
            for (const std::size_t place : {0U, 1U, 3U, 5U}) {
                SCOPED_TRACE(testing::Message()
                             << t.name << ", order " << order << ", elements past alignment " << place);
                Memory movedIn(std::max(inBytes, outBytes) + 64), movedOut(outBytes + 64);
                auto* src = static_cast<std::byte*>(movedIn.get()) + place * bytesOf(t.in.number);
                auto* dst = static_cast<std::byte*>(movedOut.get()) + place * bytesOf(t.out.number);
                auto* buffer = static_cast<Zor8u*>(work.get()) + place;
                std::memcpy(src, in.get(), inBytes);
                ASSERT_EQ(t.run(src, dst, spec.get(), pointsOf(order), 2, buffer), zorStsOk);
                EXPECT_EQ(std::memcmp(dst, expected.get(), outBytes), 0);
                if (!t.runInPlace) continue;
                ASSERT_EQ(t.runInPlace(src, spec.get(), pointsOf(order), 2, buffer), zorStsOk);
                EXPECT_EQ(std::memcmp(src, expected.get(), outBytes), 0) << "in place";
            }
        }
}

// Passes go forwards or backwards by the place of the work buffer in a page beside that of the source.
TEST(Values, DoNotDependOnPlaceInPage)
{
    constexpr std::uintptr_t page = 4096;
    Random random;
    for (const Transform& t : transforms())
        for (const int order : {8, 11, 12, 14}) {
            const Spec spec(*t.kind, order, ZOR_FFT_SCALE_NONE);
            const Memory in = randomInput(t, pointsOf(order), random),
                         expected = resultOf(t, order, in, ZOR_FFT_SCALE_NONE);
            Memory work(static_cast<std::size_t>(sizesOf(*t.kind, order).work) + page),
                out(t.out.bytes(pointsOf(order)));
            const auto source = reinterpret_cast<std::uintptr_t>(in.get());
            const auto room = reinterpret_cast<std::uintptr_t>(work.get());
            for (const std::uintptr_t ahead : {0U, 64U, 1024U, 2048U, 4032U}) {
                auto* buffer = static_cast<Zor8u*>(work.get()) + (source + ahead - room) % page;
                ASSERT_EQ(t.run(in.get(), out.get(), spec.get(), pointsOf(order), 2, buffer), zorStsOk);
                EXPECT_EQ(std::memcmp(out.get(), expected.get(), t.out.bytes(pointsOf(order))), 0)
                    << t.name << ", order " << order << ", work buffer ahead by " << ahead;
            }
        }
}

TEST(Values, DoNotDependOnHint)
{
    Random random;
    for (const Transform& t : transforms())
        for (const int order : {2, 3, 5, 9, 15}) {
            const Memory in = randomInput(t, pointsOf(order), random),
                         expected = resultOf(t, order, in, ZOR_FFT_SCALE_FWD);
            for (const int hint : {int{ZOR_ALG_SPEED}, int{ZOR_ALG_PRECISION}, 77, -5}) {
                const Memory got = resultOf(t, order, in, ZOR_FFT_SCALE_FWD, hint);
                EXPECT_EQ(std::memcmp(got.get(), expected.get(), t.out.bytes(pointsOf(order))), 0)
                    << t.name << ", order " << order << ", hint " << hint;
            }
        }
}

// The zeros of a CCS spectrum are not read.
TEST(Values, DoNotDependOnZerosOfCcs)
{
    Random random;
    for (const Transform& t : transforms())
        for (int order = 0; order <= 12 && t.in.format == Format::ccs; ++order) {
            auto numbers = randomNumbers(t.in, pointsOf(order), random);
            const auto result = [&] {
                Memory in(t.in.bytes(pointsOf(order)));
                writeNumbers(numbers, t.in.number, in.get());
                return resultOf(t, order, in, ZOR_FFT_SCALE_NONE);
            };
            const Memory expected = result();
            numbers[1] = 5;
            numbers.back() = 7;
            EXPECT_EQ(std::memcmp(result().get(), expected.get(), t.out.bytes(pointsOf(order))), 0)
                << t.name << ", order " << order;
        }
}

} // namespace
} // namespace zors::test
