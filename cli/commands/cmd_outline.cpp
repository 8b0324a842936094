// orv3cal outline: the exact properties, and stresses, of any outline.

#include <algorithm>
#include <cmath>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "commands.h"
#include "error.h"
#include "framework/language.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "input/outline_input.h"
#include "options/output_options.h"
#include "outlines/exact_keys.h"
#include "outlines/exact_picture.h"
#include "outlines/loops.h"
#include "outlines/section_solver.h"
#include "outlines/touching_parts.h"
#include "output/csv_output.h"
#include "output/exact_view.h"
#include "output/output.h"
#include "output/streams.h"
#include "output/text_table.h"

namespace orv3::cli {
namespace {

struct COutlineOptions {
  std::string file;
  std::string layer;
  std::vector<std::string> stress;
  bool json = false;
  bool csv = false;
  std::string svg;
};

constexpr struct {
  const char* m_szKey;
  const char* m_szUnit;
  double CSectionForces::*m_pField;
} kForces[] = {{"N", "kN", &CSectionForces::N},      {"Mx", "kN·mm", &CSectionForces::Mx},
               {"My", "kN·mm", &CSectionForces::My}, {"T", "kN·mm", &CSectionForces::T},
               {"Vx", "kN", &CSectionForces::Vx},    {"Vy", "kN", &CSectionForces::Vy}};

// kN and kN mm as given, N and N mm as the solver takes them.
CSectionForces ForcesOf(const std::vector<std::string>& given) {
  constexpr double kKilo = 1000, kMost = 1e12;
  if (given.size() != 4 && given.size() != std::size(kForces)) {
    Refuse(Say("--stress：给出了 {1} 个数；请给出 N,Mx,My,T 或 N,Mx,My,T,Vx,Vy（kN、kN·mm）",
               "--stress: {1} numbers were given; right would be N,Mx,My,T or N,Mx,My,T,Vx,Vy in "
               "kN and kN·mm",
               {std::to_string(given.size())}));
  }
  CSectionForces forces;
  for (std::size_t i = 0; i < given.size(); ++i) {
    const CString wide = FromUtf8(given[i]);
    if (!IsNumber(wide) || std::fabs(ToDouble(wide)) > kMost) {
      Refuse(Say("--stress {1}：“{2}”不是可用的数（{3}）",
                 "--stress {1}: \"{2}\" is no number that can be; right would be {3}",
                 {kForces[i].m_szKey, given[i], kForces[i].m_szUnit}));
    }
    forces.*kForces[i].m_pField = ToDouble(wide) * kKilo;
  }
  return forces;
}

struct COutlineAnswer {
  std::vector<CPath> loops;
  CPoint corner;
  bool touching = false;  // parts that touch and count as not joined
  CExactProperties exact;
  CSectionForces forces;
  std::vector<CBoundaryStress> stress;

  std::size_t Holes() const {
    return static_cast<std::size_t>(std::count_if(
        loops.begin(), loops.end(), [](const CPath& loop) { return LoopArea(loop) < 0; }));
  }
  std::size_t Points() const {
    std::size_t points = 0;
    for (const CPath& loop : loops) points += loop.m_arrVertex.size();
    return points;
  }
};

COutlineAnswer Solve(const COutlineOptions& options) {
  COutlineAnswer answer;
  if (options.csv && !options.stress.empty()) {
    Refuse(Say("--csv 与 --stress 不能同用：CSV 只含截面特性；应力请用 --json",
               "--csv and --stress exclude each other, a CSV line holds properties alone; right "
               "for stresses would be --json"));
  }
  if (!options.stress.empty()) answer.forces = ForcesOf(options.stress);
  COutlineInput input = ReadOutline(options.file, options.layer);
  answer.loops = std::move(input.loops);
  answer.corner = input.corner;
  answer.touching = !input.cleared.empty();
  const CSectionSolver solver(answer.touching ? input.cleared : answer.loops);
  answer.exact =
      answer.touching ? FiguresOfParts(answer.loops, solver.Properties()) : solver.Properties();
  if (std::isnan(answer.exact.It)) {
    Refuse(
        options.file + ": " +
        Say("无法求解这个轮廓：圆弧旁的壁厚远小于圆弧半径，或有小于外形尺寸 10⁻⁸ 的边、壁或间隙；"
            "请去掉这些细节",
            "no figures for this outline, a wall beside an arc is far thinner than its radius, "
            "or an edge, wall or gap is below 1e-8 of the outline's size; right would be one "
            "without them"));
  }
  if (!options.stress.empty()) {
    answer.stress = solver.Stresses(answer.forces);
    const std::vector<CBoundaryStress> inside = solver.StressesInside(answer.forces);
    answer.stress.insert(answer.stress.end(), inside.begin(), inside.end());
  }
  return answer;
}

// --- Stresses ------------------------------------------------------------------------------------

struct CStressRow {
  const char* m_szKey;
  CTextLiteral m_text;
  const CBoundaryStress* CGreatestStress::*m_pPoint;
  double CBoundaryStress::*m_pValue;
};
constexpr CStressRow kStresses[] = {
    {"sigma",
     {"最大正应力", "greatest normal stress"},
     &CGreatestStress::m_pSigma,
     &CBoundaryStress::sigma},
    {"tau",
     {"最大剪应力", "greatest shear stress"},
     &CGreatestStress::m_pTau,
     &CBoundaryStress::tau},
    {"mises",
     {"最大折算应力", "greatest equivalent stress (von Mises)"},
     &CGreatestStress::m_pMises,
     &CBoundaryStress::mises},
};

// Of the greatest of a stress, a part of it; NaN where nothing tells.
double ErrorOf(const CGreatestStress& greatest, const CStressRow& row) {
  const double error = StressError(*(greatest.*row.m_pPoint), row.m_pValue);
  const bool sheared = row.m_pValue != &CBoundaryStress::sigma && error > 0;
  return greatest.m_bCoarse && sheared ? NAN : error;
}

CJson StressJson(const COutlineAnswer& answer) {
  CJson json = CJson::object();
  for (const auto& force : kForces) json[force.m_szKey] = answer.forces.*force.m_pField / 1000;
  const CGreatestStress greatest = GreatestStress(answer.stress);
  for (const CStressRow& row : kStresses) {
    const CBoundaryStress* point = greatest.*row.m_pPoint;
    json[row.m_szKey] = point == nullptr ? CJson(nullptr)
                                         : CJson{{"value", JsonNumber(point->*row.m_pValue)},
                                                 {"x", JsonNumber(point->m_point.x)},
                                                 {"y", JsonNumber(point->m_point.y)},
                                                 {"error", JsonNumber(ErrorOf(greatest, row))}};
  }
  json["sharpCorners"] = greatest.m_bSharp;
  return json;
}

// Of sigma, which has none: nothing.
std::string ErrorText(double error) {
  if (error == 0) return "";
  if (std::isnan(error)) return Say("，误差不明", ", error not known");
  return Say("，误差估计 {1} %", ", estimated error {1} %",
             {NumberText(std::round(error * 1e4) / 100)});
}

void WarnOfStress(const COutlineOptions& options, const COutlineAnswer& answer) {
  constexpr double kMost = 0.03;
  const CGreatestStress greatest = GreatestStress(answer.stress);
  for (const CStressRow& row : kStresses) {
    const CBoundaryStress* point = greatest.*row.m_pPoint;
    if (point == nullptr || ErrorOf(greatest, row) <= kMost) continue;
    const std::string fault =
        std::isnan(ErrorOf(greatest, row))
            ? Say("圆角、缺口或孔相对外形过小或过多，网格未能细分到位，该处应力更大",
                  "fillets, notches or holes are too small or too many to be followed, the stress "
                  "at them is greater")
            : Say("该处应力的误差估计超过 3 %；附近有尖锐内凹角，或圆角、缺口过小",
                  "the estimated error of this stress is above 3 %, a sharp re-entrant corner or a "
                  "small fillet or notch is near");
    WriteError("orv3cal: " + Visible(options.file) + ": " + row.m_szKey + ": " + fault + "\n");
  }
}

void PrintStresses(const COutlineAnswer& answer) {
  std::string head = Say("\n应力", "\nStresses");
  for (const auto& force : kForces) {
    head += std::string("  ") + force.m_szKey + " = " +
            NumberText(answer.forces.*force.m_pField / 1000) + " " + force.m_szUnit;
  }
  Print(head + "\n\n");
  const CGreatestStress greatest = GreatestStress(answer.stress);
  CTextTable table(
      {CAlign::Left, CAlign::Left, CAlign::Right, CAlign::Left, CAlign::Left, CAlign::Left});
  for (const CStressRow& row : kStresses) {
    const CBoundaryStress* point = greatest.*row.m_pPoint;
    if (point == nullptr) {
      table.AddRow(
          {row.m_text.m_szChinese, row.m_szKey, "-", "", Say({"", row.m_text.m_szEnglish})});
      continue;
    }
    table.AddRow({row.m_text.m_szChinese, row.m_szKey, NumberText(point->*row.m_pValue), "N/mm²",
                  Say({"", row.m_text.m_szEnglish}),
                  "x = " + NumberText(point->m_point.x) + ", y = " + NumberText(point->m_point.y) +
                      ErrorText(ErrorOf(greatest, row))});
  }
  Print(table.Text());
  if (greatest.m_bSharp) {
    Print(Say("\n尖锐内凹角处剪应力理论上无界，未计入；请给出圆角\n",
              "\nAt sharp re-entrant corners theory has no bound for the shear stress: they are "
              "left out; right would be corners with radii\n"));
  }
}

// --- Output --------------------------------------------------------------------------------------

void PrintOutlineJson(const COutlineAnswer& answer, bool stresses) {
  CJson json = {{"unit", "mm"},
                {"loops", answer.loops.size()},
                {"holes", answer.Holes()},
                {"points", answer.Points()},
                {"origin", {JsonNumber(answer.corner.x), JsonNumber(answer.corner.y)}}};
  AddExactJson(json, answer.exact);
  if (stresses) json["stress"] = StressJson(answer);
  PrintJson(json);
}

void PrintOutlineCsv(const COutlineAnswer& answer) {
  std::vector<std::string> head, cells;
  for (const CExactKey& key : ExactKeys()) {
    const double value = answer.exact.*key.m_pField;
    head.emplace_back(key.m_szKey);
    cells.push_back(std::isfinite(value) ? ToUtf8(FormatShortest(value)) : "");
  }
  PrintCsv(kCsvMark + CsvLine(head) + CsvLine(cells));
}

void PrintOutline(const COutlineAnswer& answer, const COutlineOptions& options) {
  const auto number = [](std::size_t value) { return std::to_string(value); };
  const std::size_t holes = answer.Holes();
  Print(options.file + "\n\n" +
        Say("{1} 个部分，{2} 个孔，{3} 点；原点取在 x = {4}、y = {5}\n",
            "parts: {1}, holes: {2}, points: {3}; the origin below is at x = {4}, y = {5} mm\n",
            {number(answer.loops.size() - holes), number(holes), number(answer.Points()),
             NumberText(answer.corner.x), NumberText(answer.corner.y)}));
  PrintExact(answer.exact);
  if (!options.stress.empty()) PrintStresses(answer);
}

void WarnOfTouching(const COutlineOptions& options) {
  WriteError("orv3cal: " + Visible(options.file) + ": " +
             Say("各部分相触，按互不相连计算；如已焊成一体，请将其外形画成一圈",
                 "its parts touch and count as not joined; right for parts welded into one would "
                 "be one loop around them") +
             "\n");
}

void RunOutline(const COutlineOptions& options) {
  const COutlineAnswer answer = Solve(options);
  if (!options.svg.empty()) {
    const CExactPicture picture{answer.loops, answer.exact, FromUtf8(options.file), answer.stress,
                                MessageLanguage()};
    WriteFile(options.svg, DrawingSvg(ExactPictureDrawing(picture), FromUtf8(options.file)));
  }
  if (answer.touching) WarnOfTouching(options);
  WarnOfStress(options, answer);
  if (options.json || options.csv) WarnInaccurate(options.file, answer.exact);
  if (options.json) return PrintOutlineJson(answer, !options.stress.empty());
  if (options.csv) return PrintOutlineCsv(answer);
  PrintOutline(answer, options);
}

}  // namespace

void AddOutlineCommand(CLI::App& program) {
  auto options = std::make_shared<COutlineOptions>();
  CLI::App* command = program.add_subcommand(
      "outline", Say("由任意轮廓精确计算扭转、翘曲、剪切、塑性和主轴特性",
                     "Exact properties of any outline: torsion, warping, shear, plastic, "
                     "principal"));
  command
      ->add_option("FILE", options->file,
                   Say("DXF 文件，或 JSON {\"unit\": \"mm\", \"loops\": [[[x, y], [x, y, 凸度], "
                       "...], ...]}；- 为标准输入",
                       "A DXF file, or JSON {\"unit\": \"mm\", \"loops\": [[[x, y], [x, y, "
                       "bulge], ...], ...]}; - reads standard input"))
      ->required();
  command
      ->add_option("--layer", options->layer,
                   Say("DXF 文件只读此图层", "Of a DXF file this layer only"))
      ->type_name("NAME");
  CLI::Option* json = AddJsonOption(*command, options->json);
  command->add_flag("--csv", options->csv, Say("以 CSV 输出，一行", "As CSV, one line"))
      ->excludes(json);
  command
      ->add_option("--svg", options->svg,
                   Say("写出绘有各轴和剪心的图", "Write a picture with axes and shear centre"))
      ->type_name("FILE");
  command
      ->add_option("--stress", options->stress,
                   Say("由 N,Mx,My,T 或 N,Mx,My,T,Vx,Vy 求应力，kN、kN·mm；N 受拉为正，Mx 使上边缘"
                       "受拉，My 使右边缘受拉",
                       "Stresses from N,Mx,My,T or N,Mx,My,T,Vx,Vy in kN and kN·mm; Mx pulls the "
                       "upper edge, My the right one, N tension"))
      ->delimiter(',')
      ->expected(1, 6)
      ->type_name("N,Mx,My,T");
  command->callback([options] { RunOutline(*options); });
}

}  // namespace orv3::cli
