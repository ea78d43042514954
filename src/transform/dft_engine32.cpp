#include "dft_engine.h"

namespace zors::ZORS_VARIANT {

ZORS_DFT_ENGINE(, Zor32f)

} // namespace zors::ZORS_VARIANT
