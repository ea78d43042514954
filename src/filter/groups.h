// Multi-rate filters that raise the rate, or keep it: outputs one after the other are lanes of one vector. Their newest
// samples stand within as many elements as a vector has; so from the newest one back, each step loads the samples of one
// vector, brings them to their lanes, and multiplies them by the taps of the lanes, which stand in a table. After
// U outputs everything repeats, so the table has the taps of lcm(U, outputs in a vector) outputs.
#pragma once

#include "dot.h"
#include "layout.h"

namespace zors::ZORS_VARIANT {

// 32-bit units of a vector, which its elements are brought to their lanes by.
using Units = Vec<Zor32s, vectorBytes / 4>;

// Outputs in a vector.
template <class E>
inline constexpr int groupLength = lanes<Lane<E>> / LaneOf<E>::each;

// The table's part for one vector of outputs: where each lane's samples come from, a mask of the lanes that have the
// last tap, and the taps, newest first, complex ones as a vector of real and one of imaginary parts.
template <class E>
struct TapGroup {
    using T = Lane<E>;
    static constexpr int width = lanes<T>;

    const T* p;

    static constexpr std::int64_t length(int taps)
    {
        return std::int64_t{width} * (2 + taps * LaneOf<E>::each);
    }
    Units sources() const { return bitsAs<Zor32s>(load<width>(p)); }
    Vec<Index<T>> mask() const { return bitsAs<Index<T>>(load<width>(p + width)); }
    const T* taps(int k) const { return p + width * (2 + k * LaneOf<E>::each); }
};

// Vectors of outputs until everything repeats. The number of outputs in one is a power of two.
inline int groupsOf(int upFactor, int groupLength)
{
    int common = 1;
    while (common < groupLength && upFactor % (2 * common) == 0) common *= 2;
    return upFactor / common;
}

// Bytes of the table; 0 where it would be out of proportion, or vectors have no instruction to rearrange them freely.
template <class E>
std::int64_t groupTableBytes(int tapsOfOutput, int upFactor, int downFactor)
{
    constexpr std::int64_t most = std::int64_t{1} << 16;
    if (vectorBytes == 16 || downFactor > upFactor) return 0;
    const std::int64_t bytes = groupsOf(upFactor, groupLength<E>) * TapGroup<E>::length(tapsOfOutput) *
                               std::int64_t{sizeof(Lane<E>)};
    return bytes <= most ? bytes : 0;
}

// A vector's elements, in 32-bit units, from the places given.
template <class V>
inline V rearranged(V v, Units from)
{
#if ZORS_VECTOR_BYTES == 64
    return (V)_mm512_permutexvar_epi32((__m512i)from, (__m512i)v);
#elif ZORS_VECTOR_BYTES == 32
    return (V)_mm256_permutevar8x32_epi32((__m256i)v, (__m256i)from);
#else
    (void)from;
    return v;
#endif
}

// Fills the table; tap(output, k) is the k-th tap of an output, sample(output) its newest sample, has(output, k)
// whether it has so many taps.
template <class E, class Tap, class Sample, class Has>
void fillGroups(Lane<E>* table, int upFactor, int tapsOfOutput, Tap tap, Sample sample, Has has)
{
    using T = Lane<E>;
    constexpr int each = LaneOf<E>::each, units = sizeof(E) / 4, width = lanes<T>, n = groupLength<E>;
    for (int first = 0; first < groupsOf(upFactor, n) * n; first += n) {
        auto* sources = reinterpret_cast<Zor32s*>(table);
        auto* mask = reinterpret_cast<Index<T>*>(table + width);
        T* taps = table + 2 * width;
        for (int l = 0; l < n; ++l) {
            const int output = first + l;
            for (int u = 0; u < units; ++u)
                sources[l * units + u] = (sample(output) - sample(first)) * units + u;
            for (int part = 0; part < each; ++part)
                mask[l * each + part] = has(output, tapsOfOutput - 1) ? Index<T>{-1} : Index<T>{0};
            for (int k = 0; k < tapsOfOutput; ++k) {
                const E h = has(output, k) ? tap(output, k) : E{};
                for (int part = 0; part < each; ++part)
                    for (int lane = 0; lane < each; ++lane)
                        taps[(std::ptrdiff_t{k} * each + part) * width + l * each + lane] = asLanes(&h)[part];
            }
        }
        table += TapGroup<E>::length(tapsOfOutput);
    }
}

// Blocks vectors of outputs with the same taps, whose newest samples, from those of the first output on, are so many
// samples apart.
template <class E, int Blocks>
struct GroupSums {
    using T = Lane<E>;
    using V = Vec<T>;
    static constexpr int width = lanes<T>;
    LaneSum<E> sums[Blocks];

    [[gnu::always_inline]] void run(TapGroup<E> group, int taps, const T* x, std::ptrdiff_t apart)
    {
        const Units sources = group.sources();
        const auto samples = [=](int b, const T* newest) {
            return rearranged(load<width>(newest + b * apart), sources);
        };
        for (int k = 0; k < taps - 1; ++k, x -= LaneOf<E>::each) {
            const TapVectors h(group.taps(k));
            for (int b = 0; b < Blocks; ++b) h.addTo(sums[b], samples(b, x));
        }
        const TapVectors h(group.taps(taps - 1));
        for (int b = 0; b < Blocks; ++b) h.addTo(sums[b], (V)((Vec<Index<T>>)samples(b, x) & group.mask()));
    }

private:
    struct TapVectors {
        V re, im;
        explicit TapVectors(const T* p)
            : re(load<width>(p)), im(LaneSum<E>::isReal ? re : load<width>(p + width))
        {
        }
        [[gnu::always_inline]] void addTo(LaneSum<E>& sum, V x) const
        {
            sum.first = mulAdd(re, x, sum.first);
            if constexpr (!LaneSum<E>::isReal) sum.second = mulAdd(im, x, sum.second);
        }
    };
};

} // namespace zors::ZORS_VARIANT
