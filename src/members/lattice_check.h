// One check of a lattice column in its parts. Only lattice_*.cpp include it.
#pragma once

#include <algorithm>
#include <cmath>
#include <vector>

#include "members/axial_plates.h"
#include "members/lattice_member.h"

namespace orv3 {

class CLatticeCheck {
 public:
  CLatticeCheck(const CLatticeSection& section, const CMemberSteel& steel,
                const CLatticeLoads& loads, CMemberAnswer& answer)
      : s(section), m(steel), q(loads), a(answer), r(answer.m_results) {
    m_dN = std::max(0.0, -q.m_dN);
    m_dM = std::fabs(q.m_x.Governing());
  }
  void Run();

 private:
  // --- lattice_member.cpp: the whole
  void Give();
  void RefuseWhatIsNotCovered();
  void Slenderness();
  void Laced();
  void Battened();
  void Whole();
  void MomentInPlane();
  void SlendernessCheck();
  // --- lattice_limb_checks.cpp: each limb
  void LimbStability();
  void LimbSlenderness();
  void LimbPlates();
  double PlateShare(double phi) const;
  void GiveLimbPlate(const CAxialPlate& plate, double lambda, double limit);
  void LimbStrength();
  struct CLimbForces {
    double m_dN, m_dMx, m_dMy, m_dVx, m_dVy;
  };
  CLimbForces ForcesOf(const CLatticeLimbSection& limb) const;
  void GiveLimbForces(const CLatticeLimbSection& limb, const CLimbForces& forces, bool bBending);
  double SumOf(double CLatticeLimbSection::*figure) const;
  // --- lattice_bond.cpp: what joins them
  // A plane of bars or battens with its share of the shear.
  struct CBondPlane {
    double m_dWidth;  // between the centroids of the limbs that it joins
    double m_dV1;
    const char* m_szForm;
    double CLatticeLimbSection::*m_pI;  // of a limb bent in it
  };
  struct CBar {
    double m_dForce, m_dLambda, m_dPhi, m_dCapacity, m_dLegLimit, m_dLegShare, m_dLegRatio;
  };
  void Bond();
  std::vector<CBondPlane> Planes(double V) const;
  void GivePlane(const CBondPlane& plane, double V);
  void Lacing(const std::vector<CBondPlane>& planes, double V);
  CBar BarOf(const CBondPlane& plane) const;
  void LacingLeg(const CBar& bar);
  void Battens(const std::vector<CBondPlane>& planes, double V);
  void BattenStiffness(const std::vector<CBondPlane>& planes);

  bool Is2017() const noexcept { return m.m_nEdition == CCodeEdition::Gb2017; }
  bool IsLaced() const noexcept { return s.m_nBond == CLatticeBond::Lacing; }
  bool IsOpenY() const noexcept { return s.Limbs() > 2; }
  bool AreLimbsBent() const noexcept { return !IsLaced() && (q.m_dVx != 0 || q.m_dVy != 0); }
  double LambdaX() const noexcept { return m_dLambda0x; }
  double LambdaY() const noexcept { return IsOpenY() ? m_dLambda0y : r.m_dLambdaY; }
  const char* Clause(const char* in2017, const char* in2003) const noexcept {
    return Is2017() ? in2017 : in2003;
  }
  double Phi(double lambda, CBucklingClass bucklingClass) const;

  const CLatticeSection& s;
  const CMemberSteel& m;
  const CLatticeLoads& q;
  CMemberAnswer& a;
  CMemberResults& r;
  double m_dN = 0, m_dM = 0;
  double m_dLambda0x = 0, m_dLambda0y = 0;  // with the bond's yielding
  double m_dLambda1 = 0;                    // of a limb
};

}  // namespace orv3
