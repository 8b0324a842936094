// Cold-formed sections of one thickness t, as GB 50018-2002, Appendix B, draws them: sizes over the
// outer faces, bends of mid-line radius 2.5 t.
#include <numbers>
#include <vector>

#include "catalogue/outline/shapes.h"
#include "sections/section_shapes.h"

namespace orv3 {
namespace {

// A strip along its mid-line. The lengths left straight between bends must not be negative.
COutline Strip(CRowSizes& sizes, const std::vector<CPoint>& middle, double t, CPoint extent) {
  return sizes.IsWhole() ? COutline{{StripShape(middle, t, kInnerBend * t)}, extent.x, extent.y}
                         : COutline{};
}

}  // namespace

COutline ColdAngle(CRowSizes& sizes) {
  const double b = sizes.Size(L"b(mm)");
  const double t = sizes.Size(L"t(mm)");
  sizes.Needs({b - kOuterBend * t});
  const double m = t / 2;
  return Strip(sizes, {{b, m}, {m, m}, {m, b}}, t, {b, b});
}

COutline LippedAngle(CRowSizes& sizes) {
  const double b = sizes.Size(L"b(mm)");
  const double a = sizes.Size(L"a(mm)");
  const double t = sizes.Size(L"t(mm)");
  sizes.Needs({b - 2 * kOuterBend * t, a - kOuterBend * t});
  const double m = t / 2;
  return Strip(sizes, {{b - m, a}, {b - m, m}, {m, m}, {m, b - m}, {a, b - m}}, t, {b, b});
}

COutline ColdChannel(CRowSizes& sizes) {
  const double h = sizes.Size(L"h(mm)");
  const double b = sizes.Size(L"b(mm)");
  const double t = sizes.Size(L"t(mm)");
  sizes.Needs({h - 2 * kOuterBend * t, b - kOuterBend * t});
  const double m = t / 2;
  return Strip(sizes, {{b, m}, {m, m}, {m, h - m}, {b, h - m}}, t, {b, h});
}

COutline LippedChannel(CRowSizes& sizes) {
  const double h = sizes.Size(L"h(mm)");
  const double b = sizes.Size(L"b(mm)");
  const double a = sizes.Size(L"a(mm)");
  const double t = sizes.Size(L"t(mm)");
  sizes.Needs({h - 2 * a, b - 2 * kOuterBend * t, a - kOuterBend * t});
  const double m = t / 2;
  return Strip(sizes, {{b - m, a}, {b - m, m}, {m, m}, {m, h - m}, {b - m, h - m}, {b - m, h - a}},
               t, {b, h});
}

COutline LippedZ(CRowSizes& sizes) {
  const double h = sizes.Size(L"h(mm)");
  const double b = sizes.Size(L"b(mm)");
  const double a = sizes.Size(L"a(mm)");
  const double t = sizes.Size(L"t(mm)");
  sizes.Needs({h - a - t, b - 2 * kOuterBend * t, a - kOuterBend * t});
  const double m = t / 2;
  const double web = b - m;  // mid-line of the web; the flanges overlap by t
  const double right = 2 * b - t - m;
  return Strip(sizes, {{m, h - a}, {m, h - m}, {web, h - m}, {web, m}, {right, m}, {right, a}}, t,
               {2 * b - t, h});
}

// The lips stand out at 45 degrees from the flanges; b and a are measured to the corner at which
// the outer faces of flange and lip would meet.
COutline SlopingLipZ(CRowSizes& sizes) {
  const double h = sizes.Size(L"h(mm)");
  const double b = sizes.Size(L"b(mm)");
  const double a = sizes.Size(L"a(mm)");
  const double t = sizes.Size(L"t(mm)");
  const double m = t / 2;
  const double diagonal = std::numbers::sqrt2 / 2;
  const double back = m * (std::numbers::sqrt2 - 1);  // mid-line corner behind the outer one
  const double bend = 2.5 * t * (std::numbers::sqrt2 - 1);
  sizes.Needs({h - 2 * kOuterBend * t, b - m - back - 2.5 * t - bend, a - back - bend});
  const double flange = b - m - back;
  const double lip = (a - back) * diagonal;  // along either axis
  const double web = flange + lip + m * diagonal;
  return Strip(sizes,
               {{web - flange - lip, h - m - lip},
                {web - flange, h - m},
                {web, h - m},
                {web, m},
                {web + flange, m},
                {web + flange + lip, m + lip}},
               t, {2 * web, h});
}

COutline SquareTube(CRowSizes& sizes) {
  const double h = sizes.Size(L"h(mm)");
  const double t = sizes.Size(L"t(mm)");
  sizes.Needs({h - 2 * kOuterBend * t});
  return {TubeShape(h, h, t, kOuterBend * t), h, h};
}

COutline RoundTube(CRowSizes& sizes) {
  const double d = sizes.Size(L"d(mm)");
  const double t = sizes.Size(L"t(mm)");
  sizes.Needs({d - 2.001 * t});
  return {RingShape(d / 2, d / 2 - t), d, d};
}

}  // namespace orv3
