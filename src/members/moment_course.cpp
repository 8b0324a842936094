#include "members/moment_course.h"

#include <algorithm>
#include <cmath>

namespace orv3 {
namespace {

// Where the course may turn: the ends and one place between them.
struct CTurns {
  double m_dFirst, m_dSecond, m_dBetween;
};

CTurns Turns(const CMomentCourse& c) noexcept {
  if (c.m_nLoad == CSpanLoad::None || c.m_dMq == 0) return {c.m_dM1, c.m_dM2, c.m_dM1};
  double at = 0.5;
  if (c.m_nLoad == CSpanLoad::Uniform)
    at = std::clamp(0.5 + (c.m_dM2 - c.m_dM1) / (8 * c.m_dMq), 0.0, 1.0);
  const double load = c.m_nLoad == CSpanLoad::Uniform ? 4 * c.m_dMq * at * (1 - at) : c.m_dMq;
  return {c.m_dM1, c.m_dM2, c.m_dM1 + (c.m_dM2 - c.m_dM1) * at + load};
}

// Ends of equal size and opposite sense: either may be M1.
bool IsTied(const CMomentCourse& c) noexcept {
  constexpr double kLastDigits = 1e-9;
  return c.m_dM1 * c.m_dM2 < 0 && std::fabs(c.m_dM1 + c.m_dM2) <= kLastDigits * std::fabs(c.m_dM1);
}

CEquivalentMoment Times(double beta, double moment) noexcept {
  return {beta, std::fabs(moment), std::fabs(beta * moment)};
}

}  // namespace

double CMomentCourse::Most() const noexcept {
  const CTurns t = Turns(*this);
  return std::max({t.m_dFirst, t.m_dSecond, t.m_dBetween});
}

double CMomentCourse::Least() const noexcept {
  const CTurns t = Turns(*this);
  return std::min({t.m_dFirst, t.m_dSecond, t.m_dBetween});
}

double CMomentCourse::JudgedEnd() const noexcept {
  return IsTied(*this) ? std::copysign(m_dM1, m_dMq) : m_dM1;
}

CEquivalentMoment InPlaneMoment(CCodeEdition edition, const CMomentCourse& course, double N,
                                double Ncr, bool bSway) noexcept {
  if (course.IsZero()) return {};
  const double greatest = course.Governing();
  if (edition == CCodeEdition::Gb2003) {
    if (bSway) return Times(1, greatest);
    if (!course.HasLoad()) return Times(0.65 + 0.35 * course.EndRatio(), greatest);
    return Times(course.IsReversed() ? 0.85 : 1, greatest);
  }
  if (bSway) return Times(course.HasLoad() ? 1 : 1 - 0.36 * N / Ncr, greatest);
  const double ends = 0.6 + 0.4 * course.EndRatio();
  if (!course.HasLoad()) return Times(ends, greatest);
  if (course.m_bOther) return Times(1, greatest);
  const double load = 1 - (course.m_nLoad == CSpanLoad::Midspan ? 0.36 : 0.18) * N / Ncr;
  if (!course.HasEnds()) return Times(load, course.m_dMq);
  const double sum = load * course.m_dMq + ends * course.JudgedEnd();
  return Times(greatest == 0 ? 1 : std::fabs(sum / greatest), greatest);
}

CEquivalentMoment OutOfPlaneMoment(const CMomentCourse& course, double part) noexcept {
  if (course.IsZero()) return {};
  if (!course.HasLoad()) return Times(0.65 + 0.35 * course.PartRatio(part), course.Governing());
  if (!course.HasEnds()) return Times(1, course.m_dMq);
  return Times(course.IsReversed() && part == 1 ? 0.85 : 1, course.Governing());
}

}  // namespace orv3
