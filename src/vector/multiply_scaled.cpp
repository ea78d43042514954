#include "frame/bind.h"
#include "shapes.h"

namespace zors::ZORS_VARIANT {

ZORS_BIND(zorsMul_8u_Sfs, (twoSources<Multiply, Zor8u, int>))
ZORS_BIND(zorsMul_8u_ISfs, (twoSourcesInPlace<Multiply, Zor8u, int>))
ZORS_BIND(zorsMul_16u_Sfs, (twoSources<Multiply, Zor16u, int>))
ZORS_BIND(zorsMul_16u_ISfs, (twoSourcesInPlace<Multiply, Zor16u, int>))
ZORS_BIND(zorsMul_16s_Sfs, (twoSources<Multiply, Zor16s, int>))
ZORS_BIND(zorsMul_16s_ISfs, (twoSourcesInPlace<Multiply, Zor16s, int>))
ZORS_BIND(zorsMul_32s_Sfs, (twoSources<Multiply, Zor32s, int>))
ZORS_BIND(zorsMul_32s_ISfs, (twoSourcesInPlace<Multiply, Zor32s, int>))
ZORS_BIND(zorsMul_16sc_Sfs, (twoSources<Multiply, Zor16sc, int>))
ZORS_BIND(zorsMul_16sc_ISfs, (twoSourcesInPlace<Multiply, Zor16sc, int>))
ZORS_BIND(zorsMul_32sc_Sfs, (twoSources<Multiply, Zor32sc, int>))
ZORS_BIND(zorsMul_32sc_ISfs, (twoSourcesInPlace<Multiply, Zor32sc, int>))

ZORS_BIND(zorsMulC_8u_Sfs, (constantWithSource<Multiply, Zor8u, int>))
ZORS_BIND(zorsMulC_8u_ISfs, (constantWithSourceInPlace<Multiply, Zor8u, int>))
ZORS_BIND(zorsMulC_16u_Sfs, (constantWithSource<Multiply, Zor16u, int>))
ZORS_BIND(zorsMulC_16u_ISfs, (constantWithSourceInPlace<Multiply, Zor16u, int>))
ZORS_BIND(zorsMulC_16s_Sfs, (constantWithSource<Multiply, Zor16s, int>))
ZORS_BIND(zorsMulC_16s_ISfs, (constantWithSourceInPlace<Multiply, Zor16s, int>))
ZORS_BIND(zorsMulC_32s_Sfs, (constantWithSource<Multiply, Zor32s, int>))
ZORS_BIND(zorsMulC_32s_ISfs, (constantWithSourceInPlace<Multiply, Zor32s, int>))
ZORS_BIND(zorsMulC_16sc_Sfs, (constantWithSource<Multiply, Zor16sc, int>))
ZORS_BIND(zorsMulC_16sc_ISfs, (constantWithSourceInPlace<Multiply, Zor16sc, int>))
ZORS_BIND(zorsMulC_32sc_Sfs, (constantWithSource<Multiply, Zor32sc, int>))
ZORS_BIND(zorsMulC_32sc_ISfs, (constantWithSourceInPlace<Multiply, Zor32sc, int>))

ZORS_BIND(zorsMul_Low_32s_Sfs, (twoSources<Multiply, Zor32s, int>))

} // namespace zors::ZORS_VARIANT
