// One check of a solid-web member in its parts: what the strength, the stability and the plates of
// a member share. Only solid_*.cpp include it.
#pragma once

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

#include "codes/lateral_buckling.h"
#include "framework/elementary.h"
#include "members/effective_section.h"
#include "members/one_leg_angle.h"
#include "members/solid_member.h"
#include "members/width_forms.h"

namespace orv3 {

class CSolidCheck {
 public:
  CSolidCheck(const CMemberSection& section, const CMemberSteel& steel, const CMemberLoads& loads,
              CMemberAnswer& answer);
  void Run();

 private:
  // --- solid_member.cpp
  void Give();
  void RefuseWhatIsNotCovered();
  void Slenderness();
  void TorsionalSlendernesses();
  void SlendernessCheck();
  void Net();
  // --- solid_plates.cpp: classes and plasticity come before everything that asks gamma
  struct CWebStress {
    double m_dMax = 0;  // greatest compression at an end of the web
    double m_dAlpha0 = 2;
    CSide m_nSide = CSide::Top;  // where it is
  };
  CWebStress WebStress(double Mx) const;
  double WebStressOfMy() const;
  CClassElement WebElement() const;
  void Plasticity();
  bool IsWebSlenderAtLeastMx() const;
  void ClassifyPlates();
  void ClassifyOpen();
  void Classify(CClassElement element, double ratio, double alpha0);
  double Class4(CClassElement element, double alpha0) const;  // the limit of S4
  double Class5(CClassElement element) const;
  void ReduceBoxFlange();
  void GiveEffective(double alpha0, bool bWeb, double h0, double tw);
  void Reduce(const CWebStress& stress, CReducedPlates reduced);
  bool IsFlangeCompressed(CSide side) const;
  double FlangeRatio() const;  // of the outstands in compression, 0 without any
  void Plates();
  void AxialPlates();
  void TWebOfBeam();
  void MomentPlates();
  void MomentPlates2003();
  void OpenPlates2017();
  void ClosedPlates2017();
  void Limit(CMemberCheckKind kind, const char* clause, double value, double limit,
             const CWidthForm& form = {});
  // --- solid_panels.cpp
  struct CPanel {
    double m_dH0, m_dTw, m_dHc;  // hc: compressed by the moment
    double m_dA;                 // that carries the shear
    double m_dM, m_dV, m_dI;
    double m_dFv;
    bool m_bSimpleSpan;
  };
  struct CPanelFigures {
    double m_dSigma = 0, m_dTau = 0, m_dLambdaB = 0, m_dLambdaS = 0, m_dSigmaCr = 0, m_dTauCr = 0;
    double m_dStressTerm = 0, m_dRatio = -1;
    const char* m_szFormula = nullptr;
    const char* m_szClause = nullptr;
  };
  std::vector<CPanel> SlenderPanels() const;
  CPanelFigures PanelFigures(const CPanel& panel) const;
  void Panels();
  void GivePanel(const CPanel& panel, const CPanelFigures& figures);
  // --- solid_strength.cpp
  void Strength();
  double StrengthRatio(double Mx, bool bSteps);
  void Shear();
  // A place that carries a shear: its distances from the centroid, y upwards and x to either side,
  // and the cuts of Vy and Vx there; one without a first moment carries none.
  struct CPlace {
    double m_dY, m_dX;
    CShearCut m_vy, m_vx;
  };
  struct CPlaceStress {
    double m_dAxial, m_dBending;  // of N and of Mx, compression positive, N/mm2
    double m_dSigma, m_dTauX, m_dTauY, m_dTau;
  };
  std::vector<CPlace> ShearedPlaces() const;
  void AddWebPlaces(std::vector<CPlace>& places) const;
  void AddFlangePlaces(std::vector<CPlace>& places) const;
  CPlaceStress StressAt(const CPlace& place, double Mx) const;
  void GivePlace(const CPlace& place, double Mx);
  void Combined();
  void CombinedRound();
  // --- solid_stability.cpp
  double Phi(double lambda, CBucklingClass bucklingClass) const;
  void Stability();
  void AxialStability(CMemberCheckKind kind, double lambda, double phi);
  void OneLegStability(double lambda, double phi);
  void BeamColumns();
  void BeamColumnX();
  void BeamColumnY();
  void GiveBetaM(const char* symbol, const CMomentCourse& course, double beta, double Ncr);
  void GiveBetaT(const char* symbol, const CMomentCourse& course, double part, double beta);
  void GivePartRatio(const CMomentCourse& course, double part);
  void TubeTwoMoments();
  CBeamSection BeamSection() const;
  template <class VALUE>
  const VALUE* Take(const char* key, const CCodeAnswer<VALUE>& answer);
  void RefuseSlenderT(double lambdaY);
  double UniformPhiB(double lambdaY);
  double GiveWeldedIPhiB(const CBeamSection& section, double lambdaY, double beta);
  double GivePhiB(const CPhiB& phiB, const char* elastic);
  double BeamColumnPhiB();
  double BeamBetaB(const CBeamSection& section);
  double BeamPhiB();
  struct CPlasticPart {
    double m_dGammaY;
    std::optional<CEffectiveSection> m_effective;
  };
  CPlasticPart WithoutTension();
  void Lateral();
  void LateralBox();

  double F() const noexcept { return m.m_dF; }
  bool IsOneLeg() const noexcept {
    return s.m_nShape == CMemberShape::Angle && q.m_nJoint != CMemberJoint::Whole;
  }
  // Of an area or a strength where a part of the section alone is joined: 7.1.3, 7.6.1;
  // 2003: 3.4.2.
  double JointShare() const noexcept;
  const char* JointClause(const char* whole) const noexcept {
    return q.m_nJoint == CMemberJoint::Whole ? whole
           : IsOneLeg()                      ? Clause("7.6.1", "3.4.2")
                                             : "7.1.3";
  }
  bool Is2017() const noexcept { return m.m_nEdition == CCodeEdition::Gb2017; }
  bool HasMoment() const noexcept { return !q.m_x.IsZero() || !q.m_y.IsZero(); }
  bool IsBiaxial() const noexcept { return !q.m_x.IsZero() && !q.m_y.IsZero(); }
  bool HasLoad() const noexcept { return q.m_x.HasLoad() || q.m_y.HasLoad(); }
  // Those of the end with the greater resultant.
  struct CEndMoments {
    double m_dX, m_dY;  // in magnitude
    double Resultant() const noexcept { return Hypot(m_dX, m_dY); }
  };
  CEndMoments EndMoments() const noexcept {
    const CEndMoments start = {std::fabs(q.m_x.AtStart()), std::fabs(q.m_y.AtStart())};
    const CEndMoments end = {std::fabs(q.m_x.AtEnd()), std::fabs(q.m_y.AtEnd())};
    return start.Resultant() >= end.Resultant() ? start : end;
  }
  // The row "upper flange" of the tables: a load with Mx below 0 acts upwards, so that on the upper
  // flange it draws away from the centroid.
  bool IsLoadTowardsCentroid() const noexcept { return q.m_bUpper == (q.m_x.m_dMq > 0); }
  const CMemberFlange& CompressedFlange() const noexcept {
    return m_nSide == CSide::Top ? s.m_top : s.m_bottom;
  }
  const char* Clause(const char* in2017, const char* in2003) const noexcept {
    return Is2017() ? in2017 : in2003;
  }
  // Modulus of the edge that Mx compresses, and of the other.
  double WCompressed() const noexcept { return m_nSide == CSide::Top ? s.m_dWTop : s.m_dWBottom; }
  double WOther() const noexcept { return m_nSide == CSide::Top ? s.m_dWBottom : s.m_dWTop; }

  const CMemberSection& s;
  const CMemberSteel& m;
  const CMemberLoads& q;
  CMemberAnswer& a;
  CMemberResults& r;

  double m_dNc = 0;            // compression, >= 0
  double m_dMx = 0;            // the governing one, with its sign
  double m_dMy = 0;            // in magnitude
  CSide m_nSide = CSide::Top;  // that Mx compresses
  double m_dLambdaMax = 0;     // of both axes, without torsion
  double m_dLambdaFx = 0;      // of flexure about x together with torsion (channels), else lambda x
  double m_dPhiLeast = 1;
  COneLegFactors m_oneLeg;       // of a single angle joined by one leg
  bool m_bGammaReduced = false;  // gamma x 1.0 for a flange beyond the limit of plasticity
  double m_dGammaOther = 1;      // at the edge that Mx does not compress
  std::optional<CSectionClass> m_class;
  bool m_bBeyond = false;  // a plate beyond the last class
  std::optional<CEffectiveSection> m_effective;
  bool m_bTurned = false;  // its web is a flange of a box, compressed by My
  // Of a beam-column.
  double m_dAe = 0, m_dShiftX = 0, m_dShiftY = 0, m_dW1 = 0, m_dWy = 0, m_dEta = 1;
  CEquivalentMoment m_inX, m_inY, m_outX, m_outY;
};

}  // namespace orv3
