// One member under several combinations of forces: the greatest of each check, and which of them
// has it.
#pragma once

#include <span>
#include <vector>

#include "members/member_answer.h"

namespace orv3 {

class ORV3CAL_API CMemberEnvelope {
 public:
  void Clear() noexcept { m_nCount = 0; }
  void Add(const CMemberAnswer& answer);  // of the next combination
  std::span<const CMemberAnswer> Answers() const noexcept {
    return std::span(m_arrAnswer).first(m_nCount);
  }

  // Every check of every combination passes, and there is one at least.
  bool Pass() const noexcept;
  // The combination of the greatest ratio, the first among equals; of one at least.
  std::size_t WorstCase() const noexcept;
  const CMemberAnswer& Worst() const noexcept { return m_arrAnswer[WorstCase()]; }

  struct CPart {
    std::size_t m_nCase;
    const CMemberCheckPart* m_pPart;
  };
  // Of each kind of check the one with the greatest ratio, in the order of the kinds.
  std::vector<CPart> Parts() const;

  struct CNoted {
    CMemberNote m_nNote;
    std::vector<std::size_t> m_arrCase;
  };
  std::vector<CNoted> Notes() const;

 private:
  std::vector<CMemberAnswer> m_arrAnswer;  // some kept from members before
  std::size_t m_nCount = 0;
};

}  // namespace orv3
