// What the design code answers: a value with the place where it stands, or why there is none.
#pragma once

#include <string>
#include <utility>
#include <variant>

#include "framework/export.h"
#include "framework/language.h"

namespace orv3 {

enum class CCodeEdition { Gb2003, Gb2017 };

// How sure a figure is: of a table of the code, computed by a rule of the code or of this library,
// or set down without a table to hold it against.
enum class CFigureStatus { Table, Derived, Doubtful };

// Where a figure stands.
struct CCodeSource {
  CCodeEdition m_nEdition;
  CTextLiteral m_place;  // clause and table: "4.4.1, Table 4.4.1"
  CFigureStatus m_nStatus = CFigureStatus::Table;
  const CTextLiteral* m_pNote = nullptr;  // what to know before relying on it
};

// "GB 50017-2017, 4.4.1, Table 4.4.1"
ORV3CAL_API CText SourceText(const CCodeSource& source);

// The argument that a look-up did not accept, what was wrong with it and what would be right.
struct CCodeRefusal {
  const char* m_szArgument;  // "grade", "t", "surface", ...
  CText m_what;
  CText m_right;
  // "grade: what was wrong; what would be right"
  CText Text() const {
    const std::string argument = m_szArgument;
    return {argument + "：" + m_what.m_strChinese + "；" + m_right.m_strChinese,
            argument + ": " + m_what.m_strEnglish + "; " + m_right.m_strEnglish};
  }
};

template <class VALUE>
class CCodeAnswer {
 public:
  CCodeAnswer(const VALUE& value, const CCodeSource& source)
      : m_answer(std::in_place_type<CFound>, value, source) {}
  CCodeAnswer(CCodeRefusal refusal) : m_answer(std::move(refusal)) {}

  explicit operator bool() const noexcept { return std::holds_alternative<CFound>(m_answer); }
  // Of an answer that is one; std::bad_variant_access otherwise.
  const VALUE& operator*() const { return std::get<CFound>(m_answer).m_value; }
  const VALUE* operator->() const { return &**this; }
  const CCodeSource& Source() const { return std::get<CFound>(m_answer).m_source; }
  // Of an answer that is none.
  const CCodeRefusal& Refusal() const { return std::get<CCodeRefusal>(m_answer); }

  // The same source for a value that follows from this one: `take(value)`; a refusal stays one.
  template <class TAKE>
  auto Then(TAKE take) const -> CCodeAnswer<decltype(take(std::declval<const VALUE&>()))> {
    if (!*this) return Refusal();
    return {take(**this), Source()};
  }

 private:
  struct CFound {
    CFound(const VALUE& value, const CCodeSource& source) : m_value(value), m_source(source) {}
    VALUE m_value;
    CCodeSource m_source;
  };
  std::variant<CFound, CCodeRefusal> m_answer;
};

}  // namespace orv3
