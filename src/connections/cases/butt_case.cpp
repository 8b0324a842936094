#include <algorithm>
#include <cmath>

#include "connections/cases/case_rules.h"
#include "connections/cases/weld_case.h"

namespace orv3 {
namespace {

void StrengthWarnings(const CButtCase& input, const CButtResults& results,
                      std::vector<CCaseWarning>& warnings) {
  if (results.m_dSigma > results.m_dFtw && results.m_bSigma) {
    warnings.push_back({"quality",
                        {"三级焊缝的拉应力大于 ftw，但验算以 ftw 与 fcw 之大者为限，偏于不安全。",
                         "The tensile stress is above ftw of grade three, but the check's limit is "
                         "the larger of ftw and fcw, which is on the unsafe side."}});
  }
  if (input.m_dThick > 100) {
    warnings.push_back({"t",
                        {"表 3.4.1-3 止于 100 mm；强度按最厚一组取值，偏于不安全。",
                         "Table 3.4.1-3 ends at 100 mm; the strengths are those of the thickest "
                         "group, which is on the unsafe side."}});
  }
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

std::vector<CCaseFault> ButtFaults(const CButtCase& input) {
  CFaultList faults;
  faults.Within("case", input.m_nLoadCase, 0, 5);
  faults.Within("steel", input.m_nSteel, 0, 3);
  faults.Within("quality", input.m_nQuality, 1, 3);
  faults.Positive("lw", input.m_dLw, "mm");
  faults.Positive("t", input.m_dThick, "mm");
  faults.Finite("N", input.m_dN);
  faults.Finite("M", input.m_dM);
  faults.Finite("V", input.m_dV);
  return faults.Take();
}

bool CButtCheck::Run(const CButtCase& input) {
  if (Refused(ButtFaults(input))) return false;
  WQWeldingData weld = Record(input);
  int okSigma = 0;
  int okTau = 0;
  int okReduced = 0;
  m_bPass = weld.JugeStress(okSigma, okTau, okReduced) == 1;
  m_results = {1000 * weld.m_dFtw,   1000 * weld.m_dFcw, 1000 * weld.m_dFvw,     weld.m_dW,
               1000 * weld.m_dSigma, 1000 * weld.m_dTau, 1000 * weld.m_dReduced, okSigma == 1,
               okTau == 1,           okReduced == 1};
  const CButtResults& r = m_results;
  m_arrPart.push_back({{"正应力 σ", "normal stress σ"},
                       "okSigma",
                       std::fabs(r.m_dSigma) / std::max(r.m_dFtw, r.m_dFcw),
                       r.m_bSigma});
  if (TakesV(input.m_nLoadCase)) {
    m_arrPart.push_back(
        {{"剪应力 τ", "shear stress τ"}, "okTau", std::fabs(r.m_dTau) / r.m_dFvw, r.m_bTau});
    m_arrPart.push_back({{"折算应力", "reduced stress"},
                         "okReduced",
                         r.m_dReduced / (1.1 * r.m_dFtw),
                         r.m_bReduced});
  }
  WarnOfWeldLoads(input.m_nLoadCase, input.m_dN, input.m_dM, input.m_dV, m_arrWarning);
  StrengthWarnings(input, r, m_arrWarning);
  return true;
}

}  // namespace orv3
