// Throat, leg and length of fillet welds: GB 50017-2017, 11.2.2 to 11.2.6, 11.3.5 and 11.3.6; mm.
#pragma once

#include <vector>

#include "connections/gb2017/weld_case.h"

namespace orv3::gb2017 {

double Throat(const CFilletCase& input) noexcept;

// 11.2.6: 1.5 - lw / (120 hf) beyond 60 hf, at least 0.5.
double LapFactor(double lw, double hf) noexcept;

// Table 11.3.5: the least leg by the thicker part.
double LeastLeg(double t) noexcept;

// The greatest thickness for which a leg is enough; 0 for a leg below that of the thinnest parts,
// infinity from 8 mm on.
double ThickestPart(double hf) noexcept;

// 11.3.6: the greatest leg along the edge of a part, its thickness up to 6 mm, else 1 mm less.
double MostLapLeg(double t) noexcept;

void FilletDetails(const CFilletCase2017& input, std::vector<CDetail>& details);

}  // namespace orv3::gb2017
