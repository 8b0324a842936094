#include "framework/elementary.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace orv3 {
namespace {

// A number as a double and what it leaves.
struct CTwo {
  double high, low;
};

// pi/2 in parts of 33 bits, whose products with a count of quarter turns are exact, and the rest.
constexpr double kQuarter1 = 0x1.921fb544p+0, kQuarter2 = 0x1.0b4611a6p-34,
                 kQuarter3 = 0x1.3198a2e037073p-69;
constexpr double kLargestAngle = 1e6;
constexpr CTwo kHalfPi{1.5707963267948966, 6.123233995736766e-17};
constexpr CTwo kPi{3.141592653589793, 1.2246467991473532e-16};

// The arctangents of 0, 1/8, ... 1.
constexpr CTwo kAtan[] = {
    {0.0, 0.0},
    {0.12435499454676144, -3.1253241424539383e-18},
    {0.24497866312686414, 1.0698755618734451e-17},
    {0.35877067027057225, -2.4623815582638635e-17},
    {0.4636476090008061, 2.2698777452961687e-17},
    {0.5585993153435624, -5.4556305485916264e-18},
    {0.6435011087932844, 1.5834785051444286e-17},
    {0.7188299996216245, -2.1478388444456983e-17},
    {0.7853981633974483, 3.061616997868383e-17},
};

// a + b of which |a| >= |b|, and a - b, exactly.
CTwo Sum(double a, double b) {
  const double sum = a + b;
  return {sum, (a - sum) + b};
}
CTwo operator-(CTwo a, CTwo b) {
  const CTwo high = Sum(a.high, -b.high);
  return Sum(high.high, high.low + (a.low - b.low));
}

// The upper half of its digits and the lower one.
CTwo Halves(double a) {
  const double shifted = a * 134217729.0;  // 2^27 + 1
  const double high = shifted - (shifted - a);
  return {high, a - high};
}

// What a * b leaves of `from`, to the last digit where they are as good as equal.
double Left(double from, double a, double b) {
  const CTwo x = Halves(a), y = Halves(b);
  const double product = a * b;
  const double rest =
      ((x.high * y.high - product) + x.high * y.low + x.low * y.high) + x.low * y.low;
  return (from - product) - rest;
}

// The angle less a count of quarter turns, in [-pi/4, pi/4], and the count.
struct CReduced {
  CTwo angle;
  int quarter;
};
CReduced Reduced(double angle) {
  const double count = std::floor(angle / kHalfPi.high + 0.5);
  const double first = angle - count * kQuarter1, second = count * kQuarter2;
  const double high = first - second;
  const double low = ((first - high) - second) - count * kQuarter3;
  const double sum = high + low;
  return {{sum, (high - sum) + low}, static_cast<int>(static_cast<long long>(count) & 3)};
}

// Taylor's series, whose first term left out is below 1e-19 in [-pi/4, pi/4].
double SineOf(CTwo r) {
  const double z = r.high * r.high;
  double series = 1 / 355687428096000.0;
  for (double factorial : {-1307674368000.0, 6227020800.0, -39916800.0, 362880.0, -5040.0, 120.0})
    series = series * z + 1 / factorial;
  return r.high + ((z * (z * series - 1 / 6.0)) * r.high + r.low * (1 - z / 2));
}
double CosineOf(CTwo r) {
  const double z = r.high * r.high;
  double series = -1 / 6402373705728000.0;
  for (double factorial :
       {20922789888000.0, -87178291200.0, 479001600.0, -3628800.0, 40320.0, -720.0, 24.0})
    series = series * z + 1 / factorial;
  const double half = z / 2, most = 1 - half;
  return most + (((1 - most) - half) + (z * z * series - r.high * r.low));
}

// The arctangent of low / high, 0 <= low <= high: that of the nearest eighth c, and of
// (low - c high) / (high + c low) by its series.
CTwo AtanOf(double low, double high) {
  const double eighth = std::floor(low / high * 8 + 0.5), c = eighth / 8;
  const CTwo h = Halves(high), l = Halves(low);
  const double most = low - c * h.high;
  const double above = most - c * h.low, aboveRest = (most - above) - c * h.low;
  const CTwo rough = Sum(high, c * l.high), below = Sum(rough.high, rough.low + c * l.low);
  const double t = above / below.high;
  const double rest = (Left(above, t, below.high) + aboveRest - t * below.low) / below.high;
  const double z = t * t;
  double series = 0;
  for (int odd = 17; odd >= 3; odd -= 2) series = 1.0 / odd - series * z;
  const CTwo& table = kAtan[static_cast<int>(eighth)];
  const CTwo sum = eighth == 0 ? CTwo{t, 0} : Sum(table.high, t);
  return Sum(sum.high, sum.low + (table.low + (rest - t * z * series)));
}

}  // namespace

double Sin(double angle) noexcept {
  if (!(std::fabs(angle) <= kLargestAngle)) return std::sin(angle);
  if (std::fabs(angle) < 0x1p-27) return angle;
  const CReduced r = Reduced(angle);
  const double value = r.quarter % 2 == 0 ? SineOf(r.angle) : CosineOf(r.angle);
  return r.quarter < 2 ? value : -value;
}

double Cos(double angle) noexcept {
  if (!(std::fabs(angle) <= kLargestAngle)) return std::cos(angle);
  const CReduced r = Reduced(angle);
  const double value = r.quarter % 2 == 0 ? CosineOf(r.angle) : SineOf(r.angle);
  return r.quarter == 0 || r.quarter == 3 ? value : -value;
}

double Tan(double angle) noexcept { return Sin(angle) / Cos(angle); }

double Asin(double x) noexcept { return Atan2(x, std::sqrt((1 - x) * (1 + x))); }

double Acos(double x) noexcept { return Atan2(std::sqrt((1 - x) * (1 + x)), x); }

double Atan(double x) noexcept { return Atan2(x, 1); }

double Atan2(double y, double x) noexcept {
  if (std::isnan(x) || std::isnan(y)) return std::numeric_limits<double>::quiet_NaN();
  double low = std::fabs(y), high = std::fabs(x);
  if (std::isinf(low) || std::isinf(high)) {
    high = std::isinf(high) ? 1 : 0;
    low = std::isinf(low) ? 1 : 0;
  }
  const bool steep = low > high;
  if (steep) std::swap(low, high);
  if (high > 0x1p900) {
    low *= 0x1p-200;
    high *= 0x1p-200;
  } else if (high < 0x1p-500) {
    low *= 0x1p500;
    high *= 0x1p500;
  }
  CTwo angle = low == 0 ? CTwo{0, 0} : AtanOf(low, high);
  if (steep) angle = kHalfPi - angle;
  if (std::signbit(x)) angle = kPi - angle;
  return std::copysign(angle.high + angle.low, y);
}

double Hypot(double x, double y) noexcept {
  double a = std::fabs(x), b = std::fabs(y);
  if (std::isinf(a) || std::isinf(b)) return std::numeric_limits<double>::infinity();
  if (a < b) std::swap(a, b);
  if (!(b > a * 0x1p-54)) return a + b;
  if (a > 0x1p500) return Hypot(a * 0x1p-600, b * 0x1p-600) * 0x1p600;
  if (b < 0x1p-450) return Hypot(a * 0x1p600, b * 0x1p600) * 0x1p-600;
  // The root, less half of what its square is too large by over itself (Borges 2019).
  const double root = std::sqrt(a * a + b * b);
  if (root <= 2 * b) {
    const double over = root - b;
    const double square = a * (2 * over - a) + (over - 2 * (a - b)) * over;
    return root - square / (2 * root);
  }
  const double over = root - a;
  const double square = 2 * over * (a - 2 * b) + ((4 * over - b) * b + over * over);
  return root - square / (2 * root);
}

}  // namespace orv3
