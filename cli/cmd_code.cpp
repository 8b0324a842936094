// orv3cal code: one figure of the design code's tables, with its unit and its source.

#include <memory>
#include <string>
#include <vector>

#include "code_answer.h"
#include "code_meanings.h"
#include "commands.h"
#include "edition_option.h"
#include "error.h"
#include "output.h"

namespace orv3::cli {
namespace {

constexpr const char* kSurfaces =
    "2017: 0 blasted with hard quartz sand or cast steel grit, 1 shot-blasted (sand-blasted), 2 "
    "wire-brushed or clean rolled surface without treatment; 2003: 0 sand- or shot-blasted, 1 the "
    "same with inorganic zinc-rich paint, 2 the same and rusted red, 3 loose rust brushed off with "
    "a wire brush, 4 clean rolled surface without treatment";

// One question: its arguments, how many of them may be left out, and who answers it.
struct CQuestion {
  const char* m_szName;
  const char* m_szArguments;
  int m_nArguments;
  int m_nOptional;
  const char* m_szHelp;
  CCodeFigure (*m_pAnswer)(const CCodeRequest&);
  const char* m_szMeanings = "";  // of the numbers that an argument takes
};

constexpr CQuestion kQuestions[] = {
    {"steel", "GRADE T [f|fv|fce|fy|fu]", 3, 1,
     "Strength of steel by grade and thickness in mm; fy and fu in 2017", SteelFigure},
    {"eps", "GRADE", 1, 0, "√(235/yield figure of the grade): εk of 2017", EpsFigure},
    {"weld", "GRADE T fcw|ftw12|ftw3|fvw|ffw [ELECTRODE]", 4, 1,
     "Strength of welds; ffw by the lowest electrode of the grade unless it is given", WeldFigure},
    {"bolt", "C|AB|anchor|bearing GRADE ft|fv|fc|fu", 3, 0,
     "Strength of bolts; fc takes the steel of the plate for GRADE", BoltFigure},
    {"preload", "8.8|10.9 D", 2, 0, "Preload of one high-strength bolt of D mm", PreloadFigure},
    {"slip", "SURFACE GRADE", 2, 0, "Slip factor by surface treatment and steel", SlipFigure,
     kSurfaces},
    {"hole", "standard|oversize|slot-across|slot-along [D]", 2, 1,
     "Factor k of slip resistance by the hole; with a bolt of D mm the size of the hole",
     HoleFigure},
    {"spacing", "WHAT D0 T", 3, 0,
     "Spacing of bolts in mm by hole diameter and thinner outer plate; WHAT pitch-least, "
     "pitch-most, end-least (along the force), side-least, side-least-rolled or edge-most",
     SpacingFigure},
    {"area", "D [gross|effective]", 2, 1, "Area of a bolt of D mm", AreaFigure},
    {"slender", "GRADE upper|lower|braced", 2, 0,
     "Largest l1/b1 of an I beam that needs no check of overall stability; 2003 alone",
     SlenderFigure},
    {"phi", "LAMBDA FY a|b|c|d", 3, 0, "Stability factor of an axially compressed member",
     PhiFigure},
    {"phib", "CASE I-NUMBER LENGTH [GRADE]", 4, 1,
     "Stability factor of a rolled I beam; CASE concentrated-upper, concentrated-lower, "
     "uniform-upper, uniform-lower or braced, free LENGTH in m",
     PhiBFigure},
    {"mu", "nosway|sway K1 K2", 3, 0, "Effective length factor of a frame column", MuFigure},
    {"mu-step", "free|sliding ETA1 K1", 3, 0, "The same, lower part of a single-stepped column",
     MuStepFigure},
    {"mu-step2", "free|sliding ETA1 ETA2 K1 K2", 5, 0,
     "The same, lowest part of a double-stepped column", MuStep2Figure},
    {"mu-taper", "IC0/IC1 K2/K1", 2, 0,
     "The same, tapered column with a pinned foot; figures of the table only", MuTaperFigure},
    {"section-class", "ELEMENT RATIO GRADE [ALPHA0]", 4, 1,
     "Section class S1 to S5 of a plate by its width over thickness; ELEMENT flange (outstand), "
     "web, web-compressed (by ALPHA0), box-flange, box-wall or tube; 2017 alone",
     SectionClassFigure},
    {"class", "KIND x|y [GRADE]", 3, 1,
     "Buckling class of a section kind, plates under 40 mm; a* and b* of 2017 by the grade",
     ClassFigure, kClassMeanings},
    {"class-thick", "ROW x|y", 2, 0, "Buckling class with plates of 40 mm and more, row 1 to 6",
     ThickClassFigure, kThickRows},
    {"gamma", "KIND x|y [CLASS]", 3, 1,
     "Plastic development factor of a section kind 0 to 22, in 2017 by its class S1 to S5",
     GammaFigure, kGammaKinds},
    {"fatigue", "CATEGORY C|beta|2e6|5e6|1e8|range [N]", 3, 1,
     "Fatigue of a detail category, Z1 to Z14 and J1 to J3 (2003: 1 to 8): its parameters, the "
     "table's stress ranges, or the range after N cycles",
     FatigueFigure},
};

void CheckCount(const CQuestion& question, std::size_t count) {
  const auto given = static_cast<int>(count);
  if (given <= question.m_nArguments && given >= question.m_nArguments - question.m_nOptional)
    return;
  Refuse(std::string("code ") + question.m_szName + " takes " + question.m_szArguments + "; " +
         std::to_string(given) + (given == 1 ? " argument was" : " arguments were") + " given");
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
  CLI::App* code = program.add_subcommand("code", "Look up a figure of the design code's tables");
  code->require_subcommand(1);
  for (const CQuestion& question : kQuestions) {
    auto options = std::make_shared<COptions>();
    CLI::App* command = code->add_subcommand(question.m_szName, question.m_szHelp);
    command->add_option("ARGUMENTS", options->request.m_arrArgument, question.m_szArguments);
    AddEditionOption(*command, options->year);
    command->add_flag("--json", options->json, "As JSON, the number with all its digits");
    if (question.m_pAnswer == SteelFigure)
      command->add_flag("--tube", options->request.m_bTube, "Of a tube with a wall of T mm");
    command->footer(question.m_szMeanings);
    command->callback([options, &question] {
      CheckCount(question, options->request.Count());
      options->request.m_nEdition = EditionAsked(options->year);
      PrintFigure(question.m_pAnswer(options->request), options->json);
    });
  }
}

}  // namespace orv3::cli
