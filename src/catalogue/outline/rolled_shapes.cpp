// Hot-rolled and welded sections.
#include <algorithm>

#include "catalogue/outline/shapes.h"
#include "sections/section_shapes.h"

namespace orv3 {
namespace {

// What a flange of thickness t midway on its outstand, and the web beyond it, leave for the radii.
void NeedFlange(CRowSizes& sizes, double outstand, double t, double web, const CFlangeForm& form) {
  const double fall = form.m_dSlope * outstand / 2;
  sizes.Needs(
      {outstand - form.m_dRoot - form.m_dToe, t - fall - form.m_dToe, web - fall - form.m_dRoot});
}

COutline TaperedI(CRowSizes& sizes, double slope) {
  const double b = sizes.Size(L"b(mm)");
  const double h = sizes.Size(L"h(mm)");
  const double tw = sizes.Size(L"tw(mm)");
  const double t = sizes.Size(L"t(mm)");
  const CFlangeForm form{sizes.Radius(L"r(mm)"), sizes.Radius(L"r1(mm)"), slope};
  NeedFlange(sizes, (b - tw) / 2, t, h / 2 - t, form);
  return {{IShape(b, h, tw, t, form)}, b, h};
}

COutline RolledAngle(CRowSizes& sizes, double width, double height) {
  const double t = sizes.Size(L"t(mm)");
  const CFlangeForm form{sizes.Radius(L"r(mm)"), kLegToe * t, 0};
  sizes.Needs({std::min(width, height) - t - form.m_dRoot - form.m_dToe});
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
  const CFlangeForm form{sizes.Radius(L"r(mm)"), 0, 0};
  NeedFlange(sizes, (b - tw) / 2, tf, h / 2 - tf, form);
  return {{IShape(b, h, tw, tf, form)}, b, h};
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
  const CFlangeForm form{sizes.Radius(L"r(mm)"), 0, 0};
  NeedFlange(sizes, (b - tw) / 2, tf, h - tf, form);
  return {{TShape(b, h, tw, tf, form)}, b, h};
}

COutline RolledChannel(CRowSizes& sizes) {
  const double b = sizes.Size(L"b(mm)");
  const double h = sizes.Size(L"h(mm)");
  const double tw = sizes.Size(L"tw(mm)");
  const double t = sizes.Size(L"t(mm)");
  const CFlangeForm form{sizes.Radius(L"r(mm)"), sizes.Radius(L"r1(mm)"), kChannelSlope};
  NeedFlange(sizes, b - tw, t, h / 2 - t, form);
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
