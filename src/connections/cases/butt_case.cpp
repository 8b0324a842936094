#include <algorithm>
#include <cmath>

#include "catalogue/code_tables/thickness_group.h"
#include "connections/cases/case_rules.h"
#include "connections/cases/weld_case.h"

namespace orv3 {
namespace {

constexpr CTextLiteral kReduced = {"取两侧边缘中较大者", "the greater of both edges"};
constexpr CTextLiteral kBothEdges = {
    "M 使一侧边缘受拉、另一侧受压，N 与 M 取同号相加",
    "M pulls one edge and presses the other, so N and M add at one of them"};

std::vector<CCaseWarning> ButtWarnings(const CButtResults& r, const CWeldFigures& judged) {
  std::vector<CCaseWarning> warnings;
  const double sigma = std::fabs(r.m_dSigma);
  const double greatest = std::max(judged.m_dTension, judged.m_dCompression);
  WarnOfOther("M", {"正应力", "normal stress"}, sigma, greatest, kBothEdges, warnings);
  if (judged.m_bShear) {
    WarnOfOther("M", {"折算应力", "reduced stress"}, r.m_dReduced, judged.m_dCombined, kReduced,
                warnings);
  }
  // The record's limit is the larger of both strengths.
  if (judged.m_dTension > r.m_dFtw && r.m_bSigma) {
    const std::string tension = PlainNumber(judged.m_dTension);
    const std::string ftw = PlainNumber(r.m_dFtw);
    const std::string fcw = PlainNumber(r.m_dFcw);
    warnings.push_back({"quality",
                        {"受拉边缘 " + tension + " N/mm² 按 ftw = " + ftw +
                             " N/mm² 验算，不以 fcw = " + fcw + " N/mm² 为限。",
                         "The pulled edge, " + tension + " N/mm², is judged by ftw = " + ftw +
                             " N/mm²; the record's limit is fcw = " + fcw + " N/mm²."}});
  }
  return warnings;
}

WQWeldingData Record(const CButtCase& input) {
  WQWeldingData weld;
  weld.m_nLoadCase = input.m_nLoadCase;
  weld.m_dLw = input.m_dLw;
  weld.m_dT = input.m_dThick;
  weld.m_dN = input.m_dN;
  weld.m_dM = input.m_dM;
  weld.m_dV = input.m_dV;
  weld.m_nQuality = input.m_nQuality == 3 ? 3 : 1;  // grades one and two share their strengths
  weld.m_nSteel = input.m_nSteel;
  return weld;
}

}  // namespace

std::span<const CInputKey<CButtCase>> CButtCheck::InputKeys() {
  using C = CButtCase;
  static const CInputKey<C> kKeys[] = {
      {"id", &C::m_strId, "", {"编号", "name of the case"}},
      {"case", &C::m_nLoadCase, "", {"工况", "load case"}},
      {"steel", &C::m_nSteel, "", {"钢材", "steel"}, kSteels},
      {"quality", &C::m_nQuality, "", {"焊缝质量等级", "quality grade"}},
      {"lw", &C::m_dLw, "mm", {"焊缝计算长度 lw", "effective length lw"}},
      {"t", &C::m_dThick, "mm", {"板厚 t", "plate thickness t"}},
      {"N", &C::m_dN, "kN", {"轴力 N", "axial force N"}},
      {"M", &C::m_dM, "kN·mm", {"弯矩 M", "moment M"}},
      {"V", &C::m_dV, "kN", {"剪力 V", "shear V"}},
  };
  return kKeys;
}

std::span<const CResultKey<CButtResults>> CButtCheck::ResultKeys() {
  using R = CButtResults;
  static const CResultKey<R> kKeys[] = {
      {"ftw", &R::m_dFtw, "N/mm²", {"抗拉强度 ftw", "tensile strength ftw"}},
      {"fcw", &R::m_dFcw, "N/mm²", {"抗压强度 fcw", "compressive strength fcw"}},
      {"fvw", &R::m_dFvw, "N/mm²", {"抗剪强度 fvw", "shear strength fvw"}},
      {"W", &R::m_dW, "mm³", {"截面模量 W", "section modulus W"}},
      {"sigma", &R::m_dSigma, "N/mm²", {"正应力 σ", "normal stress σ"}},
      {"tau", &R::m_dTau, "N/mm²", {"剪应力 τ", "shear stress τ"}},
      {"reduced", &R::m_dReduced, "N/mm²", {"折算应力", "reduced stress"}},
      {"okSigma", &R::m_bSigma, "", {"正应力", "normal stress"}},
      {"okTau", &R::m_bTau, "", {"剪应力", "shear stress"}},
      {"okReduced", &R::m_bReduced, "", {"折算应力", "reduced stress"}},
  };
  return kKeys;
}

void ButtFieldFaults(const CButtCase& input, CFaultList& faults) {
  faults.Within("case", input.m_nLoadCase, 0, 5);
  faults.Within("quality", input.m_nQuality, 1, 3);
  faults.Positive("lw", input.m_dLw, "mm");
  faults.Positive("t", input.m_dThick, "mm");
  faults.Finite("N", input.m_dN);
  faults.Finite("M", input.m_dM);
  faults.Finite("V", input.m_dV);
  DroppedLoadFaults(input.m_nLoadCase, input.m_dN, input.m_dM, input.m_dV, faults);
}

std::vector<CCaseFault> ButtFaults(const CButtCase& input) {
  CFaultList faults;
  faults.Within("steel", input.m_nSteel, 0, 3);
  if (input.m_dThick > kThickestPlate) TooThick("t", input.m_dThick, "3.4.1-3", faults);
  ButtFieldFaults(input, faults);
  return faults.Take();
}

bool CButtCheck::Run(const CButtCase& input) {
  if (Refused(ButtFaults(input))) return false;
  WQWeldingData weld = Record(input);
  int okSigma = 0;
  int okTau = 0;
  int okReduced = 0;
  weld.JugeStress(okSigma, okTau, okReduced);
  m_results = {1000 * weld.m_dFtw,   1000 * weld.m_dFcw, 1000 * weld.m_dFvw,     weld.m_dW,
               1000 * weld.m_dSigma, 1000 * weld.m_dTau, 1000 * weld.m_dReduced, okSigma == 1,
               okTau == 1,           okReduced == 1};
  const CButtResults& r = m_results;
  const CWeldFigures j = m_figures = JudgedFigures(input, r);
  Judge({"正应力 σ", "normal stress σ"}, "sigma", j.Across() / j.AcrossLimit());
  if (j.m_bShear) {
    Judge({"剪应力 τ", "shear stress τ"}, "tau", j.m_dTau / j.m_dTauLimit);
    Judge({"折算应力", "reduced stress"}, "reduced", j.m_dCombined / j.m_dCombinedLimit,
          j.m_dCombined < j.m_dCombinedLimit);
  }
  Warn(ButtWarnings(r, j));
  return true;
}

}  // namespace orv3
