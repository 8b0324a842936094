#include "sections/section_dimensions.h"

#include <cmath>
#include <numbers>

#include "sections/plate_h.h"

namespace orv3 {
namespace {

using CSizes = std::span<const double, kSectionSizes>;
using CDimensions = std::vector<CSizeDimension>;
constexpr auto kTop = CDimensionSide::Top;
constexpr auto kBottom = CDimensionSide::Bottom;
constexpr auto kLeft = CDimensionSide::Left;

CDimensions SymmetricH(CSizes s) {
  const double b = s[0], h = s[1], tf = s[2], tw = s[3];
  return {{L"b", b, kBottom, {0, 0}, {b, 0}},
          {L"h", h, kLeft, {0, 0}, {0, h}},
          {L"tf", tf, kLeft, {0, h - tf}, {0, h}},
          {L"tw", tw, kBottom, {(b - tw) / 2, tf}, {(b + tw) / 2, tf}}};
}

CDimensions SymmetricBox(CSizes s) {
  return {{L"b", s[0], kBottom, {0, 0}, {s[0], 0}},
          {L"h", s[1], kLeft, {0, 0}, {0, s[1]}},
          {L"t", s[2], kBottom, {0, 0}, {s[2], 0}}};
}

CDimensions FlangedCross(CSizes s) {
  const double b = s[0], h = s[1], bf1 = s[2], bf2 = s[3], tw = s[4], tf = s[5];
  const double flange = (b - bf1) / 2;
  return {{L"b", b, kBottom, {0, (h - bf2) / 2}, {b, (h - bf2) / 2}},
          {L"h", h, kLeft, {flange, 0}, {flange, h}},
          {L"bf1", bf1, kTop, {flange, h}, {flange + bf1, h}},
          {L"bf2", bf2, kLeft, {0, (h - bf2) / 2}, {0, (h + bf2) / 2}},
          {L"tw", tw, kBottom, {(b - tw) / 2, tf}, {(b + tw) / 2, tf}},
          {L"tf", tf, kLeft, {flange, h - tf}, {flange, h}}};
}

CDimensions Rectangle(CSizes s) {
  return {{L"b", s[0], kBottom, {0, 0}, {s[0], 0}}, {L"h", s[1], kLeft, {0, 0}, {0, s[1]}}};
}

CDimensions Hexagon(CSizes s) { return {{L"a", s[0], kLeft, {0, s[0] / 2}, {0, s[0] * 1.5}}}; }

CDimensions Triangle(CSizes s) {
  return {{L"b", s[0], kBottom, {0, 0}, {s[0], 0}}, {L"h", s[1], kLeft, {0, 0}, {s[0] / 2, s[1]}}};
}

// The radius `radius` of a circle around (outer, outer), drawn at an angle.
CSizeDimension Radius(const wchar_t* sign, double outer, double radius, double degrees) {
  const double angle = degrees * std::numbers::pi / 180;
  return {sign,
          radius,
          CDimensionSide::Radius,
          {outer, outer},
          {outer + radius * std::cos(angle), outer + radius * std::sin(angle)}};
}

CDimensions Circle(CSizes s) { return {Radius(L"R", s[0], s[0], 55)}; }
CDimensions Tube(CSizes s) { return {Radius(L"R", s[0], s[0], 55), Radius(L"r", s[0], s[1], 125)}; }

CDimensions PlateT(CSizes s) {
  const double b = s[0], h = s[1], bh = s[2];
  const CPlateH plates = PlateHOf(8, s);
  const double web = plates.WebEdge();
  const double top = plates.TopEdge();
  return {{L"b", b, kBottom, {web, 0}, {web + b, 0}},
          {L"h", h, kLeft, {web, 0}, {top, h}},
          {L"bh", bh, kLeft, {top, h - bh}, {top, h}},
          {L"bf1", s[3], kTop, {top, h}, {web, h}},
          {L"bf2", s[4], kTop, {web + b, h}, {web + b + s[4], h}}};
}

CDimensions GeneralH(CSizes s) {
  const double h = s[1];
  const CPlateH plates = PlateHOf(9, s);
  const double web = plates.WebEdge();
  const double top = plates.TopEdge();
  const double bottom = plates.BottomEdge();
  return {{L"b", s[0], kBottom, {web, s[2]}, {web + s[0], s[2]}},
          {L"h", h, kLeft, {bottom, 0}, {top, h}},
          {L"bh1", s[2], kLeft, {bottom, 0}, {bottom, s[2]}},
          {L"bh2", s[3], kLeft, {top, h - s[3]}, {top, h}},
          {L"bf1", s[4], kTop, {top, h}, {top + s[4], h}},
          {L"bf2", s[5], kTop, {top + s[4] + s[0], h}, {top + plates.TopWidth(), h}},
          {L"bf3", s[6], kBottom, {bottom, 0}, {bottom + s[6], 0}},
          {L"bf4", s[7], kBottom, {bottom + s[6] + s[0], 0}, {bottom + plates.BottomWidth(), 0}}};
}

CDimensions PlateL(CSizes s) {
  const double b = s[0], h = s[1], bh = s[2], bf = s[3];
  return {{L"b", b, kTop, {0, h}, {b, h}},
          {L"h", h, kLeft, {0, 0}, {0, h}},
          {L"bh", bh, kLeft, {0, 0}, {0, bh}},
          {L"bf", bf, kBottom, {b, 0}, {b + bf, 0}}};
}

CDimensions PlateZ(CSizes s) {
  const double b = s[0], h = s[1];
  const CPlateH plates = PlateHOf(11, s);
  const double web = plates.WebEdge();
  const double top = plates.TopEdge();
  return {{L"b", b, kBottom, {web, 0}, {web + b, 0}},
          {L"h", h, kLeft, {web, 0}, {top, h}},
          {L"bh1", s[2], kLeft, {web, 0}, {web, s[2]}},
          {L"bh2", s[3], kLeft, {top, h - s[3]}, {top, h}},
          {L"bf1", s[4], kTop, {top, h}, {web, h}},
          {L"bf2", s[5], kBottom, {web + b, 0}, {web + b + s[5], 0}}};
}

CDimensions Channel(CSizes s) {
  const double b = s[0], h = s[1];
  return {{L"b", b, kBottom, {0, 0}, {b, 0}},
          {L"h", h, kLeft, {0, 0}, {0, h}},
          {L"bh1", s[2], kLeft, {0, 0}, {0, s[2]}},
          {L"bh2", s[3], kLeft, {0, h - s[3]}, {0, h}},
          {L"bf1", s[4], kBottom, {b, 0}, {b + s[4], 0}},
          {L"bf2", s[5], kTop, {b, h}, {b + s[5], h}}};
}

CDimensions Cross(CSizes s) {
  const double b = s[0], h = s[1], bh1 = s[2], bh2 = s[3], bf1 = s[4], bf2 = s[5];
  return {{L"b", b, kTop, {bf1, h}, {bf1 + b, h}},
          {L"h", h, kLeft, {bf1, 0}, {bf1, h}},
          {L"bh1", bh1, kLeft, {bf1, 0}, {0, bh1}},
          {L"bh2", bh2, kLeft, {0, h - bh2}, {bf1, h}},
          {L"bf1", bf1, kBottom, {0, bh1}, {bf1, 0}},
          {L"bf2", bf2, kBottom, {bf1 + b, 0}, {bf1 + b + bf2, bh1}}};
}

CDimensions GeneralBox(CSizes s) {
  const double b = s[0], h = s[1];
  return {
      {L"b", b, kBottom, {0, 0}, {b, 0}},          {L"h", h, kLeft, {0, 0}, {0, h}},
      {L"t1", s[2], kLeft, {0, h - s[2]}, {0, h}}, {L"t2", s[3], kLeft, {0, 0}, {0, s[3]}},
      {L"t3", s[4], kBottom, {0, 0}, {s[4], 0}},   {L"t4", s[5], kBottom, {b - s[5], 0}, {b, 0}}};
}

}  // namespace

CDimensions SizeDimensions(int style, CSizes sizes) {
  constexpr CDimensions (*kStyles[kSectionStyles])(CSizes) = {
      SymmetricH, SymmetricBox, FlangedCross, Rectangle, Hexagon, Triangle, Circle,    Tube,
      PlateT,     GeneralH,     PlateL,       PlateZ,    Channel, Cross,    GeneralBox};
  if (style < 0 || style >= kSectionStyles) return {};
  return kStyles[style](sizes);
}

}  // namespace orv3
