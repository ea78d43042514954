#include "dft_engine.h"

namespace zors::ZORS_VARIANT {

ZORS_DFT_ENGINE(, Zor64f)

} // namespace zors::ZORS_VARIANT
