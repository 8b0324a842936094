#include "connections/gb2017/bolt_case.h"

#include <algorithm>
#include <array>

#include "codes/holes.h"
#include "codes/steel_strength.h"
#include "connections/bolt_thread.h"
#include "connections/cases/bolt_group_rules.h"
#include "connections/check_math.h"
#include "connections/gb2017/bolt_distances.h"
#include "connections/gb2017/code_figures.h"
#include "connections/gb2017/notes.h"
#include "framework/plain_number.h"

namespace orv3 {
namespace {

constexpr const char* kEdges[] = {"sheared", "rolled"};

CSteelGrade SteelOf(const CBoltCase2017& input) noexcept {
  return static_cast<CSteelGrade>(input.m_nSteel);
}

CBoltGrade GradeOf(const CBoltCase2017& input) noexcept {
  return static_cast<CBoltGrade>(input.m_nGrade);
}

CBoltKind KindOf(const CBoltCase2017& input) noexcept {
  if (input.m_nType == kBearingBolt) return CBoltKind::Bearing;
  return input.m_nClass == 2 ? CBoltKind::OrdinaryC : CBoltKind::OrdinaryAB;
}

CHoleKind HoleOf(const CBoltCase2017& input) noexcept {
  return static_cast<CHoleKind>(std::max(0, input.m_nHole));
}

bool IsSlot(CHoleKind kind) noexcept {
  return kind == CHoleKind::SlotAcross || kind == CHoleKind::SlotAlong;
}

// All bolts pull along x, or all along y.
bool IsOneWay(const CBoltCase2017& input) noexcept {
  return IsZero(input.m_dT) && (IsZero(input.m_dVx) || IsZero(input.m_dVy));
}

// Across the force means across that of every bolt, which a torque turns and two shears set askew:
// some then bear along their slots.
CHoleKind JudgedHole(const CBoltCase2017& input) noexcept {
  const CHoleKind kind = HoleOf(input);
  return kind == CHoleKind::SlotAcross && !IsOneWay(input) ? CHoleKind::SlotAlong : kind;
}

// 11.5.1: class C 1 mm, above M16 1.5 mm, classes A and B 0.5 mm more than the bolt.
double OrdinaryHole(const CBoltCase2017& input) noexcept {
  if (input.m_nClass != 2) return input.m_nD + 0.5;
  return input.m_nD + (input.m_nD <= 16 ? 1 : 1.5);
}

// The room that a hole takes along x and along y, mm. A slot lies along or across a single shear;
// where more loads act in the plane it may lie either way.
struct CHoleRoom {
  double m_dX;
  double m_dY;
};
CHoleRoom RoomOf(const CBoltCase2017& input, const CHoleSize& size) noexcept {
  if (!IsSlot(HoleOf(input))) return {size.m_dWidth, size.m_dWidth};
  const bool bX = !IsZero(input.m_dVx);
  const bool bY = !IsZero(input.m_dVy);
  if (bX == bY || !IsZero(input.m_dT)) return {size.m_dLength, size.m_dLength};
  const bool bAlongX = bX == (HoleOf(input) == CHoleKind::SlotAlong);
  return bAlongX ? CHoleRoom{size.m_dLength, size.m_dWidth}
                 : CHoleRoom{size.m_dWidth, size.m_dLength};
}

void FieldFaults(const CBoltCase2017& input, CFaultList& faults) {
  faults.Within("layout", input.m_nLayout, 0, 1);
  faults.Within("type", input.m_nType, 0, 2);
  faults.Within("steel", input.m_nSteel, 0, gb2017::kLastSteel);
  faults.Within("hole", input.m_nHole, CBoltCase2017::kNotSaid, 3);
  if (input.m_nType == kOrdinaryBolt) {
    DiameterFault(input.m_nD, ThreadDiameters(), faults);
  } else {  // either grade has the same diameters
    gb2017::Take(Preload(gb2017::kEdition, CBoltGrade::G109, input.m_nD), "d", faults);
  }
  faults.Positive("t", input.m_dThick, "mm");
  if (input.m_nType == kFrictionBolt) {
    faults.Within("nf", input.m_nNf, 1, 100);
  } else {
    faults.Within("nv", input.m_nNv, 1, 100);
    faults.Positive("sumT", input.m_dSumT, "mm");
  }
  if (input.m_nType == kOrdinaryBolt) faults.Within("class", input.m_nClass, 0, 2);
}

// 11.5.1: oversize holes and slots are for friction type alone.
void HoleKindFaults(const CBoltCase2017& input, CFaultList& faults) {
  if (input.m_nHole == CBoltCase2017::kNotSaid) return;
  if (input.m_nType == kOrdinaryBolt) {
    faults.Add("hole", {"普通螺栓没有孔型", "ordinary bolts have no hole kinds"},
               {"请删去，或用高强度螺栓", "leave it out, or take high-strength bolts"});
  } else if (input.m_nType == kBearingBolt && input.m_nHole != 0) {
    const std::string hole = kHoleNames[input.m_nHole];
    faults.Add("hole",
               {hole + "：承压型连接采用标准圆孔（11.5.1 条）",
                hole + ": bearing type takes standard holes (11.5.1)"},
               {"请给 standard，或用摩擦型", "give standard, or take the friction type"});
  }
}

double Uniform(const CSpacing& spacing, std::size_t i) {
  return spacing.m_arrEach.empty() ? spacing.m_dUniform : spacing.m_arrEach[i];
}

void FillSpacings(const CSpacing& input, int count, std::vector<double>& spacings) {
  spacings.resize(static_cast<std::size_t>(count));
  for (std::size_t i = 0; i < spacings.size(); ++i) spacings[i] = Uniform(input, i);
}

auto MakeBoltInputKeys() {
  using C = CBoltCase2017;
  std::vector<CInputKey<C>> keys;
  for (const CInputKey<CBoltCase>& key : CBoltCheck::InputKeys()) {
    std::visit(
        [&](auto field) {
          keys.push_back({key.m_szKey, field, key.m_szUnit, key.m_name, key.m_choices});
        },
        key.m_field);
    if (std::string_view(key.m_szKey) == "steel") keys.back().m_choices = kGradeNames;
  }
  keys.push_back({"hole", &C::m_nHole, "", {"孔型", "hole"}, kHoleNames});
  keys.push_back({"edges", &C::m_nEdges, "", {"板边加工", "edges"}, kEdges});
  return keys;
}

auto MakeBoltResultKeys() {
  using R = CBoltResults2017;
  std::vector<CResultKey<R>> keys;
  for (const CResultKey<CBoltResults>& key : CBoltCheck::ResultKeys()) {
    std::visit(
        [&](auto field) {
          keys.push_back({key.m_szKey, field, key.m_szUnit, key.m_name, key.m_nKinds});
        },
        key.m_field);
  }
  keys.push_back({"fu", &R::m_dFu, "N/mm²", {"钢材抗拉强度 fu", "tensile strength fu"}});
  keys.push_back(
      {"k", &R::m_dHoleFactor, "", {"孔型系数 k", "hole factor k"}, 1U << kFrictionBolt});
  keys.push_back({"holeOut", &R::m_dHoleOut, "mm", {"截面上孔的削弱宽度", "hole in the section"}});
  keys.push_back({"passSpacing", &R::m_bSpacing, "", {"孔距和边距", "spacings and edges"}});
  return keys;
}

}  // namespace

std::span<const CInputKey<CBoltCase2017>> CBoltCheck2017::InputKeys() {
  static const auto kKeys = MakeBoltInputKeys();
  return kKeys;
}

std::span<const CResultKey<CBoltResults2017>> CBoltCheck2017::ResultKeys() {
  static const auto kKeys = MakeBoltResultKeys();
  return kKeys;
}

bool CBoltCheck2017::Run(const CBoltCase2017& input) {
  if (IsRefused(input)) return false;
  Compute(input);
  JudgeParts(input);
  Warn(Notes(input));
  return true;
}

bool CBoltCheck2017::IsRefused(const CBoltCase2017& input) {
  CFaultList faults;
  FieldFaults(input, faults);
  LoadFaults(input, faults);
  GroupFaults(input, faults);
  if (faults.IsEmpty()) GradeFaults(input, faults);
  if (faults.IsEmpty()) HoleKindFaults(input, faults);
  if (faults.IsEmpty()) LookUp(input, faults);
  if (faults.IsEmpty()) HoleFaults(input, m_trace.m_dHoleY, m_trace.m_dHoleX, faults);
  return Refused(faults.Take());
}

// Everything that the tables give, and the hole.
void CBoltCheck2017::LookUp(const CBoltCase2017& input, CFaultList& faults) {
  using gb2017::kEdition;
  using gb2017::Take;
  m_results = {};
  CBoltResults2017& r = m_results;
  const auto steel =
      Take(SteelStrengths(kEdition, SteelOf(input), input.m_dThick), "steel", faults);
  r.m_dF = steel.m_dF;
  r.m_dFu = steel.m_dFu.value_or(0);
  CHoleSize hole = {OrdinaryHole(input), OrdinaryHole(input)};
  if (input.m_nType != kOrdinaryBolt) {
    r.m_nP = static_cast<int>(Take(Preload(kEdition, GradeOf(input), input.m_nD), "d", faults));
    hole = Take(HoleSize(kEdition, HoleOf(input), input.m_nD), "d", faults);
  }
  if (input.m_nType == kFrictionBolt) {
    r.m_dMu = Take(SlipFactor(kEdition, input.m_nSurface, SteelOf(input)), "surface", faults);
    r.m_dHoleFactor = Take(HoleFactor(kEdition, JudgedHole(input)), "hole", faults);
  } else {
    const auto bolt = Take(BoltStrengths(kEdition, KindOf(input), GradeOf(input)), "grade", faults);
    r.m_dFt = bolt.m_dFt;
    r.m_dFv = bolt.m_dFv;
    r.m_dFc = Take(BearingStrength(kEdition, KindOf(input), SteelOf(input)), "steel", faults);
  }
  r.m_dD0 = hole.m_dWidth;
  r.m_dDe = EffectiveDiameter(input.m_nD);
  const CHoleRoom room = RoomOf(input, hole);
  m_trace.m_dRoomX = room.m_dY;
  m_trace.m_dRoomY = room.m_dX;
  m_trace.m_dHoleX = HoleDeduction(kEdition, m_trace.m_dRoomX, input.m_nD);
  m_trace.m_dHoleY = HoleDeduction(kEdition, m_trace.m_dRoomY, input.m_nD);
}

void CBoltCheck2017::Compute(const CBoltCase2017& input) {
  CBoltResults2017& r = m_results;
  FillSpacings(input.m_colSpace, input.m_nCols - 1, m_arrCol);
  FillSpacings(input.m_rowSpace, input.m_nRows - 1, m_arrRow);
  PlaceBolts(input.m_nLayout == 1, m_arrCol, m_arrRow, m_shape);
  const bool bFriction = input.m_nType == kFrictionBolt;
  const bool bThreads = HasThreadsInShear(input.m_nType, input.m_nThreads);
  const double shearDiameter = bThreads ? r.m_dDe : input.m_nD;
  const auto resistance =
      bFriction ? gb2017::FrictionResistance(r.m_dHoleFactor, input.m_nNf, r.m_dMu, r.m_nP)
                : gb2017::ShankResistance(input.m_nNv, shearDiameter, input.m_nD, r.m_dDe,
                                          input.m_dSumT, r.m_dFv, r.m_dFc, r.m_dFt);
  const gb2017::CBoltLoads loads = {input.m_dN, input.m_dVx, input.m_dVy, input.m_dM, input.m_dT};
  m_figures = gb2017::ForcesOnBolts(input.m_nType != kOrdinaryBolt, loads, m_shape);
  m_figures.m_bThreads = bThreads;
  m_figures.m_dShear = resistance.m_dShear;
  r.m_nBolts = m_shape.Bolts();
  r.m_dL1 = gb2017::JointLength(m_shape, loads);
  r.m_dBeta = gb2017::LongJointFactor(r.m_dL1, r.m_dD0);
  gb2017::Interaction(input.m_nType, resistance, r.m_dBeta, m_figures);
  r.m_dNvb = resistance.m_dShear;
  r.m_dNcb = resistance.m_dBearing;
  r.m_dNtb = resistance.m_dTension;
  r.m_dNv = m_figures.m_dNv;
  r.m_dNt = m_figures.m_dNt;
  r.m_dRatio = m_figures.m_dRatio;
  const CPlateHoles holes = {.m_bStaggered = input.m_nLayout == 1,
                             .m_nBolts = r.m_nBolts,
                             .m_arrCol = m_arrCol,
                             .m_arrRow = m_arrRow,
                             .m_dEx = input.m_dEx,
                             .m_dEy = input.m_dEy,
                             .m_dThick = input.m_dThick,
                             .m_bFriction = bFriction};
  m_figures.m_x = WorstSectionX(holes, input.m_dVx, m_trace.m_dHoleX);
  m_figures.m_y = WorstSectionY(holes, input.m_dVy, m_trace.m_dHoleY);
  r.m_dHoleOut = IsZero(input.m_dVx) ? m_trace.m_dHoleY : m_trace.m_dHoleX;
}

// 7.1.1: the net section against 0.7 fu, the gross one against f.
void CBoltCheck2017::JudgeParts(const CBoltCase2017& input) {
  CBoltResults2017& r = m_results;
  Judge({"螺栓受力相关公式", "bolt interaction"}, "interaction", m_figures.m_dRatio);
  if (input.m_nType != kFrictionBolt)
    Judge({"孔壁承压", "bearing"}, "bearing", m_figures.m_dNv / m_figures.m_dBearing);
  r.m_bForces = Pass();
  const auto judge = [&](const CTextLiteral& name, const char* key, const CPlateSection& section,
                         double& sigma) {
    const double net = section.m_dSigma / (0.7 * r.m_dFu);
    const double gross = section.m_dSigmaGross / r.m_dF;
    sigma = net >= gross ? section.m_dSigma : section.m_dSigmaGross;
    Judge(name, key, std::max(net, gross));
    return Parts().back().m_bPass;
  };
  r.m_bX = judge({"板件截面（Vx）", "section for Vx"}, "section-x", m_figures.m_x, r.m_dSigmaX);
  r.m_bY = judge({"板件截面（Vy）", "section for Vy"}, "section-y", m_figures.m_y, r.m_dSigmaY);
  // A torque pushes bolts along both axes.
  const bool bTorque = !IsZero(input.m_dT);
  const bool bRolled = input.m_nEdges == 1 && input.m_nType == kOrdinaryBolt;
  const auto limits = BoltSpacing(gb2017::kEdition, r.m_dD0, input.m_dThick,
                                  bRolled ? CEdgeCut::Rolled : CEdgeCut::Sheared);
  m_arrDetail.clear();
  gb2017::BoltDistances({.m_bStaggered = input.m_nLayout == 1,
                         .m_arrCol = m_arrCol,
                         .m_arrRow = m_arrRow,
                         .m_dEx = input.m_dEx,
                         .m_dEy = input.m_dEy,
                         .m_bForceX = bTorque || !IsZero(input.m_dVx),
                         .m_bForceY = bTorque || !IsZero(input.m_dVy)},
                        *limits, bRolled, m_arrDetail);
  r.m_bSpacing = true;
  for (const CDetail& detail : m_arrDetail) {
    JudgeDetail(detail.m_name, "spacing", detail.Utilisation());
    r.m_bSpacing = r.m_bSpacing && Parts().back().m_bPass;
  }
}

std::vector<CCaseWarning> CBoltCheck2017::Notes(const CBoltCase2017& input) const {
  std::vector<CCaseWarning> notes;
  gb2017::NoteOf(SteelStrengths(gb2017::kEdition, SteelOf(input), input.m_dThick), "steel", notes);
  NoteOfDetails(m_arrDetail, notes);
  if (input.m_dN < 0 && !IsZero(input.m_dN)) {
    notes.push_back({"N",
                     {"N < 0 为压力，由板件接触传递，未验算接触面；螺栓只验算其余内力。",
                      "N below 0 presses the plates together: contact carries it, which is not "
                      "checked; the bolts are checked for what remains."}});
  }
  if (JudgedHole(input) != HoleOf(input)) {
    notes.push_back({"hole",
                     {"有扭矩或两向剪力时螺栓也沿槽孔长向受力，按 k = 0.6 验算（11.4.2 条）。",
                      "Under a torque or two shears bolts bear along their slots too: judged by "
                      "k = 0.6 (11.4.2)."}});
  }
  return notes;
}

}  // namespace orv3
