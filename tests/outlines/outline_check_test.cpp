// What bounds no steel is refused by name, and in bounded time; loops nest; DXF files are read.
#include "outlines/outline_check.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "drawing/dxf.h"
#include "outlines/dxf_outline.h"
#include "outlines/loop_nesting.h"
#include "outlines/loops.h"

namespace orv3 {
namespace {

using CLoops = std::vector<CPath>;

CPath Square(double left, double bottom, double side) { return RectPath(left, bottom, side, side); }

std::string Fault(const std::optional<COutlineFault>& fault) {
  return fault ? fault->m_strEnglish : "";
}

TEST(OutlineCheck, NamesWhatBoundsNoSteel) {
  constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
  CPath open = Square(0, 0, 10);
  open.m_bClosed = false;
  CPath many;
  for (int i = 0; i <= 100'000; ++i)
    many.m_arrVertex.push_back({std::cos(i * 6e-5), std::sin(i * 6e-5), 0});
  const struct {
    const char* what;
    CLoops loops;
    const char* named;  // "" for none
  } cases[] = {
      {"nothing", {}, "holds no outline"},
      {"a loop without points", {Square(0, 0, 1), {}}, "loop 2 encloses nothing"},
      {"a line", {{{{0, 0}, {5, 5}}}}, "loop 1 encloses nothing"},
      {"half circle and chord", {{{{0, 0, 1}, {5, 5}}}}, ""},
      {"open", {open}, "loop 1 is open, from (0, 0) to (0, 10)"},
      {"not finite", {{{{0, 0}, {kNan, 1}, {2, 2}}}}, "loop 1, point 2: not finite"},
      {"far away", {Square(1e6, 0, 1)}, "loop 1, point 2: beyond"},
      {"too many", {many}, "at most 100000"},
      {"no length", {{{{0, 0}, {4, 0}, {4, 0}, {4, 4}}}}, "the edge from point 2, (4, 0)"},
      {"bow tie",
       {{{{0, 0}, {4, 4}, {4, 0}, {0, 4}}}},
       "loop 1 crosses or touches itself at (2, 2)"},
      {"spike", {{{{0, 0}, {4, 0}, {4, 9}, {4, 4}, {0, 4}}}}, "itself at (4,"},
      {"flat", {{{{0, 0}, {4, 0}, {9, 0}}}}, "itself at"},
      {"a corner on an edge", {{{{0, 0}, {4, 0}, {2, 0}, {2, 4}}}}, "itself at (2, 0)"},
      {"arc through the edge across", {{{{0, 0, 1}, {4, 0}, {4, -1}, {0, -1}}}}, "itself at"},
      {"arc back over the arc", {{{{0, 0, 1}, {2, 0, -1}, {0, 0, 0.5}, {2, 2}}}}, "itself at"},
      {"slit hole", {{{{0, 0}, {9, 0}, {9, 9}, {3, 9}, {3, 3}, {3, 9}, {0, 9}}}}, "itself at (3,"},
      {"crossing", {Square(0, 0, 4), Square(2, 2, 4)}, "loops 1 and 2 cross or touch at"},
      {"touching along an edge",
       {Square(0, 0, 4), Square(4, 1, 2)},
       "loops 1 and 2 cross or touch"},
      {"the same twice", {Square(0, 0, 4), Square(0, 0, 4)}, "loops 1 and 2 cross or touch"},
      {"circles that touch", {CirclePath({0, 0}, 2), CirclePath({4, 0}, 2)}, "at (2, 0)"},
      {"circle at a wall", {Square(0, 0, 8), CirclePath({3, 4}, 3)}, "at (0, 4)"},
      {"circles apart", {CirclePath({0, 0}, 2), CirclePath({4.001, 0}, 2)}, ""},
      {"hole and part in it", {Square(0, 0, 9), Square(1, 1, 7), CirclePath({4, 4}, 2)}, ""},
  };
  for (const auto& c : cases) {
    const std::string fault = Fault(CheckLoops(c.loops));
    EXPECT_NE(fault.find(c.named), fault.npos) << c.what << ": " << fault;
    EXPECT_EQ(fault.empty(), *c.named == 0) << c.what << ": " << fault;
  }
}

// Edges far from each other in all ways but their boxes, and many loops: no comparison of all with
// all.
TEST(OutlineCheck, IsQuickOnManyEdges) {
  CPath comb;  // 50,000 slanting teeth, each as long as the whole
  const int teeth = 24'000;
  for (int i = 0; i < teeth; ++i) {
    const double x = i * 0.1;
    comb.m_arrVertex.insert(comb.m_arrVertex.end(), {{x, 0}, {x + 3000, 3000}});
    comb.m_arrVertex.insert(comb.m_arrVertex.end(), {{x + 3000.05, 3000}, {x + 0.05, 0}});
  }
  comb.m_arrVertex.insert(comb.m_arrVertex.end(), {{teeth * 0.1, -5}, {0, -5}});
  EXPECT_EQ(Fault(CheckLoops({{comb}})), "");
  CLoops holes{Square(-1, -1, 302)};
  for (int i = 0; i < 150 * 150; ++i)
    holes.push_back(Reversed(Square(2.0 * (i % 150), 2.0 * (i / 150), 1)));
  EXPECT_EQ(Fault(CheckOutline(holes)), "");
  holes.back() = Square(296.5, 298, 1);
  EXPECT_NE(Fault(CheckOutline(holes)).find("loops 22500 and 22501"), std::string::npos);
}

TEST(OutlineCheck, TellsHolesFromParts) {
  // Around each other from the outside in, a loop beside them, and corners at one height.
  const CLoops loops{Square(2, 2, 6),  Square(0, 0, 10), CirclePath({5, 5}, 2),
                     Square(12, 2, 6), Square(13, 3, 2), {{{4.5, 5}, {5, 4.5}, {5.5, 5}}}};
  const auto places = NestLoops(loops);
  ASSERT_EQ(places.size(), loops.size());
  const int depths[] = {1, 0, 2, 0, 1, 3};
  const int parents[] = {1, -1, 0, -1, 3, 2};
  for (std::size_t i = 0; i < loops.size(); ++i) {
    EXPECT_EQ(places[i].m_nDepth, depths[i]) << i;
    EXPECT_EQ(places[i].m_nParent, parents[i]) << i;
  }
  EXPECT_NE(Fault(CheckOutline(loops)).find("loop 1 is a part inside"), std::string::npos);
  const CLoops sensed = Sensed(loops, places);
  EXPECT_EQ(Fault(CheckOutline(sensed)), "");
  EXPECT_NEAR(LoopArea(sensed[2]), 4 * std::acos(-1.0), 1e-12);
  EXPECT_NE(Fault(CheckOutline({{Reversed(loops[3])}})).find("a hole outside"), std::string::npos);
}

std::string Dxf(const std::string& entities, const std::string& unit = "4") {
  return "0\nSECTION\n2\nHEADER\n9\n$INSUNITS\n70\n" + unit +
         "\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n" + entities + "0\nENDSEC\n0\nEOF\n";
}

std::string Line(const std::string& ends) {  // "x y x y"
  std::string text = "0\nLINE\n8\nA\n";
  std::size_t at = 0;
  for (const char* code : {"10", "20", "11", "21"}) {
    const std::size_t end = ends.find(' ', at);
    text += std::string(code) + "\n" + ends.substr(at, end - at) + "\n";
    at = end + 1;
  }
  return text;
}

// The layers, B with a group of its own.
std::string Hidden(const std::string& group) {
  return "0\nSECTION\n2\nTABLES\n0\nTABLE\n2\nLAYER\n0\nLAYER\n2\nA\n70\n0\n62\n7\n0\nLAYER\n2\nB"
         "\n" +
         group + "0\nENDTAB\n0\nENDSEC\n";
}

TEST(DxfOutline, ReadsWhatPathsAreWrittenAs) {
  const CLoops drawn{RectPath(0, 0, 30, 20), CirclePath({15, 10}, 5)};
  CLoops read;
  ASSERT_EQ(Fault(ReadDxfOutline(PathsDxf(drawn), "SECTION", read)), "");
  ASSERT_EQ(read.size(), 2U);
  EXPECT_EQ(LoopArea(read[0]), 600);
  EXPECT_NEAR(LoopArea(read[1]), LoopArea(drawn[1]), 1e-12);
  EXPECT_NE(Fault(ReadDxfOutline(PathsDxf(drawn), "0", read)).find("one of SECTION"),
            std::string::npos);
  EXPECT_TRUE(read.empty());
  EXPECT_EQ(Fault(ReadDxfOutline(PathsDxf(drawn), "section", read)), "");  // in another case
  EXPECT_EQ(read.size(), 2U);
  const std::string whole = PathsDxf(drawn);
  const std::size_t entities = whole.rfind("LWPOLYLINE");
  const std::string broken = Fault(ReadDxfOutline(whole.substr(0, entities + 40), "", read));
  EXPECT_NE(broken.find("breaks off"), broken.npos) << broken;
}

// A half disc of radius 5 from a line and an arc, in whichever order and direction, and in inches;
// a polyline of the older kind seen from below; what is passed over and what is refused.
TEST(DxfOutline, JoinsLinesAndArcs) {
  const std::string arc = "0\nARC\n8\nA\n10\n0\n20\n0\n40\n5\n50\n0\n51\n180\n";
  const std::string below =
      "0\nPOLYLINE\n8\nA\n70\n1\n230\n-1\n0\nVERTEX\n10\n5\n20\n0\n42\n1\n0\nVERTEX\n10\n-"
      "5\n20\n0\n"
      "0\nSEQEND\n8\nA\n";
  const std::string onB = "0\nCIRCLE\n8\nb\n10\n0\n20\n2\n40\n1\n";
  const double half = 12.5 * std::acos(-1.0);
  const struct {
    const char* what;
    std::string text;
    double area;
    const char* fault;
  } cases[] = {
      {"arc and line", Dxf(arc + Line("-5 0 5 0")), half, ""},
      {"line backwards, arc", Dxf(Line("5.0004 0 -5 0.0004") + arc), half, ""},
      {"two lines", Dxf(Line("0 0 5 0") + arc + Line("0 0 -5 0")), half, ""},
      {"inches", Dxf(arc + Line("-5 0 5 0"), "1"), half * 25.4 * 25.4, ""},
      {"seen from below", Dxf(below), half, ""},
      {"a text beside", Dxf(arc + Line("-5 0 5 0") + "0\nTEXT\n1\nH300\n"), half, ""},
      {"on paper, hidden", Dxf(arc + Line("-5 0 5 0") + "0\nLINE\n67\n1\n0\nSPLINE\n60\n1\n"), half,
       ""},
      {"on a layer that is off", Hidden("62\n-7\n") + Dxf(arc + Line("-5 0 5 0") + onB), half, ""},
      {"on a frozen layer", Hidden("70\n1\n") + Dxf(arc + Line("-5 0 5 0") + onB), half, ""},
      {"on hidden layers only", Hidden("70\n1\n") + Dxf(onB), 0, "off or frozen: b"},
      {"miles", Dxf(arc, "3"), 0, "$INSUNITS 3 is not taken"},
      {"a gap", Dxf(arc + Line("-5 0 4.9 0")), 0, "open at (4.9, 0)"},
      {"a line too many", Dxf(arc + Line("-5 0 5 0") + Line("5 0 9 9")), 0, "more than two edges"},
      {"a line twice", Dxf(Line("-5 0 5 0") + arc + Line("5 0 -5 0")), half, ""},
      {"an arc twice", Dxf(arc + Line("-5 0 5 0") + arc), half, ""},
      {"a line without length", Dxf(Line("5 0 5 0") + arc + Line("-5 0 5 0")), half, ""},
      {"a line that overlaps another", Dxf(Line("-5 0 5 0") + arc + Line("-5 0 1 0")), 0,
       "more than two edges"},
      {"points of a polyline repeated",
       Dxf("0\nLWPOLYLINE\n90\n4\n70\n1\n10\n-5\n20\n0\n10\n-5\n20\n0\n10\n5\n20\n0\n42\n1\n"
           "10\n-5\n20\n0\n"),
       half, ""},
      {"a spline", Dxf("0\nSPLINE\n8\nA\n"), 0, "line 16: SPLINE is no line or arc"},
      {"no radius", Dxf("0\nCIRCLE\n10\n0\n20\n0\n40\n-1\n"), 0, "its radius must be above 0"},
      {"no number", Dxf("0\nCIRCLE\n10\nleft\n40\n1\n"), 0, "\"left\" is no number"},
      {"no DXF", "%PDF-1.4\n", 0, "line 1: is no DXF"},
      {"nothing", "", 0, "no section ENTITIES"},
      {"binary", std::string("AutoCAD Binary DXF\r\n\x1a", 21), 0, "is a binary DXF"},
  };
  for (const auto& c : cases) {
    CLoops loops;
    const std::string fault = Fault(ReadDxfOutline(c.text, "", loops));
    EXPECT_NE(fault.find(c.fault), fault.npos) << c.what << ": " << fault;
    EXPECT_EQ(fault.empty(), *c.fault == 0) << c.what << ": " << fault;
    ASSERT_EQ(loops.size(), c.area > 0 ? 1U : 0U) << c.what;
    if (c.area > 0) {
      EXPECT_NEAR(std::fabs(LoopArea(loops[0])), c.area, 1e-3 * c.area) << c.what;
      EXPECT_EQ(Fault(CheckLoops(loops)), "") << c.what;
    }
  }
}

}  // namespace
}  // namespace orv3
