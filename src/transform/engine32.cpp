#include "engine.h"

namespace zors::ZORS_VARIANT {

ZORS_ENGINE(, Zor32f)

} // namespace zors::ZORS_VARIANT
