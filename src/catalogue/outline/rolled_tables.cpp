// The rolled-section tables: how each is drawn, and where its sizes are measured on the drawing.
#include <cmath>
#include <numbers>

#include "catalogue/outline/shapes.h"
#include "framework/elementary.h"
#include "sections/dimension_sides.h"
#include "sections/kind_array.h"

namespace orv3 {
namespace {

// A leader to the middle of the arc of this radius nearest to a point, from where no steel is.
void AddArcLeader(CDimensions& to, const COutline& outline, const wchar_t* sign, double radius,
                  CPoint near) {
  double best = HUGE_VAL;
  CSizeDimension leader{sign, radius, kLeader, {}, {}};
  for (const CPath& loop : outline.m_arrLoop) {
    const auto& v = loop.m_arrVertex;
    for (std::size_t i = 0; i < v.size(); ++i) {
      if (v[i].bulge == 0) continue;
      const CArc arc = EdgeArc(v[i], v[(i + 1) % v.size()]);
      const double angle = arc.start + arc.sweep / 2;
      const CPoint out{Cos(angle), Sin(angle)};
      const CPoint tip{arc.center.x + arc.radius * out.x, arc.center.y + arc.radius * out.y};
      const double away = Hypot(tip.x - near.x, tip.y - near.y);
      if (std::fabs(arc.radius - radius) > 1e-6 * radius || away >= best) continue;
      best = away;
      const double side = arc.sweep > 0 ? 1 : -1;
      leader.m_from = {tip.x + side * out.x, tip.y + side * out.y};
      leader.m_to = tip;
    }
  }
  if (best < HUGE_VAL) to.push_back(leader);
}

// --- Rolled --------------------------------------------------------------------------------------

CDimensions TaperedISizes(CRowSizes& s, const COutline& outline) {
  const double b = s.Size(L"b(mm)"), h = s.Size(L"h(mm)"), tw = s.Size(L"tw(mm)");
  const double t = s.Size(L"t(mm)"), r = s.Radius(L"r(mm)");
  const double root = 1.5 * t + r;  // above the fillet
  CDimensions all{{L"b", b, kBottom, {0, 0}, {b, 0}},
                  {L"h", h, kLeft, {0, 0}, {0, h}},
                  {L"tw", tw, kBottom, {(b - tw) / 2, root}, {(b + tw) / 2, root}},
                  {L"t", t, kInside, {(b - tw) / 4, h - t}, {(b - tw) / 4, h}}};
  AddArcLeader(all, outline, L"r", r, {b / 2 + tw, t});
  AddArcLeader(all, outline, L"r1", s.Radius(L"r1(mm)"), {b, h - t});
  return all;
}

CDimensions RolledHSizes(CRowSizes& s, const COutline& outline) {
  const double b = s.Size(L"B(mm)"), h = s.Size(L"H(mm)"), tw = s.Size(L"tw(mm)");
  const double tf = s.Size(L"tf(mm)"), r = s.Radius(L"r(mm)");
  CDimensions all{{L"B", b, kBottom, {0, 0}, {b, 0}},
                  {L"H", h, kLeft, {0, 0}, {0, h}},
                  {L"tw", tw, kBottom, {(b - tw) / 2, tf + r}, {(b + tw) / 2, tf + r}},
                  {L"tf", tf, kLeft, {0, h - tf}, {0, h}}};
  AddArcLeader(all, outline, L"r", r, {b / 2 + tw, tf});
  return all;
}

CDimensions WeldedHSizes(CRowSizes& s, const COutline&) {
  const double b = s.Size(L"B(mm)"), h = s.Size(L"H(mm)"), tw = s.Size(L"tw(mm)");
  const double tf = s.Size(L"tf(mm)");
  return {{L"B", b, kBottom, {0, 0}, {b, 0}},
          {L"H", h, kLeft, {0, 0}, {0, h}},
          {L"tw", tw, kBottom, {(b - tw) / 2, tf}, {(b + tw) / 2, tf}},
          {L"tf", tf, kLeft, {0, h - tf}, {0, h}}};
}

CDimensions SplitTSizes(CRowSizes& s, const COutline& outline) {
  const double b = s.Size(L"B(mm)"), h = s.Size(L"h(mm)"), tw = s.Size(L"t1(mm)");
  const double tf = s.Size(L"t2(mm)");
  CDimensions all{{L"B", b, kTop, {0, h}, {b, h}},
                  {L"h", h, kLeft, {(b - tw) / 2, 0}, {0, h}},
                  {L"t1", tw, kBottom, {(b - tw) / 2, 0}, {(b + tw) / 2, 0}},
                  {L"t2", tf, kLeft, {0, h - tf}, {0, h}}};
  AddArcLeader(all, outline, L"r", s.Radius(L"r(mm)"), {b, h - tf});
  return all;
}

CDimensions RolledChannelSizes(CRowSizes& s, const COutline& outline) {
  const double b = s.Size(L"b(mm)"), h = s.Size(L"h(mm)"), tw = s.Size(L"tw(mm)");
  const double t = s.Size(L"t(mm)"), r = s.Radius(L"r(mm)");
  const double root = 1.5 * t + r;
  CDimensions all{{L"b", b, kBottom, {0, 0}, {b, 0}},
                  {L"h", h, kLeft, {0, 0}, {0, h}},
                  {L"tw", tw, kBottom, {0, root}, {tw, root}},
                  {L"t", t, kInside, {(b + tw) / 2, h - t}, {(b + tw) / 2, h}}};
  AddArcLeader(all, outline, L"r", r, {tw, t});
  AddArcLeader(all, outline, L"r1", s.Radius(L"r1(mm)"), {b, h - t});
  return all;
}

CDimensions RolledAngleSizes(CRowSizes& s, const COutline& outline, const wchar_t* width,
                             const wchar_t* height) {
  const double b = outline.m_dWidth, h = outline.m_dHeight, t = s.Size(L"t(mm)");
  CDimensions all{{width, b, kBottom, {0, 0}, {b, 0}},
                  {height, h, kLeft, {0, 0}, {0, h}},
                  {L"t", t, kTop, {0, h}, {t, h}}};
  AddArcLeader(all, outline, L"r", s.Radius(L"r(mm)"), {t, t});
  return all;
}

CDimensions EqualAngleSizes(CRowSizes& s, const COutline& outline) {
  return RolledAngleSizes(s, outline, L"b", L"b");
}
CDimensions UnequalAngleSizes(CRowSizes& s, const COutline& outline) {
  return RolledAngleSizes(s, outline, L"b", L"B");
}

// --- Cold-formed ---------------------------------------------------------------------------------

CDimensions ColdAngleSizes(CRowSizes& s, const COutline&) {
  const double b = s.Size(L"b(mm)"), t = s.Size(L"t(mm)");
  return {{L"b", b, kBottom, {0, 0}, {b, 0}},
          {L"b", b, kLeft, {0, 0}, {0, b}},
          {L"t", t, kTop, {0, b}, {t, b}}};
}

CDimensions LippedAngleSizes(CRowSizes& s, const COutline&) {
  const double b = s.Size(L"b(mm)"), a = s.Size(L"a(mm)"), t = s.Size(L"t(mm)");
  return {{L"b", b, kBottom, {0, 0}, {b, 0}},
          {L"b", b, kLeft, {0, 0}, {0, b}},
          {L"a", a, kTop, {0, b}, {a, b}},
          {L"t", t, kBottom, {0, b / 2}, {t, b / 2}}};
}

CDimensions ColdChannelSizes(CRowSizes& s, const COutline&) {
  const double h = s.Size(L"h(mm)"), b = s.Size(L"b(mm)"), t = s.Size(L"t(mm)");
  return {{L"b", b, kBottom, {0, 0}, {b, 0}},
          {L"h", h, kLeft, {0, 0}, {0, h}},
          {L"t", t, kBottom, {0, h / 4}, {t, h / 4}}};
}

CDimensions LippedChannelSizes(CRowSizes& s, const COutline& outline) {
  const double h = outline.m_dHeight, b = outline.m_dWidth, a = s.Size(L"a(mm)");
  CDimensions all = ColdChannelSizes(s, outline);
  all.push_back({L"a", a, kRight, {b, h - a}, {b, h}});
  return all;
}

CDimensions LippedZSizes(CRowSizes& s, const COutline& outline) {
  const double h = s.Size(L"h(mm)"), b = s.Size(L"b(mm)"), a = s.Size(L"a(mm)");
  const double t = s.Size(L"t(mm)");
  const double right = outline.m_dWidth;
  return {{L"b", b, kBottom, {b - t, 0}, {right, 0}},
          {L"h", h, kLeft, {b - t, 0}, {b - t, h}},
          {L"a", a, kRight, {right, 0}, {right, a}},
          {L"t", t, kBottom, {b - t, h / 4}, {b, h / 4}}};
}

CDimensions SlopingLipZSizes(CRowSizes& s, const COutline& outline) {
  const double h = s.Size(L"h(mm)"), b = s.Size(L"b(mm)"), a = s.Size(L"a(mm)");
  const double t = s.Size(L"t(mm)");
  const double web = (outline.m_dWidth - t) / 2;  // left face
  const double half = a / 2 * std::numbers::sqrt2 / 2;
  const double through = t * std::numbers::sqrt2 / 2;
  const CPoint lip{web + b + half - through,
                   half + through};  // middle of the lower one's inner face
  return {{L"b", b, kBottom, {web, 0}, {web + b, 0}},
          {L"h", h, kLeft, {web, 0}, {web, h}},
          {L"a", a, kLeader, {lip.x - 2, lip.y + 1}, lip},
          {L"t", t, kBottom, {web, h / 4}, {web + t, h / 4}}};
}

CDimensions SquareTubeSizes(CRowSizes& s, const COutline&) {
  const double h = s.Size(L"h(mm)"), t = s.Size(L"t(mm)");
  return {{L"h", h, kBottom, {0, h / 4}, {h, h / 4}},
          {L"h", h, kLeft, {h / 4, 0}, {h / 4, h}},
          {L"t", t, kBottom, {0, h / 4}, {t, h / 4}}};
}

CDimensions RoundTubeSizes(CRowSizes& s, const COutline&) {
  const double d = s.Size(L"d(mm)"), t = s.Size(L"t(mm)");
  return {{L"d", d, kBottom, {0, d / 2}, {d, d / 2}}, {L"t", t, kBottom, {0, d / 2}, {t, d / 2}}};
}

// --- The tables ----------------------------------------------------------------------------------

constexpr CRolledTable kTables[] = {
    {CSectionKind::OrdinaryI, OrdinaryI, TaperedISizes},
    {CSectionKind::LightI, LightI, TaperedISizes},
    {CSectionKind::WeldedH, WeldedH, WeldedHSizes},
    {CSectionKind::LightWeldedH, WeldedH, WeldedHSizes},
    {CSectionKind::WideH, RolledH, RolledHSizes},
    {CSectionKind::NarrowH, RolledH, RolledHSizes},
    {CSectionKind::SquareTube, SquareTube, SquareTubeSizes},
    {CSectionKind::SplitT, SplitT, SplitTSizes},
    {CSectionKind::OrdinaryChannel, RolledChannel, RolledChannelSizes},
    {CSectionKind::LightChannel, RolledChannel, RolledChannelSizes},
    {CSectionKind::ColdChannel, ColdChannel, ColdChannelSizes},
    {CSectionKind::LippedChannel, LippedChannel, LippedChannelSizes},
    {CSectionKind::LippedZ, LippedZ, LippedZSizes},
    {CSectionKind::SlantLippedZ, SlopingLipZ, SlopingLipZSizes},
    {CSectionKind::RoundTube, RoundTube, RoundTubeSizes},
    {CSectionKind::EqualAngle, EqualAngle, EqualAngleSizes},
    {CSectionKind::UnequalAngle, UnequalAngle, UnequalAngleSizes},
    {CSectionKind::ColdAngle, ColdAngle, ColdAngleSizes},
    {CSectionKind::LippedAngle, LippedAngle, LippedAngleSizes},
};
static_assert(std::size(kTables) == kSingleKinds && InKindOrder(kTables));

}  // namespace

const CRolledTable* FindRolledTable(const CString& tableName) {
  const auto kind = FindSectionKind(tableName);
  return kind && IndexOf(*kind) < kSingleKinds ? &kTables[IndexOf(*kind)] : nullptr;
}

}  // namespace orv3
