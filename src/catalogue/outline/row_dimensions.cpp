#include "catalogue/outline/row_dimensions.h"

#include <array>
#include <cmath>
#include <iterator>
#include <numbers>

#include "catalogue/lattice/lattice_limbs.h"
#include "catalogue/outline/shapes.h"
#include "sections/section_style.h"

namespace orv3 {
namespace {

using CDimensions = std::vector<CSizeDimension>;
constexpr auto kTop = CDimensionSide::Top;
constexpr auto kBottom = CDimensionSide::Bottom;
constexpr auto kLeft = CDimensionSide::Left;
constexpr auto kRight = CDimensionSide::Right;
constexpr auto kInside = CDimensionSide::Inside;
constexpr auto kLeader = CDimensionSide::Leader;

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
      const CPoint out{std::cos(angle), std::sin(angle)};
      const CPoint tip{arc.center.x + arc.radius * out.x, arc.center.y + arc.radius * out.y};
      const double away = std::hypot(tip.x - near.x, tip.y - near.y);
      if (std::fabs(arc.radius - radius) > 1e-6 * radius || away >= best) continue;
      best = away;
      const double side = arc.sweep > 0 ? 1 : -1;
      leader.m_from = {tip.x + side * out.x, tip.y + side * out.y};
      leader.m_to = tip;
    }
  }
  if (best < HUGE_VAL) to.push_back(leader);
}

// --- Rolled
// ---------------------------------------------------------------------------------------

CDimensions TaperedI(CRowSizes& s, const COutline& outline) {
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

CDimensions RolledH(CRowSizes& s, const COutline& outline) {
  const double b = s.Size(L"B(mm)"), h = s.Size(L"H(mm)"), tw = s.Size(L"tw(mm)");
  const double tf = s.Size(L"tf(mm)"), r = s.Radius(L"r(mm)");
  CDimensions all{{L"B", b, kBottom, {0, 0}, {b, 0}},
                  {L"H", h, kLeft, {0, 0}, {0, h}},
                  {L"tw", tw, kBottom, {(b - tw) / 2, tf + r}, {(b + tw) / 2, tf + r}},
                  {L"tf", tf, kLeft, {0, h - tf}, {0, h}}};
  AddArcLeader(all, outline, L"r", r, {b / 2 + tw, tf});
  return all;
}

CDimensions WeldedH(CRowSizes& s, const COutline&) {
  const double b = s.Size(L"B(mm)"), h = s.Size(L"H(mm)"), tw = s.Size(L"tw(mm)");
  const double tf = s.Size(L"tf(mm)");
  return {{L"B", b, kBottom, {0, 0}, {b, 0}},
          {L"H", h, kLeft, {0, 0}, {0, h}},
          {L"tw", tw, kBottom, {(b - tw) / 2, tf}, {(b + tw) / 2, tf}},
          {L"tf", tf, kLeft, {0, h - tf}, {0, h}}};
}

CDimensions SplitT(CRowSizes& s, const COutline& outline) {
  const double b = s.Size(L"B(mm)"), h = s.Size(L"h(mm)"), tw = s.Size(L"t1(mm)");
  const double tf = s.Size(L"t2(mm)");
  CDimensions all{{L"B", b, kTop, {0, h}, {b, h}},
                  {L"h", h, kLeft, {(b - tw) / 2, 0}, {0, h}},
                  {L"t1", tw, kBottom, {(b - tw) / 2, 0}, {(b + tw) / 2, 0}},
                  {L"t2", tf, kLeft, {0, h - tf}, {0, h}}};
  AddArcLeader(all, outline, L"r", s.Radius(L"r(mm)"), {b, h - tf});
  return all;
}

CDimensions RolledChannel(CRowSizes& s, const COutline& outline) {
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

CDimensions RolledAngle(CRowSizes& s, const COutline& outline, const wchar_t* width,
                        const wchar_t* height) {
  const double b = outline.m_dWidth, h = outline.m_dHeight, t = s.Size(L"t(mm)");
  CDimensions all{{width, b, kBottom, {0, 0}, {b, 0}},
                  {height, h, kLeft, {0, 0}, {0, h}},
                  {L"t", t, kTop, {0, h}, {t, h}}};
  AddArcLeader(all, outline, L"r", s.Radius(L"r(mm)"), {t, t});
  return all;
}

CDimensions EqualAngle(CRowSizes& s, const COutline& outline) {
  return RolledAngle(s, outline, L"b", L"b");
}
CDimensions UnequalAngle(CRowSizes& s, const COutline& outline) {
  return RolledAngle(s, outline, L"b", L"B");
}

// --- Cold-formed
// ----------------------------------------------------------------------------------

CDimensions ColdAngle(CRowSizes& s, const COutline&) {
  const double b = s.Size(L"b(mm)"), t = s.Size(L"t(mm)");
  return {{L"b", b, kBottom, {0, 0}, {b, 0}},
          {L"b", b, kLeft, {0, 0}, {0, b}},
          {L"t", t, kTop, {0, b}, {t, b}}};
}

CDimensions LippedAngle(CRowSizes& s, const COutline&) {
  const double b = s.Size(L"b(mm)"), a = s.Size(L"a(mm)"), t = s.Size(L"t(mm)");
  return {{L"b", b, kBottom, {0, 0}, {b, 0}},
          {L"b", b, kLeft, {0, 0}, {0, b}},
          {L"a", a, kTop, {0, b}, {a, b}},
          {L"t", t, kBottom, {0, b / 2}, {t, b / 2}}};
}

CDimensions ColdChannel(CRowSizes& s, const COutline&) {
  const double h = s.Size(L"h(mm)"), b = s.Size(L"b(mm)"), t = s.Size(L"t(mm)");
  return {{L"b", b, kBottom, {0, 0}, {b, 0}},
          {L"h", h, kLeft, {0, 0}, {0, h}},
          {L"t", t, kBottom, {0, h / 4}, {t, h / 4}}};
}

CDimensions LippedChannel(CRowSizes& s, const COutline& outline) {
  const double h = outline.m_dHeight, b = outline.m_dWidth, a = s.Size(L"a(mm)");
  CDimensions all = ColdChannel(s, outline);
  all.push_back({L"a", a, kRight, {b, h - a}, {b, h}});
  return all;
}

CDimensions LippedZ(CRowSizes& s, const COutline& outline) {
  const double h = s.Size(L"h(mm)"), b = s.Size(L"b(mm)"), a = s.Size(L"a(mm)");
  const double t = s.Size(L"t(mm)");
  const double right = outline.m_dWidth;
  return {{L"b", b, kBottom, {b - t, 0}, {right, 0}},
          {L"h", h, kLeft, {b - t, 0}, {b - t, h}},
          {L"a", a, kRight, {right, 0}, {right, a}},
          {L"t", t, kBottom, {b - t, h / 4}, {b, h / 4}}};
}

CDimensions SlopingLipZ(CRowSizes& s, const COutline& outline) {
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

CDimensions SquareTube(CRowSizes& s, const COutline&) {
  const double h = s.Size(L"h(mm)"), t = s.Size(L"t(mm)");
  return {{L"h", h, kBottom, {0, h / 4}, {h, h / 4}},
          {L"h", h, kLeft, {h / 4, 0}, {h / 4, h}},
          {L"t", t, kBottom, {0, h / 4}, {t, h / 4}}};
}

CDimensions RoundTube(CRowSizes& s, const COutline&) {
  const double d = s.Size(L"d(mm)"), t = s.Size(L"t(mm)");
  return {{L"d", d, kBottom, {0, d / 2}, {d, d / 2}}, {L"t", t, kBottom, {0, d / 2}, {t, d / 2}}};
}

struct CTableDimensions {
  const wchar_t* m_szTable;
  CDimensions (*m_pDimensions)(CRowSizes&, const COutline&);
};

constexpr CTableDimensions kTables[] = {
    {L"热轧普通工字钢", TaperedI},      {L"热轧轻型工字钢", TaperedI},
    {L"热轧普通焊接H型钢", WeldedH},    {L"热轧轻型焊接H型钢", WeldedH},
    {L"热轧宽翼缘H型钢", RolledH},      {L"热轧窄翼缘H型钢", RolledH},
    {L"冷弯薄壁方钢管", SquareTube},    {L"剖分T型钢", SplitT},
    {L"热轧普通槽钢", RolledChannel},   {L"热轧轻型槽钢", RolledChannel},
    {L"冷弯薄壁槽钢", ColdChannel},     {L"冷弯薄壁卷边槽钢", LippedChannel},
    {L"冷弯薄壁卷边Z型钢", LippedZ},    {L"冷弯薄壁斜卷边Z型钢", SlopingLipZ},
    {L"冷弯焊接薄壁圆钢管", RoundTube}, {L"热轧等边角钢", EqualAngle},
    {L"热轧不等边角钢", UnequalAngle},  {L"冷弯薄壁等边角钢", ColdAngle},
    {L"冷弯卷边等边角钢", LippedAngle},
};

// --- User-defined, pairs, lattice columns
// ---------------------------------------------------------

CDimensions CustomDimensions(const CSectionStyle& style, const CDataItem& row) {
  std::array<double, kSectionSizes> sizes{};
  for (std::size_t i = 0; i < style.Sizes().size(); ++i)
    row.GetCellValue(style.Sizes()[i].m_szSign, sizes[i]);
  return SizeDimensions(style.m_nStyle, sizes);
}

CDimensions PairDimensions(const CDataItem& row, const COutline& outline) {
  const CPair pair = PairOf(row);
  const double w = pair.m_part.m_dWidth, h = pair.m_part.m_dHeight, gap = pair.m_dGap;
  const double right = outline.m_dWidth, top = outline.m_dHeight;
  CDimensions all{{pair.m_szWidth, w, kBottom, {right - w, top - h}, {right, top - h}},
                  {pair.m_szHeight, h, kLeft, {0, 0}, {0, h}}};
  if (gap > 0) all.push_back({pair.m_szGap, gap, kTop, {w, top}, {w + gap, top}});
  return all;
}

CDimensions LatticeDimensions(const CDataItem& row) {
  const CPlacedLimbs placed = PlaceLimbs(row);
  const auto& at = placed.m_arrCentroid;
  if (at.size() < 2) return {};
  const CPoint first = at.front();
  const CPoint last = at.back();
  if (at.size() == 2) return {{L"k", last.y - first.y, kLeft, first, last}};
  return {{L"kx", at[1].x - first.x, kBottom, first, at[1]},
          {L"ky", last.y - first.y, kLeft, first, last}};
}

CDimensions RolledDimensions(const CDataItem& row, const COutline& outline) {
  for (const CTableDimensions& table : kTables) {
    if (row.GetTableName() != table.m_szTable) continue;
    CRowSizes sizes(row);
    return table.m_pDimensions(sizes, outline);
  }
  return {};
}

// Where a dimension stands after quarter turns. A thickness across a flange has no place of its own
// when the flange stands up.
CDimensionSide TurnedSide(CDimensionSide side, int quarters) {
  const bool half = quarters == 2;
  switch (side) {
    case kTop:
      return half ? kBottom : kLeft;
    case kBottom:
      return half ? kTop : kLeft;
    case kLeft:
      return half ? kLeft : kBottom;
    case kRight:
      return half ? kLeft : kTop;
    case kInside:
      return half ? kInside : kBottom;
    case kLeader:
    case CDimensionSide::Radius:
      break;
  }
  return side;
}

}  // namespace

CPoint QuarterTurned(CPoint p, int quarters, double width, double height) {
  switch (quarters) {
    case 1:
      return {height - p.y, p.x};
    case 2:
      return {width - p.x, height - p.y};
    case 3:
      return {p.y, width - p.x};
    default:
      return p;
  }
}

CDimensions RowDimensions(const CDataItem& row, const COutline& outline) {
  if (outline.m_arrLoop.empty()) return {};
  if (IsPairTable(row.GetTableName())) return PairDimensions(row, outline);
  if (IsLatticeTable(row.GetTableName())) return LatticeDimensions(row);
  const CSectionStyle* style = FindSectionStyle(row.GetTableName().View());
  return style != nullptr ? CustomDimensions(*style, row) : RolledDimensions(row, outline);
}

CDimensions QuarterTurned(CDimensions sizes, int quarters, double width, double height) {
  if (quarters == 0) return sizes;
  for (CSizeDimension& size : sizes) {
    size.m_from = QuarterTurned(size.m_from, quarters, width, height);
    size.m_to = QuarterTurned(size.m_to, quarters, width, height);
    size.m_nSide = TurnedSide(size.m_nSide, quarters);
  }
  return sizes;
}

}  // namespace orv3
