// orv3cal code: what members are checked by.

#include <algorithm>
#include <cmath>

#include "catalogue/code_tables/table_search.h"
#include "codes/buckling.h"
#include "codes/effective_length.h"
#include "codes/lateral_buckling.h"
#include "codes/plasticity.h"
#include "codes/section_class.h"
#include "codes/slenderness_limits.h"
#include "codes/width_limits.h"
#include "commands/code_answer.h"
#include "commands/code_meanings.h"
#include "error.h"
#include "framework/language.h"
#include "framework/utf8.h"
#include "output/output.h"

namespace orv3::cli {
namespace {

const CText kRatio = {"不小于 0 的数值", "a number not below 0"};
const CText kAlpha0 = {" 0 至 2", "0 to 2"};
const CText kLambda = {" 0 至 1000 的长细比", "a slenderness of 0 to 1000"};
constexpr const char* kTops[] = {"free", "sliding"};

CText TextOf(const CTextLiteral& text) { return {text.m_szChinese, text.m_szEnglish}; }

CSteppedTop Top(const CCodeRequest& request) {
  return Choice(request, 0, "TOP", kTops) == 0 ? CSteppedTop::Free : CSteppedTop::Sliding;
}

CSectionAxis Axis(const CCodeRequest& request) {
  return static_cast<CSectionAxis>(Choice(request, 1, "AXIS", kAxisNames));
}

// A kind by the number of its picture in Table 5.1.2-1.
CCodeFigure ClassByPicture(const CCodeRequest& request) {
  CString name;
  CTableSearch::SearchSub5(Whole(request, 0, "KIND", 1, 30, TextOf(kClassKinds)),
                           Choice(request, 1, "AXIS", kAxisNames), name);
  return {ToUtf8(name), "", "GB 50017-2003, Table 5.1.2-1"};
}

bool IsDigits(const std::string& text) {
  return text.find_first_not_of("0123456789") == std::string::npos;
}

// The limits in the order of the classes: "S1 9, S2 11".
std::string LimitText(const CClassLimits& limits) {
  std::string text;
  for (std::size_t i = 0; i < limits.m_arrLimit.size(); ++i) {
    if (!limits.m_arrLimit[i]) continue;
    text += (text.empty() ? "" : ", ") + std::string(kSectionClassNames[i]) + " " +
            NumberText(*limits.m_arrLimit[i]);
  }
  return text;
}

std::string LastClass(const CClassLimits& limits) { return limits.m_arrLimit.back() ? "S5" : "S4"; }

void AddNote(CCodeFigure& figure, const CText& note) {
  figure.m_strNote += (figure.m_strNote.empty() ? "" : Say({"；", "; "})) + Say(note);
}

// The pictures of Tables 5.2.1 and 8.1.1 by item.
CPlasticShape PlasticShape(int kind) {
  static constexpr int kLastKind[8] = {4, 10, 12, 14, 17, 18, 20, 22};
  int item = 0;
  while (kind > kLastKind[item]) ++item;
  return static_cast<CPlasticShape>(item);
}

CPlasticUse PlasticUse(const CCodeRequest& request) {
  if (request.Count() < 3) return CPlasticUse::Developed;
  if (request.m_nEdition == CCodeEdition::Gb2003)
    Refuse(Say("CLASS：GB 50017-2003 没有截面板件宽厚比等级；请删去",
               "CLASS: GB 50017-2003 has no section classes; leave it out"));
  return Choice(request, 2, "CLASS", kSectionClassNames) >= static_cast<int>(CSectionClass::S4)
             ? CPlasticUse::SlenderFlange
             : CPlasticUse::Developed;
}

}  // namespace

CCodeFigure EpsFigure(const CCodeRequest& request) {
  return FigureOf(EpsilonK(request.m_nEdition, Grade(request, 0)), "");
}

CCodeFigure SectionClassFigure(const CCodeRequest& request) {
  const auto element = static_cast<CClassElement>(Choice(request, 0, "ELEMENT", kClassElements));
  const double ratio = Number(request, 1, "RATIO", kRatio);
  const bool bWeb = element == CClassElement::WebCompressed;
  if (bWeb != (request.Count() == 4))
    Refuse(Say("ALPHA0：与 web-compressed 同给，也仅与它同给；请给出 0 至 2",
               "ALPHA0: goes with web-compressed, and with it alone; give 0 to 2"));
  const double alpha0 = bWeb ? Number(request, 3, "ALPHA0", kAlpha0) : 2;
  const CCodeAnswer<CClassLimits> answer =
      ClassLimits(request.m_nEdition, element, Grade(request, 2), alpha0);
  const CClassLimits& limits = Needed(answer);
  const std::optional<CSectionClass> found = limits.ClassOf(ratio);
  const std::string name =
      found ? SectionClassName(*found) : Say("超出 {1}", "beyond {1}", {LastClass(limits)});
  CCodeFigure figure = FigureOf(name, answer.Source(), "");
  const std::string list = LimitText(limits);
  AddNote(figure, {"限值 " + list, "limits " + list});
  return figure;
}

CCodeFigure ClassFigure(const CCodeRequest& request) {
  const bool b2003 = request.m_nEdition == CCodeEdition::Gb2003;
  if (b2003 && IsDigits(request[0])) return ClassByPicture(request);
  const auto shape = static_cast<CBucklingShape>(Choice(request, 0, "KIND", kBucklingShapeNames));
  constexpr double kThin = 20;  // mm, any plate under 40
  const CCodeAnswer<CPrintedClass> printed =
      PrintedBucklingClass(request.m_nEdition, shape, Axis(request), kThin);
  if (request.Count() < 3) {
    CCodeFigure figure = FigureOf(Needed(printed).Text(), printed.Source(), "");
    if (printed->m_bStar) {
      AddNote(figure,
              printed->m_nClass == CBucklingClass::A
                  ? CText{"Q235 为 b 类，更高牌号为 a 类", "b for Q235 and a for higher grades"}
                  : CText{"Q235 为 c 类，更高牌号为 b 类", "c for Q235 and b for higher grades"});
    }
    return figure;
  }
  const CPrintedClass plain = {Needed(printed).For(Grade(request, 2)), false};
  return FigureOf(plain.Text(), printed.Source(), "");
}

CCodeFigure ThickClassFigure(const CCodeRequest& request) {
  using enum CBucklingShape;
  static constexpr CBucklingShape kRows[] = {RolledIWide,   RolledIWide, WeldedIFlameCut,
                                             WeldedIRolled, WeldedBox,   WeldedBoxThick};
  const int row = Whole(request, 0, "ROW", 1, 6, TextOf(kThickRows));
  const double t = row == 2 ? 80 : 40;
  const auto answer = PrintedBucklingClass(request.m_nEdition, kRows[row - 1], Axis(request), t);
  return FigureOf(Needed(answer).Text(), answer.Source(), "");
}

CCodeFigure GammaFigure(const CCodeRequest& request) {
  const int kind = Whole(request, 0, "KIND", 0, 22, TextOf(kGammaKinds));
  const bool bX = Axis(request) == CSectionAxis::X;
  const CCodeAnswer<CPlasticFactors> answer =
      PlasticFactors(request.m_nEdition, PlasticShape(kind), PlasticUse(request));
  const CPlasticFactors& factors = Needed(answer);
  CCodeFigure figure = FigureOf(bX ? factors.m_dX : factors.m_dY, answer.Source(), "");
  if (bX && factors.m_dXTip != factors.m_dX)
    AddNote(figure, {"翼缘处；腹板边缘处 1.2", "at the flange; 1.2 at the web's tip"});
  if (request.m_nEdition == CCodeEdition::Gb2017 && request.Count() < 3)
    AddNote(figure, {"S1 至 S3 级；S4、S5 级及需验算疲劳时取 1.0",
                     "of classes S1 to S3; 1.0 for S4 and S5 and under fatigue"});
  return figure;
}

CCodeFigure PhiFigure(const CCodeRequest& request) {
  static constexpr const char* kClasses[] = {"a", "b", "c", "d"};
  const double lambda = Number(request, 0, "LAMBDA", kLambda);
  const double fy = Number(
      request, 1, "FY", {" 100 至 1000 N/mm² 的屈服强度", "a yield strength of 100 to 1000 N/mm²"});
  const auto bucklingClass = static_cast<CBucklingClass>(Choice(request, 2, "CLASS", kClasses));
  return FigureOf(StabilityFactor(request.m_nEdition, lambda, fy, bucklingClass), "");
}

CCodeFigure PhiBFigure(const CCodeRequest& request) {
  static constexpr const char* kCases[] = {"concentrated-upper", "concentrated-lower",
                                           "uniform-upper", "uniform-lower", "braced"};
  const auto load = static_cast<CRolledILoad>(Choice(request, 0, "CASE", kCases));
  const double number =
      Number(request, 1, "I-NUMBER", {"工字钢型号 10 至 63", "an I number, 10 to 63"});
  const double length =
      Number(request, 2, "LENGTH", {" 2 至 10 m 的自由长度", "a free length of 2 to 10 m"});
  const bool bGrade = request.Count() > 3;
  const bool b2003 = request.m_nEdition == CCodeEdition::Gb2003;
  const CSteelGrade grade = bGrade ? Grade(request, 3) : CSteelGrade::Q235;
  const CCodeAnswer<CPhiB> answer = RolledIPhiB(request.m_nEdition, grade, load, number, length);
  const CPhiB& phi = Needed(answer);
  CCodeFigure figure = FigureOf(phi.m_dPhiB, answer.Source(), "");
  const std::string factor = b2003 ? "235/fy" : "εk²";
  const bool bReduced = phi.m_dElastic > 0.6;
  if (bReduced) figure.m_strSource += b2003 ? " with (B.1-2)" : " with (C.0.1-7)";
  if (!bReduced && !bGrade) {
    AddNote(figure, {"Q235；其他钢材 × " + factor, "for Q235; × " + factor + " for others"});
  }
  if (!bReduced) return figure;
  const std::string elastic = NumberText(phi.m_dElastic);
  AddNote(figure, {(bGrade ? "φb × " + factor + " = " : "Q235；表中 φb = ") + elastic +
                       " 大于 0.6，以 φb' = 1.07 − 0.282/φb（不大于 1）代替" +
                       (bGrade ? "" : "；其他钢材先取 φb × " + factor),
                   (bGrade ? "φb × " + factor + " = " : "for Q235; the table's φb = ") + elastic +
                       " is above 0.6, so φb' = 1.07 − 0.282/φb, at most 1, takes its place" +
                       (bGrade ? "" : "; other steels: φb × " + factor + " before that")});
  return figure;
}

CCodeFigure WidthFigure(const CCodeRequest& request) {
  const auto element = static_cast<CWidthElement>(Choice(request, 0, "ELEMENT", kWidthElements));
  const double lambda = Number(request, 2, "LAMBDA", kLambda);
  return FigureOf(AxialWidthLimit(request.m_nEdition, element, Grade(request, 1), lambda), "");
}

// LAMBDA is read by the webs of 2003 alone.
CCodeFigure WidthMomentsFigure(const CCodeRequest& request) {
  const auto element = static_cast<CWidthElement>(Choice(request, 0, "ELEMENT", kWidthElements));
  CBeamColumnWeb web = {.m_dAlpha0 = Number(request, 2, "ALPHA0", kAlpha0), .m_dLambda = 0};
  if (web.m_dAlpha0 > 2) RefuseArgument("ALPHA0", request[2], kAlpha0);
  using enum CWidthElement;
  const bool bSlenderness =
      request.m_nEdition == CCodeEdition::Gb2003 &&
      (element == WebI || element == BoxWall || element == WebTRolled || element == WebTWelded);
  if (bSlenderness && request.Count() < 4) {
    Refuse(
        Say("LAMBDA：2003 版腹板限值与弯矩作用平面内的长细比有关；请给出 0 至 1000",
            "LAMBDA: the 2003 edition's limits of webs go by the slenderness in the plane of the "
            "moment; give 0 to 1000"));
  }
  if (!bSlenderness && request.Count() > 3) {
    Refuse(Say("LAMBDA：仅 2003 版的腹板用到；请删去",
               "LAMBDA: goes with webs of the 2003 edition alone; leave it out"));
  }
  if (bSlenderness) web.m_dLambda = Number(request, 3, "LAMBDA", kLambda);
  return FigureOf(BeamColumnWidthLimit(request.m_nEdition, element, Grade(request, 1), web), "");
}

CCodeFigure WidthBeamFigure(const CCodeRequest& request) {
  static constexpr const char* kElements[] = {"flange", "flange-elastic", "web-stiffeners"};
  const int element = Choice(request, 0, "ELEMENT", kElements);
  const CSteelGrade grade = Grade(request, 1);
  if (element == 2) return FigureOf(StiffenerLimit(request.m_nEdition, grade), "");
  return FigureOf(BeamFlangeLimit(request.m_nEdition, grade, element == 1), "");
}

CCodeFigure SlendernessFigure(const CCodeRequest& request) {
  static constexpr const char* kRoles[] = {"compression", "compression-bracing", "tension",
                                           "tension-dynamic", "tension-bracing"};
  return FigureOf(SlendernessLimit(request.m_nEdition,
                                   static_cast<CMemberRole>(Choice(request, 0, "ROLE", kRoles))),
                  "");
}

CCodeFigure SlenderFigure(const CCodeRequest& request) {
  static constexpr const char* kCases[] = {"upper", "lower", "braced"};
  if (request.m_nEdition != CCodeEdition::Gb2003)
    Refuse(
        Say("--code：GB 50017-2017 没有 l1/b1 最大值表；请给出 2003，或按 6.2.2 条验算 φb（code "
            "phib）",
            "--code: GB 50017-2017 has no table of largest l1/b1; give 2003, or check φb by 6.2.2 "
            "(code phib)"));
  const CSteelGrade grade = Grade(request, 0);
  constexpr CSteelGrade kRows[] = {CSteelGrade::Q235, CSteelGrade::Q345, CSteelGrade::Q390,
                                   CSteelGrade::Q420};
  double ratio = 0;
  CTableSearch::SearchSub4(
      static_cast<int>(std::find(std::begin(kRows), std::end(kRows), grade) - std::begin(kRows)),
      Choice(request, 1, "CASE", kCases), ratio);
  return {ratio, "", "GB 50017-2003, Table 4.2.1"};
}

CCodeFigure MuFigure(const CCodeRequest& request) {
  static constexpr const char* kFrames[] = {"nosway", "sway"};
  const double k1 = Number(request, 1, "K1", kRatio);
  const double k2 = Number(request, 2, "K2", kRatio);
  const bool bSway = Choice(request, 0, "FRAME", kFrames) == 1;
  return FigureOf(FrameColumnMu(request.m_nEdition, bSway, k1, k2), "");
}

CCodeFigure MuStepFigure(const CCodeRequest& request) {
  const CText kRange = {"大于 0、不大于 1000 的数值", "a number above 0 and up to 1000"};
  const double eta1 = Number(request, 1, "ETA1", kRange);
  const double k1 = Number(request, 2, "K1", kRange);
  return FigureOf(SingleSteppedMu2(request.m_nEdition, Top(request), eta1, k1), "");
}

CCodeFigure MuStep2Figure(const CCodeRequest& request) {
  static constexpr const char* kNames[] = {"ETA1", "ETA2", "K1", "K2"};
  double v[4] = {};
  for (std::size_t i = 0; i < 4; ++i) v[i] = Number(request, i + 1, kNames[i], kRatio);
  return FigureOf(DoubleSteppedMu3(request.m_nEdition, Top(request), v[0], v[1], v[2], v[3]), "");
}

// The table prints no rule between its figures, so that an argument must be one of them.
CCodeFigure MuTaperFigure(const CCodeRequest& request) {
  static const std::vector<double> kInertia(std::begin(CTableSearch::g_sub22_1),
                                            std::end(CTableSearch::g_sub22_1));
  static const std::vector<double> kStiffness = {0.1, 0.2, 0.3, 0.5, 0.75, 1, 2, 10};
  CCodeRequest capped = request;  // 10 and above
  if (Number(request, 1, "K2/K1", kRatio) > 10) capped.m_arrArgument[1] = "10";
  double mu = 0;
  CTableSearch::SearchSub22(NumberAmong(request, 0, "IC0/IC1", kInertia),
                            NumberAmong(capped, 1, "K2/K1", kStiffness), mu);
  return {mu, "", "CECS 102:2002, Table 6.1.3"};
}

}  // namespace orv3::cli
