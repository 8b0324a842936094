// The keys of check cases and their results: one table per check ties each key to its field, its
// unit and its name, so that files, tables and reports cannot drift apart.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "framework/language.h"

namespace orv3 {

// Spacings between neighbouring columns or rows, mm: one for all, or each by itself.
struct CSpacing {
  double m_dUniform = 0;  // used when m_arrEach is empty
  std::vector<double> m_arrEach;
};

// What stands at a key: a number, a text, or several numbers.
using CKeyValue = std::variant<double, std::string_view, std::span<const double>>;

template <class CASE>
struct CInputKey {
  const char* m_szKey;
  std::variant<int CASE::*, double CASE::*, CSpacing CASE::*, std::string CASE::*,
               std::vector<double> CASE::*>
      m_field;
  const char* m_szUnit;
  CTextLiteral m_name;
  // Texts that stand for 0, 1, 2, ... in an int field; empty where the field takes the number.
  std::span<const char* const> m_choices = {};
};

template <class RESULTS>
struct CResultKey {
  const char* m_szKey;
  std::variant<int RESULTS::*, double RESULTS::*, bool RESULTS::*> m_field;
  const char* m_szUnit;
  CTextLiteral m_name;
  unsigned m_nKinds = ~0U;  // bit k: the result belongs to kind k of the check
};

// Why a case is refused: the key, what was wrong and what would be right.
struct CCaseFault {
  std::string m_strKey;
  CText m_what;
  CText m_right;
  // "key: what was wrong; what would be right"
  CText Text() const {
    return {m_strKey + "：" + m_what.m_strChinese + "；" + m_right.m_strChinese,
            m_strKey + ": " + m_what.m_strEnglish + "; " + m_right.m_strEnglish};
  }
  std::string Line(CLanguage language) const { return Text().In(language); }
};

// What to look at in a result that stands.
struct CCaseWarning {
  std::string m_strKey;
  CText m_text;
  // "key: text"
  std::string Line(CLanguage language) const { return m_strKey + ": " + m_text.In(language); }
};

// Writes `value` into the key's field; false when it is of another kind or no choice of the key.
template <class CASE>
bool SetInput(CASE& target, const CInputKey<CASE>& key, const CKeyValue& value);

namespace detail {

inline int ChoiceIndex(std::span<const char* const> choices, std::string_view text) noexcept {
  for (std::size_t i = 0; i < choices.size(); ++i) {
    if (text == choices[i]) return static_cast<int>(i);
  }
  return -1;
}

inline bool Set(int& field, std::span<const char* const> choices, const CKeyValue& value) {
  if (const auto* text = std::get_if<std::string_view>(&value)) {
    const int index = ChoiceIndex(choices, *text);
    if (index >= 0) field = index;
    return index >= 0;
  }
  const double* number = std::get_if<double>(&value);
  if (number == nullptr || !choices.empty()) return false;
  if (!(*number >= -2147483648.0 && *number <= 2147483647.0)) return false;
  field = static_cast<int>(*number);
  return field == *number;
}

inline bool Set(double& field, std::span<const char* const>, const CKeyValue& value) {
  const double* number = std::get_if<double>(&value);
  if (number != nullptr) field = *number;
  return number != nullptr;
}

inline bool Set(std::string& field, std::span<const char* const>, const CKeyValue& value) {
  const auto* text = std::get_if<std::string_view>(&value);
  if (text != nullptr) field.assign(*text);
  return text != nullptr;
}

inline bool Set(std::vector<double>& field, std::span<const char* const>, const CKeyValue& value) {
  const auto* each = std::get_if<std::span<const double>>(&value);
  if (each != nullptr) field.assign(each->begin(), each->end());
  return each != nullptr;
}

inline bool Set(CSpacing& field, std::span<const char* const>, const CKeyValue& value) {
  field.m_arrEach.clear();
  if (const auto* each = std::get_if<std::span<const double>>(&value)) {
    field.m_arrEach.assign(each->begin(), each->end());
    return true;
  }
  return Set(field.m_dUniform, {}, value);
}

}  // namespace detail

template <class CASE>
bool SetInput(CASE& target, const CInputKey<CASE>& key, const CKeyValue& value) {
  return std::visit([&](auto field) { return detail::Set(target.*field, key.m_choices, value); },
                    key.m_field);
}

}  // namespace orv3
