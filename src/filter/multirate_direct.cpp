// Multi-rate filters whose taps and delay line are the caller's. Every U-th output has the same taps, one of the U
// phases of the filter: the outputs are made phase by phase, each an ordinary filter whose samples are D apart.
#include "direct_outputs.h"
#include "frame/bind.h"
#include "sample_copy.h"

namespace zors::ZORS_VARIANT {
namespace {

// What is gathered at a time, of taps and of samples: a multiple of the lanes of a sum.
constexpr std::ptrdiff_t most = 1024;

// Every up-th tap from one on.
template <class Tap>
class Phase {
public:
    Phase(const Tap* pTaps, std::ptrdiff_t tapsLen, std::ptrdiff_t first, std::ptrdiff_t up)
        : first_(pTaps + first), up_(up), len_(first < tapsLen ? (tapsLen - 1 - first) / up + 1 : 0)
    {
        if (isTogether()) together_ = up == 1 ? first_ : gathered(0, len_);
    }

    std::ptrdiff_t length() const { return len_; }
    Tap operator[](std::ptrdiff_t k) const { return first_[k * up_]; }
    bool isTogether() const { return up_ == 1 || len_ <= most; }

    // Up to most of its taps, side by side.
    const Tap* from(std::ptrdiff_t k, std::ptrdiff_t count)
    {
        return isTogether() ? together_ + k : gathered(k, count);
    }

private:
    const Tap* gathered(std::ptrdiff_t k, std::ptrdiff_t count)
    {
        for (std::ptrdiff_t i = 0; i < count; ++i) memory_[i] = first_[(k + i) * up_];
        return memory_;
    }

    const Tap* first_;
    const Tap* together_ = nullptr;
    std::ptrdiff_t up_, len_;
    Tap memory_[most];
};

// The source, and before it, at negative places, the delay line, whose newest sample comes first.
template <class Data>
class Stream {
public:
    Stream(const Data* pSrc, const Data* pDlyLine) : src_(pSrc), line_(pDlyLine) {}

    const Data& operator[](std::ptrdiff_t i) const { return i < 0 ? line_[-1 - i] : src_[i]; }

    // Up to most samples, side by side.
    const Data* from(std::ptrdiff_t i, std::ptrdiff_t count)
    {
        if (i >= 0) return src_ + i;
        for (std::ptrdiff_t k = 0; k < count; ++k) memory_[k] = (*this)[i + k];
        return memory_;
    }

private:
    const Data* src_;
    const Data* line_;
    Data memory_[most];
};

template <class Tap, class Data>
[[gnu::flatten]] auto sumOf(Stream<Data>& samples, std::ptrdiff_t oldest, Phase<Tap>& taps)
{
    DirectSum<Tap, Data> sum;
    for (std::ptrdiff_t n = 0; n < taps.length(); n += most) {
        const std::ptrdiff_t some = std::min(most, taps.length() - n);
        sum.add(samples.from(oldest + n, some), taps.from(taps.length() - n - some, some), some);
    }
    return sum.total();
}

// Sums of count outputs, the samples of each step further than those of the one before.
template <class Tap, class Data>
void sumsOf(Stream<Data>& samples, std::ptrdiff_t oldest, std::ptrdiff_t step, std::ptrdiff_t count,
            Phase<Tap>& taps, Zor64f* pSums)
{
    const std::ptrdiff_t len = taps.length();
    for (std::ptrdiff_t n = 0; n < count; ++n) {
        const std::ptrdiff_t first = oldest + n * step;
        if (first >= 0 && step == 1 && taps.isTogether())
            return consecutiveSums(samples.from(first, len), taps.from(0, len), len, count - n, pSums);
        const auto total = sumOf(samples, first, taps);
        pSums = std::copy(total.begin(), total.end(), pSums);
    }
}

// The outputs of one phase, up apart in the destination.
template <class Tap, class Data, class... Scale>
void filterPhase(Stream<Data>& samples, std::ptrdiff_t newest, std::ptrdiff_t step, std::ptrdiff_t count,
                 Phase<Tap>& taps, Data* pDst, std::ptrdiff_t up, Scale... scale)
{
    const std::ptrdiff_t len = taps.length(), oldest = newest - len + 1;
    if constexpr (std::is_same_v<Tap, Zor16s>)
        if (len > mostExactTaps<Tap>) {
            for (std::ptrdiff_t n = 0; n < count; ++n) {
                Zor64s total = 0;
                for (std::ptrdiff_t k = 0; k < len; ++k)
                    total += Zor64s{taps[k]} * samples[newest + n * step - k];
                pDst[n * up] = scaledSum<Data>(total, scale...);
            }
            return;
        }
    constexpr std::ptrdiff_t outputs = 256;
    Zor64f sums[outputs * LaneOf<Data>::each];
    Data rounded[outputs];
    for (std::ptrdiff_t n = 0; n < count; n += outputs) {
        const std::ptrdiff_t some = std::min(outputs, count - n);
        sumsOf(samples, oldest + n * step, step, some, taps, sums);
        roundSums(sums, rounded, some, scale...);
        for (std::ptrdiff_t i = 0; i < some; ++i) pDst[(n + i) * up] = rounded[i];
    }
}

// The newest samples of the line and the source.
template <class Data>
void keepNewest(const Data* pSrc, std::ptrdiff_t count, Data* pDlyLine, std::ptrdiff_t len)
{
    const std::ptrdiff_t fresh = std::min(count, len);
    moveSamples(pDlyLine, pDlyLine + fresh, len - fresh);
    for (std::ptrdiff_t k = 0; k < fresh; ++k) pDlyLine[k] = pSrc[count - 1 - k];
}

template <class Tap, class Data, class... Scale>
[[gnu::noinline]] void filterRates(const Data* pSrc, Data* pDst, std::ptrdiff_t numIters, const Tap* pTaps,
                                   std::ptrdiff_t tapsLen, Rates rates, Data* pDlyLine, Scale... scale)
{
    Stream<Data> samples(pSrc, pDlyLine);
    const std::ptrdiff_t up = rates.upFactor, down = rates.downFactor;
    for (std::ptrdiff_t j = 0; j < up; ++j) {
        // Places among the samples and the zeros between them; those before the first sample belong to the last one.
        const std::ptrdiff_t place = down * j + rates.downPhase - rates.upPhase;
        const std::ptrdiff_t newest = place < 0 ? -1 : place / up;
        Phase<Tap> taps(pTaps, tapsLen, place - newest * up, up);
        filterPhase(samples, newest, down, numIters, taps, pDst + j, up, scale...);
    }
    keepNewest(pSrc, numIters * down, pDlyLine, delayOf(static_cast<int>(tapsLen), rates.upFactor));
}

template <class Tap, class Data, class... Scale>
ZorStatus block(const Data* pSrc, Data* pDst, int numIters, const Tap* pTaps, int tapsLen, int upFactor,
                int upPhase, int downFactor, int downPhase, Data* pDlyLine, Scale... scale)
{
    const Rates rates{upFactor, upPhase, downFactor, downPhase};
    if (const ZorStatus bad = check(pointers(pSrc, pDst, pTaps, pDlyLine), length(numIters),
                                    firLength(tapsLen), factors(rates), phases(rates)))
        return bad;
    if (pSrc != pDst) {
        filterRates(pSrc, pDst, numIters, pTaps, tapsLen, rates, pDlyLine, scale...);
        return zorStsOk;
    }
    const SampleCopy<Data> src(pSrc, std::ptrdiff_t{numIters} * downFactor);
    if (!src.data()) return zorStsNoMemory;
    filterRates(src.data(), pDst, numIters, pTaps, tapsLen, rates, pDlyLine, scale...);
    return zorStsOk;
}

template <class Tap, class Data, class... Scale>
ZorStatus blockInPlace(Data* pSrcDst, int numIters, const Tap* pTaps, int tapsLen, int upFactor, int upPhase,
                       int downFactor, int downPhase, Data* pDlyLine, Scale... scale)
{
    return block(pSrcDst, pSrcDst, numIters, pTaps, tapsLen, upFactor, upPhase, downFactor, downPhase,
                 pDlyLine, scale...);
}

// Integer taps have a factor of their own.
template <class Tap, class Data>
ZorStatus blockScaled(const Data* pSrc, Data* pDst, int numIters, const Tap* pTaps, int tapsLen,
                      int tapsFactor, int upFactor, int upPhase, int downFactor, int downPhase,
                      Data* pDlyLine, int scaleFactor)
{
    return block(pSrc, pDst, numIters, pTaps, tapsLen, upFactor, upPhase, downFactor, downPhase, pDlyLine,
                 commonFactor(tapsFactor, scaleFactor));
}

template <class Tap, class Data>
ZorStatus blockScaledInPlace(Data* pSrcDst, int numIters, const Tap* pTaps, int tapsLen, int tapsFactor,
                             int upFactor, int upPhase, int downFactor, int downPhase, Data* pDlyLine,
                             int scaleFactor)
{
    return block(pSrcDst, pSrcDst, numIters, pTaps, tapsLen, upFactor, upPhase, downFactor, downPhase,
                 pDlyLine, commonFactor(tapsFactor, scaleFactor));
}

} // namespace

#define ZORS_BIND_RATES(types, Tap, Data)                                                                    \
    ZORS_BIND(zorsFIRMR##types, (block<Tap, Data>))                                                          \
    ZORS_BIND(zorsFIRMR##types##_I, (blockInPlace<Tap, Data>))

#define ZORS_BIND_RATES_SCALED(types, Tap, Data)                                                             \
    ZORS_BIND(zorsFIRMR##types##_Sfs, (block<Tap, Data, int>))                                               \
    ZORS_BIND(zorsFIRMR##types##_ISfs, (blockInPlace<Tap, Data, int>))

#define ZORS_BIND_RATES_INTEGER(types, Tap, Data)                                                            \
    ZORS_BIND(zorsFIRMR##types##_Sfs, (blockScaled<Tap, Data>))                                              \
    ZORS_BIND(zorsFIRMR##types##_ISfs, (blockScaledInPlace<Tap, Data>))

ZORS_BIND_RATES(_Direct_32f, Zor32f, Zor32f)
ZORS_BIND_RATES(_Direct_32fc, Zor32fc, Zor32fc)
ZORS_BIND_RATES(_Direct_64f, Zor64f, Zor64f)
ZORS_BIND_RATES(_Direct_64fc, Zor64fc, Zor64fc)
ZORS_BIND_RATES(64f_Direct_32f, Zor64f, Zor32f)
ZORS_BIND_RATES(64fc_Direct_32fc, Zor64fc, Zor32fc)
ZORS_BIND_RATES_SCALED(32f_Direct_16s, Zor32f, Zor16s)
ZORS_BIND_RATES_SCALED(32fc_Direct_16sc, Zor32fc, Zor16sc)
ZORS_BIND_RATES_SCALED(64f_Direct_32s, Zor64f, Zor32s)
ZORS_BIND_RATES_SCALED(64fc_Direct_32sc, Zor64fc, Zor32sc)
ZORS_BIND_RATES_SCALED(64f_Direct_16s, Zor64f, Zor16s)
ZORS_BIND_RATES_SCALED(64fc_Direct_16sc, Zor64fc, Zor16sc)
ZORS_BIND_RATES_SCALED(_Direct_16s, Zor16s, Zor16s)
ZORS_BIND_RATES_INTEGER(32s_Direct_16s, Zor32s, Zor16s)
ZORS_BIND_RATES_INTEGER(32sc_Direct_16sc, Zor32sc, Zor16sc)

} // namespace zors::ZORS_VARIANT
