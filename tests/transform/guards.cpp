// With pages around them that nobody may touch: the record, the memory of its making, the work buffer and the
// data need not be a byte longer than reported. And the statuses, which come before anything is touched.
#include "contract/arena.h"
#include "support/count.h"
#include "transform/samples.h"

#include <cstring>
#include <gtest/gtest.h>

namespace zors::test {
namespace {

using contract::Arena;

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

Zor8u* orNull(Guarded& buffer, int size)
{
    return size > 0 ? buffer.get() : nullptr;
}

void runGuarded(const Transform& t, int order, int flag, bool atEnd)
{
    const Sizes sizes = sizesOf(*t.kind, order, flag);
    Guarded memory(static_cast<std::size_t>(sizes.spec), atEnd);
    Guarded scratch(static_cast<std::size_t>(sizes.init), atEnd);
    Guarded work(static_cast<std::size_t>(sizes.work), atEnd);
    void* spec = nullptr;
    ASSERT_EQ(t.kind->init(&spec, order, flag, ZOR_ALG_ANY, memory.get(), orNull(scratch, sizes.init)),
              zorStsOk);
    ASSERT_TRUE(memory.intact() && scratch.intact()) << "initialisation wrote beside its memory";
    std::vector<Zor8u> before(memory.get(), memory.get() + sizes.spec);

    Random random;
    Guarded src(t.in.bytes(pointsOf(order)), atEnd), dst(t.out.bytes(pointsOf(order)), atEnd);
    writeNumbers(randomNumbers(t.in, pointsOf(order), random), t.in.number, src.get());
    std::vector<Zor8u> input(src.get(), src.get() + t.in.bytes(pointsOf(order)));
    ASSERT_EQ(t.run(src.get(), dst.get(), spec, pointsOf(order), 3, orNull(work, sizes.work)), zorStsOk);
    EXPECT_TRUE(src.intact() && dst.intact() && work.intact() && memory.intact());
    EXPECT_EQ(std::memcmp(src.get(), input.data(), input.size()), 0) << "the source was changed";
    EXPECT_EQ(std::memcmp(memory.get(), before.data(), before.size()), 0) << "the record was changed";

    if (!t.runInPlace) return;
    Guarded both(std::max(t.in.bytes(pointsOf(order)), t.out.bytes(pointsOf(order))), atEnd);
    std::memcpy(both.get(), input.data(), input.size());
    ASSERT_EQ(t.runInPlace(both.get(), spec, pointsOf(order), 3, orNull(work, sizes.work)), zorStsOk);
    EXPECT_TRUE(both.intact() && work.intact());
    EXPECT_EQ(std::memcmp(both.get(), dst.get(), t.out.bytes(pointsOf(order))), 0);
}

TEST(Guards, NothingBesideTheMemoryIsTouched)
{
    // All up to where methods stop changing.
    for (int order = 0; order <= longestOrder(19); ++order)
        for (const Transform& t : transforms())
            for (const bool atEnd : {false, true})
                for (const int flag : {ZOR_FFT_SCALE_SQRT, ZOR_FFT_SCALE_NONE}) {
                    if (order > 12 && flag == ZOR_FFT_SCALE_NONE) continue;
                    SCOPED_TRACE(t.name + ", order " + std::to_string(order));
                    runGuarded(t, order, flag, atEnd);
                    if (HasFailure()) return;
                    compared(static_cast<long long>(t.out.numbers(pointsOf(order))));
                }
}

TEST(Guards, StatusesOfTransforms)
{
    for (const Transform& t : transforms()) {
        SCOPED_TRACE(t.name);
        constexpr int order = 7;
        Zor8u data[4096];
        std::memset(data, 0x5a, sizeof data);
        const auto expect = [&](const void* src, void* dst, const void* spec, ZorStatus status) {
            EXPECT_EQ(t.run(src, dst, spec, 0, 0, nullptr), status);
            if (!t.runInPlace || src || dst) return;
            EXPECT_EQ(t.runInPlace(nullptr, spec, 0, 0, nullptr), status) << "in place";
        };
        const Spec spec(*t.kind, order);
        expect(nullptr, nullptr, nullptr, zorStsNullPointer);
        expect(nullptr, nullptr, spec.get(), zorStsNullPointer);
        expect(nullptr, data, spec.get(), zorStsNullPointer);
        expect(data, nullptr, spec.get(), zorStsNullPointer);
        // A record of another kind is found before a null vector.
        for (const Kind& other : kinds()) {
            if (other.tag == t.kind->tag) continue;
            const Spec wrong(other, order);
            expect(nullptr, nullptr, wrong.get(), zorStsWrongContext);
            expect(data, data, wrong.get(), zorStsWrongContext);
        }
        for (const Zor8u byte : data) ASSERT_EQ(byte, 0x5a);
    }
}

} // namespace
} // namespace zors::test
