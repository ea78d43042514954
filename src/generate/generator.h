// The generator of 32-bit words behind both distributions: subtract-with-borrow plus a linear congruence.
#pragma once

#include "simd/loop.h"

#include <zortypes.h>

#include <algorithm>
#include <array>
#include <utility>

namespace zors::ZORS_VARIANT {

// y -> multiplier * y + increment, modulo 2^32.
struct Congruence {
    Zor32u multiplier, increment;
    constexpr Zor32u operator()(Zor32u y) const { return multiplier * y + increment; }
    // The other one after this one.
    constexpr Congruence then(Congruence other) const
    {
        return {other.multiplier * multiplier, other(increment)};
    }
};

inline constexpr Congruence oneStep{69069, 1013904243};

// What 1, 2, ... steps do together: lanes of a vector stand that far apart.
inline constexpr auto jumps = [] {
    std::array<Congruence, lanes<Zor32u>> table{oneStep};
    for (std::size_t i = 1; i < table.size(); ++i) table[i] = table[i - 1].then(oneStep);
    return table;
}();

// The words that are drawn at a time at most.
inline constexpr int mostSteps = 256;

class Generator {
public:
    explicit Generator(Zor32u seed) : x1_(seed), x2_(oneStep(x1_)), x3_(oneStep(x2_)) {}

    // The next 1 <= count <= mostSteps words, as signed integers.
    void draw(Zor32s* words, int count)
    {
        subtractWithBorrow(words, count);
        addCongruence(words, count);
    }

    Zor32u newest() const { return x1_; }

private:
    // Serial: whether a word borrows depends on the one before it. Without a branch, which nobody could predict, and
    // three words a round, so that the new word takes the place of the oldest and nothing is moved.
    void subtractWithBorrow(Zor32s* words, int count)
    {
        Zor32u x1 = x1_, x2 = x2_, x3 = x3_, borrow = static_cast<Zor32u>(c_);
        const auto step = [&borrow](Zor32u& oldest, Zor32u before, Zor32s& word) {
            const Zor32u t = before - oldest + borrow;
            borrow = static_cast<Zor32u>(static_cast<Zor32s>(t) >> 31);
            oldest = t - (borrow & 18);
            word = static_cast<Zor32s>(oldest);
        };
        int i = 0;
        for (; i + 3 <= count; i += 3) {
            step(x3, x2, words[i]);
            step(x2, x1, words[i + 1]);
            step(x1, x3, words[i + 2]);
        }
        for (; i < count; ++i) {
            step(x3, x2, words[i]);
            x3 = std::exchange(x2, std::exchange(x1, x3));
        }
        x1_ = x1;
        x2_ = x2;
        x3_ = x3;
        c_ = static_cast<Zor32s>(borrow);
    }

    // The congruence is linear, so its lanes run side by side.
    void addCongruence(Zor32s* words, int count)
    {
        constexpr int step = lanes<Zor32u>;
        Vec<Zor32u> y;
        for (int i = 0; i < step; ++i) y[i] = jumps[static_cast<std::size_t>(i)](y_);
        auto* sums = reinterpret_cast<Zor32u*>(words);
        blocks<step>(count, [&](auto at) {
            store(sums, at, load(sums, at) + y);
            y = y * jumps.back().multiplier + jumps.back().increment;
        });
        y_ = sums[count - 1] - x1_;
    }

    Zor32u y_ = 1131199209;
    Zor32u x1_, x2_, x3_;
    Zor32s c_ = -1; // the borrow, 0 or -1
};

} // namespace zors::ZORS_VARIANT
