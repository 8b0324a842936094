#include "outlines/crossing.h"

#include <gtest/gtest.h>

#include <vector>

namespace orv3 {
namespace {

using CLoops = std::vector<CPath>;
CPath Loop(std::vector<CVertex> vertices) { return {std::move(vertices), true}; }

TEST(FindCrossing, TellsCrossingFromTouching) {
  const CPath square = RectPath(0, 0, 10, 10);
  const struct {
    const char* what;
    CLoops loops;
    bool crosses;
  } cases[] = {
      {"square", {square}, false},
      {"bow tie", {Loop({{0, 0, 0}, {10, 10, 0}, {10, 0, 0}, {0, 10, 0}})}, true},
      {"overlapping loops", {square, RectPath(5, 5, 10, 10)}, true},
      {"side by side, one edge shared", {square, RectPath(10, 2, 5, 5)}, false},
      {"hole inside", {square, Reversed(CirclePath({5, 5}, 4))}, false},
      {"hole touching", {square, Reversed(CirclePath({5, 5}, 5))}, false},
      {"hole sticking out", {square, Reversed(CirclePath({5, 5}, 5.01))}, true},
      {"circles that meet", {CirclePath({0, 0}, 3), CirclePath({4, 0}, 3)}, true},
      {"circles in each other", {CirclePath({0, 0}, 9), CirclePath({1, 0}, 3)}, false},
      {"through a vertex", {square, Loop({{5, 5, 0}, {10, 5, 0}, {15, 7, 0}, {5, 8, 0}})}, true},
      {"vertex on an edge, same side", {square, Loop({{5, 4, 0}, {10, 5, 0}, {5, 6, 0}})}, false},
      {"an edge without width",
       {Loop({{0, 0, 0}, {5, 0, 0}, {5, 5, 0}, {9, 5, 0}, {5, 5, 0}, {0, 5, 0}})},
       false},
      {"arc through its own loop",
       {Loop({{0, 0, 0}, {10, 0, -0.9}, {10, 4, 0}, {3, 4, 0}, {3, 3, 0}, {9, 2, 0}, {0, 1, 0}})},
       true},
  };
  for (const auto& c : cases) EXPECT_EQ(FindCrossing(c.loops).has_value(), c.crosses) << c.what;
  const auto found = FindCrossing(CLoops{square, RectPath(5, -5, 2, 8)});
  ASSERT_TRUE(found);
  EXPECT_NE(found->m_nLoop[0], found->m_nLoop[1]);
  EXPECT_NEAR(found->m_point.y, 0, 1e-9);
}

TEST(Loops, TellWhatTheyEnclose) {
  const CPath fillet = Loop({{0, 0, 0}, {10, 0, -0.3}, {0, 10, 0}});
  EXPECT_TRUE(IsConvex(RectPath(0, 0, 2, 1)));
  EXPECT_TRUE(IsConvex(Reversed(CirclePath({0, 0}, 1))));
  EXPECT_FALSE(IsConvex(fillet));
  EXPECT_FALSE(IsConvex(Loop({{0, 0, 0}, {4, 0, 0}, {1, 1, 0}, {0, 4, 0}})));
  EXPECT_NEAR(LoopArea(Reversed(RectPath(1e6, 0, 2, 3))), -6, 1e-12);
  EXPECT_TRUE(Encloses(fillet, {1, 1}));
  EXPECT_FALSE(Encloses(fillet, {4.9, 4.9}));  // under the chord, beyond the arc
}

}  // namespace
}  // namespace orv3
