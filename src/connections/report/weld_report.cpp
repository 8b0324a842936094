// The reports of fillet and butt welds: GB 50017-2003, 7.1.1 to 7.1.5; GB 50017-2017, 11.2
// and 11.3.
#include <algorithm>
#include <cmath>
#include <type_traits>

#include "connections/cases/case_rules.h"
#include "connections/report/connection_report.h"
#include "connections/report/detail_verdicts.h"
#include "connections/report/weld_drawing.h"
#include "reports/report_page.h"

namespace orv3 {
namespace {

using CSteps = std::vector<CReportStep>;
using CVerdicts = std::vector<CReportVerdict>;

// The normal stress of a weld area by load case.
struct CStressTerms {
  std::string m_strFormula;
  std::string m_strNumbers;
};
CStressTerms NormalStress(int loadCase, double N, double M, const std::string& area,
                          const std::string& areaNumbers, double W, const char* sign = "+") {
  CStressTerms terms;
  if (TakesN(loadCase)) {
    terms.m_strFormula = "N / (" + area + ")";
    terms.m_strNumbers = Put(N) + " × 1000 / (" + areaNumbers + ")";
  }
  if (TakesM(loadCase)) {
    const bool bFirst = !TakesN(loadCase) && *sign == '+';
    const std::string plus = bFirst ? "" : " " + std::string(sign) + " ";
    terms.m_strFormula += plus + "M / W";
    terms.m_strNumbers += plus + Put(M) + " × 1000 / " + SubstitutedNumber(W);
  }
  return terms;
}

// The steps of the normal stress: at one edge, and at the other when there is a moment.
template <class CASE, class RESULTS>
void StressSteps(const CASE& input, const RESULTS& r, const CTextLiteral& name, const char* clause,
                 const char* symbol, const std::string& area, const std::string& areaNumbers,
                 double areaMm2, CSteps& steps) {
  const CStressTerms one =
      NormalStress(input.m_nLoadCase, input.m_dN, input.m_dM, area, areaNumbers, r.m_dW);
  steps.push_back(
      {name, clause, symbol, one.m_strFormula, one.m_strNumbers, PlainNumber(r.m_dSigma), "N/mm²"});
  if (!TakesM(input.m_nLoadCase) || input.m_dM == 0) return;
  const CStressTerms other =
      NormalStress(input.m_nLoadCase, input.m_dN, input.m_dM, area, areaNumbers, r.m_dW, "−");
  const double direct = TakesN(input.m_nLoadCase) ? 1000 * input.m_dN / areaMm2 : 0;
  static constexpr CTextLiteral kOther = {"另一边缘", "At the other edge"};
  steps.push_back({kOther, clause, std::string(symbol) + "′", other.m_strFormula,
                   other.m_strNumbers, PlainNumber(direct - 1000 * input.m_dM / r.m_dW), "N/mm²"});
}

constexpr const char* kLoadsOfCase[] = {"N", "N, M", "N, M", "M, V", "N, M, V", "N, M, V"};

// The input table, the loads beside the load case, without what the case does not give.
template <class CASE, class SKIP>
void WeldInputs(CReportBody& body, const CASE& input, std::span<const CInputKey<CASE>> keys,
                SKIP skip) {
  auto lines = InputLines(input, keys, body.Language());
  std::vector<CReportBody::CInputLine> used;
  for (std::size_t i = 0; i < keys.size(); ++i) {
    const std::string key = keys[i].m_szKey;
    if (key == "id" || skip(key)) continue;
    if (key == "case") lines[i].m_strUnit = kLoadsOfCase[input.m_nLoadCase];
    if constexpr (std::is_base_of_v<CFilletCase, CASE>) {
      if (key == "groove") lines[i].m_strUnit = body.Text(kGrooveNames[input.m_nGroove]);
    }
    if (key == "joint") lines[i].m_strValue = body.Text({"搭接", "lap"});
    used.push_back(lines[i]);
  }
  body.Inputs(used);
}

CReportStep Throat(const CFilletCase& input, const CFilletResults& r,
                   const CFilletClauses& clauses) {
  const std::string he = PlainNumber(r.m_dHe);
  static constexpr CTextLiteral kName = {"焊缝计算厚度", "Effective throat"};
  if (input.m_dHe != 0) return {kName, "", "h_e", "", "", he, "mm"};
  if (input.m_dHf != 0) {
    const std::string hf = Put(input.m_dHf);
    if (std::fabs(input.m_dAngle - 90) < 1e-4)
      return {kName, clauses.m_szRight, "h_e", "0.7 h_f", "0.7 × " + hf, he, "mm"};
    return {kName,
            clauses.m_szInclined,
            "h_e",
            "h_f \\cos(α / 2)",
            hf + " × \\cos(" + SubstitutedNumber(input.m_dAngle) + "° / 2)",
            he,
            "mm"};
  }
  const std::string s = Put(input.m_dS);
  if (input.m_nGroove == 1 || input.m_nGroove == 2)
    return {kName, clauses.m_szGroove, "h_e", "s − 3", s + " − 3", he, "mm"};
  if (r.m_dHe != input.m_dS)
    return {kName, clauses.m_szGroove, "h_e", "0.75 s  (α < 60°)", "0.75 × " + s, he, "mm"};
  return {kName, clauses.m_szGroove, "h_e", "s", "", he, "mm"};
}

// The loads of one of equal welds.
CFilletCase OneWeld(CFilletCase input) {
  input.m_dN /= input.m_nWelds;
  input.m_dM /= input.m_nWelds;
  input.m_dV /= input.m_nWelds;
  return input;
}

const char* Combined(const CWeldFigures& judged) {
  return judged.m_dFusion < 1 ? "√((σ_f / β_f)^2 + (τ_f / 0.9)^2)" : "√((σ_f / β_f)^2 + τ_f^2)";
}

// `alphaF` below 1: of a long lap weld.
CSteps FilletSteps(const CFilletCase& input, const CFilletResults& r, const CWeldFigures& judged,
                   const CFilletClauses& clauses, const char* table, double alphaF = 1) {
  const std::string he = Put(r.m_dHe);
  const std::string lw = Put(input.m_dLw);
  CSteps steps = {Throat(input, r, clauses)};
  steps.push_back({{"角焊缝强度设计值", "Design strength of the fillet weld"},
                   table,
                   "f_f^w",
                   "",
                   "",
                   PlainNumber(r.m_dFfw),
                   "N/mm²"});
  if (alphaF < 1) {
    steps.push_back({{"搭接长焊缝折减", "Long lap weld"},
                     "11.2.6",
                     "α_f",
                     "\\max(1.5 − l_w / (120 h_f), 0.5)",
                     "\\max(1.5 − " + lw + " / (120 × " + Put(input.m_dHf) + "), 0.5)",
                     PlainNumber(alphaF)});
  }
  steps.push_back({{"焊缝截面模量", "Section modulus of the weld"},
                   "",
                   "W",
                   "h_e l_w^2 / 6",
                   he + " × " + lw + "^2 / 6",
                   PlainNumber(r.m_dW),
                   "mm³"});
  static constexpr CTextLiteral kAcross = {"垂直于焊缝的应力", "Stress across the weld"};
  if (input.m_nWelds > 1) {
    steps.push_back({{"每条焊缝分担", "Share of one weld"},
                     "",
                     "1 / n",
                     "",
                     "",
                     "1 / " + std::to_string(input.m_nWelds)});
  }
  StressSteps(OneWeld(input), r, kAcross, clauses.m_szRight, "σ_f", "h_e l_w", he + " × " + lw,
              r.m_dHe * input.m_dLw, steps);
  if (!TakesV(input.m_nLoadCase)) return steps;
  const bool bLong = judged.m_dShearLength < input.m_dLw;
  steps.push_back({{"沿焊缝的剪应力", "Shear stress along the weld"},
                   bLong ? "7.1.3, 8.2.7" : clauses.m_szRight,
                   "τ_f",
                   bLong ? "|V| / (h_e · 60 h_f)" : "|V| / (h_e l_w)",
                   Put(std::fabs(input.m_dV / input.m_nWelds)) + " × 1000 / (" + he + " × " +
                       SubstitutedNumber(judged.m_dShearLength) + ")",
                   PlainNumber(judged.m_dTau),
                   "N/mm²"});
  const bool bTension = judged.m_dTension / judged.m_dBetaTension >=
                        judged.m_dCompression / judged.m_dBetaCompression;
  const double across = bTension ? judged.m_dTension : judged.m_dCompression;
  const double beta = bTension ? judged.m_dBetaTension : judged.m_dBetaCompression;
  const bool bShortFusion = judged.m_dFusion < 1;
  const std::string tau = Put(judged.m_dTau);
  steps.push_back({{"综合应力", "Combined stress"},
                   bShortFusion ? clauses.m_szGroove : clauses.m_szRight,
                   "σ_{fs}",
                   Combined(judged),
                   "√((" + SubstitutedNumber(across) + " / " + SubstitutedNumber(beta) + ")^2 + " +
                       (bShortFusion ? "(" + tau + " / 0.9)" : tau) + "^2)",
                   PlainNumber(judged.m_dCombined),
                   "N/mm²"});
  return steps;
}

// A weld's parts in the order that its check judges them. `relation` of the combined stress: "<"
// where one that is equal to its limit fails.
template <class CHECK>
CVerdicts WeldVerdicts(const CHECK& check, const char* clause, const std::string& across,
                       const std::string& along, const std::string& combined,
                       const std::string& limitOfCombined, const char* relation = "≤") {
  const CWeldFigures& judged = check.Figures();
  CVerdicts verdicts;
  const auto add = [&](const std::string& condition, double effect, double limit,
                       const char* passes = "≤") {
    const CCasePart& part = check.Parts()[verdicts.size()];
    verdicts.push_back({part.m_name, clause, condition,
                        Relation(effect, limit, part.m_bPass, passes) + " \\N/\\mm²",
                        part.m_dUtilisation, part.m_bPass});
  };
  add(across, judged.Across(), judged.AcrossLimit());
  if (!judged.m_bShear) return verdicts;
  add(along, judged.m_dTau, judged.m_dTauLimit);
  add(combined + " " + relation + " " + limitOfCombined, judged.m_dCombined,
      judged.m_dCombinedLimit, relation);
  return verdicts;
}

template <class CHECK>
CVerdicts FilletVerdicts(const CHECK& check, const CFilletClauses& clauses, double alphaF = 1) {
  const CWeldFigures& judged = check.Figures();
  const double beta = judged.TensionGoverns() ? judged.m_dBetaTension : judged.m_dBetaCompression;
  const std::string ffw = alphaF < 1 ? "α_f f_f^w" : "f_f^w";
  return WeldVerdicts(
      check, clauses.m_szRight, "|σ_f| ≤ β_f " + ffw + ",  β_f = " + PlainNumber(beta),
      (judged.m_dFusion < 1 ? "|τ_f| ≤ 0.9 " : "|τ_f| ≤ ") + ffw, Combined(judged), ffw);
}

CSteps ButtSteps(const CButtCase& input, const CButtResults& r, const CWeldFigures& judged,
                 const char* clause, const char* table) {
  const std::string t = Put(input.m_dThick);
  const std::string lw = Put(input.m_dLw);
  const std::string area = t + " × " + lw;
  CSteps steps;
  const auto strength = [&](CTextLiteral name, const char* symbol, double value) {
    steps.push_back({name, table, symbol, "", "", PlainNumber(value), "N/mm²"});
  };
  strength({"焊缝抗拉强度", "Tensile strength of the weld"}, "f_t^w", r.m_dFtw);
  strength({"焊缝抗压强度", "Compressive strength of the weld"}, "f_c^w", r.m_dFcw);
  strength({"焊缝抗剪强度", "Shear strength of the weld"}, "f_v^w", r.m_dFvw);
  if (TakesM(input.m_nLoadCase)) {
    steps.push_back({{"焊缝截面模量", "Section modulus of the weld"},
                     "",
                     "W",
                     "t l_w^2 / 6",
                     area + "^2 / 6",
                     PlainNumber(r.m_dW),
                     "mm³"});
  }
  static constexpr CTextLiteral kNormal = {"正应力", "Normal stress"};
  StressSteps(input, r, kNormal, clause, "σ", "t l_w", area, input.m_dThick * input.m_dLw, steps);
  if (!judged.m_bShear) return steps;
  steps.push_back({{"剪应力", "Shear stress"},
                   clause,
                   "τ",
                   "1.5 |V| / (t l_w)",
                   "1.5 × " + Put(std::fabs(input.m_dV)) + " × 1000 / (" + area + ")",
                   PlainNumber(judged.m_dTau),
                   "N/mm²"});
  const std::string across = Put(std::max(judged.m_dTension, judged.m_dCompression));
  steps.push_back({{"折算应力", "Reduced stress"},
                   clause,
                   "σ_{zs}",
                   "√(σ^2 + 3 τ^2)",
                   "√(" + across + "^2 + 3 × " + Put(judged.m_dTau) + "^2)",
                   PlainNumber(judged.m_dCombined),
                   "N/mm²"});
  return steps;
}

template <class CHECK>
CVerdicts ButtVerdicts(const CHECK& check, const char* clause, const char* relation) {
  return WeldVerdicts(check, clause, check.Figures().TensionGoverns() ? "σ ≤ f_t^w" : "|σ| ≤ f_c^w",
                      "|τ| ≤ f_v^w", "√(σ^2 + 3 τ^2)", "1.1 f_t^w", relation);
}

template <class CHECK>
void Head(CReportBody& body, const CTextLiteral& title, const std::string& id, const CHECK& check) {
  const std::string name = id.empty() ? "" : "　" + id;
  body.Title(body.Text(title) + name, check.Pass(), check.Worst().m_dUtilisation);
  body.Warnings(check.Warnings());
  body.Heading({"一、输入", "1  Input"});
}

std::string Tail(CReportBody& body, const CSteps& steps, const CVerdicts& verdicts) {
  body.Heading({"二、计算", "2  Calculation"});
  body.Steps(steps);
  body.Heading({"三、验算结论", "3  Verdicts"});
  body.Verdicts(verdicts);
  body.Note({"单位：长度 mm，力 kN，力矩 kN·mm，应力 N/mm²。焊缝横截面图不按比例。",
             "Units: lengths mm, forces kN, moments kN·mm, stresses N/mm². The section across the "
             "weld is not to scale."});
  return body.Take();
}

constexpr CTextLiteral kCaption = {
    "左：焊缝横截面；右：焊缝计算截面及所计荷载（N 垂直于焊缝，V 平行于焊缝）。",
    "Left: section across the weld. Right: the weld's area with the loads that count (N across "
    "the weld, V along it)."};

// Keys that the throat of the case does not use.
bool IsUnused(const CFilletCase& input, const std::string& key) {
  if (key == "he") return input.m_dHe == 0;
  if (key == "hf") return input.m_dHf == 0;
  if (key == "s" || key == "groove") return input.m_dS == 0;
  if (key == "welds") return input.m_nWelds == 1;
  return key == "angle" && input.m_dHe != 0;
}

}  // namespace

std::string CaseReport(const CFilletCase& input, const CFilletCheck& check, CLanguage language) {
  CReportBody body(language);
  Head(body, {"角焊缝验算", "Fillet weld"}, input.m_strId, check);
  WeldInputs(body, input, CFilletCheck::InputKeys(),
             [&](const std::string& key) { return IsUnused(input, key); });
  body.Figure(FilletDrawing(input, check.Results().m_dHe, false), body.Text(kCaption));
  CVerdicts verdicts = FilletVerdicts(check, kFilletClauses2003);
  AddDetailVerdicts(check.Details(), std::span(check.Parts()).subspan(verdicts.size()), verdicts);
  return Tail(body,
              FilletSteps(input, check.Results(), check.Figures(), kFilletClauses2003, "T 3.4.1-3"),
              verdicts);
}

std::string CaseReport(const CFilletCase2017& input, const CFilletCheck2017& check,
                       CLanguage language) {
  CReportBody body(language);
  Head(body, {"角焊缝验算", "Fillet weld"}, input.m_strId, check);
  WeldInputs(body, input, CFilletCheck2017::InputKeys(), [&](const std::string& key) {
    if (key == "electrode") return input.m_nElectrode < 0;
    if (key == "joint") return input.m_nJoint < 0;
    if (key == "t1" || key == "t2") return input.m_dT1 == 0;
    return IsUnused(input, key);
  });
  const CFilletResults2017& r = check.Results();
  body.Figure(FilletDrawing(input, r.m_dHe, input.m_nJoint == 0), body.Text(kCaption));
  CVerdicts verdicts = FilletVerdicts(check, kFilletClauses2017, r.m_dAlphaF);
  AddDetailVerdicts(check.Details(), std::span(check.Parts()).subspan(verdicts.size()), verdicts);
  return Tail(body,
              FilletSteps(input, r, check.Figures(), kFilletClauses2017, "T 4.4.5", r.m_dAlphaF),
              verdicts);
}

std::string CaseReport(const CButtCase& input, const CButtCheck& check, CLanguage language) {
  CReportBody body(language);
  Head(body, {"对接焊缝验算", "Butt weld"}, input.m_strId, check);
  WeldInputs(body, input, CButtCheck::InputKeys(), [](const std::string&) { return false; });
  body.Figure(ButtDrawing(input), body.Text(kCaption));
  return Tail(body, ButtSteps(input, check.Results(), check.Figures(), "7.1.2", "T 3.4.1-3"),
              ButtVerdicts(check, "7.1.2", "<"));
}

std::string CaseReport(const CButtCase2017& input, const CButtCheck2017& check,
                       CLanguage language) {
  CReportBody body(language);
  Head(body, {"对接焊缝验算", "Butt weld"}, input.m_strId, check);
  WeldInputs(body, input, CButtCheck2017::InputKeys(), [](const std::string&) { return false; });
  body.Figure(ButtDrawing(input), body.Text(kCaption));
  return Tail(body, ButtSteps(input, check.Results(), check.Figures(), "11.2.1", "T 4.4.5"),
              ButtVerdicts(check, "11.2.1", "≤"));
}

}  // namespace orv3
