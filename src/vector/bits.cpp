#include "frame/bind.h"
#include "simd/check.h"

#include <cstddef>
#include <cstring>

namespace zors::ZORS_VARIANT {
namespace {

Zor64u loadWord(const Zor8u* p)
{
    Zor64u w;
    std::memcpy(&w, p, sizeof w);
    return w;
}

// The two ways to number the bits of a byte. A word holds 64 consecutive bits of a string, the first one where
// the numbering starts.
struct MostSignificantFirst {
    static Zor8u mask(std::ptrdiff_t bit) { return static_cast<Zor8u>(128 >> bit % 8); }
    static Zor64u word(const Zor8u* p) { return __builtin_bswap64(loadWord(p)); }
    static Zor64u bytes(Zor64u word) { return __builtin_bswap64(word); }
    static Zor64u toFront(Zor64u word, int bits) { return word << bits; }
    static Zor64u toBack(Zor64u word, int bits) { return word >> bits; }
};

struct LeastSignificantFirst {
    static Zor8u mask(std::ptrdiff_t bit) { return static_cast<Zor8u>(1 << bit % 8); }
    static Zor64u word(const Zor8u* p) { return loadWord(p); }
    static Zor64u bytes(Zor64u word) { return word; }
    static Zor64u toFront(Zor64u word, int bits) { return word >> bits; }
    static Zor64u toBack(Zor64u word, int bits) { return word << bits; }
};

template <class Order>
void copyBit(const Zor8u* pSrc, std::ptrdiff_t from, Zor8u* pDst, std::ptrdiff_t to)
{
    const Zor8u mask = Order::mask(to);
    const bool set = pSrc[from / 8] & Order::mask(from);
    pDst[to / 8] = static_cast<Zor8u>(set ? pDst[to / 8] | mask : pDst[to / 8] & ~mask);
}

// Whole words to a byte boundary of the destination; returns the number of bits copied.
template <class Order>
std::ptrdiff_t copyWords(const Zor8u* pSrc, std::ptrdiff_t from, Zor8u* pDst, std::ptrdiff_t len)
{
    const int shift = static_cast<int>(from % 8);
    const Zor8u* p = pSrc + from / 8;
    if (shift == 0) {
        std::memcpy(pDst, p, static_cast<std::size_t>(len / 8));
        return len / 8 * 8;
    }
    std::ptrdiff_t done = 0;
    for (; done + 64 <= len; done += 64, p += 8, pDst += 8) {
        // Nine bytes hold the 64 bits; two words that overlap read just these.
        const Zor64u word =
            Order::toFront(Order::word(p), shift) | Order::toBack(Order::word(p + 1), 8 - shift);
        const Zor64u bytes = Order::bytes(word);
        std::memcpy(pDst, &bytes, sizeof bytes);
    }
    return done;
}

template <class Order>
ZorStatus copyBits(const Zor8u* pSrc, int srcBitOffset, Zor8u* pDst, int dstBitOffset, int len)
{
    if (const ZorStatus bad =
            check(pointers(pSrc, pDst), length(len), require(srcBitOffset >= 0, zorStsBadSize),
                  require(dstBitOffset >= 0, zorStsBadSize)))
        return bad;
    std::ptrdiff_t from = srcBitOffset % 8;
    std::ptrdiff_t to = dstBitOffset % 8;
    const std::ptrdiff_t end = to + len;
    if (len > 48) {
        for (; to % 8 != 0; ++from, ++to) copyBit<Order>(pSrc, from, pDst, to);
        const std::ptrdiff_t done = copyWords<Order>(pSrc, from, pDst + to / 8, end - to);
        from += done;
        to += done;
    }
    for (; to < end; ++from, ++to) copyBit<Order>(pSrc, from, pDst, to);
    return zorStsOk;
}

} // namespace

ZORS_BIND(zorsCopy_1u, copyBits<MostSignificantFirst>)
ZORS_BIND(zorsCopyLE_1u, copyBits<MostSignificantFirst>)
ZORS_BIND(zorsCopyBE_1u, copyBits<LeastSignificantFirst>)

} // namespace zors::ZORS_VARIANT
