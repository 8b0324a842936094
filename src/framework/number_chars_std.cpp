// By the standard library.
#include "framework/number_chars.h"

namespace orv3 {

char* WriteShortest(char* first, char* last, double value) {
  return std::to_chars(first, last, value).ptr;
}

char* WriteGeneral(char* first, char* last, double value, int digits) {
  return std::to_chars(first, last, value, std::chars_format::general, digits).ptr;
}

char* WriteScientific(char* first, char* last, double value, int decimals) {
  return std::to_chars(first, last, value, std::chars_format::scientific, decimals).ptr;
}

char* WriteFixed(char* first, char* last, double value, int decimals) {
  return std::to_chars(first, last, value, std::chars_format::fixed, decimals).ptr;
}

std::from_chars_result ReadDouble(const char* first, const char* last, double& value) noexcept {
  return std::from_chars(first, last, value);
}

}  // namespace orv3
