#include <cmath>

#include "connections/cases/case_rules.h"
#include "connections/cases/weld_case.h"

namespace orv3 {
namespace {

void ThroatFaults(const CFilletCase& input, CFaultList& faults) {
  const int given = (input.m_dHe != 0) + (input.m_dHf != 0) + (input.m_dS != 0);
  if (given != 1) {
    const CText what = given == 0 ? CText{"未给计算厚度", "no throat is given"}
                                  : CText{"给了不止一种计算厚度", "more than one throat is given"};
    faults.Add("he", what,
               {"请给 he，或 hf 与 angle，或 s、angle 与 groove",
                "give he, or hf and angle, or s, angle and groove"});
    return;
  }
  if (input.m_dHe != 0) {
    faults.Positive("he", input.m_dHe, "mm");
    return;
  }
  if (!(input.m_dAngle > 0 && input.m_dAngle < 180)) {
    faults.NotPossible("angle", PlainNumber(input.m_dAngle),
                       {"请给 0° 与 180° 之间的角度", "give an angle between 0 and 180 degrees"});
  }
  if (input.m_dHf != 0) {
    faults.Positive("hf", input.m_dHf, "mm");
    return;
  }
  faults.Positive("s", input.m_dS, "mm");
  faults.Within("groove", input.m_nGroove, 0, 4);
  if ((input.m_nGroove == 1 || input.m_nGroove == 2) && input.m_dS <= 3) {
    const std::string s = PlainNumber(input.m_dS) + " mm";
    faults.Add("s",
               {s + " 对此坡口没有计算厚度（he = s - 3）",
                s + " leaves no throat with this groove (he = s - 3)"},
               {"请给大于 3 mm", "give more than 3 mm"});
  }
}

CCaseWarning BetaWarning(const char* szChinese, const char* szEnglish) {
  return {"betaF", {szChinese, szEnglish}};
}

void BetaWarnings(const CFilletCase& input, std::vector<CCaseWarning>& warnings) {
  if (input.m_dBetaF > 1.22) {
    warnings.push_back(
        BetaWarning("βf 大于 1.22，超出 7.1.3 条所给之值，偏于不安全。",
                    "βf is above 1.22, more than 7.1.3 gives, which is on the unsafe side."));
  } else if (input.m_dHf != 0 && input.m_dBetaF > 1 && std::fabs(input.m_dAngle - 90) > 1e-6) {
    warnings.push_back(BetaWarning("斜角角焊缝应取 βf = 1.0（7.1.4 条）。",
                                   "Fillet welds between inclined faces take βf = 1.0 (7.1.4)."));
  } else if (input.m_dS != 0 && input.m_dBetaF > 1) {
    warnings.push_back(BetaWarning(
        "部分焊透对接焊缝仅在垂直于焊缝受压时取 βf = 1.22，其他情况取 1.0（7.1.5 条）。",
        "Partial-penetration groove welds take βf = 1.22 only for compression across the weld, 1.0 "
        "otherwise (7.1.5)."));
  }
}

void DetailingWarnings(const CFilletCase& input, std::vector<CCaseWarning>& warnings) {
  const double least = std::max(40.0, 8 * input.m_dHf);
  const std::string lw = PlainNumber(input.m_dLw);
  if (input.m_dS == 0 && input.m_dLw < least) {
    warnings.push_back({"lw",
                        {"lw = " + lw + " mm，小于构造最小值 " + PlainNumber(least) +
                             " mm（8 hf 和 40 mm，8.2.7 条）。",
                         "lw = " + lw + " mm is below the detailing minimum " + PlainNumber(least) +
                             " mm (8 hf and 40 mm, 8.2.7)."}});
  }
  if (input.m_dHf != 0 && TakesV(input.m_nLoadCase) && input.m_dLw > 60 * input.m_dHf) {
    warnings.push_back({"lw",
                        {"lw = " + lw + " mm，大于 60 hf；侧面角焊缝超出部分不计（8.2.7 条）。",
                         "lw = " + lw +
                             " mm is above 60 hf; what is beyond does not count in a "
                             "side fillet weld (8.2.7)."}});
  }
  if (input.m_dHf != 0 && (input.m_dAngle < 60 || input.m_dAngle > 135)) {
    warnings.push_back({"angle",
                        {"夹角小于 60° 或大于 135° 的斜角角焊缝不宜用作受力焊缝（8.2.6 条）。",
                         "Fillet welds between faces at less than 60 or more than 135 degrees "
                         "should not carry load (8.2.6)."}});
  }
}

}  // namespace

const CTextLiteral kGrooveNames[5] = {
    {"V 形", "V"}, {"单边 V 形", "bevel"}, {"K 形", "K"}, {"U 形", "U"}, {"J 形", "J"},
};

std::span<const CInputKey<CFilletCase>> CFilletCheck::InputKeys() {
  using C = CFilletCase;
  static const CInputKey<C> kKeys[] = {
      {"id", &C::m_strId, "", {"编号", "name of the case"}},
      {"case", &C::m_nLoadCase, "", {"工况", "load case"}},
      {"steel", &C::m_nSteel, "", {"钢材", "steel"}, kSteels},
      {"lw", &C::m_dLw, "mm", {"焊缝计算长度 lw", "effective length lw"}},
      {"N", &C::m_dN, "kN", {"轴力 N", "axial force N"}},
      {"M", &C::m_dM, "kN·mm", {"弯矩 M", "moment M"}},
      {"V", &C::m_dV, "kN", {"剪力 V", "shear V"}},
      {"betaF", &C::m_dBetaF, "", {"强度增大系数 βf", "strength increase factor βf"}},
      {"he", &C::m_dHe, "mm", {"计算厚度 he", "effective throat he"}},
      {"hf", &C::m_dHf, "mm", {"焊脚尺寸 hf", "leg size hf"}},
      {"s", &C::m_dS, "mm", {"坡口深度 s", "groove depth s"}},
      {"angle", &C::m_dAngle, "°", {"夹角 α", "angle α"}},
      {"groove", &C::m_nGroove, "", {"坡口形式", "kind of groove"}},
  };
  return kKeys;
}

std::span<const CResultKey<CFilletResults>> CFilletCheck::ResultKeys() {
  using R = CFilletResults;
  static const CResultKey<R> kKeys[] = {
      {"he", &R::m_dHe, "mm", {"计算厚度 he", "effective throat he"}},
      {"W", &R::m_dW, "mm³", {"截面模量 W", "section modulus W"}},
      {"ffw", &R::m_dFfw, "N/mm²", {"焊缝强度 ffw", "weld strength ffw"}},
      {"sigma", &R::m_dSigma, "N/mm²", {"正应力 σf", "stress across the weld σf"}},
      {"tau", &R::m_dTau, "N/mm²", {"剪应力 τf", "stress along the weld τf"}},
      {"combined", &R::m_dCombined, "N/mm²", {"综合应力", "combined stress"}},
      {"okSigma", &R::m_bSigma, "", {"正应力", "stress across the weld"}},
      {"okTau", &R::m_bTau, "", {"剪应力", "stress along the weld"}},
      {"okCombined", &R::m_bCombined, "", {"综合应力", "combined stress"}},
  };
  return kKeys;
}

std::vector<CCaseFault> FilletFaults(const CFilletCase& input) {
  CFaultList faults;
  faults.Within("case", input.m_nLoadCase, 0, 5);
  faults.Within("steel", input.m_nSteel, 0, 3);
  faults.Positive("lw", input.m_dLw, "mm");
  faults.Finite("N", input.m_dN);
  faults.Finite("M", input.m_dM);
  faults.Finite("V", input.m_dV);
  faults.Positive("betaF", input.m_dBetaF, "(1.22 static, 1.0 dynamic)");
  ThroatFaults(input, faults);
  return faults.Take();
}

bool CFilletCheck::Run(const CFilletCase& input) {
  if (Refused(FilletFaults(input))) return false;
  AngleHanFData weld(0, input.m_nLoadCase, input.m_nSteel, input.m_dHe, input.m_dLw, input.m_dN,
                     input.m_dM, input.m_dV, input.m_dBetaF);
  if (input.m_dHf != 0) weld.CalHFLw(input.m_dHf, input.m_dAngle);
  if (input.m_dS != 0) weld.CalHFLw(input.m_dS, input.m_dAngle, input.m_nGroove);
  int okSigma = 0;
  int okTau = 0;
  int okCombined = 0;
  m_bPass = weld.JugeStress(okSigma, okTau, okCombined) == 1;
  m_results = {weld.m_dHe,           weld.m_dW,          1000 * weld.m_dFfw,
               1000 * weld.m_dSigma, 1000 * weld.m_dTau, 1000 * weld.m_dCombined,
               okSigma == 1,         okTau == 1,         okCombined == 1};
  const CFilletResults& r = m_results;
  m_arrPart.push_back({{"正应力 σf", "stress across, σf"},
                       "okSigma",
                       std::fabs(r.m_dSigma) / (input.m_dBetaF * r.m_dFfw),
                       r.m_bSigma});
  if (TakesV(input.m_nLoadCase)) {
    m_arrPart.push_back(
        {{"剪应力 τf", "stress along, τf"}, "okTau", std::fabs(r.m_dTau) / r.m_dFfw, r.m_bTau});
    m_arrPart.push_back(
        {{"综合应力", "combined stress"}, "okCombined", r.m_dCombined / r.m_dFfw, r.m_bCombined});
  }
  WarnOfWeldLoads(input.m_nLoadCase, input.m_dN, input.m_dM, input.m_dV, m_arrWarning);
  BetaWarnings(input, m_arrWarning);
  DetailingWarnings(input, m_arrWarning);
  return true;
}

}  // namespace orv3
