// Floating-point numbers and plain ASCII characters: the one place where the standard library, or
// where it lacks these conversions another, turns one into the other. As std::to_chars and
// std::from_chars; `last - first` must hold the text, which has no terminating zero.
#pragma once

#include <charconv>

#include "framework/export.h"

namespace orv3 {

// The shortest text that reads back as the same double, with an exponent where that is shorter.
ORV3CAL_API char* WriteShortest(char* first, char* last, double value);
// "%.*g", "%.*e" and "%.*f" of C.
ORV3CAL_API char* WriteGeneral(char* first, char* last, double value, int digits);
ORV3CAL_API char* WriteScientific(char* first, char* last, double value, int decimals);
ORV3CAL_API char* WriteFixed(char* first, char* last, double value, int decimals);

// The number that the text begins with; result_out_of_range, with `value` as it was, for one that
// is too large or too small for a double.
ORV3CAL_API std::from_chars_result ReadDouble(const char* first, const char* last,
                                              double& value) noexcept;

}  // namespace orv3
