#include "connections/weld_group/group_case.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "codes/weld_strength.h"
#include "connections/cases/case_rules.h"
#include "connections/check_math.h"
#include "connections/gb2017/code_figures.h"
#include "connections/gb2017/fillet_size.h"
#include "connections/gb2017/notes.h"
#include "connections/weld_group/weld_lines.h"
#include "framework/elementary.h"
#include "framework/plain_number.h"
#include "reports/fault_list.h"

namespace orv3 {
namespace {

constexpr std::size_t kNumbers = 5;  // of one weld
constexpr std::size_t kMostWelds = 10000;
constexpr const char* kJoints[] = {"lap"};

std::vector<CWeldLine> WeldsOf(const CWeldGroupCase& input) {
  std::vector<CWeldLine> welds;
  for (std::size_t i = 0; i + kNumbers <= input.m_arrWeld.size(); i += kNumbers) {
    const double* each = &input.m_arrWeld[i];
    welds.push_back({each[0], each[1], each[2], each[3], each[4]});
  }
  return welds;
}

// The throat of a stretch that is given twice would count twice.
void OverlapFault(const std::vector<CWeldLine>& welds, CFaultList& faults) {
  const auto close = WeldsTooClose(welds);
  if (!close) return;
  const std::string a = std::to_string(close->first + 1);
  const std::string b = std::to_string(close->second + 1);
  faults.Add(
      "welds",
      {"第 " + a + " 条与第 " + b + " 条焊缝重叠，或并列而相距不足较小焊脚的 1/1.2，重叠处会计两次",
       "welds " + a + " and " + b +
           " lie on one another, or side by side nearer than the smaller leg over 1.2, and would "
           "count twice there"},
      {"请只给一次", "give each stretch of weld once"});
}

void WeldFaults(const CWeldGroupCase& input, CFaultList& faults) {
  const std::size_t count = input.m_arrWeld.size();
  if (count == 0 || count % kNumbers != 0) {
    const std::string is = std::to_string(count);
    faults.Add("welds", {"有 " + is + " 个数", is + " numbers are given"},
               {"请给每条焊缝的 x1、y1、x2、y2、hf", "give x1, y1, x2, y2 and hf of each weld"});
    return;
  }
  if (count / kNumbers > kMostWelds) {
    faults.Add("welds", {"焊缝多于 10000 条", "the group has more than 10000 welds"},
               {"请减少焊缝", "give fewer"});
    return;
  }
  const std::vector<CWeldLine> welds = WeldsOf(input);
  for (std::size_t i = 0; i < welds.size(); ++i) {
    const std::string which = std::to_string(i + 1);
    const double length = welds[i].Length();
    if (!(length > 0) || !std::isfinite(length)) {
      faults.Add("welds", {"第 " + which + " 条没有长度", "weld " + which + " has no length"},
                 {"请给不同的两端", "give two different ends"});
    } else if (!(welds[i].m_dHf > 0) || !std::isfinite(welds[i].m_dHf)) {
      const std::string hf = PlainNumber(welds[i].m_dHf);
      faults.Add("welds",
                 {"第 " + which + " 条的 hf = " + hf + " 不可用",
                  "hf = " + hf + " of weld " + which + " is not possible"},
                 {"请给大于 0 mm", "give more than 0 mm"});
    }
    if (!faults.IsEmpty()) return;
  }
  OverlapFault(welds, faults);
}

void FieldFaults(const CWeldGroupCase& input, CFaultList& faults) {
  faults.Within("steel", input.m_nSteel, 0, gb2017::kLastSteel);
  faults.Within("electrode", input.m_nElectrode, -1, 3);
  faults.Within("joint", input.m_nJoint, -1, 0);
  faults.Finite("N", input.m_dN);
  faults.Finite("Vx", input.m_dVx);
  faults.Finite("Vy", input.m_dVy);
  faults.Finite("M", input.m_dM);
  faults.Finite("T", input.m_dT);
  faults.Finite("x", input.m_dX);
  faults.Finite("y", input.m_dY);
  if (IsZero(input.m_dN) && IsZero(input.m_dVx) && IsZero(input.m_dVy) && IsZero(input.m_dM) &&
      IsZero(input.m_dT)) {
    NoLoadFault("Vx", faults);
  }
  if (input.m_dBetaF != 1 && input.m_dBetaF != 1.22) {
    faults.NotPossible(
        "betaF", PlainNumber(input.m_dBetaF),
        {"请给 1.22（静力荷载）或 1（动力荷载）", "give 1.22 (static loads) or 1 (dynamic loads)"});
  }
}

}  // namespace

std::span<const CInputKey<CWeldGroupCase>> CWeldGroupCheck::InputKeys() {
  using C = CWeldGroupCase;
  static const CInputKey<C> kKeys[] = {
      {"id", &C::m_strId, "", {"编号", "name of the case"}},
      {"welds", &C::m_arrWeld, "mm", {"焊缝", "welds"}},
      {"steel", &C::m_nSteel, "", {"钢材", "steel"}, kGradeNames},
      {"electrode", &C::m_nElectrode, "", {"焊条型号", "electrode"}, kElectrodeNames},
      {"joint", &C::m_nJoint, "", {"连接形式", "joint"}, kJoints},
      {"betaF", &C::m_dBetaF, "", {"强度增大系数 βf", "strength increase factor βf"}},
      {"N", &C::m_dN, "kN", {"垂直于焊缝平面的拉力 N", "tension out of the plane N"}},
      {"Vx", &C::m_dVx, "kN", {"x 向剪力 Vx", "shear along x, Vx"}},
      {"Vy", &C::m_dVy, "kN", {"y 向剪力 Vy", "shear along y, Vy"}},
      {"M", &C::m_dM, "kN·mm", {"弯矩 M", "bending moment M"}},
      {"T", &C::m_dT, "kN·mm", {"扭矩 T", "torque T"}},
      {"x", &C::m_dX, "mm", {"荷载作用点 x", "loads act at x"}},
      {"y", &C::m_dY, "mm", {"荷载作用点 y", "loads act at y"}},
  };
  return kKeys;
}

std::span<const CResultKey<CWeldGroupResults>> CWeldGroupCheck::ResultKeys() {
  using R = CWeldGroupResults;
  static const CResultKey<R> kKeys[] = {
      {"A", &R::m_dA, "mm²", {"焊缝计算面积 A", "throat area A"}},
      {"xc", &R::m_dXc, "mm", {"形心 xc", "centroid xc"}},
      {"yc", &R::m_dYc, "mm", {"形心 yc", "centroid yc"}},
      {"Ix", &R::m_dIx, "mm⁴", {"惯性矩 Ix", "moment of inertia Ix"}},
      {"Iy", &R::m_dIy, "mm⁴", {"惯性矩 Iy", "moment of inertia Iy"}},
      {"Ixy", &R::m_dIxy, "mm⁴", {"惯性积 Ixy", "product of inertia Ixy"}},
      {"J", &R::m_dJ, "mm⁴", {"极惯性矩 J", "polar moment J"}},
      {"Mx", &R::m_dMx, "kN·mm", {"形心处弯矩（随 y）", "moment at the centroid, by y"}},
      {"My", &R::m_dMy, "kN·mm", {"形心处弯矩（随 x）", "moment at the centroid, by x"}},
      {"Tc", &R::m_dTorque, "kN·mm", {"形心处扭矩", "torque at the centroid"}},
      {"weld", &R::m_nWeld, "", {"受力最大点所在焊缝", "most stressed weld"}},
      {"x", &R::m_dX, "mm", {"受力最大点 x", "most stressed point x"}},
      {"y", &R::m_dY, "mm", {"受力最大点 y", "most stressed point y"}},
      {"tau", &R::m_dTau, "N/mm²", {"剪应力 τf", "stress along the weld τf"}},
      {"sigma", &R::m_dAcross, "N/mm²", {"平面内正应力 σf", "stress across, in the plane"}},
      {"sigmaN", &R::m_dOut, "N/mm²", {"平面外正应力", "stress out of the plane"}},
      {"combined", &R::m_dCombined, "N/mm²", {"综合应力", "combined stress"}},
      {"ffw", &R::m_dFfw, "N/mm²", {"焊缝强度 ffw", "weld strength ffw"}},
      {"alphaf", &R::m_dAlphaF, "", {"长焊缝折减系数 αf", "long-weld factor αf"}},
      {"okCombined", &R::m_bCombined, "", {"综合应力", "combined stress"}},
      {"okSize", &R::m_bSize, "", {"焊缝尺寸", "sizes of the welds"}},
  };
  return kKeys;
}

bool CWeldGroupCheck::IsRefused(const CWeldGroupCase& input) {
  CFaultList faults;
  WeldFaults(input, faults);
  FieldFaults(input, faults);
  m_results = {};
  if (!faults.IsEmpty()) return Refused(faults.Take());
  std::optional<CElectrode> electrode;
  if (input.m_nElectrode >= 0) electrode = static_cast<CElectrode>(input.m_nElectrode);
  const auto steel = static_cast<CSteelGrade>(input.m_nSteel);
  const auto strength = FilletWeldStrength(m_nEdition, steel, electrode);
  const bool bSteel = ElectrodesOf(m_nEdition, steel).empty();
  m_results.m_dFfw = gb2017::Take(strength, bSteel ? "steel" : "electrode", faults);
  m_arrWeld = WeldsOf(input);
  m_arrRun = RunLengths(m_arrWeld);
  m_sums = SumsOf(m_arrWeld);
  m_loads = AtCentroid(input, m_sums);
  if (!FindTension(m_loads, m_sums, m_tension)) {
    const std::string M = PlainNumber(Hypot(m_loads.m_dMx, m_loads.m_dMy) / 1000) + " kN·mm";
    faults.Add("M",
               {"焊缝在一直线上，对形心处的弯矩 " + M + "（含 N 的偏心）没有力臂",
                "the welds lie on one line, which has no lever arm for " + M +
                    " at the centroid (N's eccentricity included)"},
               {"请给不在一直线上的焊缝，或使 N 过焊缝线、M 为 0",
                "give welds off that line, or N on it and no M"});
  }
  return Refused(faults.Take());
}

// For the length of the whole run: 11.2.6 of 2017; 8.2.7 of 2003, which counts 60 hf of it.
double CWeldGroupCheck::Reduction(const CWeldGroupCase& input, std::size_t weld) const noexcept {
  const double hf = m_arrWeld[weld].m_dHf;
  if (m_nEdition == CCodeEdition::Gb2003) return std::min(1.0, 60 * hf / m_arrRun[weld]);
  return input.m_nJoint == 0 ? gb2017::LapFactor(m_arrRun[weld], hf) : 1;
}

void CWeldGroupCheck::FindWorst(const CWeldGroupCase& input) {
  const auto points = WeldPoints(m_arrWeld, m_loads, m_sums, m_tension, input.m_dBetaF);
  double worst = -1;
  for (const CWeldPoint& point : points) {
    const double factor = Reduction(input, static_cast<std::size_t>(point.m_nWeld));
    if (point.m_dCombined / factor <= worst * (1 + 1e-12)) continue;
    worst = point.m_dCombined / factor;
    m_worst = point;
    m_results.m_dAlphaF = factor;
  }
}

// 11.3.5 (2003: 8.2.7), of the run of welds that comes nearest to each limit.
void CWeldGroupCheck::FindDetails() {
  const bool b2017 = m_nEdition == CCodeEdition::Gb2017;
  m_arrDetail.clear();
  CDetail least = {{"焊缝最小长度", "weld length, least"},
                   "welds",
                   b2017 ? "11.3.5" : "8.2.7",
                   "l_w",
                   "\\max(8 h_f, 40)",
                   1,
                   0,
                   false};
  CDetail leg = {{"最小焊脚", "leg, least"}, "welds", "T 11.3.5", "h_f", "h_{f,min}", HUGE_VAL,
                 gb2017::LeastLeg(0),        false};
  const auto worse = [](CDetail& detail, double size, double limit) {
    CDetail each = detail;
    each.m_dSize = size;
    each.m_dLimit = limit;
    if (each.Utilisation() > detail.Utilisation()) detail = each;
  };
  for (std::size_t i = 0; i < m_arrWeld.size(); ++i) {
    const double hf = m_arrWeld[i].m_dHf;
    worse(least, m_arrRun[i], std::max(8 * hf, 40.0));
    worse(leg, hf, leg.m_dLimit);
  }
  m_arrDetail.push_back(least);
  if (b2017) m_arrDetail.push_back(leg);
}

std::vector<CCaseWarning> CWeldGroupCheck::Notes(const CWeldGroupCase& input) const {
  std::vector<CCaseWarning> notes;
  const auto steel = static_cast<CSteelGrade>(input.m_nSteel);
  gb2017::NoteOf(FilletWeldStrength(m_nEdition, steel), "steel", notes);
  NoteOfDetails(m_arrDetail, notes);
  if (m_nEdition == CCodeEdition::Gb2003 && m_results.m_dAlphaF < 1) {
    const std::string run = PlainNumber(WorstRun()) + " mm";
    const std::string factor = PlainNumber(m_results.m_dAlphaF);
    notes.push_back(
        {"welds",
         {"焊缝长 " + run + "，超过 60 hf 的部分不计（8.2.7 条）：强度乘以 " + factor + " 验算。",
          "Of a weld of " + run + " 60 hf count (8.2.7): judged by " + factor +
              " of its strength."}});
  }
  if (m_nEdition == CCodeEdition::Gb2017) {
    const auto [least, most] = std::minmax_element(
        m_arrWeld.begin(), m_arrWeld.end(),
        [](const CWeldLine& a, const CWeldLine& b) { return a.m_dHf < b.m_dHf; });
    gb2017::NoteOfUnknownParts({"welds", least->m_dHf, most->m_dHf, input.m_nJoint == 0},
                               {"焊件厚度未验算", "the parts' thicknesses are not checked"}, notes);
  }
  return notes;
}

bool CWeldGroupCheck::Run(const CWeldGroupCase& input) {
  if (IsRefused(input)) return false;
  FindWorst(input);
  CWeldGroupResults& r = m_results;
  r.m_dA = m_sums.m_dA;
  r.m_dXc = m_sums.m_dXc;
  r.m_dYc = m_sums.m_dYc;
  r.m_dIx = m_sums.m_dIx;
  r.m_dIy = m_sums.m_dIy;
  r.m_dIxy = m_sums.m_dIxy;
  r.m_dJ = m_sums.J();
  r.m_dMx = m_loads.m_dMx / 1000;
  r.m_dMy = m_loads.m_dMy / 1000;
  r.m_dTorque = m_loads.m_dT / 1000;
  r.m_nWeld = m_worst.m_nWeld + 1;
  r.m_dX = m_worst.m_dX;
  r.m_dY = m_worst.m_dY;
  r.m_dTau = m_worst.m_dAlong;
  r.m_dAcross = m_worst.m_dAcross;
  r.m_dOut = m_worst.m_dOut;
  r.m_dCombined = m_worst.m_dCombined;
  Judge({"综合应力", "combined stress"}, "combined", r.m_dCombined / (r.m_dAlphaF * r.m_dFfw));
  r.m_bCombined = Pass();
  FindDetails();
  r.m_bSize = true;
  for (const CDetail& detail : m_arrDetail) {
    JudgeDetail(detail.m_name, "size", detail.Utilisation());
    r.m_bSize = r.m_bSize && Parts().back().m_bPass;
  }
  Warn(Notes(input));
  return true;
}

}  // namespace orv3
