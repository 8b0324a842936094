// orv3cal code: one figure of the design code's tables, with its unit and its source.

#include <memory>
#include <string>
#include <vector>

#include "commands.h"
#include "commands/code_answer.h"
#include "commands/code_meanings.h"
#include "error.h"
#include "framework/language.h"
#include "options/edition_option.h"
#include "output/output.h"

namespace orv3::cli {
namespace {

constexpr CTextLiteral kSurfaces = {
    "2017：0 喷硬质石英砂或铸钢棱角砂，1 抛丸（喷砂），2 "
    "钢丝刷清除浮锈或未经处理的干净轧制面；2003："
    "0 喷砂（丸），1 喷砂（丸）后涂无机富锌漆，2 喷砂（丸）后生赤锈，3 钢丝刷清除浮锈，4 "
    "未经处理的干净轧制表面",
    "2017: 0 blasted with hard quartz sand or cast steel grit, 1 shot-blasted (sand-blasted), 2 "
    "wire-brushed or clean rolled surface without treatment; 2003: 0 sand- or shot-blasted, 1 the "
    "same with inorganic zinc-rich paint, 2 the same and rusted red, 3 loose rust brushed off with "
    "a wire brush, 4 clean rolled surface without treatment"};

// One question: its arguments, how many of them may be left out, and who answers it.
struct CQuestion {
  const char* m_szName;
  const char* m_szArguments;
  int m_nArguments;
  int m_nOptional;
  CTextLiteral m_help;
  CCodeFigure (*m_pAnswer)(const CCodeRequest&);
  CTextLiteral m_meanings = {"", ""};  // of the numbers and names that an argument takes
};

constexpr CQuestion kQuestions[] = {
    {"steel",
     "GRADE T [f|fv|fce|fy|fu]",
     3,
     1,
     {"钢材强度，按牌号和厚度 mm；fy、fu 为 2017 版",
      "Strength of steel by grade and thickness in mm; fy and fu in 2017"},
     SteelFigure},
    {"eps",
     "GRADE",
     1,
     0,
     {"√(235/牌号屈服点)：2017 版的 εk", "√(235/yield figure of the grade): εk of 2017"},
     EpsFigure},
    {"weld",
     "GRADE T fcw|ftw12|ftw3|fvw|ffw [ELECTRODE]",
     4,
     1,
     {"焊缝强度；不给焊条型号时 ffw 按该牌号最低的焊条",
      "Strength of welds; ffw by the lowest electrode of the grade unless it is given"},
     WeldFigure},
    {"bolt",
     "C|AB|anchor|bearing GRADE ft|fv|fc|fu",
     3,
     0,
     {"螺栓强度；fc 的 GRADE 为板件牌号",
      "Strength of bolts; fc takes the steel of the plate for GRADE"},
     BoltFigure},
    {"preload",
     "8.8|10.9 D",
     2,
     0,
     {"一个 D mm 高强度螺栓的预拉力", "Preload of one high-strength bolt of D mm"},
     PreloadFigure},
    {"slip",
     "SURFACE GRADE",
     2,
     0,
     {"抗滑移系数，按摩擦面处理和钢材", "Slip factor by surface treatment and steel"},
     SlipFigure,
     kSurfaces},
    {"hole",
     "standard|oversize|slot-across|slot-along [D]",
     2,
     1,
     {"抗滑移承载力的孔型系数 k；给出 D mm 螺栓时为孔的尺寸",
      "Factor k of slip resistance by the hole; with a bolt of D mm the size of the hole"},
     HoleFigure},
    {"spacing",
     "WHAT D0 T",
     3,
     0,
     {"螺栓距离 mm，按孔径和外层较薄板件厚度；WHAT 为 "
      "pitch-least、pitch-most、end-least（顺内力方向"
      "）、side-least、side-least-rolled 或 edge-most",
      "Spacing of bolts in mm by hole diameter and thinner outer plate; WHAT pitch-least, "
      "pitch-most, end-least (along the force), side-least, side-least-rolled or edge-most"},
     SpacingFigure},
    {"area",
     "D [gross|effective]",
     2,
     1,
     {"D mm 螺栓的面积", "Area of a bolt of D mm"},
     AreaFigure},
    {"slender",
     "GRADE upper|lower|braced",
     2,
     0,
     {"工字形截面梁不需验算整体稳定的最大 l1/b1；仅 2003 版",
      "Largest l1/b1 of an I beam that needs no check of overall stability; 2003 alone"},
     SlenderFigure},
    {"slenderness",
     "compression|compression-bracing|tension|tension-dynamic|tension-bracing",
     1,
     0,
     {"构件的容许长细比", "Largest slenderness of a member"},
     SlendernessFigure},
    {"width",
     "ELEMENT GRADE LAMBDA",
     3,
     0,
     {"轴心受压构件板件的最大宽厚比，LAMBDA 为两方向长细比的较大者",
      "Largest width over thickness of a plate in axial compression; LAMBDA the greater "
      "slenderness "
      "of both axes"},
     WidthFigure,
     kWidthMeanings},
    {"width-moments",
     "ELEMENT GRADE ALPHA0 [LAMBDA]",
     4,
     1,
     {"压弯构件板件的最大宽厚比：2017 版 S4 级；2003 版腹板另按弯矩作用平面内的长细比 LAMBDA",
      "The same in a beam-column: class S4 in 2017; webs of 2003 by the slenderness LAMBDA in the "
      "plane of the moment too"},
     WidthMomentsFigure,
     kWidthMeanings},
    {"width-beam",
     "flange|flange-elastic|web-stiffeners GRADE",
     2,
     0,
     {"受弯构件：受压翼缘自由外伸宽厚比（flange-elastic：γx = 1.0），腹板需设加劲肋的高厚比",
      "The same in a beam: the outstand of the compressed flange (flange-elastic: with γx = 1.0), "
      "and the web's h0/tw from which on it needs stiffeners"},
     WidthBeamFigure},
    {"phi",
     "LAMBDA FY a|b|c|d",
     3,
     0,
     {"轴心受压构件的稳定系数", "Stability factor of an axially compressed member"},
     PhiFigure},
    {"phib",
     "CASE I-NUMBER LENGTH [GRADE]",
     4,
     1,
     {"轧制普通工字钢梁的稳定系数；CASE 为 concentrated-upper、concentrated-lower、uniform-upper、"
      "uniform-lower 或 braced，自由长度 LENGTH m",
      "Stability factor of a rolled I beam; CASE concentrated-upper, concentrated-lower, "
      "uniform-upper, uniform-lower or braced, free LENGTH in m"},
     PhiBFigure},
    {"mu",
     "nosway|sway K1 K2",
     3,
     0,
     {"框架柱的计算长度系数", "Effective length factor of a frame column"},
     MuFigure},
    {"mu-step",
     "free|sliding ETA1 K1",
     3,
     0,
     {"同上，单阶柱下段", "The same, lower part of a single-stepped column"},
     MuStepFigure},
    {"mu-step2",
     "free|sliding ETA1 ETA2 K1 K2",
     5,
     0,
     {"同上，双阶柱下段", "The same, lowest part of a double-stepped column"},
     MuStep2Figure},
    {"mu-taper",
     "IC0/IC1 K2/K1",
     2,
     0,
     {"同上，柱脚铰接的楔形柱；仅表中数值",
      "The same, tapered column with a pinned foot; figures of the table only"},
     MuTaperFigure},
    {"section-class",
     "ELEMENT RATIO GRADE [ALPHA0]",
     4,
     1,
     {"截面板件宽厚比等级 S1 至 S5；ELEMENT 为 flange（自由外伸）、web、web-compressed（按 "
      "ALPHA0）、"
      "box-flange、box-wall 或 tube；仅 2017 版",
      "Section class S1 to S5 of a plate by its width over thickness; ELEMENT flange (outstand), "
      "web, web-compressed (by ALPHA0), box-flange, box-wall or tube; 2017 alone"},
     SectionClassFigure},
    {"class",
     "KIND x|y [GRADE]",
     3,
     1,
     {"截面分类，板厚小于 40 mm；2017 版的 a*、b* 按牌号",
      "Buckling class of a section kind, plates under 40 mm; a* and b* of 2017 by the grade"},
     ClassFigure,
     kClassMeanings},
    {"class-thick",
     "ROW x|y",
     2,
     0,
     {"板厚 40 mm 及以上的截面分类，第 1 至 6 行",
      "Buckling class with plates of 40 mm and more, row 1 to 6"},
     ThickClassFigure,
     kThickRows},
    {"gamma",
     "KIND x|y [CLASS]",
     3,
     1,
     {"截面塑性发展系数，KIND 0 至 22，2017 版另按等级 S1 至 S5",
      "Plastic development factor of a section kind 0 to 22, in 2017 by its class S1 to S5"},
     GammaFigure,
     kGammaKinds},
    {"fatigue",
     "CATEGORY C|beta|2e6|5e6|1e8|range [N]",
     3,
     1,
     {"疲劳构造类别 Z1 至 Z14、J1 至 J3（2003 版 1 至 8）：参数、表中应力幅，或 N "
      "次循环的容许应力幅",
      "Fatigue of a detail category, Z1 to Z14 and J1 to J3 (2003: 1 to 8): its parameters, the "
      "table's stress ranges, or the range after N cycles"},
     FatigueFigure},
};

void CheckCount(const CQuestion& question, std::size_t count) {
  const auto given = static_cast<int>(count);
  if (given <= question.m_nArguments && given >= question.m_nArguments - question.m_nOptional)
    return;
  Refuse(Say("code {1} 的参数为 {2}；给了 {3} 个",
             given == 1 ? "code {1} takes {2}; {3} argument was given"
                        : "code {1} takes {2}; {3} arguments were given",
             {question.m_szName, question.m_szArguments, std::to_string(given)}));
}

void PrintFigure(const CCodeFigure& figure, bool bJson) {
  const double* number = std::get_if<double>(&figure.m_value);
  static constexpr const char* kStatus[] = {"table", "derived", "doubtful"};
  if (bJson) {
    const CJson value =
        number != nullptr ? JsonNumber(*number) : CJson(std::get<std::string>(figure.m_value));
    CJson answer = {{"value", value}, {"unit", figure.m_szUnit}, {"source", figure.m_strSource}};
    if (!figure.m_strNote.empty()) answer["note"] = figure.m_strNote;
    if (figure.m_status) answer["status"] = kStatus[static_cast<std::size_t>(*figure.m_status)];
    return PrintJson(answer);
  }
  std::string text =
      number != nullptr ? NumberText(*number) : std::get<std::string>(figure.m_value);
  if (*figure.m_szUnit != 0) text += std::string(" ") + figure.m_szUnit;
  text += std::string("  (") + figure.m_strSource;
  if (!figure.m_strNote.empty()) text += "; " + figure.m_strNote;
  Print(text + ")\n");
}

}  // namespace

void AddCodeCommand(CLI::App& program) {
  struct COptions {
    CCodeRequest request;
    std::string year;
    bool json = false;
  };
  CLI::App* code = program.add_subcommand(
      "code", Say("查设计规范表中的数值", "Look up a figure of the design code's tables"));
  code->require_subcommand(1);
  for (const CQuestion& question : kQuestions) {
    auto options = std::make_shared<COptions>();
    CLI::App* command =
        code->add_subcommand(question.m_szName, question.m_help.In(MessageLanguage()));
    command->add_option("ARGUMENTS", options->request.m_arrArgument, question.m_szArguments);
    AddEditionOption(*command, options->year);
    command->add_flag(
        "--json", options->json,
        Say("以 JSON 输出，数值带全部位数", "As JSON, the number with all its digits"));
    if (question.m_pAnswer == SteelFigure)
      command->add_flag("--tube", options->request.m_bTube,
                        Say("壁厚 T mm 的钢管", "Of a tube with a wall of T mm"));
    command->footer(question.m_meanings.In(MessageLanguage()));
    command->callback([options, &question] {
      CheckCount(question, options->request.Count());
      options->request.m_nEdition = EditionAsked(options->year);
      PrintFigure(question.m_pAnswer(options->request), options->json);
    });
  }
}

}  // namespace orv3::cli
