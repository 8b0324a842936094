// The equation that GB 50017-2003 prints under the tables of single-stepped columns.
#pragma once

#include "framework/export.h"

namespace orv3 {

// The top of a stepped column: free, or sliding without rotation.
enum class CSteppedTop { Free, Sliding };

// Effective length factor of the lower part, the largest root of the equation under Table D-3
// (free) or D-4 (sliding). eta1 and k1: above 0, finite.
ORV3CAL_API double SingleSteppedMu(CSteppedTop top, double eta1, double k1) noexcept;

// Whether the tables hold figures on all sides of the two ratios: eta1 0.2 to 3.0, K1 0.06 to 0.8.
ORV3CAL_API bool IsWithinSingleStepped(double eta1, double k1) noexcept;

}  // namespace orv3
