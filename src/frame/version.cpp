#include "bind.h"

namespace {

constexpr ZorLibraryVersion version = {
    8, 1, 1, 42291, {'r', '5', '\0', '\0'}, "zorSP SSE3 (r5)", "8.1.1 (r42291)", "Apr 10 2014",
};

const ZorLibraryVersion* getLibVersion()
{
    return &version;
}

} // namespace

ZORS_BIND(zorsGetLibVersion, getLibVersion)
