// What the answers for a grade have in common.
#pragma once

#include "codes/steel_grade.h"

namespace orv3 {

bool HasGrade(CCodeEdition edition, CSteelGrade grade) noexcept;

inline constexpr CTextLiteral kQ355Note = {"Q355 按 Q345 一栏取值",
                                           "Q355 is read in the Q345 column"};
// The source of an answer for `grade`: Q355 is derived from the Q345 column, with a note.
constexpr CCodeSource OfGrade(CSteelGrade grade, CCodeSource source) noexcept {
  if (grade == CSteelGrade::Q355) {
    source.m_pNote = &kQ355Note;
    source.m_nStatus = CFigureStatus::Derived;
  }
  return source;
}

}  // namespace orv3
