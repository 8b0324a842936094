#include "framework/elementary.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace {

using namespace orv3;

// `got` is at most `ulps` units in the last place from the value, which fifty digits gave.
void ExpectWithin(double got, double exact, int ulps) {
  const double unit = std::nextafter(std::fabs(exact), 1e308) - std::fabs(exact);
  EXPECT_LE(std::fabs(got - exact), ulps * unit) << got << " for " << exact;
}

TEST(Elementary, SineAndCosine) {
  const double cases[][3] = {
      {0, 0, 1},
      {0.1, 0.09983341664682815, 0.9950041652780258},
      {0.7853981633974483, 0.7071067811865475, 0.7071067811865476},
      {1, 0.8414709848078965, 0.5403023058681398},
      {2.5, 0.5984721441039565, -0.8011436155469337},
      {-4, 0.7568024953079282, -0.6536436208636119},
      {6.283185307179586, -2.4492935982947064e-16, 1},
      {100.25, -0.2772828564548513, 0.9607883312760612},
  };
  for (const auto& [angle, sine, cosine] : cases) {
    ExpectWithin(Sin(angle), sine, 1);
    ExpectWithin(Cos(angle), cosine, 1);
    ExpectWithin(Tan(angle), sine / cosine, 3);
  }
}

TEST(Elementary, Arctangent) {
  const double cases[][3] = {
      {1e-9, 1, 1e-9},
      {0.1, 3, 0.033320995878247196},
      {0.3, 1, 0.2914567944778671},
      {2, 3, 0.5880026035475675},
      {7, -3, 1.97568811307998},
      {-1, -5, -2.9441970937399127},
      {4, 0.5, 1.446441332248135},
      {1e-310, 2e-310, 0.4636476090008061},
      {-1e308, 1e308, -std::numbers::pi / 4},
      {1e-320, -1e300, std::numbers::pi},
  };
  for (const auto& [y, x, angle] : cases) ExpectWithin(Atan2(y, x), angle, 1);
  const double infinity = std::numeric_limits<double>::infinity();
  for (double y : {0.0, -0.0, 1.0, -1.0, infinity, -infinity}) {
    for (double x : {0.0, -0.0, 1.0, -1.0, infinity, -infinity}) {
      EXPECT_EQ(Atan2(y, x), std::atan2(y, x)) << y << ", " << x;
      EXPECT_EQ(std::signbit(Atan2(y, x)), std::signbit(std::atan2(y, x))) << y << ", " << x;
    }
  }
  ExpectWithin(Asin(0.5), std::numbers::pi / 6, 2);
  ExpectWithin(Acos(-0.5), 2 * std::numbers::pi / 3, 2);
  EXPECT_TRUE(std::isnan(Asin(1.1)));
}

TEST(Elementary, Hypotenuse) {
  const double cases[][3] = {
      {3, -4, 5},
      {0, -2.5, 2.5},
      {0.1, 0.2, 0.223606797749979},
      {1.5, 1e-9, 1.5},
      {30.25, 29.5, 42.252958476300805},
      {1e300, 2e300, 2.23606797749979e300},
      {3e-310, 4e-310, 5e-310},
      {119.3, 7.7, 119.54823294386244},
  };
  for (const auto& [x, y, root] : cases) ExpectWithin(Hypot(x, y), root, 1);
}

}  // namespace
