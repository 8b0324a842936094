// The exact properties of a section as JSON and as a block of a table.
#pragma once

#include <string>
#include <vector>

#include "outlines/exact_properties.h"
#include "output.h"

namespace orv3::cli {

// All keys in their order, null where there is no answer.
CJson ExactJson(const CExactProperties& exact);

// The block with its heading, and below it what a reader should know of the figures.
void PrintExact(const CExactProperties& exact);

}  // namespace orv3::cli
