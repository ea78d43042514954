/**
 * @file
 * Element types, status codes and the declaration macro that every public function goes through.
 *
 * A vector argument is a pointer to a contiguous array of one of these types; lengths count elements, never
 * bytes. The code after `Zor` is the one that function names carry: `zorsAdd_16s_Sfs` works on `Zor16s`.
 */
#ifndef ZORTYPES_H
#define ZORTYPES_H

#include <stdint.h>

typedef uint8_t Zor8u; /**< unsigned 8-bit integer; also the bytes of packed 24-bit and bit-string formats */
typedef int8_t Zor8s;  /**< signed 8-bit integer */
typedef uint16_t Zor16u; /**< unsigned 16-bit integer */
typedef int16_t Zor16s;  /**< signed 16-bit integer */
typedef uint32_t Zor32u; /**< unsigned 32-bit integer */
typedef int32_t Zor32s;  /**< signed 32-bit integer */
typedef uint64_t Zor64u; /**< unsigned 64-bit integer */
typedef int64_t Zor64s;  /**< signed 64-bit integer */
typedef float Zor32f;    /**< IEEE 754 binary32 */
typedef double Zor64f;   /**< IEEE 754 binary64 */
typedef uint16_t Zor16f; /**< the bits of an IEEE 754 binary16; stored and converted, never computed in */

/** Complex pair of signed 8-bit integers. */
typedef struct {
    Zor8s re; /**< real part */
    Zor8s im; /**< imaginary part */
} Zor8sc;

/** Complex pair of signed 16-bit integers. */
typedef struct {
    Zor16s re; /**< real part */
    Zor16s im; /**< imaginary part */
} Zor16sc;

/** Complex pair of signed 32-bit integers. */
typedef struct {
    Zor32s re; /**< real part */
    Zor32s im; /**< imaginary part */
} Zor32sc;

/** Complex pair of signed 64-bit integers. */
typedef struct {
    Zor64s re; /**< real part */
    Zor64s im; /**< imaginary part */
} Zor64sc;

/** Complex pair of single-precision floats. */
typedef struct {
    Zor32f re; /**< real part */
    Zor32f im; /**< imaginary part */
} Zor32fc;

/** Complex pair of double-precision floats. */
typedef struct {
    Zor64f re; /**< real part */
    Zor64f im; /**< imaginary part */
} Zor64fc;

/**
 * What every operation returns: 0 is success, a negative value an error (nothing was written), a positive
 * value a warning (everything was written; some elements met a special case and got a defined substitute).
 */
typedef Zor32s ZorStatus;

/** The values of @ref ZorStatus. */
enum {
    zorStsOk = 0,                     /**< success */
    zorStsSqrtNegArg = 3,             /**< warning: negative input to an integer square root */
    zorStsDivByZero = 6,              /**< warning: an element divisor was zero */
    zorStsLnZeroArg = 7,              /**< warning: logarithm of zero */
    zorStsLnNegArg = 8,               /**< warning: logarithm of a negative value */
    zorStsBadArgument = -5,           /**< an argument is outside its range */
    zorStsBadSize = -6,               /**< a length or size is below 1 or above a limit */
    zorStsBadZeroCrossingType = -7,   /**< zero-crossing measure not recognised */
    zorStsNullPointer = -8,           /**< a required pointer is null */
    zorStsNoMemory = -9,              /**< an internal allocation failed */
    zorStsDivByZeroError = -10,       /**< a divisor constant is zero */
    zorStsBadCauchyParameter = -11,   /**< Cauchy parameter not above 0 */
    zorStsBadDataType = -12,          /**< data-type selector not recognised */
    zorStsBadTapsScale = -13,         /**< scale factor of integer IIR taps is negative */
    zorStsBadFftOrder = -15,          /**< FFT order out of range */
    zorStsBadFftFlag = -16,           /**< FFT normalisation flag not recognised */
    zorStsWrongContext = -17,         /**< the record is not of the kind that the function expects */
    zorStsBadThresholdOrder = -18,    /**< upper threshold below lower threshold */
    zorStsNegativeThreshold = -19,    /**< negative level where a magnitude is compared */
    zorStsBadDelayIndex = -24,        /**< delay-line index outside [0, taps length) */
    zorStsBadIirOrder = -25,          /**< IIR order or number of biquads below 1 */
    zorStsBadFirLength = -26,         /**< FIR taps length below 1 */
    zorStsBadRelFreq = -27,           /**< relative frequency outside [0, 1) */
    zorStsBadMultiRatePhase = -28,    /**< up or down phase outside [0, factor) */
    zorStsBadMultiRateFactor = -29,   /**< up or down factor below 1 */
    zorStsBadSamplePhase = -30,       /**< phase outside [0, factor) */
    zorStsBadSampleFactor = -31,      /**< factor below 1 */
    zorStsBadShift = -32,             /**< shift count negative */
    zorStsBadWindowLength = -33,      /**< window length below 1 */
    zorStsBadWtOffset = -35,          /**< wavelet filter offset below -1 */
    zorStsBadJaehneMagnitude = -38,   /**< magnitude negative */
    zorStsBadKaiserAlpha = -39,       /**< Kaiser alpha too large for the window's length */
    zorStsBadTrianglePhase = -40,     /**< phase outside [-pi, pi) */
    zorStsBadTriangleAsym = -41,      /**< asymmetry out of range */
    zorStsBadTriangleFreq = -42,      /**< frequency outside [0, 0.5) */
    zorStsBadTriangleMagnitude = -43, /**< magnitude not above 0 */
    zorStsBadToneFreq = -44,          /**< frequency of a tone out of range */
    zorStsBadTonePhase = -45,         /**< phase of a tone outside [0, 2 pi) */
    zorStsBadToneMagnitude = -46,     /**< magnitude of a tone not above 0 */
    zorStsBadChannelCount = -47,      /**< channel count below 1 (integer multi-channel filters) */
    zorStsBadNumChannels = -53,       /**< channel count below 1 (floating multi-channel filters) */
    zorStsBadSparsePositions = -194,  /**< sparse tap positions negative or not strictly increasing */
    zorStsBadIirGenOrder = -206,      /**< order of an IIR design outside [1, 12] */
    zorStsBadIirGenFreq = -208,       /**< cut-off of an IIR design outside (0, 0.5) */
    zorStsBadIirGenTolerance = -209,  /**< ripple of an IIR design outside (0, 29] */
    zorStsBadRoundMode = -213,        /**< rounding mode not supported by this function */
    zorStsBadAlgType = -228           /**< algorithm or normalisation selector not recognised */
};

/** How a value between two integers is rounded. */
typedef Zor32s ZorRoundMode;

/** The values of @ref ZorRoundMode. */
enum {
    zorRndZero = 0,     /**< toward zero */
    zorRndNear = 1,     /**< to nearest, ties to even */
    zorRndFinancial = 2 /**< to nearest, ties away from zero */
};

/** A caller's preference between speed and precision, for the functions that take one. */
typedef Zor32s ZorHintAlgorithm;

/** The values of @ref ZorHintAlgorithm. */
enum {
    ZOR_ALG_ANY = 0,      /**< the function's own choice */
    ZOR_ALG_SPEED = 1,    /**< faster */
    ZOR_ALG_PRECISION = 2 /**< more precise */
};

/** A window, where a function takes one by number. */
typedef Zor32s ZorWinType;

/** The values of @ref ZorWinType; every other one stands for no window, too. */
enum {
    zorWinBartlett = 0, /**< zorsWinBartlett */
    zorWinBlackman = 1, /**< zorsWinBlackmanOpt */
    zorWinHamming = 2,  /**< zorsWinHamming */
    zorWinHann = 3,     /**< zorsWinHann */
    zorWinRect = 4      /**< no window */
};

/** The approximation that a recursive filter is designed by. */
typedef Zor32s ZorIirFilterType;

/** The values of @ref ZorIirFilterType. */
enum {
    zorIirButterworth = 0, /**< Butterworth: maximally flat */
    zorIirChebyshev1 = 1   /**< Chebyshev, type I: equal ripple in the pass-band */
};

/** How the fast Fourier transforms scale, N being their length: the flag of a record. */
enum {
    ZOR_FFT_SCALE_FWD = 1,  /**< the forward transform by 1/N */
    ZOR_FFT_SCALE_INV = 2,  /**< the inverse transform by 1/N */
    ZOR_FFT_SCALE_SQRT = 4, /**< both by 1/sqrt(N) */
    ZOR_FFT_SCALE_NONE = 8  /**< none */
};

/** How a convolution is computed. */
typedef Zor32s ZorConvAlgType;

/** The values of @ref ZorConvAlgType. */
enum {
    ZOR_CONV_ALG_AUTO = 0,   /**< as the lengths ask for */
    ZOR_CONV_ALG_DIRECT = 1, /**< by sums of products */
    ZOR_CONV_ALG_FFT = 2     /**< by fast Fourier transforms */
};

/** An element type, where a function takes one by number. */
typedef Zor32s ZorDataType;

/** The values of @ref ZorDataType. */
enum {
    zorDataType32f = 13, /**< Zor32f */
    zorDataType64f = 19  /**< Zor64f */
};

/** @name Records of fast Fourier transforms
 * Opaque: made by zorsFFTInit or zorsFFTInitAlloc, one type for each kind of data.
 * @{
 */
typedef struct ZorsFFTSpec_C_16sc ZorsFFTSpec_C_16sc;     /**< complex `16sc` */
typedef struct ZorsFFTSpec_C_16s ZorsFFTSpec_C_16s;       /**< complex, parts apart, `16s` */
typedef struct ZorsFFTSpec_R_16s ZorsFFTSpec_R_16s;       /**< real `16s` */
typedef struct ZorsFFTSpec_C_32fc ZorsFFTSpec_C_32fc;     /**< complex `32fc` */
typedef struct ZorsFFTSpec_C_32f ZorsFFTSpec_C_32f;       /**< complex, parts apart, `32f` */
typedef struct ZorsFFTSpec_R_32f ZorsFFTSpec_R_32f;       /**< real `32f` */
typedef struct ZorsFFTSpec_C_64fc ZorsFFTSpec_C_64fc;     /**< complex `64fc` */
typedef struct ZorsFFTSpec_C_64f ZorsFFTSpec_C_64f;       /**< complex, parts apart, `64f` */
typedef struct ZorsFFTSpec_R_64f ZorsFFTSpec_R_64f;       /**< real `64f` */
typedef struct ZorsFFTSpec_C_32sc ZorsFFTSpec_C_32sc;     /**< complex `32sc` */
typedef struct ZorsFFTSpec_C_32s ZorsFFTSpec_C_32s;       /**< complex, parts apart, `32s` */
typedef struct ZorsFFTSpec_R_32s ZorsFFTSpec_R_32s;       /**< real `32s` */
typedef struct ZorsFFTSpec_R_16s32s ZorsFFTSpec_R_16s32s; /**< real `16s`, spectrum `32s` */
/** @} */

/** @name Records of discrete Fourier transforms of any length
 * Opaque: made by zorsDFTInit, zorsDFTInitAlloc or zorsDFTOutOrdInitAlloc, one type for each kind of data.
 * @{
 */
typedef struct ZorsDFTSpec_C_16sc ZorsDFTSpec_C_16sc;             /**< complex `16sc` */
typedef struct ZorsDFTSpec_C_16s ZorsDFTSpec_C_16s;               /**< complex, parts apart, `16s` */
typedef struct ZorsDFTSpec_R_16s ZorsDFTSpec_R_16s;               /**< real `16s` */
typedef struct ZorsDFTSpec_C_32fc ZorsDFTSpec_C_32fc;             /**< complex `32fc` */
typedef struct ZorsDFTSpec_C_32f ZorsDFTSpec_C_32f;               /**< complex, parts apart, `32f` */
typedef struct ZorsDFTSpec_R_32f ZorsDFTSpec_R_32f;               /**< real `32f` */
typedef struct ZorsDFTSpec_C_64fc ZorsDFTSpec_C_64fc;             /**< complex `64fc` */
typedef struct ZorsDFTSpec_C_64f ZorsDFTSpec_C_64f;               /**< complex, parts apart, `64f` */
typedef struct ZorsDFTSpec_R_64f ZorsDFTSpec_R_64f;               /**< real `64f` */
typedef struct ZorsDFTOutOrdSpec_C_32fc ZorsDFTOutOrdSpec_C_32fc; /**< complex `32fc`, spectra out of order */
typedef struct ZorsDFTOutOrdSpec_C_64fc ZorsDFTOutOrdSpec_C_64fc; /**< complex `64fc`, spectra out of order */
/** @} */

/** @name Records of the Hilbert transform
 * Opaque: made by zorsHilbertInitAlloc, one type for each kind of data.
 * @{
 */
typedef struct ZorsHilbertSpec_32f32fc ZorsHilbertSpec_32f32fc; /**< `32f` to `32fc` */
typedef struct ZorsHilbertSpec_16s32fc ZorsHilbertSpec_16s32fc; /**< `16s` to `32fc` */
typedef struct ZorsHilbertSpec_16s16sc ZorsHilbertSpec_16s16sc; /**< `16s` to `16sc` */
/** @} */

/** @name Records of finite impulse response filters
 * Opaque, one type for each pair of taps and data: of single-rate, multi-rate and stream filters alike.
 * @{
 */
typedef struct ZorsFIRState_32f ZorsFIRState_32f;           /**< `32f` */
typedef struct ZorsFIRState_32fc ZorsFIRState_32fc;         /**< `32fc` */
typedef struct ZorsFIRState32f_16s ZorsFIRState32f_16s;     /**< `32f` taps, `16s` data */
typedef struct ZorsFIRState32fc_16sc ZorsFIRState32fc_16sc; /**< `32fc` taps, `16sc` data */
typedef struct ZorsFIRState32s_16s ZorsFIRState32s_16s;     /**< `32s` taps, `16s` data */
typedef struct ZorsFIRState32sc_16sc ZorsFIRState32sc_16sc; /**< `32sc` taps, `16sc` data */
typedef struct ZorsFIRState_64f ZorsFIRState_64f;           /**< `64f` */
typedef struct ZorsFIRState_64fc ZorsFIRState_64fc;         /**< `64fc` */
typedef struct ZorsFIRState64f_32f ZorsFIRState64f_32f;     /**< `64f` taps, `32f` data */
typedef struct ZorsFIRState64fc_32fc ZorsFIRState64fc_32fc; /**< `64fc` taps, `32fc` data */
typedef struct ZorsFIRState64f_32s ZorsFIRState64f_32s;     /**< `64f` taps, `32s` data */
typedef struct ZorsFIRState64fc_32sc ZorsFIRState64fc_32sc; /**< `64fc` taps, `32sc` data */
typedef struct ZorsFIRState64f_16s ZorsFIRState64f_16s;     /**< `64f` taps, `16s` data */
typedef struct ZorsFIRState64fc_16sc ZorsFIRState64fc_16sc; /**< `64fc` taps, `16sc` data */
typedef struct ZorsFIRState_16s ZorsFIRState_16s;           /**< `16s` */
/** @} */

/** @name Records of infinite impulse response filters
 * Opaque, one type for each pair of taps and data: of filters of any order and of cascades of sections alike.
 * @{
 */
typedef struct ZorsIIRState_32f ZorsIIRState_32f;           /**< `32f` */
typedef struct ZorsIIRState_32fc ZorsIIRState_32fc;         /**< `32fc` */
typedef struct ZorsIIRState32f_16s ZorsIIRState32f_16s;     /**< `32f` taps, `16s` data */
typedef struct ZorsIIRState32fc_16sc ZorsIIRState32fc_16sc; /**< `32fc` taps, `16sc` data */
typedef struct ZorsIIRState32s_16s ZorsIIRState32s_16s;     /**< `32s` taps, `16s` data */
typedef struct ZorsIIRState32sc_16sc ZorsIIRState32sc_16sc; /**< `32sc` taps, `16sc` data */
typedef struct ZorsIIRState_64f ZorsIIRState_64f;           /**< `64f` */
typedef struct ZorsIIRState_64fc ZorsIIRState_64fc;         /**< `64fc` */
typedef struct ZorsIIRState64f_32f ZorsIIRState64f_32f;     /**< `64f` taps, `32f` data */
typedef struct ZorsIIRState64fc_32fc ZorsIIRState64fc_32fc; /**< `64fc` taps, `32fc` data */
typedef struct ZorsIIRState64f_32s ZorsIIRState64f_32s;     /**< `64f` taps, `32s` data */
typedef struct ZorsIIRState64fc_32sc ZorsIIRState64fc_32sc; /**< `64fc` taps, `32sc` data */
typedef struct ZorsIIRState64f_16s ZorsIIRState64f_16s;     /**< `64f` taps, `16s` data */
typedef struct ZorsIIRState64fc_16sc ZorsIIRState64fc_16sc; /**< `64fc` taps, `16sc` data */
/** @} */

/** The version record that zorsGetLibVersion() returns. */
typedef struct {
    Zor32s versionMajor;     /**< 8 */
    Zor32s versionMinor;     /**< 1 */
    Zor32s versionUpdate;    /**< 1 */
    Zor32s buildNumber;      /**< number of the build within the version */
    char cpuTag[4];          /**< tag of the processor variant that the library is named after */
    const char* libraryName; /**< name for display */
    const char* versionText; /**< version for display */
    const char* buildDate;   /**< date of the build */
} ZorLibraryVersion;

/** @name Records of random generators
 * @{
 */
typedef struct ZorRandUniformState_8u ZorRandUniformState_8u;   /**< uniform `8u` */
typedef struct ZorRandUniformState_16s ZorRandUniformState_16s; /**< uniform `16s` */
typedef struct ZorRandUniformState_32f ZorRandUniformState_32f; /**< uniform `32f` */
typedef struct ZorRandGaussState_8u ZorRandGaussState_8u;       /**< normal `8u` */
typedef struct ZorRandGaussState_16s ZorRandGaussState_16s;     /**< normal `16s` */
typedef struct ZorRandGaussState_32f ZorRandGaussState_32f;     /**< normal `32f` */
/** @} */

/**
 * Declares one public function. The library and its tests give the macro other meanings and include the
 * headers again: entry stubs, slots and the table of all functions are made from these lines alone.
 */
#ifndef ZORSAPI
#ifdef __cplusplus
#define ZORSAPI(type, name, args) extern "C" type name args;
#else
#define ZORSAPI(type, name, args) type name args;
#endif
#endif

#endif
