// The taps of recursive filters: as numbers, divided by a0, and with the signs that a recurrence adds them with.
#pragma once

#include "iir_record.h"
#include "numbers.h"
#include "samples.h"

#include <zorcore.h>

namespace zors::ZORS_VARIANT {

// The caller's taps as numbers, where they are: integer ones, which alone have a factor, are converted in memory of
// their own. Without data where there is none.
template <class E, class... Factor>
class TapNumbers;

template <class E>
class TapNumbers<E> {
public:
    TapNumbers(const E* pTaps, std::int64_t) : taps_(pTaps) {}
    const E* data() const { return taps_; }

private:
    const E* taps_;
};

template <class E>
class TapNumbers<E, int> {
public:
    template <class T>
    TapNumbers(const T* pTaps, std::int64_t count, int tapsFactor)
        : taps_(static_cast<E*>(zorMalloc(static_cast<int>(count * std::int64_t{sizeof(E)}))))
    {
        if (taps_)
            ::zorsConvert_32s32f_Sfs_arraddr(asLanes(pTaps), asLanes(taps_),
                                             static_cast<int>(laneCount<E>(count)), tapsFactor);
    }
    ~TapNumbers() { zorFree(taps_); }
    TapNumbers(const TapNumbers&) = delete;
    TapNumbers& operator=(const TapNumbers&) = delete;

    const E* data() const { return taps_; }

private:
    E* taps_;
};

template <class E>
bool isZero(E x)
{
    if constexpr (LaneOf<E>::each == 1)
        return x == 0;
    else
        return x.re == 0 && x.im == 0;
}

// Through the public functions, whose slots are filled when the library is loaded.
#define ZORS_TAP_ARITHMETIC(type)                                                                            \
    inline void divideTaps(const Zor##type* p, Zor##type by, Zor##type* pDst, int len)                       \
    {                                                                                                        \
        ::zorsDivC_##type##_arraddr(p, by, pDst, len);                                                       \
    }                                                                                                        \
    inline void multiplyTaps(const Zor##type* p, Zor##type by, Zor##type* pDst, int len)                     \
    {                                                                                                        \
        ::zorsMulC_##type##_arraddr(p, by, pDst, len);                                                       \
    }
ZORS_TAP_ARITHMETIC(32f)
ZORS_TAP_ARITHMETIC(64f)
ZORS_TAP_ARITHMETIC(32fc)
ZORS_TAP_ARITHMETIC(64fc)
#undef ZORS_TAP_ARITHMETIC

template <class E>
void negateTaps(E* p, std::int64_t count)
{
    for (std::int64_t i = 0; i < laneCount<E>(count); ++i) asLanes(p)[i] = -asLanes(p)[i];
}

// How many sections from the first on can be divided: all of them, or the one of any order, have to be.
template <class E>
int usableSections(const E* pTaps, const IirDesign& d)
{
    if (!d.isCascade()) return isZero(pTaps[d.count + 1]) ? 0 : 1;
    int usable = 0;
    while (usable < d.count && !isZero(pTaps[0]) && !isZero(pTaps[3])) {
        ++usable;
        pTaps += 6;
    }
    return usable;
}

template <class E>
ZorStatus divisible(const E* pTaps, const IirDesign& d)
{
    return require(usableSections(pTaps, d) == (d.isCascade() ? d.count : 1), zorStsDivByZeroError);
}

// The taps of a filter of any order: all but a0, by one division.
template <class E>
void normaliseOrder(const E* pTaps, E* to, int order)
{
    E one{}, inverse;
    *asLanes(&one) = 1;
    divideTaps(&one, pTaps[order + 1], &inverse, 1);
    multiplyTaps(pTaps, inverse, to, order + 1);
    if (order == 0) return;
    multiplyTaps(pTaps + order + 2, inverse, to + order + 1, order);
    negateTaps(to + order + 1, order);
}

template <class E>
void normaliseSection(const E* pTaps, E* to)
{
    divideTaps(pTaps, pTaps[3], to, 3);
    divideTaps(pTaps + 4, pTaps[3], to + 3, 2);
    negateTaps(to + 3, 2);
}

// As many sections as can be divided, or all taps if a0 is not zero.
template <class E>
ZorStatus setIirTaps(IirRecord<E>& r, const E* pTaps)
{
    const IirDesign d{r.structure, r.count, false};
    const int usable = usableSections(pTaps, d);
    if (d.isCascade())
        for (std::ptrdiff_t s = 0; s < usable; ++s) normaliseSection(pTaps + 6 * s, r.taps + 5 * s);
    else if (usable > 0)
        normaliseOrder(pTaps, r.taps, r.count);
    return divisible(pTaps, d);
}

template <class E>
void setIirDelayLine(IirRecord<E>& r, const E* pDlyLine)
{
    if (!pDlyLine) return clearSamples(r.delay, r.delayLen);
    copySamples(pDlyLine, r.delay, r.delayLen);
}

} // namespace zors::ZORS_VARIANT
