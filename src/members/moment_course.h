// The moment along a member about one axis, and its equivalents in the formulas of beam-columns:
// GB 50017-2017, 8.2.1; GB 50017-2003, 5.2.2.
#pragma once

#include "codes/answer.h"
#include "framework/export.h"

namespace orv3 {

enum class CSpanLoad { None, Uniform, Midspan };

// End moments, straight between them, and the course of a transverse load on a simple span. Any
// unit; equal signs where the curvature is single.
struct CMomentCourse {
  double m_dM1 = 0;  // |M1| >= |M2|
  double m_dM2 = 0;
  double m_dMq = 0;  // greatest moment of the load
  CSpanLoad m_nLoad = CSpanLoad::None;
  bool m_bFar = false;  // M1 is at the second end of the member
  // Judged by its extreme of the other sign, which compresses the other edge. What follows from the
  // ends alone is then that of end moments of equal size, the least favourable that have it.
  bool m_bOther = false;

  double AtStart() const noexcept { return m_bFar ? m_dM2 : m_dM1; }
  double AtEnd() const noexcept { return m_bFar ? m_dM1 : m_dM2; }
  bool IsZero() const noexcept { return m_dM1 == 0 && m_dMq == 0; }
  bool HasEnds() const noexcept { return m_dM1 != 0; }
  bool HasLoad() const noexcept { return m_dMq != 0; }
  // M2 / M1; 1 without end moments.
  double EndRatio() const noexcept { return !HasEnds() ? 1 : m_bOther ? -1 : m_dM2 / m_dM1; }
  // M2 / M1 of a part of the member that has M1 at its end, the worst between lateral supports;
  // part: its share of the length.
  double PartRatio(double part) const noexcept { return 1 - (1 - EndRatio()) * part; }
  // The curvature changes its sense along the member.
  bool IsReversed() const noexcept { return Most() > 0 && Least() < 0; }
  // The end moment added to a load's: M1, or of a tie the end that the load adds to.
  ORV3CAL_API double JudgedEnd() const noexcept;
  ORV3CAL_API double Most() const noexcept;   // greatest along the member
  ORV3CAL_API double Least() const noexcept;  // least along the member
  // The one of both that is greater in magnitude, with its sign; m_bOther: the other one.
  double Governing() const noexcept {
    const double most = Most(), least = Least();
    return (most >= -least) != m_bOther ? most : least;
  }
};

// An equivalent moment beta M; beta M and M at least 0.
struct CEquivalentMoment {
  double m_dBeta = 1;
  double m_dM = 0;
  double m_dMoment = 0;  // beta M
};

// In the plane of the moment. N >= 0 compresses; Ncr = pi^2 E I / (mu l)^2. bSway: a column that
// sways: with a load in its span beta is 1, the code's greatest (columns with pinned bases).
ORV3CAL_API CEquivalentMoment InPlaneMoment(CCodeEdition edition, const CMomentCourse& course,
                                            double N, double Ncr, bool bSway) noexcept;
// Out of the plane of the moment, the same in both editions, of the worst part between lateral
// supports; part: its share of the length.
ORV3CAL_API CEquivalentMoment OutOfPlaneMoment(const CMomentCourse& course, double part) noexcept;

}  // namespace orv3
