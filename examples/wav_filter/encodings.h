// How samples stand in a file, and what they are filtered as: floating-point numbers, full scale from -1 to 1.
#pragma once

#include <zors.h>

#include <sndfile.h>

namespace wav {

// Single precision has eight bits more than these samples, and filters twice as many at a time as double precision,
// which all others take.
struct Pcm16 {
    using Raw = Zor16s;
    using Sample = Zor32f;
    static constexpr int bits = 16;
    static constexpr bool saturates = true;
    static constexpr auto read = sf_readf_short;
    static constexpr auto write = sf_writef_short;

    static ZorStatus decode(const Raw* raw, Sample* samples, int len)
    {
        return zorsConvert_16s32f_Sfs(raw, samples, len, bits - 1);
    }
    static ZorStatus encode(const Sample* samples, Raw* raw, int len)
    {
        return zorsConvert_32f16s_Sfs(samples, raw, len, zorRndNear, 1 - bits);
    }
};

struct Pcm32 {
    using Raw = Zor32s;
    using Sample = Zor64f;
    static constexpr int bits = 32;
    static constexpr bool saturates = true;
    static constexpr auto read = sf_readf_int;
    static constexpr auto write = sf_writef_int;

    static ZorStatus decode(const Raw* raw, Sample* samples, int len)
    {
        return zorsConvert_32s64f_Sfs(raw, samples, len, bits - 1);
    }
    static ZorStatus encode(const Sample* samples, Raw* raw, int len)
    {
        return zorsConvert_64f32s_Sfs(samples, raw, len, zorRndNear, 1 - bits);
    }
};

// Read and written as the upper bits of 32.
struct Pcm24 : Pcm32 {
    static constexpr int bits = 24;

    // Rounded as 24 bits, and moved up with saturation.
    static ZorStatus encode(const Sample* samples, Raw* raw, int len)
    {
        const ZorStatus rounded = zorsConvert_64f32s_Sfs(samples, raw, len, zorRndNear, 1 - bits);
        return rounded < zorStsOk ? rounded : zorsMulC_32s_ISfs(1 << (32 - bits), raw, len, 0);
    }
};

struct Float {
    using Raw = Zor32f;
    using Sample = Zor64f;
    static constexpr int bits = 32;
    static constexpr bool saturates = false;
    static constexpr auto read = sf_readf_float;
    static constexpr auto write = sf_writef_float;
    static constexpr auto decode = zorsConvert_32f64f;
    static constexpr auto encode = zorsConvert_64f32f;
};

struct Double {
    using Raw = Zor64f;
    using Sample = Zor64f;
    static constexpr int bits = 64;
    static constexpr bool saturates = false;
    static constexpr auto read = sf_readf_double;
    static constexpr auto write = sf_writef_double;
    static constexpr auto decode = zorsCopy_64f;
    static constexpr auto encode = zorsCopy_64f;
};

} // namespace wav
