/**
 * @file
 * The version of the library.
 */
#include <zortypes.h>

/**
 * The version record: static, read-only and the same pointer on every call.
 * @return the record; never null
 */
ZORSAPI(const ZorLibraryVersion*, zorsGetLibVersion, (void))
