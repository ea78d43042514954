// Random points for a transform, and what it should make of them.
#pragma once

#include "support/random.h"
#include "transform/transforms.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>

namespace zors::test {

// Memory for the numbers of one side, aligned to a cache line.
class Memory {
public:
    explicit Memory(std::size_t size) : lines_(size / sizeof(Line) + 1) {}
    void* get() { return lines_.data(); }
    const void* get() const { return lines_.data(); }

private:
    struct alignas(64) Line {
        std::byte bytes[64];
    };
    std::vector<Line> lines_;
};

// The longest order to test: where time is short, as under a sanitizer, the environment sets a limit.
inline int longestOrder(int most)
{
    const char* limit = std::getenv("ZORS_TEST_MOST_ORDER");
    return limit ? std::min(most, std::atoi(limit)) : most;
}

// Random numbers as a side takes them: reals in -1..1 to the last bit, or all integers.
inline std::vector<Wide> randomNumbers(const Side& side, std::size_t n, Random& random)
{
    const auto most = side.number == Number::int16 ? 0x1p15L : side.number == Number::int32 ? 0x1p31L : 1.0L;
    std::vector<Wide> numbers(side.numbers(n));
    for (Wide& x : numbers) x = static_cast<Wide>(static_cast<std::int64_t>(random())) * 0x1p-63L * most;
    Memory memory(side.bytes(n));
    writeNumbers(numbers, side.number, memory.get());
    numbers = readNumbers(memory.get(), side.number, numbers.size());
    // The zeros of a CCS spectrum.
    if (side.format == Format::ccs) {
        numbers[1] = 0;
        if (n % 2 == 0) numbers.back() = 0;
    }
    return numbers;
}

// The numbers of a transform's input in memory; a cache line more than they take, to move them about.
inline Memory randomInput(const Transform& t, std::size_t n, Random& random)
{
    Memory memory(t.in.bytes(n) + 64);
    writeNumbers(randomNumbers(t.in, n, random), t.in.number, memory.get());
    return memory;
}

// What a record multiplies by.
inline Wide factorOf(int flag, bool inverse, std::size_t points)
{
    const Wide n = static_cast<Wide>(points);
    if (flag == ZOR_FFT_SCALE_SQRT) return 1 / std::sqrt(n);
    return flag == (inverse ? ZOR_FFT_SCALE_INV : ZOR_FFT_SCALE_FWD) ? 1 / n : 1;
}

} // namespace zors::test
