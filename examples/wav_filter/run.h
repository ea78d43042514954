// A file through the filter, block by block.
#pragma once

#include "filter.h"
#include "input.h"
#include "output.h"

namespace wav {

// All of `input`, filtered into `output`, which has the same encoding. Returns how many samples saturated.
Zor64s run(const Filter& filter, Input& input, Output& output);

} // namespace wav
