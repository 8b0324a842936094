// The cross with flanges at its four arm ends.
#include <algorithm>
#include <limits>

#include "sections/rect_moments.h"
#include "sections/styles/style_form.h"

namespace orv3 {
namespace {

// The first quarter of a flanged cross around its middle, from the right to the top.
std::vector<CPoint> CrossQuarter(double b, double h, double bf1, double bf2, double tw, double tf) {
  std::vector<CPoint> quarter;
  if (tf > 0 && bf2 > 0) {
    quarter.push_back({b / 2, bf2 / 2});
    quarter.push_back({b / 2 - tf, bf2 / 2});
  }
  quarter.push_back({b / 2 - tf, tw / 2});
  quarter.push_back({tw / 2, tw / 2});
  quarter.push_back({tw / 2, h / 2 - tf});
  if (tf > 0 && bf1 > 0) {
    quarter.push_back({bf1 / 2, h / 2 - tf});
    quarter.push_back({bf1 / 2, h / 2});
  }
  return quarter;
}

std::vector<CPath> CrossFlanges(double b, double h, double bf1, double bf2, double tf) {
  return {RectPath((b - bf1) / 2, 0, bf1, tf), RectPath((b - bf1) / 2, h - tf, bf1, tf),
          RectPath(0, (h - bf2) / 2, tf, bf2), RectPath(b - tf, (h - bf2) / 2, tf, bf2)};
}

COutline FlangedCrossOutline(CSizes s) {
  const double b = s[0], h = s[1], bf1 = s[2], bf2 = s[3], tw = s[4], tf = s[5];
  COutline out{{}, b, h};
  if (std::min({bf1, bf2, tw, tf, b - 2 * tf - tw, h - 2 * tf - tw}) < 0) return out;
  if (tw == 0) {
    if (tf > 0) out.m_arrLoop = CrossFlanges(b, h, bf1, bf2, tf);
    std::erase_if(out.m_arrLoop, [](const CPath& loop) {
      const CBox box = PathBounds({&loop, 1});
      return box.Width() == 0 || box.Height() == 0;
    });
    return out;
  }
  const std::vector<CPoint> quarter = CrossQuarter(b, h, bf1, bf2, tw, tf);
  CPath path;
  const auto add = [&](double x, double y) {
    path.m_arrVertex.push_back({b / 2 + x, h / 2 + y, 0});
  };
  const std::vector<CPoint> back(quarter.rbegin(), quarter.rend());
  for (const CPoint& p : quarter) add(p.x, p.y);
  for (const CPoint& p : back) add(-p.x, p.y);
  for (const CPoint& p : quarter) add(-p.x, -p.y);
  for (const CPoint& p : back) add(p.x, -p.y);
  out.m_arrLoop.push_back(std::move(path));
  return out;
}

CDimensions FlangedCrossDimensions(CSizes s) {
  const double b = s[0], h = s[1], bf1 = s[2], bf2 = s[3], tw = s[4], tf = s[5];
  const double flange = (b - bf1) / 2;
  return {{L"b", b, kBottom, {0, (h - bf2) / 2}, {b, (h - bf2) / 2}},
          {L"h", h, kLeft, {flange, 0}, {flange, h}},
          {L"bf1", bf1, kTop, {flange, h}, {flange + bf1, h}},
          {L"bf2", bf2, kLeft, {0, (h - bf2) / 2}, {0, (h + bf2) / 2}},
          {L"tw", tw, kBottom, {(b - tw) / 2, tf}, {(b + tw) / 2, tf}},
          {L"tf", tf, kLeft, {flange, h - tf}, {flange, h}}};
}

// b, h, bf1, bf2, tw, tf: four arms from the middle, each with a flange at its end.
CSectorial FlangedCrossSectorial(CSizes s) {
  const double x = s[0] / 2, y = s[1] / 2;
  const double armX = x - s[5] / 2, armY = y - s[5] / 2;
  const double tw = s[4], tf = s[5], bf1 = s[2] / 2, bf2 = s[3] / 2;
  const CWall walls[] = {
      {x, y, x, y + armY, tw},
      {x, y, x, y - armY, tw},
      {x, y, x + armX, y, tw},
      {x, y, x - armX, y, tw},
      {x, y + armY, x - bf1, y + armY, tf, 0},
      {x, y + armY, x + bf1, y + armY, tf, 0},
      {x, y - armY, x - bf1, y - armY, tf, 1},
      {x, y - armY, x + bf1, y - armY, tf, 1},
      {x + armX, y, x + armX, y - bf2, tf, 2},
      {x + armX, y, x + armX, y + bf2, tf, 2},
      {x - armX, y, x - armX, y - bf2, tf, 3},
      {x - armX, y, x - armX, y + bf2, tf, 3},
  };
  return SectorialProperties(walls, CWallForm::Tree);
}

// The flanges of a flanged cross reach into the same corner when both are longer than the clear
// distance between the opposite pair.
double FlangeClearOfCorner(CSizes s) {
  const double b = s[0], h = s[1], bf1 = s[2], tf = s[5];
  return bf1 > b - 2 * tf ? h - 2 * tf : std::numeric_limits<double>::infinity();
}

constexpr CSizeBound kFlangedCrossBounds[] = {
    {2,
     CBound::AtMost,
     [](CSizes s) { return s[0]; },
     Signs("b(mm)"),
     {"翼缘不应长于截面宽度", "a flange is no longer than the section is wide"}},
    {3,
     CBound::AtMost,
     [](CSizes s) { return s[1]; },
     Signs("h(mm)"),
     {"翼缘不应长于截面高度", "a flange is no longer than the section is high"}},
    {4,
     CBound::AtMost,
     [](CSizes s) { return std::min(s[2], s[3]); },
     {"bf1(mm) 与 bf2(mm) 的较小者", "the smaller of bf1(mm) and bf2(mm)"},
     {"腹板不应厚于翼缘宽度", "the web is no thicker than its flanges are wide"}},
    {5,
     CBound::Below,
     [](CSizes s) { return (std::min(s[0], s[1]) - s[4]) / 2; },
     {"b(mm) 与 h(mm) 较小者减 tw(mm) 后的一半",
      "half of the smaller of b(mm) and h(mm) less tw(mm)"},
     {"交点与翼缘之间应有腹板长度", "the webs need a length between the crossing and the flanges"}},
    {3,
     CBound::AtMost,
     FlangeClearOfCorner,
     Signs("h(mm) - 2 tf(mm)"),
     {"翼缘过宽，在角部重叠", "flanges so wide overlap in the corners"}},
};

}  // namespace

extern constinit const CStyleForm kFlangedCrossForm{
    .m_pCalculate = CSteelJMData::CalSectCharacterStyle13,
    .m_pOutline = FlangedCrossOutline,
    .m_pDimensions = FlangedCrossDimensions,
    .m_pSectorial = FlangedCrossSectorial,
    .m_pSymmetricX = Always,
    .m_pSymmetricY = Always,
    .m_bounds = kFlangedCrossBounds,
};

}  // namespace orv3

// Doubly symmetric. The crossing belongs to the vertical web; the horizontal web is two halves.
void CSteelJMData::CalSectCharacterStyle13(CSteelJMData& jm) {
  if (jm.m_nStyle != orv3::kStyleFlangedCross) return;
  const double *s = jm.m_dSize, b = s[0], h = s[1], bf1 = s[2], bf2 = s[3], tw = s[4], tf = s[5];
  const double hw = h - 2 * tf;               // vertical web
  const double half = (b - 2 * tf - tw) / 2;  // half of the horizontal web
  orv3::SetCentroid(jm, b / 2, h / 2);
  jm.m_dA = 2 * half * tw + 2 * tf * bf2 + 2 * tf * bf1 + hw * tw;
  jm.m_dIxo = 2 * orv3::RectInertia(bf1, tf, (h - tf) / 2) + 2 * orv3::RectInertia(tf, bf2, 0) +
              orv3::RectInertia(tw, hw, 0) + 2 * orv3::RectInertia(half, tw, 0);
  jm.m_dIyo = 2 * orv3::RectInertia(bf2, tf, (b - tf) / 2) + 2 * orv3::RectInertia(tf, bf1, 0) +
              2 * orv3::RectInertia(tw, half, (b - 2 * tf + tw) / 4) + orv3::RectInertia(hw, tw, 0);
  CalSectMomByI0(jm, b, h);
}
