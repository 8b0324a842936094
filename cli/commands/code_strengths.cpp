// orv3cal code: strengths, bolts and holes, fatigue.

#include <array>

#include "catalogue/code_tables/table_search.h"
#include "codes/fatigue.h"
#include "codes/holes.h"
#include "codes/steel_strength.h"
#include "codes/weld_strength.h"
#include "commands/code_answer.h"
#include "error.h"
#include "framework/language.h"
#include "output/output.h"

namespace orv3::cli {
namespace {

const CText kThickness = {"大于 0、不大于 100 mm 的厚度", "a thickness above 0 and up to 100 mm"};
const CText kLength = {"大于 0 的长度 mm", "a length in mm, above 0"};

constexpr const char* kHighStrength[] = {"8.8", "10.9"};
constexpr CBoltGrade kHighStrengthGrades[] = {CBoltGrade::G88, CBoltGrade::G109};

// ft, fv or fu of a bolt.
CCodeFigure BoltPart(const CCodeRequest& request, CBoltKind kind, const char* part) {
  const auto grade = static_cast<CBoltGrade>(Choice(request, 1, "GRADE", kBoltGradeNames));
  const CCodeAnswer<CBoltStrengths> answer = BoltStrengths(request.m_nEdition, kind, grade);
  const CBoltStrengths& strengths = Needed(answer);
  if (part == std::string("fu")) {
    if (!strengths.m_dFu)
      Refuse(
          Say("STRENGTH：fu 仅用于 2017 版的高强度螺栓；请给出 ft 或 fv",
              "STRENGTH: fu stands for high-strength bolts of the 2017 edition alone; give ft or "
              "fv"));
    return FigureOf(*strengths.m_dFu, answer.Source(), kStressUnit);
  }
  return FigureOf(part == std::string("ft") ? strengths.m_dFt : strengths.m_dFv, answer.Source(),
                  kStressUnit);
}

CCodeFigure ButtWeld(const CCodeAnswer<CButtWeldStrengths>& answer, int kind) {
  const CButtWeldStrengths& butt = Needed(answer);
  const double values[] = {butt.m_dFcw, butt.m_dFtw12, butt.m_dFtw3, butt.m_dFvw};
  return FigureOf(values[kind], answer.Source(), kStressUnit);
}

}  // namespace

CCodeFigure SteelFigure(const CCodeRequest& request) {
  static constexpr const char* kKinds[] = {"f", "fv", "fce", "fy", "fu"};
  const int kind = request.Count() > 2 ? Choice(request, 2, "STRENGTH", kKinds) : 0;
  const double t = Number(request, 1, "T", kThickness);
  return FigureOf(
      SteelStrength(request.m_nEdition, Grade(request, 0), t, static_cast<CSteelStrength>(kind),
                    request.m_bTube ? CSteelProduct::Tube : CSteelProduct::Plate),
      kStressUnit);
}

CCodeFigure WeldFigure(const CCodeRequest& request) {
  static constexpr const char* kKinds[] = {"fcw", "ftw12", "ftw3", "fvw", "ffw"};
  const CSteelGrade grade = Grade(request, 0);
  const double t = Number(request, 1, "T", kThickness);
  const int kind = Choice(request, 2, "STRENGTH", kKinds);
  const CCodeAnswer<CButtWeldStrengths> butt = ButtWeldStrengths(request.m_nEdition, grade, t);
  if (kind < 4 && request.Count() > 3)
    Refuse(Say("ELECTRODE：对接焊缝不按焊条取值；请仅与 ffw 同给",
               "ELECTRODE: butt welds do not go by it; give it with ffw alone"));
  if (kind < 4) return ButtWeld(butt, kind);
  Needed(butt);  // a thickness beyond the table
  std::optional<CElectrode> electrode;
  if (request.Count() > 3)
    electrode = static_cast<CElectrode>(Choice(request, 3, "ELECTRODE", kElectrodeNames));
  return FigureOf(FilletWeldStrength(request.m_nEdition, grade, electrode), kStressUnit);
}

CCodeFigure BoltFigure(const CCodeRequest& request) {
  static constexpr const char* kKinds[] = {"C", "AB", "bearing", "anchor"};
  static constexpr const char* kParts[] = {"ft", "fv", "fc", "fu"};
  constexpr int kAnchor = 3;
  const int kind = Choice(request, 0, "KIND", kKinds);
  const char* part = kParts[Choice(request, 2, "STRENGTH", kParts)];
  if (kind == kAnchor) {
    if (part != std::string("ft"))
      Refuse(
          Say("STRENGTH：锚栓只有 ft；请给出 ft", "STRENGTH: anchor bolts have ft alone; give ft"));
    return FigureOf(AnchorStrength(request.m_nEdition, Grade(request, 1)), kStressUnit);
  }
  if (part != std::string("fc")) return BoltPart(request, static_cast<CBoltKind>(kind), part);
  return FigureOf(
      BearingStrength(request.m_nEdition, static_cast<CBoltKind>(kind), Grade(request, 1)),
      kStressUnit);
}

CCodeFigure PreloadFigure(const CCodeRequest& request) {
  const CBoltGrade grade = kHighStrengthGrades[Choice(request, 0, "GRADE", kHighStrength)];
  const double d = Number(request, 1, "D",
                          {"下列之一：16、20、22、24、27、30", "one of 16, 20, 22, 24, 27, 30"});
  return FigureOf(Preload(request.m_nEdition, grade, d), "kN");
}

CCodeFigure SlipFigure(const CCodeRequest& request) {
  const int last = SurfaceCount(request.m_nEdition) - 1;
  CText meanings;
  for (int i = 0; i <= last; ++i) {
    const CTextLiteral name = SurfaceName(request.m_nEdition, i);
    const std::string number = std::to_string(i) + " ";
    meanings.m_strChinese += (i == 0 ? "" : "、") + number + name.m_szChinese;
    meanings.m_strEnglish += (i == 0 ? "" : ", ") + number + name.m_szEnglish;
  }
  const int surface = Whole(request, 0, "SURFACE", 0, last, meanings);
  return FigureOf(SlipFactor(request.m_nEdition, surface, Grade(request, 1)), "");
}

// k, or with a diameter the size of the hole.
CCodeFigure HoleFigure(const CCodeRequest& request) {
  const auto kind = static_cast<CHoleKind>(Choice(request, 0, "KIND", kHoleNames));
  if (request.Count() == 1) return FigureOf(HoleFactor(request.m_nEdition, kind), "");
  const double d = Number(request, 1, "D", kLength);
  const CCodeAnswer<CHoleSize> answer = HoleSize(request.m_nEdition, kind, d);
  const CHoleSize& size = Needed(answer);
  CCodeFigure figure = FigureOf(size.m_dWidth, answer.Source(), "mm");
  if (size.m_dLength != size.m_dWidth)
    figure.m_strNote = Say({"槽孔宽度；长 " + NumberText(size.m_dLength) + " mm",
                            "the width; the slot is " + NumberText(size.m_dLength) + " mm long"});
  return figure;
}

CCodeFigure SpacingFigure(const CCodeRequest& request) {
  static constexpr const char* kWhats[] = {"pitch-least", "pitch-most",        "end-least",
                                           "side-least",  "side-least-rolled", "edge-most"};
  const int what = Choice(request, 0, "WHAT", kWhats);
  const bool bRolled = what == 4;
  const double d0 = Number(request, 1, "D0", kLength);
  const double t = Number(request, 2, "T", kLength);
  const CCodeAnswer<CBoltSpacing> answer =
      BoltSpacing(request.m_nEdition, d0, t, bRolled ? CEdgeCut::Rolled : CEdgeCut::Sheared);
  const CBoltSpacing& spacing = Needed(answer);
  const double values[] = {spacing.m_dLeastPitch, spacing.m_dMostPitch, spacing.m_dLeastEnd,
                           spacing.m_dLeastSide,  spacing.m_dLeastSide, spacing.m_dMostEdge};
  CCodeFigure figure = FigureOf(values[what], answer.Source(), "mm");
  if (what == 1) {
    figure.m_strNote =
        Say({"外排；中间排可更大", "of outer rows; middle rows may stand farther apart"});
  }
  if (bRolled) {
    figure.m_strNote =
        Say({"轧制边、自动气割或锯割边，普通螺栓", "rolled or machine-cut edges, ordinary bolts"});
  }
  return figure;
}

CCodeFigure AreaFigure(const CCodeRequest& request) {
  static constexpr const char* kKinds[] = {"gross", "effective"};
  static const std::vector<double> kDiameters(std::begin(CTableSearch::g_sub23_1),
                                              std::end(CTableSearch::g_sub23_1));
  double area = 0;
  CTableSearch::SearchSub23(NumberAmong(request, 0, "D", kDiameters),
                            request.Count() > 1 ? Choice(request, 1, "KIND", kKinds) : 1, area);
  return {area, "cm²", Say({"粗牙普通螺纹的应力面积", "stress areas of coarse metric threads"})};
}

CCodeFigure FatigueFigure(const CCodeRequest& request) {
  static constexpr const char* kParameters[] = {"C", "beta", "2e6", "5e6", "1e8", "range"};
  const CCodeAnswer<CFatigueCategory> answer = FatigueCategory(request.m_nEdition, request[0]);
  const CFatigueCategory& category = Needed(answer);
  const int parameter = Choice(request, 1, "PARAMETER", kParameters);
  if ((parameter == 5) != (request.Count() == 3))
    Refuse(Say("N：循环次数与 range 同给，也仅与 range 同给",
               "N: the number of cycles goes with range, and with range alone"));
  if (parameter == 0) return FigureOf(category.m_dC / 1e12, answer.Source(), "×10¹²");
  if (parameter == 1) return FigureOf(category.m_dBeta, answer.Source(), "");
  if (parameter == 5) {
    const CText right = {"不小于 1 的循环次数", "a number of cycles, 1 and more"};
    const double n = Number(request, 2, "N", right);
    if (n < 1) RefuseArgument("N", request[2], right);
    CCodeSource source = answer.Source();
    source.m_nStatus = CFigureStatus::Derived;
    return FigureOf(AllowableRange(category, n), source, kStressUnit);
  }
  const std::optional<double> printed[] = {category.m_range2e6, category.m_range5e6,
                                           category.m_cutOff};
  const std::optional<double> range = printed[parameter - 2];
  if (!range)
    Refuse(Say("PARAMETER：表中该类别没有 {1} 的数值；请给出 range {1}",
               "PARAMETER: the table has no figure at {1} for this category; give range {1}",
               {kParameters[parameter]}));
  return FigureOf(*range, answer.Source(), kStressUnit);
}

}  // namespace orv3::cli
