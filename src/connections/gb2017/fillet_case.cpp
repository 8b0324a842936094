#include <algorithm>
#include <cmath>

#include "codes/weld_strength.h"
#include "connections/cases/case_rules.h"
#include "connections/gb2017/bolt_case.h"
#include "connections/gb2017/code_figures.h"
#include "connections/gb2017/fillet_size.h"
#include "connections/gb2017/notes.h"
#include "connections/gb2017/weld_case.h"

namespace orv3 {
namespace {

constexpr const char* kJoints[] = {"lap"};

CSteelGrade SteelOf(const CFilletCase2017& input) noexcept {
  return static_cast<CSteelGrade>(input.m_nSteel);
}

bool IsLap(const CFilletCase2017& input) noexcept { return input.m_nJoint == 0; }

// Below 40 degrees they are refused by either edition.
void GrooveFaults(const CFilletCase2017& input, CFaultList& faults) {
  if (input.m_dS == 0 || (input.m_nGroove != 1 && input.m_nGroove != 2) || input.m_dAngle <= 50)
    return;
  const std::string is = PlainNumber(input.m_dAngle) + "°";
  faults.Add("angle",
             {is + "：11.2.4 条单边 V 形和 K 形坡口的计算厚度 he = s − 3 适用于 45° ± 5°",
              is + ": 11.2.4 gives he = s − 3 of bevel and K grooves for 45° ± 5°"},
             {"请给 40° 至 50°，或直接给 he", "give 40° to 50°, or the throat he"});
}

// No weld is thicker than what it joins.
void DepthFault(const CFilletCase2017& input, CFaultList& faults) {
  const double thin = std::min(input.m_dT1, input.m_dT2);
  const double depth = input.m_dS != 0 ? input.m_dS : gb2017::Throat(input);
  if (depth <= thin) return;
  const char* key = input.m_dS != 0 ? "s" : input.m_dHf != 0 ? "hf" : "he";
  const CComparedText text = Compared(depth, thin);
  const std::string is = text.m_strEffect + " mm";
  const std::string most = text.m_strLimit + " mm";
  const bool bLeg = input.m_dHf != 0;
  faults.Add(key,
             {(bLeg ? "计算厚度 " : "") + is + " 大于较薄焊件的厚度 " + most,
              (bLeg ? "a throat of " : "") + is + " is more than the thinner part, " + most},
             {"请给不大于 " + most + (bLeg ? " 的计算厚度" : ""),
              "give " + std::string(bLeg ? "a leg whose throat is " : "") + "at most " + most});
}

void JointFaults(const CFilletCase2017& input, CFaultList& faults) {
  faults.Within("joint", input.m_nJoint, -1, 0);
  if (IsLap(input) && input.m_dHf == 0) {
    faults.Add("hf",
               {"搭接未给焊脚尺寸（11.2.6 条按 60 hf 折减）",
                "is missing in a lap joint, which 11.2.6 measures by 60 hf"},
               {"请给 hf 与 angle", "give hf and angle"});
  }
  if (input.m_dT1 == 0 && input.m_dT2 == 0) return;
  const auto part = [&](const char* key, double t) {
    if (t != 0) return faults.Positive(key, t, "mm");
    faults.Add(key, {"未给", "is missing"},
               {"请同时给 t1 与 t2，或都不给", "give both t1 and t2, or neither"});
  };
  part("t1", input.m_dT1);
  part("t2", input.m_dT2);
  if (faults.IsEmpty()) DepthFault(input, faults);
}

auto MakeFilletInputKeys() {
  using C = CFilletCase2017;
  std::vector<CInputKey<C>> keys;
  for (const CInputKey<CFilletCase>& key : CFilletCheck::InputKeys()) {
    std::visit(
        [&](auto field) {
          keys.push_back({key.m_szKey, field, key.m_szUnit, key.m_name, key.m_choices});
        },
        key.m_field);
    if (std::string_view(key.m_szKey) == "steel") keys.back().m_choices = kGradeNames;
  }
  keys.push_back({"electrode", &C::m_nElectrode, "", {"焊条型号", "electrode"}, kElectrodeNames});
  keys.push_back({"joint", &C::m_nJoint, "", {"连接形式", "joint"}, kJoints});
  keys.push_back({"t1", &C::m_dT1, "mm", {"焊件厚度 t1（搭接焊缝所沿棱边）", "part t1"}});
  keys.push_back({"t2", &C::m_dT2, "mm", {"另一焊件厚度 t2", "part t2"}});
  return keys;
}

auto MakeFilletResultKeys() {
  using R = CFilletResults2017;
  std::vector<CResultKey<R>> keys;
  for (const CResultKey<CFilletResults>& key : CFilletCheck::ResultKeys()) {
    std::visit(
        [&](auto field) {
          keys.push_back({key.m_szKey, field, key.m_szUnit, key.m_name, key.m_nKinds});
        },
        key.m_field);
  }
  keys.push_back({"alphaf", &R::m_dAlphaF, "", {"长焊缝折减系数 αf", "long-weld factor αf"}});
  keys.push_back({"okSize", &R::m_bSize, "", {"焊缝尺寸", "sizes of the weld"}});
  return keys;
}

}  // namespace

std::span<const CInputKey<CFilletCase2017>> CFilletCheck2017::InputKeys() {
  static const auto kKeys = MakeFilletInputKeys();
  return kKeys;
}

std::span<const CResultKey<CFilletResults2017>> CFilletCheck2017::ResultKeys() {
  static const auto kKeys = MakeFilletResultKeys();
  return kKeys;
}

bool CFilletCheck2017::IsRefused(const CFilletCase2017& input) {
  CFaultList faults;
  FilletFieldFaults(input, kFilletClauses2017, faults);
  faults.Within("steel", input.m_nSteel, 0, gb2017::kLastSteel);
  faults.Within("electrode", input.m_nElectrode, -1, 3);
  GrooveFaults(input, faults);
  JointFaults(input, faults);
  m_results = {};
  if (faults.IsEmpty()) {
    std::optional<CElectrode> electrode;
    if (input.m_nElectrode >= 0) electrode = static_cast<CElectrode>(input.m_nElectrode);
    m_results.m_dFfw = gb2017::Take(FilletWeldStrength(gb2017::kEdition, SteelOf(input), electrode),
                                    "electrode", faults);
  }
  return Refused(faults.Take());
}

bool CFilletCheck2017::Run(const CFilletCase2017& input) {
  if (IsRefused(input)) return false;
  CFilletResults2017& r = m_results;
  r.m_dHe = gb2017::Throat(input);
  r.m_dW = r.m_dHe * input.m_dLw * input.m_dLw / 6;
  if (IsLap(input)) r.m_dAlphaF = gb2017::LapFactor(input.m_dLw, input.m_dHf);
  m_figures = FilletFigures(input, {r.m_dHe, r.m_dW, r.m_dAlphaF * r.m_dFfw, input.m_dLw});
  r.m_dSigma = m_figures.m_dSigma;
  r.m_dTau = m_figures.m_dTau;
  r.m_dCombined = m_figures.m_dCombined;
  gb2017::FilletDetails(input, m_arrDetail);
  JudgeParts();
  Warn(Notes(input));
  return true;
}

void CFilletCheck2017::JudgeParts() {
  const CWeldFigures& j = m_figures;
  CFilletResults2017& r = m_results;
  const auto judge = [&](CTextLiteral name, const char* key, double effect, double limit) {
    Judge(name, key, effect / limit);
    return Parts().back().m_bPass;
  };
  r.m_bTau = r.m_bCombined = true;
  r.m_bSigma = judge({"正应力 σf", "stress across, σf"}, "sigma", j.Across(), j.AcrossLimit());
  if (j.m_bShear) {
    r.m_bTau = judge({"剪应力 τf", "stress along, τf"}, "tau", j.m_dTau, j.m_dTauLimit);
    r.m_bCombined =
        judge({"综合应力", "combined stress"}, "combined", j.m_dCombined, j.m_dCombinedLimit);
  }
  r.m_bSize = true;
  for (const CDetail& detail : m_arrDetail) {
    JudgeDetail(detail.m_name, "size", detail.Utilisation());
    r.m_bSize = r.m_bSize && Parts().back().m_bPass;
  }
}

std::vector<CCaseWarning> CFilletCheck2017::Notes(const CFilletCase2017& input) const {
  std::vector<CCaseWarning> notes;
  gb2017::NoteOf(FilletWeldStrength(gb2017::kEdition, SteelOf(input)), "steel", notes);
  gb2017::NoteOfEdge(m_figures, notes);
  WarnOfBeta(input, m_figures, kFilletClauses2017, notes);
  if (input.m_dS != 0 && m_figures.m_bShear && IsShortFusion(input.m_nGroove)) {
    notes.push_back({"groove",
                     {"熔合线处截面边长接近 s，抗剪强度按 0.9 ffw 验算（11.2.4 条）。",
                      "The line of fusion is about as short as s: the shear strength is judged as "
                      "0.9 ffw (11.2.4)."}});
  }
  NoteOfDetails(m_arrDetail, notes);
  if (input.m_dHf != 0 && input.m_dT1 == 0) {
    gb2017::NoteOfUnknownParts({"hf", input.m_dHf, input.m_dHf, IsLap(input)},
                               {"给出 t1 与 t2 即可验算", "give t1 and t2 to have it checked"},
                               notes);
  }
  if (input.m_dHf == 0 && input.m_dT1 == 0) {
    notes.push_back({input.m_dS != 0 ? "s" : "he",
                     {"焊件厚度未给出，未按其验算计算厚度；给出 t1 与 t2 即可验算。",
                      "The throat is not checked against the parts; give t1 and t2 to have it "
                      "checked."}});
  }
  return notes;
}

}  // namespace orv3
