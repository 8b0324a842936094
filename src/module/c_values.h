// Cases of the C interface: lists of values, lines "key=value".
#pragma once

#include <map>
#include <span>
#include <string>
#include <variant>
#include <vector>

#include "codes/edition.h"
#include "framework/number_text.h"
#include "module/c_support.h"
#include "reports/case_keys.h"

namespace orv3::c_interface {

using CValues = std::map<std::string, std::string, std::less<>>;

// A line without a value leaves its key out: an empty cell of a spreadsheet.
CValues ReadValues(const orv3_char* input);
// Several lists, with an empty line between each and the next; at least one.
std::vector<CValues> ReadValueLists(const orv3_char* input);

// The edition of a case: that of the call, else of its line "code", which goes, else the default.
CCodeEdition EditionOf(const std::string& code, CValues& values);

double NumberOf(const std::string& key, std::string_view text);
std::vector<double> NumbersOf(const std::string& key, std::string_view text);  // "70;90;70"
[[noreturn]] void RefuseValue(const std::string& key, const std::string& text,
                              std::span<const char* const> choices);

template <class CASE>
void SetValue(CASE& target, const CInputKey<CASE>& key, const std::string& text) {
  const bool bText =
      !key.m_choices.empty() || std::holds_alternative<std::string CASE::*>(key.m_field);
  bool bSet = false;
  if (bText) {
    bSet = SetInput(target, key, std::string_view(text));
  } else if (text.find(';') == std::string::npos) {
    bSet = SetInput(target, key, NumberOf(key.m_szKey, text));
  } else {
    const std::vector<double> numbers = NumbersOf(key.m_szKey, text);
    bSet = SetInput(target, key, std::span<const double>(numbers));
  }
  if (!bSet) RefuseValue(key.m_szKey, text, key.m_choices);
}

// Every value into the field of its key; one of no key is refused.
template <class CASE>
void SetValues(CASE& target, std::span<const CInputKey<CASE>> keys, const CValues& values) {
  for (const auto& [name, text] : values) {
    bool bKnown = false;
    std::string known;
    for (const auto& key : keys) {
      known += known.empty() ? "" : ", ";
      known += key.m_szKey;
      if (name != key.m_szKey) continue;
      SetValue(target, key, text);
      bKnown = true;
    }
    if (!bKnown) throw CFailure(name + ": is no key of this check; the keys are " + known);
  }
}

// A whole number, a double, or a verdict as 1 or 0.
inline CString ValueText(double value) { return FormatShortest(value); }
inline CString ValueText(int value) { return FormatInt(value); }

}  // namespace orv3::c_interface
