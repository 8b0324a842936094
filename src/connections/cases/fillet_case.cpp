#include <algorithm>
#include <cmath>

#include "connections/cases/case_rules.h"
#include "connections/cases/weld_case.h"

namespace orv3 {
namespace {

// `clause`: of groove welds.
void ThroatFaults(const CFilletCase& input, const std::string& clause, CFaultList& faults) {
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
  if ((input.m_nGroove == 1 || input.m_nGroove == 2) && input.m_dAngle < 40) {
    const std::string is = PlainNumber(input.m_dAngle) + "°";
    faults.Add("angle",
               {is + "：" + clause + " 条未给出小于 40° 的单边 V 形和 K 形坡口的计算厚度",
                is + ": " + clause + " gives no throat for bevel and K grooves below 40°"},
               {"请给 40° 至 50°，或直接给 he", "give 40° to 50°, or the throat he"});
  }
}

void FacesFault(const CFilletCase& input, const std::string& clause, CFaultList& faults) {
  if (input.m_dHf == 0 || (input.m_dAngle >= 60 && input.m_dAngle <= 135)) return;
  const std::string is = PlainNumber(input.m_dAngle) + "°";
  faults.Add("angle",
             {is + "：" + clause + " 条的受力斜角角焊缝为 60° 至 135°",
              is + ": " + clause + " has fillet welds that carry load between faces at 60 to 135°"},
             {"请给 60° 至 135°，或直接给 he", "give 60 to 135°, or the throat he"});
}

void StressWarnings(const CFilletCase& input, const CFilletResults& r, const CWeldFigures& judged,
                    std::vector<CCaseWarning>& warnings) {
  static constexpr CTextLiteral kBothEdges = {
      "M 使两侧边缘应力反号，N 与 M 取同号相加",
      "M stresses both edges, so N and M add at one of them"};
  static constexpr CTextLiteral kLong = {
      "侧面角焊缝超过 60 hf 的部分不计（8.2.7 条）；内力沿全长分布时不受此限，请改以 he 输入",
      "a side fillet weld counts to 60 hf (8.2.7); where the force acts along all of its length "
      "give "
      "he in the place of hf"};
  static constexpr CTextLiteral kCombined = {"由验算所用的 σf、τf 求得",
                                             "of the σf and τf that are judged"};
  WarnOfOther("M", {"正应力", "stress across"}, std::fabs(r.m_dSigma),
              std::max(judged.m_dTension, judged.m_dCompression), kBothEdges, warnings);
  if (!judged.m_bShear) return;
  WarnOfOther("lw", {"剪应力", "stress along"}, std::fabs(r.m_dTau), judged.m_dTau, kLong,
              warnings);
  WarnOfOther("M", {"综合应力", "combined stress"}, r.m_dCombined, judged.m_dCombined, kCombined,
              warnings);
  if (input.m_dS != 0 && IsShortFusion(input.m_nGroove)) {
    warnings.push_back({"groove",
                        {"熔合线处截面边长接近 s，抗剪强度按 0.9 ffw 验算（7.1.5 条）。",
                         "The line of fusion is about as short as s: the shear strength is judged "
                         "as 0.9 ffw (7.1.5)."}});
  }
}

// 8.2.7; of groove welds it says nothing.
std::vector<CDetail> LeastLength(const CFilletCase& input) {
  if (input.m_dS != 0) return {};
  return {{{"焊缝最小长度", "weld length, least"},
           "lw",
           "8.2.7",
           "l_w",
           input.m_dHf != 0 ? "\\max(8 h_f, 40)" : "40",
           input.m_dLw,
           std::max(8 * input.m_dHf, 40.0),
           false}};
}

void DetailingWarnings(const CFilletCase& input, std::vector<CCaseWarning>& warnings) {
  if (input.m_dS != 0 && (input.m_nGroove == 1 || input.m_nGroove == 2) && input.m_dAngle > 50) {
    warnings.push_back(
        {"angle",
         {"单边 V 形和 K 形坡口的 he = s − 3 适用于 α = 45° ± 5°（7.1.5 条），此处 α = " +
              PlainNumber(input.m_dAngle) + "°；请核对。",
          "he = s − 3 of bevel and K grooves is for α = 45° ± 5° (7.1.5), here α = " +
              PlainNumber(input.m_dAngle) + "°. Check it."}});
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
      {"welds", &C::m_nWelds, "", {"相同焊缝条数", "equal welds"}},
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

void FilletFieldFaults(const CFilletCase& input, const CFilletClauses& clauses,
                       CFaultList& faults) {
  faults.Within("case", input.m_nLoadCase, 0, 5);
  faults.Positive("lw", input.m_dLw, "mm");
  faults.Finite("N", input.m_dN);
  faults.Finite("M", input.m_dM);
  faults.Finite("V", input.m_dV);
  faults.Positive("betaF", input.m_dBetaF, "(1.22 static, 1.0 dynamic)");
  faults.Within("welds", input.m_nWelds, 1, 100);
  ThroatFaults(input, clauses.m_szGroove, faults);
  FacesFault(input, clauses.m_szFaces, faults);
  DroppedLoadFaults(input.m_nLoadCase, input.m_dN, input.m_dM, input.m_dV, faults);
}

void WarnOfBeta(const CFilletCase& input, const CWeldFigures& judged, const CFilletClauses& clauses,
                std::vector<CCaseWarning>& warnings) {
  const bool bTension = judged.m_dBetaTension < input.m_dBetaF && judged.m_dTension > 0;
  const bool bCompression = judged.m_dBetaCompression < input.m_dBetaF && judged.m_dCompression > 0;
  if (!bTension && !bCompression) return;
  const std::string is = PlainNumber(bTension ? judged.m_dBetaTension : judged.m_dBetaCompression);
  const std::string clause = input.m_dS != 0                 ? clauses.m_szGroove
                             : input.m_dHf != 0 && is == "1" ? clauses.m_szInclined
                                                             : clauses.m_szRight;
  warnings.push_back(
      {"betaF",
       {"βf = " + PlainNumber(input.m_dBetaF) + " 大于 " + clause + " 条所给之值；按 βf = " + is +
            " 验算" + (input.m_dS != 0 ? "（1.22 仅用于受压）。" : "。"),
        "βf = " + PlainNumber(input.m_dBetaF) + " is more than " + clause +
            " gives; judged by βf = " + is +
            (input.m_dS != 0 ? " (1.22 is for compression only)." : ".")}});
}

std::vector<CCaseFault> FilletFaults(const CFilletCase& input) {
  CFaultList faults;
  faults.Within("steel", input.m_nSteel, 0, 3);
  FilletFieldFaults(input, kFilletClauses2003, faults);
  return faults.Take();
}

bool CFilletCheck::Run(const CFilletCase& input) {
  if (Refused(FilletFaults(input))) return false;
  AngleHanFData weld(0, input.m_nLoadCase, input.m_nSteel, input.m_dHe, input.m_dLw,
                     input.m_dN / input.m_nWelds, input.m_dM / input.m_nWelds,
                     input.m_dV / input.m_nWelds, input.m_dBetaF);
  if (input.m_dHf != 0) weld.CalHFLw(input.m_dHf, input.m_dAngle);
  if (input.m_dS != 0) weld.CalHFLw(input.m_dS, input.m_dAngle, input.m_nGroove);
  int okSigma = 0;
  int okTau = 0;
  int okCombined = 0;
  weld.JugeStress(okSigma, okTau, okCombined);
  m_results = {weld.m_dHe,           weld.m_dW,          1000 * weld.m_dFfw,
               1000 * weld.m_dSigma, 1000 * weld.m_dTau, 1000 * weld.m_dCombined,
               okSigma == 1,         okTau == 1,         okCombined == 1};
  const CFilletResults& r = m_results;
  const CWeldFigures j = m_figures = JudgedFigures(input, r);
  Judge({"正应力 σf", "stress across, σf"}, "sigma", j.Across() / j.AcrossLimit());
  if (j.m_bShear) {
    Judge({"剪应力 τf", "stress along, τf"}, "tau", j.m_dTau / j.m_dTauLimit);
    Judge({"综合应力", "combined stress"}, "combined", j.m_dCombined / j.m_dCombinedLimit);
  }
  m_arrDetail = LeastLength(input);
  for (const CDetail& detail : m_arrDetail)
    JudgeDetail(detail.m_name, "size", detail.Utilisation());
  std::vector<CCaseWarning> warnings;
  NoteOfDetails(m_arrDetail, warnings);
  StressWarnings(input, r, j, warnings);
  WarnOfBeta(input, j, kFilletClauses2003, warnings);
  DetailingWarnings(input, warnings);
  Warn(std::move(warnings));
  return true;
}

}  // namespace orv3
