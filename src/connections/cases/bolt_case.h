// One bolt group as a file, a table or a form gives it: checked before it is computed.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "connections/bolt_group.h"
#include "connections/verdict/bolt_verdict.h"
#include "reports/case_answer.h"

namespace orv3 {

enum CBoltType : int { kOrdinaryBolt = 0, kFrictionBolt = 1, kBearingBolt = 2 };

// Lengths in mm, forces in kN, moments in kN mm.
struct CBoltCase {
  std::string m_strId = {};  // the caller's own name of the case
  int m_nLayout = 0;         // 0 grid, 1 staggered
  int m_nType = 0;           // CBoltType
  int m_nCols = 0;
  int m_nRows = 0;
  CSpacing m_colSpace;
  CSpacing m_rowSpace;
  int m_nD = 0;        // nominal diameter
  double m_dSumT = 0;  // ordinary, bearing: smaller total thickness bearing in one direction
  int m_nNv = 0;       // ordinary, bearing: shear planes
  int m_nNf = 0;       // friction: friction surfaces
  double m_dN = 0;     // tension
  double m_dVx = 0;
  double m_dVy = 0;
  double m_dM = 0;  // puts the bolts in tension
  double m_dT = 0;  // torque in the plane of the group
  double m_dEx = 0;
  double m_dEy = 0;
  double m_dThick = 0;  // plate thickness
  int m_nSteel = 0;     // 0 Q235, 1 Q345, 2 Q390, 3 Q420
  int m_nSurface = 0;   // friction: 0 to 4
  int m_nGrade = 0;     // 0 4.6, 1 4.8, 2 5.6, 3 8.8, 4 10.9
  int m_nClass = 0;     // ordinary: 0 A, 1 B, 2 C
  int m_nThreads = -1;  // ordinary, bearing: 0 in the shear plane, 1 outside; unless said in it
                        // with the bearing type, else outside
};

// Whether the verdict takes the shear planes through the threads (7.2.3; 11.4.3 of 2017).
constexpr bool HasThreadsInShear(int type, int threads) noexcept {
  return threads < 0 ? type == kBearingBolt : threads == 0 && type != kFrictionBolt;
}

// Strengths and stresses in N/mm2, forces in kN, lengths in mm.
struct CBoltResults {
  int m_nBolts = 0;
  double m_dD0 = 0;
  double m_dDe = 0;
  double m_dF = 0;
  double m_dFt = 0;
  double m_dFv = 0;
  double m_dFc = 0;
  double m_dMu = 0;
  int m_nP = 0;
  double m_dNvb = 0;
  double m_dNcb = 0;
  double m_dNtb = 0;
  double m_dNv = 0;
  double m_dNt = 0;
  double m_dL1 = 0;
  double m_dBeta = 0;
  double m_dRatio = 0;
  double m_dSigmaX = 0;
  double m_dSigmaY = 0;
  bool m_bForces = false;
  bool m_bX = false;
  bool m_bY = false;
};

// The check of bolt groups; one object serves many cases and keeps its storage between them. The
// results are what the record computed, the verdict is by the judged figures.
class ORV3CAL_API CBoltCheck : public CCaseAnswer {
 public:
  using CCase = CBoltCase;
  using CResults = CBoltResults;
  static std::span<const CInputKey<CBoltCase>> InputKeys();
  static std::span<const CResultKey<CBoltResults>> ResultKeys();
  static int Kind(const CBoltCase& input) noexcept { return input.m_nType; }

  // Computes the case. False when it is refused: then Faults says why, by key.
  bool Run(const CBoltCase& input);

  const CBoltResults& Results() const noexcept { return m_results; }
  const NormalBoltData& Record() const noexcept { return m_record; }
  const CBoltFigures& Figures() const noexcept { return m_figures; }

 private:
  void FillRecord(const CBoltCase& input);
  void ReadResults(const CBoltCase& input);
  void JudgeParts();

  NormalBoltData m_record;
  CBoltResults m_results;
  CBoltFigures m_figures;
};

// Impossible input, by key; empty when the case can be computed.
ORV3CAL_API std::vector<CCaseFault> BoltFaults(const CBoltCase& input);
// Of a computed record: detailing minima that it falls short of (GB 50017-2003, Table 8.3.4), and
// where the judged figures are not the record's.
ORV3CAL_API std::vector<CCaseWarning> BoltWarnings(const NormalBoltData& record,
                                                   const CBoltFigures& figures, int threads);
// As of a case that does not say where the threads are.
ORV3CAL_API std::vector<CCaseWarning> BoltWarnings(const NormalBoltData& record,
                                                   const CBoltFigures& figures);

extern const char* const kBoltGrades[5];
extern const CTextLiteral kBoltTypeNames[3];

}  // namespace orv3
