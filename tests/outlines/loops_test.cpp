#include "outlines/loops.h"

#include <gtest/gtest.h>

namespace orv3 {
namespace {

TEST(Loops, TellWhatTheyEnclose) {
  const CPath fillet{{{0, 0, 0}, {10, 0, -0.3}, {0, 10, 0}}, true};
  EXPECT_NEAR(LoopArea(Reversed(RectPath(1e6, 0, 2, 3))), -6, 1e-12);
  EXPECT_TRUE(Encloses(fillet, {1, 1}));
  EXPECT_FALSE(Encloses(fillet, {4.9, 4.9}));  // under the chord, beyond the arc
}

}  // namespace
}  // namespace orv3
