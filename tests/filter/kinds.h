// The kinds of filters behind one interface each, so that a test can go through all of them.
#pragma once

#include "filter/numbers.h"

#include <string>

namespace zors::test {

struct Rates {
    int up = 1, upPhase = 0, down = 1, downPhase = 0;

    // What a delay line holds, and of a single-rate filter, too.
    int delays(int tapsLen) const { return (tapsLen + up - 1) / up; }
};

// An argument that only some kinds take: of integer taps, or of integer data.
struct Factor {
    int value;
    Factor(int v) : value(v) {}
};

struct Kind {
    std::string name;
    Element taps, data;
    Number arithmetic;
    int single, multiRate; // the numbers in the tags of their records, or 0

    // Both of the data and of the record, which the library tells apart by types.
    ZorStatus (*run)(const void* pSrc, void* pDst, int numIters, void* pState, Factor scaleFactor);
    ZorStatus (*runInPlace)(void* pSrcDst, int numIters, void* pState, Factor scaleFactor);
    ZorStatus (*free)(void* pState);
    ZorStatus (*setTaps)(const void* pTaps, void* pState, Factor tapsFactor);
    ZorStatus (*getTaps)(const void* pState, void* pTaps, Factor tapsFactor);
    ZorStatus (*setDlyLine)(void* pState, const void* pDlyLine);
    ZorStatus (*getDlyLine)(const void* pState, void* pDlyLine);

    ZorStatus (*multiRateSize)(int tapsLen, int upFactor, int downFactor, int* pSize) = nullptr;
    ZorStatus (*multiRateInit)(void** ppState, const void* pTaps, int tapsLen, Factor tapsFactor, Rates rates,
                               const void* pDlyLine, Zor8u* pBuffer) = nullptr;
    ZorStatus (*multiRateInitAlloc)(void** ppState, const void* pTaps, int tapsLen, Factor tapsFactor,
                                    Rates rates, const void* pDlyLine) = nullptr;

    // pSrc points at the sample.
    ZorStatus (*one)(const void* pSrc, void* pDst, void* pState, Factor scaleFactor) = nullptr;
    ZorStatus (*size)(int tapsLen, int* pSize) = nullptr;
    ZorStatus (*init)(void** ppState, const void* pTaps, int tapsLen, Factor tapsFactor, const void* pDlyLine,
                      Zor8u* pBuffer) = nullptr;
    ZorStatus (*initAlloc)(void** ppState, const void* pTaps, int tapsLen, Factor tapsFactor,
                           const void* pDlyLine) = nullptr;

    bool isComplex() const { return data.isComplex(); }
    bool isNarrow() const { return arithmetic == Number::float32; }
    // The rounding of one operation: of 16-bit products and their sums in doubles there is none.
    double unit() const { return isNarrow() ? 0x1p-24 : taps.number == Number::int16 ? 0 : 0x1p-53; }
    // Integer taps stand for numbers in -1..1.
    int tapsFactor() const { return taps.number == Number::int16 ? 15 : taps.isFloating() ? 0 : 31; }
    // Filters of so many taps are transformed for long calls.
    int transformedFrom() const { return isNarrow() ? 64 : 32; }
};

// The length of the transforms of a filter, and the samples that each of them filters.
int transformLength(int tapsLen);
inline int transformStep(int tapsLen)
{
    return transformLength(tapsLen) - tapsLen + 1;
}

// The records of streams: none but these two types.
struct StreamKind {
    const Kind* kind;
    int single, multiRate;
    ZorStatus (*size)(int tapsLen, int* pSize);
    ZorStatus (*init)(void** ppState, const void* pTaps, int tapsLen, Factor tapsFactor, Zor8u* pBuffer);
    ZorStatus (*multiRateSize)(int tapsLen, int* pSize);
    ZorStatus (*multiRateInit)(void** ppState, const void* pTaps, int tapsLen, Factor tapsFactor, Rates rates,
                               Zor8u* pBuffer);
};

// All that have single-rate records, and all that have multi-rate ones.
const std::vector<Kind>& singleRateKinds();
const std::vector<Kind>& multiRateKinds();
const std::vector<StreamKind>& streamKinds();
const Kind& kind(const std::string& name);

// The tag of a record.
inline Zor32u tagOf(const void* record)
{
    return *static_cast<const Zor32u*>(record);
}
// A letter, an I and two digits, the letter in the highest byte.
constexpr Zor32u tag(int number, char letter = 'F')
{
    return static_cast<Zor32u>(letter) << 24 |
           (0x493030U + static_cast<Zor32u>(number / 10 * 256 + number % 10));
}

} // namespace zors::test
