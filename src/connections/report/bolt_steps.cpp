#include "connections/report/bolt_steps.h"

#include <algorithm>

#include "connections/check_math.h"

namespace orv3 {
namespace {

constexpr CBoltClauses kClauses2003 = {"8.3.2",     "T 3.4.1-1", "T 3.4.1-4",
                                       "T 7.2.2-1", "T 7.2.2-2", {"7.2.1", "7.2.2", "7.2.3"},
                                       "7.2.4",     "5.1.1"};
constexpr CBoltClauses kClauses2017 = {"11.5.1",     "T 4.4.1",    "T 4.4.6",
                                       "T 11.4.2-1", "T 11.4.2-2", {"11.4.1", "11.4.2", "11.4.3"},
                                       "11.4.5",     "7.1.1"};

}  // namespace

CBoltFacts::CBoltFacts(const CBoltView& view)
    : m_view(view),
      m_input(view.m_input),
      m_shape(view.m_shape),
      m_r(view.m_results),
      m_judged(view.m_judged),
      m_clauses(view.Is2017() ? kClauses2017 : kClauses2003),
      m_bFriction(m_input.m_nType == kFrictionBolt),
      m_bTorque(!IsZero(m_input.m_dT) && !IsZero(m_shape.SumR2())) {}

CHoleKind CBoltFacts::Hole() const {
  return static_cast<CHoleKind>(std::max(0, m_view.m_pInput2017->m_nHole));
}

const char* CBoltFacts::SteelClause() const {
  if (!m_view.Is2017()) return m_clauses.m_szSteel;
  return static_cast<CSteelGrade>(m_input.m_nSteel) == CSteelGrade::Q345GJ ? "T 4.4.2"
                                                                           : m_clauses.m_szSteel;
}

}  // namespace orv3
