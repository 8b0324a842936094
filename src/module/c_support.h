// What the functions of the C interface share: its texts, its failures, and the frame around each
// function that lets nothing be thrown.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "framework/cstring.h"
#include "module/orv3cal_c.h"
#include "outlines/exact_properties.h"

namespace orv3::c_interface {

// A refusal: the text of orv3_last_error, UTF-8.
class CFailure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Keeps the reason of the exception at hand; returns -1.
int KeepFailure() noexcept;

template <class FUNCTION>
int Guarded(FUNCTION&& function) noexcept {
  try {
    return std::forward<FUNCTION>(function)();
  } catch (...) {
    return KeepFailure();
  }
}

// An argument's text; CFailure, which names the argument, for a null pointer.
CString TextOf(const orv3_char* text, const char* argument);
std::string Utf8Of(const orv3_char* text, const char* argument);

// Writes as much of `text` as fits, ended by a zero, and returns its length in UTF-16 units. A cut
// leaves no half character.
int GiveText(const CString& text, orv3_char* out, int size);

// Writes as many values as there is room for; returns their number. CFailure for a null pointer.
int GiveValues(const std::vector<double>& values, double* out, int room);
int GiveValue(double value, double* out);  // returns 0

// The figures of one section in the order of ORV3_EXACT_A and on; CFailure when there are none.
int GiveExact(const CExactProperties& exact, double* out, int room);

// The texts one a line.
CString JoinLines(const std::vector<CString>& lines);

// The position of `text` among the words; CFailure, which names the argument and the words, when it
// is none of them.
int WordAmong(const orv3_char* text, const char* argument, const char* const* words,
              std::size_t count);
template <std::size_t COUNT>
int WordAmong(const orv3_char* text, const char* argument, const char* const (&words)[COUNT]) {
  return WordAmong(text, argument, words, COUNT);
}

}  // namespace orv3::c_interface
