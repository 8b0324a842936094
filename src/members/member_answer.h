// What a member check answers: each check with its clause, its steps and its ratio.
#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "codes/section_class.h"
#include "reports/case_keys.h"

namespace orv3 {

enum class CMemberCheckKind : std::uint8_t {
  Strength,
  Net,
  Shear,
  Combined,
  StabilityX,
  StabilityY,
  StabilityZ,
  Lateral,
  Slenderness,
  Flange,
  Web,
  Panel,  // of a web between its stiffeners
  Wall,
  Limbs,   // lattice columns: one limb between two nodes
  Lacing,  // their lacing bars or battens
};
inline constexpr std::size_t kMemberCheckKinds = 15;

ORV3CAL_API const char* MemberCheckName(CMemberCheckKind kind) noexcept;  // "stability-x"
ORV3CAL_API CTextLiteral MemberCheckTitle(CMemberCheckKind kind) noexcept;

// One line of a calculation. The formula names the symbols of earlier lines in braces; none: the
// value is given.
struct CMemberStep {
  const char* m_szSymbol;
  const char* m_szFormula;
  double m_dValue;
  const char* m_szUnit;
};

// A piece of a formula: its text between two symbols, or a symbol with its value where the step
// stands, null for none.
struct CFormulaPiece {
  std::string_view m_text;
  bool m_bSymbol;
  const double* m_pValue;
};

struct CMemberCheckPart {
  CMemberCheckKind m_nKind;
  const char* m_szClause;
  std::size_t m_nFirst, m_nEnd;  // its steps, the last the ratio
  double m_dRatio;
  bool m_bPass;
};

// A plate with its class; none beyond the last limit.
struct CMemberPlate {
  CClassElement m_nElement;
  double m_dRatio;
  double m_dAlpha0;
  std::optional<CSectionClass> m_class;
};

// What stands in the answer when it applies; NaN otherwise. N, mm and N/mm2.
struct CMemberResults {
  static constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
  double m_dF = kNone, m_dFv = kNone, m_dFy = kNone, m_dEpsilonK = kNone;
  double m_dA = kNone;
  double m_dLambdaX = kNone, m_dLambdaY = kNone, m_dLambdaZ = kNone, m_dLambdaYz = kNone;
  double m_dPhiX = kNone, m_dPhiY = kNone, m_dPhiZ = kNone, m_dPhiB = kNone;
  double m_dGammaX = kNone, m_dGammaY = kNone;
  double m_dBetaMx = kNone, m_dBetaTx = kNone, m_dBetaMy = kNone, m_dBetaTy = kNone;
  const char* m_szClass = "";  // section class of the worst plate
  const char* m_szClassX = "";
  const char* m_szClassY = "";  // buckling classes
};

// What was assumed, or is to be looked at.
enum class CMemberNote : std::uint8_t {
  Q355,
  NoSupportsAtEnds,
  BetweenLoadAndEnds,
  HeavyTension,
  RolledITable,
  RolledIShort,
  Stiffeners,
  NeedsStiffeners,
  StiffenerPlates,
  UnusedStiffeners,
  UnusedRestrained,
  LocalPressure,
  EffectiveSection,
  ShearCentre,
  BoxBeyond,
  TWebByAxial,
  TWebAsBeam,
  AngleLengths,
  TubeLoads,
  TubeSway,
  SwayWithLoad,
  HolesWithoutBolts,
  RolledEdges,
  BattenStiffness,
  LimbMoment,
  PairWithoutGap,
  AssumedVx,
  AssumedVy,
  UnusedLengthZ,
  UnusedSpan,
  UnusedSway,
  UnusedLoadFlange,
  UnusedSupports,
  UnusedNetA,
  UnusedNetW,
  LimbLength,
  BondJoints,
  OppositeMoment,
  AssumedLengthZ,
  AssumedSpan,
  AssumedLoadFlange,
  AssumedAngle,
  AssumedSupports,
  AssumedJoint,
  LimitBeyond,
  BeyondEuler,
};
ORV3CAL_API CTextLiteral MemberNoteText(CMemberNote note) noexcept;
ORV3CAL_API const char* MemberNoteKey(CMemberNote note) noexcept;

class ORV3CAL_API CMemberAnswer {
 public:
  void Clear();
  void Step(const char* symbol, const char* formula, double value, const char* unit = "") {
    m_arrStep.push_back({symbol, formula, value, unit});
  }
  // Begins a check; its steps follow until Close.
  void Open(CMemberCheckKind kind, const char* clause) {
    m_arrPart.push_back({kind, clause, m_arrStep.size(), m_arrStep.size(), 0, false});
  }
  // Ends it with effect over resistance by this formula. A ratio is at most 1 when the check passes
  // but for the last digits of a double.
  void Close(const char* formula, double ratio);
  void Note(CMemberNote note);
  // Of each check and each plate the worse one of both answers, of the figures those of the one
  // that governs. The steps of a check name figures of its own or those given alike in both.
  void TakeWorse(const CMemberAnswer& other);
  void Plate(const CMemberPlate& plate) { m_arrPlate.push_back(plate); }
  // What is not covered, by the key that asks for it.
  void Refuse(const char* key, CText what, CText right) {
    if (!m_fault) m_fault = CCaseFault{key, std::move(what), std::move(right)};
  }
  bool IsRefused() const noexcept { return m_fault.has_value(); }

  const std::optional<CCaseFault>& Fault() const noexcept { return m_fault; }
  // Given figures, before all checks.
  std::span<const CMemberStep> Given() const noexcept {
    return std::span(m_arrStep).first(m_arrPart.empty() ? m_arrStep.size()
                                                        : m_arrPart.front().m_nFirst);
  }
  std::span<const CMemberCheckPart> Parts() const noexcept { return m_arrPart; }
  std::span<const CMemberStep> Steps(const CMemberCheckPart& part) const noexcept {
    return std::span(m_arrStep).subspan(part.m_nFirst, part.m_nEnd - part.m_nFirst);
  }
  std::span<const CMemberNote> Notes() const noexcept { return m_arrNote; }
  std::span<const CMemberPlate> Plates() const noexcept { return m_arrPlate; }
  // Every part passes, and there is one at least.
  bool Pass() const noexcept;
  // The part of the greatest ratio; a NaN counts as the greatest. Only of an answer with parts.
  const CMemberCheckPart& Worst() const noexcept;
  const CMemberCheckPart* Find(CMemberCheckKind kind) const noexcept;
  double Ratio(CMemberCheckKind kind) const noexcept;  // NaN without the check

  // "λx = l0x/ix = 6000/129 = 46.5": a step by its place among all, the given ones first.
  std::string StepText(std::size_t index) const;
  const CMemberStep& Step(std::size_t index) const noexcept { return m_arrStep[index]; }
  // The formula of a step, which has one.
  std::vector<CFormulaPiece> Formula(std::size_t index) const;

  CMemberResults m_results;

 private:
  // The value of a symbol where the step stands: the nearest above it in its check, else the given
  // one; null for none.
  const double* ValueBefore(std::size_t index, std::string_view symbol) const noexcept;

  std::vector<CMemberStep> m_arrStep;
  std::vector<CMemberCheckPart> m_arrPart;
  std::vector<CMemberNote> m_arrNote;
  std::vector<CMemberPlate> m_arrPlate;
  std::optional<CCaseFault> m_fault;
};

}  // namespace orv3
