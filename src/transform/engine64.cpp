#include "engine.h"

namespace zors::ZORS_VARIANT {

ZORS_ENGINE(, Zor64f)

} // namespace zors::ZORS_VARIANT
