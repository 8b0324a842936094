// A rule of detailing that a connection is held to, by either edition: a size and its limit.
#pragma once

#include <span>
#include <vector>

#include "framework/language.h"
#include "reports/case_keys.h"

namespace orv3 {

struct CDetail {
  CTextLiteral m_name;
  const char* m_szKey;     // of the case: "rowSpace"
  const char* m_szClause;  // "T 11.5.2" for a table
  const char* m_szSize;    // formula of the size, and of its limit
  const char* m_szLimit;
  double m_dSize;   // mm
  double m_dLimit;  // mm
  bool m_bMost;     // the limit is the most, otherwise the least
  // What the size uses of its limit; 1 at the limit.
  double Utilisation() const noexcept { return m_bMost ? m_dSize / m_dLimit : m_dLimit / m_dSize; }
};

// Notes of each rule that is not kept, with its numbers.
void NoteOfDetails(std::span<const CDetail> details, std::vector<CCaseWarning>& notes);

}  // namespace orv3
