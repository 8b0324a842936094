// Figures of the design code for the checks of this folder, and why there is none, by key of the
// case.
#pragma once

#include <string_view>

#include "codes/edition.h"
#include "codes/steel_grade.h"
#include "reports/fault_list.h"

namespace orv3::gb2017 {

inline constexpr CCodeEdition kEdition = CCodeEdition::Gb2017;
inline constexpr int kLastSteel = static_cast<int>(std::size(kGradeNames)) - 1;

// The value of an answer. A refusal goes to the faults under `key`, or under "t" where it is for
// the thickness; the value is its default then.
template <class VALUE>
VALUE Take(const CCodeAnswer<VALUE>& answer, const char* key, CFaultList& faults) {
  if (answer) return *answer;
  const CCodeRefusal& refusal = answer.Refusal();
  const bool bThickness = std::string_view(refusal.m_szArgument) == "t";
  faults.Add(bThickness ? "t" : key, refusal.m_what, refusal.m_right);
  return {};
}

// What the source of an answer tells besides.
template <class VALUE>
void NoteOf(const CCodeAnswer<VALUE>& answer, const char* key, std::vector<CCaseWarning>& notes) {
  const CTextLiteral* note = answer.Source().m_pNote;
  if (note == nullptr) return;
  notes.push_back(
      {key, {std::string(note->m_szChinese) + "。", std::string(note->m_szEnglish) + "."}});
}

}  // namespace orv3::gb2017
