// Rows of floats, one a channel, to interleaved frames of full-scale integers and back.
#include "frame/bind.h"
#include "simd/bytes24.h"
#include "simd/check.h"
#include "simd/control.h"
#include "simd/round.h"

#include <algorithm>

namespace zors::ZORS_VARIANT {
namespace {

// A channel is converted in pieces that stay in the nearest cache, and moved to or from its frames from there.
constexpr int pieceLength = 1024;

// The formats of an element of a frame.
struct Frame16s {
    using Element = Zor16s;
    static constexpr int parts = 1;

    static void fromRow(const Zor32f* pSrc, Zor16s* pDst, int len)
    {
        blocks<lanes<Zor16s>>(len, [=](auto at) {
            const auto full = each(loadGroup(pSrc, at), [](Vec<Zor32f> v) { return v * 0x1p15f; });
            store(pDst, at, roundedTo<Zor16s, Rounding::nearestEven>(full));
        });
    }
    static void toRow(const Zor16s* pSrc, Zor32f* pDst, int len)
    {
        constexpr int step = lanes<Zor32f>;
        blocks<step>(len, [=](auto at) { store(pDst, at, toFloat<step>(load(pSrc, at)) * 0x1p-15f); });
    }
};

struct Frame24s {
    using Element = Zor8u;
    static constexpr int parts = 3;

    static void fromRow(const Zor32f* pSrc, Zor8u* pDst, int len)
    {
        blocks<lanes24>(len, [=](auto at) {
            const auto full = load(pSrc, at) * 0x1p23f;
            const auto r = roundedBetween<Rounding::nearestEven>(-0x1p23f, 0x1p23f - 1, full);
            store24(pDst, at, (Vec<Zor32u>)r);
        });
    }
    static void toRow(const Zor8u* pSrc, Zor32f* pDst, int len)
    {
        blocks<lanes24>(len, [=](auto at) {
            const auto high = (Vec<Zor32s>)(load24(pSrc, at) << 8);
            store(pDst, at, toFloat<lanes24>(high) * 0x1p-31f);
        });
    }
};

// Calls run(first, count) for the pieces of a length.
template <class Run>
void inPieces(int len, Run run)
{
    for (std::ptrdiff_t first = 0; first < len; first += pieceLength)
        run(first, static_cast<int>(std::min<std::ptrdiff_t>(pieceLength, len - first)));
}

template <class Row>
ZorStatus checkRows(Row* const* pRows, const void* pFrames, int numChannels, int len)
{
    if (const ZorStatus bad = check(pointers(pRows, pFrames))) return bad;
    for (int c = 0; c < numChannels; ++c)
        if (!pRows[c]) return zorStsNullPointer;
    return check(length(len), require(numChannels >= 1, zorStsBadNumChannels));
}

// Two channels of 16 bits, the commonest frames: a frame is a lane.
void joinPairs(const Zor32f* pFirst, const Zor32f* pSecond, Zor16s* pDst, int len)
{
    auto* pFrames = reinterpret_cast<Zor32s*>(pDst);
    const auto words = [](const Zor32f* p, auto at) {
        return roundedBetween<Rounding::nearestEven>(-0x1p15f, 0x1p15f - 1, load(p, at) * 0x1p15f);
    };
    blocks<lanes<Zor32f>>(
        len, [=](auto at) { store(pFrames, at, (words(pFirst, at) & 0xffff) | words(pSecond, at) << 16); });
}

void splitPairs(const Zor16s* pSrc, Zor32f* pFirst, Zor32f* pSecond, int len)
{
    constexpr int step = lanes<Zor32f>;
    const auto* pFrames = reinterpret_cast<const Zor32s*>(pSrc);
    blocks<step>(len, [=](auto at) {
        const auto frames = load(pFrames, at);
        store(pFirst, at, toFloat<step>(frames << 16) * 0x1p-31f);
        store(pSecond, at, toFloat<step>(frames >> 16) * 0x1p-15f);
    });
}

template <class Format, class T = typename Format::Element>
ZorStatus joinScaled(const Zor32f* const* pSrc, T* pDst, int numChannels, int len)
{
    if (const ZorStatus bad = checkRows(pSrc, pDst, numChannels, len)) return bad;
    const StandardArithmetic arithmetic;
    if constexpr (std::is_same_v<Format, Frame16s>)
        if (numChannels == 2) {
            joinPairs(pSrc[0], pSrc[1], pDst, len);
            return zorStsOk;
        }
    constexpr int parts = Format::parts;
    const std::ptrdiff_t frame = std::ptrdiff_t{parts} * numChannels;
    T piece[parts * pieceLength];
    inPieces(len, [&](std::ptrdiff_t first, int count) {
        for (int c = 0; c < numChannels; ++c) {
            Format::fromRow(pSrc[c] + first, piece, count);
            T* p = pDst + first * frame + c * parts;
            for (int i = 0; i < count; ++i, p += frame) std::copy_n(piece + parts * i, parts, p);
        }
    });
    return zorStsOk;
}

template <class Format, class T = typename Format::Element>
ZorStatus splitScaled(const T* pSrc, Zor32f* const* pDst, int numChannels, int len)
{
    if (const ZorStatus bad = checkRows(pDst, pSrc, numChannels, len)) return bad;
    const StandardArithmetic arithmetic;
    if constexpr (std::is_same_v<Format, Frame16s>)
        if (numChannels == 2) {
            splitPairs(pSrc, pDst[0], pDst[1], len);
            return zorStsOk;
        }
    constexpr int parts = Format::parts;
    const std::ptrdiff_t frame = std::ptrdiff_t{parts} * numChannels;
    T piece[parts * pieceLength];
    inPieces(len, [&](std::ptrdiff_t first, int count) {
        for (int c = 0; c < numChannels; ++c) {
            const T* p = pSrc + first * frame + c * parts;
            for (int i = 0; i < count; ++i, p += frame) std::copy_n(p, parts, piece + parts * i);
            Format::toRow(piece, pDst[c] + first, count);
        }
    });
    return zorStsOk;
}

} // namespace

ZORS_BIND(zorsJoinScaled_32f16s_D2L, joinScaled<Frame16s>)
ZORS_BIND(zorsJoinScaled_32f24s_D2L, joinScaled<Frame24s>)
ZORS_BIND(zorsSplitScaled_16s32f_D2L, splitScaled<Frame16s>)
ZORS_BIND(zorsSplitScaled_24s32f_D2L, splitScaled<Frame24s>)

} // namespace zors::ZORS_VARIANT
