// Numbers as people write them, in reports, tables and messages; UTF-8.
#pragma once

#include <string>

#include "framework/export.h"

namespace orv3 {

// A number as people write it: four significant digits at least, no exponent for everyday sizes.
ORV3CAL_API std::string PlainNumber(double value);

// A number as it stands in a formula: with eight digits at most, so that the line is true to the
// last digit of its result.
std::string SubstitutedNumber(double value);

// A utilisation in percent, to a tenth; above 1 with the digits that show it above 100.
ORV3CAL_API std::string PercentNumber(double utilisation);

// An effect and its limit side by side, with the digits that tell them apart when it is above.
struct CComparedText {
  std::string m_strEffect;
  std::string m_strLimit;
};
CComparedText Compared(double effect, double limit);
// Two numbers with the digits that tell them apart.
CComparedText Apart(double one, double other);

}  // namespace orv3
