// Numbers as people write them, in reports, tables and messages; UTF-8.
#pragma once

#include <string>

namespace orv3 {

// A number as people write it: four significant digits at least, no exponent for everyday sizes.
std::string PlainNumber(double value);

// A utilisation in percent, to a tenth; above 1 with the digits that show it above 100.
std::string PercentNumber(double utilisation);

// An effect and its limit side by side, with the digits that tell them apart when it is above.
struct CComparedText {
  std::string m_strEffect;
  std::string m_strLimit;
};
CComparedText Compared(double effect, double limit);

}  // namespace orv3
