// Hot-rolled and welded sections.
#include "catalogue/outline/shapes.h"
#include "tables/sketch_shapes.h"

namespace orv3 {
namespace {

// Fall of the inner flange faces: GB/T 706-1988 draws 1:6, YB 163-63 12 %; the channels of
// GB/T 707-1988 and YB 164-63 have 10 %.
constexpr double kOrdinarySlope = 1.0 / 6;
constexpr double kLightSlope = 0.12;
constexpr double kChannelSlope = 0.1;

COutline TaperedI(CRowSizes& sizes, double slope) {
  const double b = sizes.Size(L"b(mm)");
  const double h = sizes.Size(L"h(mm)");
  const double tw = sizes.Size(L"tw(mm)");
  const double t = sizes.Size(L"t(mm)");
  const CFlangeForm form{sizes.Radius(L"r(mm)"), sizes.Radius(L"r1(mm)"), slope};
  const double fall = slope * (b - tw) / 4;
  sizes.Needs({b - tw, t - fall, h - 2 * (t + fall)});
  return {{IShape(b, h, tw, t, form)}, b, h};
}

// The toes of a leg are rounded by a third of its thickness (GB/T 9787-1988, GB/T 9788-1988).
COutline RolledAngle(CRowSizes& sizes, double width, double height) {
  const double t = sizes.Size(L"t(mm)");
  const CFlangeForm form{sizes.Radius(L"r(mm)"), t / 3, 0};
  sizes.Needs({width - t, height - t});
  return {{AngleShape(width, height, t, form)}, width, height};
}

}  // namespace

COutline OrdinaryI(CRowSizes& sizes) { return TaperedI(sizes, kOrdinarySlope); }
COutline LightI(CRowSizes& sizes) { return TaperedI(sizes, kLightSlope); }

COutline RolledH(CRowSizes& sizes) {
  const double b = sizes.Size(L"B(mm)");
  const double h = sizes.Size(L"H(mm)");
  const double tw = sizes.Size(L"tw(mm)");
  const double tf = sizes.Size(L"tf(mm)");
  sizes.Needs({b - tw, h - 2 * tf});
  return {{IShape(b, h, tw, tf, {sizes.Radius(L"r(mm)"), 0, 0})}, b, h};
}

COutline WeldedH(CRowSizes& sizes) {
  const double b = sizes.Size(L"B(mm)");
  const double h = sizes.Size(L"H(mm)");
  const double tw = sizes.Size(L"tw(mm)");
  const double tf = sizes.Size(L"tf(mm)");
  sizes.Needs({b - tw, h - 2 * tf});
  return {{IShape(b, h, tw, tf)}, b, h};
}

COutline SplitT(CRowSizes& sizes) {
  const double b = sizes.Size(L"B(mm)");
  const double h = sizes.Size(L"h(mm)");
  const double tw = sizes.Size(L"t1(mm)");
  const double tf = sizes.Size(L"t2(mm)");
  sizes.Needs({b - tw, h - tf});
  return {{TShape(b, h, tw, tf, {sizes.Radius(L"r(mm)"), 0, 0})}, b, h};
}

COutline RolledChannel(CRowSizes& sizes) {
  const double b = sizes.Size(L"b(mm)");
  const double h = sizes.Size(L"h(mm)");
  const double tw = sizes.Size(L"tw(mm)");
  const double t = sizes.Size(L"t(mm)");
  const CFlangeForm form{sizes.Radius(L"r(mm)"), sizes.Radius(L"r1(mm)"), kChannelSlope};
  const double fall = kChannelSlope * (b - tw) / 2;
  sizes.Needs({b - tw, t - fall, h - 2 * (t + fall)});
  return {{ChannelShape(b, h, tw, t, form)}, b, h};
}

COutline EqualAngle(CRowSizes& sizes) {
  const double b = sizes.Size(L"b(mm)");
  return RolledAngle(sizes, b, b);
}

COutline UnequalAngle(CRowSizes& sizes) {
  const double width = sizes.Size(L"b(mm)");
  return RolledAngle(sizes, width, sizes.Size(L"B(mm)"));
}

}  // namespace orv3
