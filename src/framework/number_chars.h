// Floating-point numbers and plain ASCII characters: the one place where the standard library, or
// where it lacks these conversions another, turns one into the other. As std::to_chars and
// std::from_chars; `last - first` must hold the text, which has no terminating zero.
#pragma once

#include <charconv>

namespace orv3 {

// The shortest text that reads back as the same double, with an exponent where that is shorter.
char* WriteShortest(char* first, char* last, double value);
// "%.*g", "%.*e" and "%.*f" of C.
char* WriteGeneral(char* first, char* last, double value, int digits);
char* WriteScientific(char* first, char* last, double value, int decimals);
char* WriteFixed(char* first, char* last, double value, int decimals);

// The number that the text begins with; result_out_of_range, with `value` as it was, for one that
// is too large or too small for a double.
std::from_chars_result ReadDouble(const char* first, const char* last, double& value) noexcept;

}  // namespace orv3
