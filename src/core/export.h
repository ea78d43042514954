#pragma once

// Everything else in the core library is hidden.
#define ZORCORE_EXPORT extern "C" [[gnu::visibility("default")]]
