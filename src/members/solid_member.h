// The check of a member with a solid web: GB 50017-2017, chapters 6 to 8; GB 50017-2003, chapters 4
// and 5.
#pragma once

#include "codes/buckling.h"
#include "members/member_answer.h"
#include "members/member_section.h"
#include "members/moment_course.h"

namespace orv3 {

// What the code says of the section's steel.
struct CMemberSteel {
  CCodeEdition m_nEdition = CCodeEdition::Gb2017;
  CSteelGrade m_nGrade = CSteelGrade::Q235;
  double m_dF = 0, m_dFv = 0;          // N/mm2
  double m_dFvX = 0;                   // of the plates that carry Vx
  double m_dBondF = 0, m_dBondFv = 0;  // of the bars or battens of a lattice column
  double m_dFu = 0;                    // 2003: none
  double m_dFy = 0;                    // of the thickness
  CBucklingClass m_nClassX = CBucklingClass::B, m_nClassY = CBucklingClass::B;
};

// By what of its section a member under axial force is joined: 7.1.3, 7.6.1; 2003: 3.4.2.
enum class CMemberJoint { Whole, Leg, LongLeg, ShortLeg, Flanges, Web };

// N, N mm, mm.
struct CMemberLoads {
  double m_dN = 0;  // tension positive
  CMomentCourse m_x, m_y;
  double m_dVx = 0, m_dVy = 0;
  bool m_bUpper = true;  // the load acts on the upper flange
  int m_nSupports = 0;   // lateral supports within the span; 2 is two and more
  bool m_bSway = false;
  double m_dLx = 0, m_dLy = 0, m_dLz = 0;  // effective lengths
  double m_dSpan = 0;                      // free span of the compression flange, of Mx
  double m_dSpanY = 0;                     // of My, for a box
  // The part between lateral supports, a share of the member's length in the plane of the moment.
  double m_dPartX = 1, m_dPartY = 1;
  CMemberJoint m_nJoint = CMemberJoint::Whole;
  bool m_bNet = false;
  double m_dNetA = 1, m_dNetW = 1;  // shares of the gross that are left
  bool m_bDynamic = false;
  double m_dStiffeners = 0;    // distance of the web's transverse stiffeners; 0: none
  bool m_bRestrained = false;  // the compression flange against twist
  double m_dLimit = 0;         // of slenderness; 0: the code's
  // An I with tapered flanges: of an ordinary one its number, the depth in cm, of a light one 0.
  bool m_bTapered = false;
  double m_dRolledNumber = 0;

  // A moment that ends and load share.
  bool IsShared() const noexcept {
    return (m_x.HasEnds() && m_x.HasLoad()) || (m_y.HasEnds() && m_y.HasLoad());
  }
};

// Leaves its checks in `answer`, or the fault of what is not covered.
ORV3CAL_API void CheckSolidMember(const CMemberSection& section, const CMemberSteel& steel,
                                  const CMemberLoads& loads, CMemberAnswer& answer);

}  // namespace orv3
