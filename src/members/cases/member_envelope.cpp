#include "members/cases/member_envelope.h"

#include <algorithm>
#include <cmath>

namespace orv3 {
namespace {

// A NaN is above every ratio.
bool IsWorse(double ratio, double than) noexcept { return !std::isnan(than) && !(ratio <= than); }

}  // namespace

void CMemberEnvelope::Add(const CMemberAnswer& answer) {
  if (m_nCount == m_arrAnswer.size()) {
    m_arrAnswer.push_back(answer);
  } else {
    m_arrAnswer[m_nCount] = answer;
  }
  ++m_nCount;
}

bool CMemberEnvelope::Pass() const noexcept {
  const auto answers = Answers();
  return !answers.empty() &&
         std::all_of(answers.begin(), answers.end(), [](const auto& each) { return each.Pass(); });
}

std::size_t CMemberEnvelope::WorstCase() const noexcept {
  std::size_t worst = 0;
  for (std::size_t i = 1; i < m_nCount; ++i) {
    if (IsWorse(m_arrAnswer[i].Worst().m_dRatio, m_arrAnswer[worst].Worst().m_dRatio)) worst = i;
  }
  return worst;
}

std::vector<CMemberEnvelope::CPart> CMemberEnvelope::Parts() const {
  std::vector<CPart> parts;
  for (std::size_t kind = 0; kind < kMemberCheckKinds; ++kind) {
    CPart worst = {0, nullptr};
    for (std::size_t i = 0; i < m_nCount; ++i) {
      const auto* part = m_arrAnswer[i].Find(static_cast<CMemberCheckKind>(kind));
      if (part == nullptr) continue;
      if (worst.m_pPart == nullptr || IsWorse(part->m_dRatio, worst.m_pPart->m_dRatio))
        worst = {i, part};
    }
    if (worst.m_pPart != nullptr) parts.push_back(worst);
  }
  return parts;
}

std::vector<CMemberEnvelope::CNoted> CMemberEnvelope::Notes() const {
  std::vector<CNoted> notes;
  for (std::size_t i = 0; i < m_nCount; ++i) {
    for (const CMemberNote note : m_arrAnswer[i].Notes()) {
      auto at = std::find_if(notes.begin(), notes.end(),
                             [note](const CNoted& each) { return each.m_nNote == note; });
      if (at == notes.end()) at = notes.insert(at, {note, {}});
      at->m_arrCase.push_back(i);
    }
  }
  return notes;
}

}  // namespace orv3
