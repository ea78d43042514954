// Linear convolution: which way it goes, and the memory that it takes.
#include "convolution_transform.h"

#include "frame/bind.h"
#include "simd/check.h"
#include "transform/work.h"

namespace zors::ZORS_VARIANT {
namespace {

// Of the selector only the lowest byte counts.
int methodOf(ZorConvAlgType algType)
{
    return algType & 0xff;
}

ZorStatus method(ZorConvAlgType algType)
{
    return require(methodOf(algType) <= ZOR_CONV_ALG_FFT, zorStsBadAlgType);
}

// From so many outputs and elements of the shorter vector on, vectors are transformed.
bool isDirect(ZorConvAlgType algType, std::int64_t shorter, std::int64_t longer)
{
    constexpr std::int64_t transformedOutputs = 512, transformedKernel = 64;
    if (methodOf(algType) != ZOR_CONV_ALG_AUTO) return methodOf(algType) == ZOR_CONV_ALG_DIRECT;
    return shorter + longer - 1 < transformedOutputs || shorter < transformedKernel;
}

// What is refused, and the most memory that is taken, follow from the type Ruled of the public sizes. Without a buffer
// the memory is the call's own.
template <class E, class Ruled, class D, class... Scale>
ZorStatus transformed(const Operands<D>& of, D* pDst, Zor8u* pBuffer, Scale... scaleFactor)
{
    std::int64_t ruled = 0;
    if (const ZorStatus bad = ruledBytes<Ruled>(of.kernelLen, of.signalLen, ruled)) return bad;
    const bool fits = ruled <= std::numeric_limits<int>::max();
    if (pBuffer && !fits) return zorStsBadSize;
    const bool limited = std::is_same_v<E, Ruled> && fits;
    const std::int64_t most = limited ? ruled - lineBytes : std::numeric_limits<int>::max();
    BlockPlan<E> plan;
    if (!choosePlan(of.kernelLen, of.signalLen, most, plan)) return zorStsNoMemory;
    const Work work(static_cast<int>(plan.memory()), pBuffer);
    if (work.missing()) return zorStsNoMemory;
    return convolveByTransforms(plan, of, pDst, work.memory(), scaleFactor...);
}

template <class E, class Ruled, class D, class... Scale>
ZorStatus convolved(const Operands<D>& of, D* pDst, ZorConvAlgType algType, Zor8u* pBuffer,
                    Scale... scaleFactor)
{
    if (!isDirect(algType, of.kernelLen, of.signalLen))
        return transformed<E, Ruled>(of, pDst, pBuffer, scaleFactor...);
    convolveDirectly(of, pDst, scaleFactor...);
    return zorStsOk;
}

template <class T>
ZorStatus conv(const T* pSrc1, int src1Len, const T* pSrc2, int src2Len, T* pDst)
{
    if (const ZorStatus bad = check(pointers(pSrc1, pSrc2, pDst), length(src1Len), length(src2Len)))
        return bad;
    return convolved<T, T>(Operands(pSrc1, src1Len, pSrc2, src2Len), pDst, ZOR_CONV_ALG_AUTO, nullptr);
}

ZorStatus convScaled(const Zor16s* pSrc1, int src1Len, const Zor16s* pSrc2, int src2Len, Zor16s* pDst,
                     int scaleFactor)
{
    if (const ZorStatus bad = check(pointers(pSrc1, pSrc2, pDst), length(src1Len), length(src2Len)))
        return bad;
    return convolved<Zor64f, Zor32f>(Operands(pSrc1, src1Len, pSrc2, src2Len), pDst, ZOR_CONV_ALG_AUTO,
                                     nullptr, scaleFactor);
}

template <class T>
ZorStatus convolve(const T* pSrc1, int src1Len, const T* pSrc2, int src2Len, T* pDst, ZorConvAlgType algType,
                   Zor8u* pBuffer)
{
    if (const ZorStatus bad =
            check(pointers(pSrc1, pSrc2, pDst, pBuffer), length(src1Len), length(src2Len), method(algType)))
        return bad;
    return convolved<T, T>(Operands(pSrc1, src1Len, pSrc2, src2Len), pDst, algType, pBuffer);
}

ZorStatus getBufferSize(int src1Len, int src2Len, ZorDataType dataType, ZorConvAlgType algType,
                        int* pBufferSize)
{
    if (const ZorStatus bad = check(pointers(pBufferSize), length(src1Len), length(src2Len), method(algType)))
        return bad;
    *pBufferSize = 0;
    if (dataType != zorDataType32f && dataType != zorDataType64f) return zorStsBadDataType;
    const int shorter = std::min(src1Len, src2Len), longer = std::max(src1Len, src2Len);
    std::int64_t size = lineBytes;
    if (!isDirect(algType, shorter, longer)) {
        const auto ruled = dataType == zorDataType32f ? ruledBytes<Zor32f> : ruledBytes<Zor64f>;
        if (const ZorStatus bad = ruled(shorter, longer, size)) return bad;
    }
    if (size > std::numeric_limits<int>::max()) return zorStsBadSize;
    *pBufferSize = static_cast<int>(size);
    return zorStsOk;
}

} // namespace

ZORS_BIND(zorsConv_32f, conv<Zor32f>)
ZORS_BIND(zorsConv_64f, conv<Zor64f>)
ZORS_BIND(zorsConv_16s_Sfs, convScaled)
ZORS_BIND(zorsConvolve_32f, convolve<Zor32f>)
ZORS_BIND(zorsConvolve_64f, convolve<Zor64f>)
ZORS_BIND(zorsConvolveGetBufferSize, getBufferSize)

} // namespace zors::ZORS_VARIANT
