// Reports: everything that was computed stands in them, in both languages, and nothing is fetched.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

#include "connections/case_changes.h"
#include "connections/cases/case_rules.h"
#include "connections/report/bolt_drawing.h"
#include "connections/report/connection_report.h"
#include "report_lines.h"
#include "reports/report_document.h"
#include "reports/report_page.h"
#include "svg_check.h"

namespace orv3 {
namespace {

CBoltCase Group(int type, int layout) {
  CBoltCase input = With(SixBolts(), {{"type", 1.0 * type},
                                      {"layout", 1.0 * layout},
                                      {"cols", 5},
                                      {"rows", 3},
                                      {"colSpace", 90},
                                      {"rowSpace", 0, {80, 85}}});
  input = With(input, {{"sumT", 14}, {"t", 14}, {"nv", 2}, {"nf", 2}, {"steel", 1}, {"class", 2}});
  input = With(input, {{"N", 31}, {"Vx", 203}, {"Vy", 57}, {"M", 1700}, {"T", 4100}});
  input.m_strId = "<J-1> & \"co\"";
  return With(input, {{"grade", type == kOrdinaryBolt ? 1.0 : 4}});
}

bool Has(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

int Count(const std::string& text, const std::string& part) {
  int count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
    ++count;
  return count;
}

template <class CHECK>
void ExpectWholeReport(const typename CHECK::CCase& input) {
  CHECK check;
  ASSERT_TRUE(check.Run(input)) << check.Faults().front().Line(CLanguage::English);
  for (const CLanguage language : {CLanguage::Chinese, CLanguage::English}) {
    const CReportCase cases[] = {{.m_nCase = 1,
                                  .m_strId = input.m_strId,
                                  .m_sheet = {.m_strProject = "<P> & Q", .m_strChecked = "Li"},
                                  .m_bPass = true,
                                  .m_strBody = CaseReport(input, check, language)},
                                 {.m_nCase = 2, .m_strRefused = "N: <none>"}};
    const std::string html = ReportDocument({"report", "0"}, cases, language);
    EXPECT_TRUE(Has(html, "&lt;P&gt; &amp; Q") && Has(html, "N: &lt;none&gt;"));
    const std::size_t body = html.find("<body>");
    EXPECT_TRUE(IsBalanced("<?xml?>" + html.substr(body, html.find("</html>") - body)));
    EXPECT_EQ(Count(html, "http"), Count(html, "http://www.w3.org/2000/svg")) << "fetches nothing";
    EXPECT_FALSE(Has(html, "<script") || Has(html, "<link") || Has(html, "url("));
    EXPECT_FALSE(Has(html, "<J-1>")) << "texts of the input are escaped";
    EXPECT_TRUE(Has(html, language == CLanguage::Chinese ? "满足" : "passes"));
    EXPECT_EQ(Has(html, "验算"), language == CLanguage::Chinese);
    for (const auto& key : CHECK::ResultKeys()) {
      if ((key.m_nKinds >> CHECK::Kind(input) & 1U) == 0) continue;
      const auto* number = std::get_if<double CHECK::CResults::*>(&key.m_field);
      if (number == nullptr) continue;
      const double value = check.Results().**number;
      EXPECT_TRUE(Has(html, PlainNumber(value))) << key.m_szKey << " " << value;
    }
    for (const auto& key : CHECK::InputKeys()) {
      const auto* number = std::get_if<double CHECK::CCase::*>(&key.m_field);
      if (number == nullptr || input.**number == 0) continue;
      EXPECT_TRUE(Has(html, PlainNumber(input.**number))) << key.m_szKey;
    }
    for (const CCaseWarning& warning : check.Warnings())
      EXPECT_TRUE(Has(html, Escaped(warning.m_text.In(language)))) << warning.m_strKey;
  }
}

TEST(Report, HoldsEveryInputAndResultInBothLanguages) {
  for (const int type : {0, 1, 2}) {
    ExpectWholeReport<CBoltCheck>(Group(type, 0));
    ExpectWholeReport<CBoltCheck>(Group(type, 1));
  }
  for (int loadCase = 0; loadCase < 6; ++loadCase) {
    const auto loads = [&](double N, double M, double V) {
      return std::vector<CChange>{{"case", 1.0 * loadCase},
                                  {"N", TakesN(loadCase) ? N : 0},
                                  {"M", TakesM(loadCase) ? M : 0},
                                  {"V", TakesV(loadCase) ? V : 0}};
    };
    const CFilletCase fillet = With(
        CFilletCase(), {{"steel", 1}, {"lw", 217}, {"betaF", 1.22}, {"hf", 8}, {"angle", 100}});
    ExpectWholeReport<CFilletCheck>(With(fillet, loads(31, -1300, 47)));
    const CButtCase butt =
        With(CButtCase(), {{"steel", 2}, {"quality", 3}, {"lw", 217}, {"t", 18}});
    ExpectWholeReport<CButtCheck>(With(butt, loads(131, -1300, 47)));
  }
}

// --- Lines -----------------------------------------------------------------------------------

// How many lines of the report were held against their own arithmetic.
template <class CHECK>
int ExpectTrueLines(const typename CHECK::CCase& input, const std::string& what) {
  SCOPED_TRACE(what);
  CHECK check;
  if (!check.Run(input)) {
    ADD_FAILURE() << check.Faults().front().Line(CLanguage::English);
    return 0;
  }
  const std::string html = CaseReport(input, check, CLanguage::English);
  const int verdicts = report_lines::ExpectRelations(html);
  EXPECT_EQ(verdicts, static_cast<int>(check.Parts().size()));
  return report_lines::ExpectSteps(html);
}

// Loads of both signs and of none, groups of one bolt, one line and many, short and long ones.
TEST(Report, EveryEvaluatedLineOfABoltGroupIsTrue) {
  constexpr double kSigns[] = {1, -1, 0};
  int lines = 0;
  for (int n = 0; n < 108; ++n) {
    CBoltCase input = Group(n % 3, n / 3 % 2);
    input.m_nCols = std::array{1, 2, 5}[static_cast<std::size_t>(n / 6 % 3)];
    input.m_nRows =
        input.m_nLayout == 1 ? 4 : std::array{1, 3, 12}[static_cast<std::size_t>(n % 3)];
    if (input.m_nLayout == 1) input.m_nCols = std::max(2, input.m_nCols);
    input.m_rowSpace = {.m_dUniform = 77.5, .m_arrEach = {}};
    input.m_colSpace.m_dUniform = n % 2 == 0 ? 90 : 245;
    input.m_nD = n % 4 == 0 ? 24 : 20;
    input.m_dN *= kSigns[n / 18 % 3];
    input.m_dVx *= kSigns[n / 2 % 3] / (n % 5 + 1);
    input.m_dVy *= kSigns[n / 5 % 3] * (n % 7 + 1);
    input.m_dM *= input.m_nRows == 1 ? 0 : n % 4;
    input.m_dT *= input.m_nRows * input.m_nCols == 1 ? 0 : kSigns[n / 7 % 3];
    if (n % 60 == 40) input.m_dVx = 17.5;  // the only load of a group of one row
    input.m_nSurface = n % 4;
    lines += ExpectTrueLines<CBoltCheck>(input, "group " + std::to_string(n));
    CBoltCase2017 later;
    static_cast<CBoltCase&>(later) = input;
    if (input.m_nRows > 1) later.m_dM = kSigns[n / 4 % 3] * 2400.0;
    later.m_nSteel = std::array{0, 1, 2, 3}[static_cast<std::size_t>(n / 3 % 4)];
    later.m_nSurface = n % 3;
    if (input.m_nType != kOrdinaryBolt)
      later.m_nHole = input.m_nType == kFrictionBolt ? n / 3 % 4 : 0;
    later.m_nThreads = n / 3 % 3 - 1;
    lines += ExpectTrueLines<CBoltCheck2017>(later, "group by 2017 " + std::to_string(n));
  }
  EXPECT_GT(lines, 216 * 10);
}

TEST(Report, EveryEvaluatedLineOfAWeldIsTrue) {
  int lines = 0;
  for (int n = 0; n < 72; ++n) {
    const int loadCase = n % 6;
    const double sign = n / 6 % 2 == 0 ? 1 : -1;
    const double N = TakesN(loadCase) ? sign * 31.7 * (n % 5 + 1) : 0;
    const double M = TakesM(loadCase) ? -1300.4 * (n / 12 % 3) : 0;
    const double V = TakesV(loadCase) ? sign * 47.3 * (n % 4 + 1) : 0;
    CFilletCase fillet = {.m_nLoadCase = loadCase,
                          .m_nSteel = n % 4,
                          .m_dLw = 217.5 + n,
                          .m_dN = N,
                          .m_dM = M,
                          .m_dV = V,
                          .m_dBetaF = n % 3 ? 1.22 : 1.0};
    fillet.m_dAngle = n % 2 ? 90 : 75;
    if (n / 6 % 3 == 0) fillet.m_dHf = 6 + n % 5;
    if (n / 6 % 3 == 1) fillet.m_dHe = 7.35;
    if (n / 6 % 3 == 2) fillet.m_dS = 12.6;
    if (fillet.m_dS > 0) fillet.m_nGroove = n % 2 ? 0 : 3;
    lines += ExpectTrueLines<CFilletCheck>(fillet, "fillet " + std::to_string(n));
    lines += ExpectTrueLines<CButtCheck>({.m_nLoadCase = loadCase,
                                          .m_nSteel = n % 4,
                                          .m_nQuality = 1 + n % 3,
                                          .m_dLw = 203.5 + n,
                                          .m_dThick = 6.5 + n,
                                          .m_dN = 4 * N,
                                          .m_dM = 2 * M,
                                          .m_dV = V},
                                         "butt " + std::to_string(n));
  }
  EXPECT_GT(lines, 72 * 5);
}

// With a torque the most stressed bolt is a single corner, whose forces by statics are those
// judged.
TEST(Report, MarksTheBoltThatIsJudged) {
  CBoltCheck check;
  for (const int type : {0, 1, 2}) {
    for (const double T : {4100.0, -4100.0}) {
      CBoltCase input = Group(type, 0);
      input.m_dT = T;
      ASSERT_TRUE(check.Run(input));
      const NormalBoltData& group = check.Record();
      const CBoltFigures& judged = check.Figures();
      const CBoltView view(input, check);
      const CStressedBolts stressed = MostStressedBolts(view);
      ASSERT_EQ(stressed.m_arrBolt.size(), 1U);
      const CHole& bolt = view.m_shape.m_arrBolt[static_cast<std::size_t>(stressed.m_arrBolt[0])];
      const double turn = (stressed.m_bClockwise ? 1 : -1) * std::fabs(T) / group.m_dSumR2;
      EXPECT_NEAR(std::hypot(group.m_dNvx + turn * (bolt.m_y - group.m_dYc),
                             group.m_dNvy - turn * (bolt.m_x - group.m_dXc)),
                  judged.m_dNv, 1e-9);
      EXPECT_NEAR(judged.m_dNtFirst + judged.m_dNtPerMm * bolt.m_y, judged.m_dNt, 1e-9);
      EXPECT_EQ(bolt.m_y, 165) << "the moment pulls hardest at the far row";
    }
  }
  CBoltCase shear = Group(0, 0);
  shear.m_dT = shear.m_dM = 0;
  ASSERT_TRUE(check.Run(shear));
  EXPECT_EQ(MostStressedBolts(CBoltView(shear, check)).m_arrBolt.size(), 15U) << "all are equal";
}

}  // namespace
}  // namespace orv3
