#include "frame/bind.h"
#include "vector/lane.h"
#include "vector/quotient.h"

namespace zors::ZORS_VARIANT {
namespace {

// The sums of N products each, for any wide type of real numbers; a second vector of Each parts a point. It is written
// out twice, so that every sum runs over neighbours.
template <class Wide, int N, int Each, class T>
void cyclicSums(const T* a, const T* b, Wide* sums)
{
    Wide twice[2 * N * Each];
    for (int i = 0; i < N * Each; ++i) twice[i] = twice[i + N * Each] = b[i];
    for (int i = 0; i < N * Each; ++i) sums[i] = Wide{a[0]} * twice[N * Each + i];
    for (int m = 1; m < N; ++m)
        for (int i = 0; i < N * Each; ++i) sums[i] += Wide{a[m]} * twice[(N - m) * Each + i];
}

ZorStatus cyclic4x4(const Zor32f* pSrc1, const Zor32fc* pSrc2, Zor32fc* pDst)
{
    Zor32f sums[8];
    cyclicSums<Zor32f, 4, 2>(pSrc1, asLanes(pSrc2), sums);
    for (int n = 0; n < 4; ++n) pDst[n] = {sums[2 * n], sums[2 * n + 1]};
    return zorStsOk;
}

ZorStatus cyclic8x8(const Zor32f* pSrc1, const Zor32f* pSrc2, Zor32f* pDst)
{
    Zor32f sums[8];
    cyclicSums<Zor32f, 8, 1>(pSrc1, pSrc2, sums);
    std::copy_n(sums, 8, pDst);
    return zorStsOk;
}

ZorStatus cyclic8x8Scaled(const Zor16s* pSrc1, const Zor16s* pSrc2, Zor16s* pDst, int scaleFactor)
{
    Zor64s sums[8];
    cyclicSums<Zor64s, 8, 1>(pSrc1, pSrc2, sums);
    for (int n = 0; n < 8; ++n) pDst[n] = scaledSum<Zor16s>(sums[n], scaleFactor);
    return zorStsOk;
}

} // namespace

ZORS_BIND(zorsConvCyclic4x4_32f32fc, cyclic4x4)
ZORS_BIND(zorsConvCyclic8x8_32f, cyclic8x8)
ZORS_BIND(zorsConvCyclic8x8_16s_Sfs, cyclic8x8Scaled)

} // namespace zors::ZORS_VARIANT
