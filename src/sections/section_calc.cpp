// The properties of the shapes that have formulas of their own. The workers' numbers differ from
// the style numbers; the dispatch tells which belongs to which.
#include <iterator>
#include <numbers>
#include <span>

#include "sections/base_point.h"
#include "sections/plate_h.h"
#include "sections/rect_moments.h"
#include "sections/section_style.h"
#include "sections/steel_jm_data.h"

using orv3::AddCentroids;
using orv3::RectFirstMoment;
using orv3::RectInertia;

namespace {

constexpr double kPi = std::numbers::pi;
constexpr double kRoot3 = std::numbers::sqrt3;

// One plate: its lower-left corner and its extents.
struct CRect {
  double x, y, width, height;
  double sign = 1;  // -1 for a hole
};

using CWorker = void (*)(CSteelJMData&);

// By style number.
constexpr CWorker kWorkers[] = {
    CSteelJMData::CalSectCharacterStyle14, CSteelJMData::CalSectCharacterStyle15,
    CSteelJMData::CalSectCharacterStyle13, CSteelJMData::CalSectCharacterStyle1,
    CSteelJMData::CalSectCharacterStyle3,  CSteelJMData::CalSectCharacterStyle4,
    CSteelJMData::CalSectCharacterStyle5,  CSteelJMData::CalSectCharacterStyle6,
    CSteelJMData::CalSectCharacterStyle7,  CSteelJMData::CalSectCharacterStyle8,
    CSteelJMData::CalSectCharacterStyle9,  CSteelJMData::CalSectCharacterStyle10,
    CSteelJMData::CalSectCharacterStyle11, CSteelJMData::CalSectCharacterStyle12,
    CSteelJMData::CalSectCharacterStyle2,
};

double MomentAboutX(std::span<const CRect> rects, double yc, int upper) {
  double sum = 0;
  for (const CRect& r : rects) {
    sum += r.sign * RectFirstMoment(r.width, r.height, r.y, yc, upper);
  }
  return sum;
}

double MomentAboutY(std::span<const CRect> rects, double xc, int right) {
  double sum = 0;
  for (const CRect& r : rects) {
    sum += r.sign * RectFirstMoment(r.height, r.width, r.x, xc, right);
  }
  return sum;
}

// SyL is the moment of the part right of the base axis and SyR that of the part left of it: tables
// and stores hold them so.
void SetFirstMoments(CSteelJMData& jm, std::span<const CRect> rects, double W, double H) {
  jm.m_dSxo = MomentAboutX(rects, jm.m_dYo, 1);
  jm.m_dSyo = MomentAboutY(rects, jm.m_dXo, 1);
  const double x = orv3::OntoEdge(jm.m_dX, W), y = orv3::OntoEdge(jm.m_dY, H);
  if (0 <= y && y <= H) {
    jm.m_dSx1 = y < H ? MomentAboutX(rects, y, 1) : 0;
    jm.m_dSx2 = MomentAboutX(rects, y, 0);
  }
  if (0 <= x && x <= W) {
    jm.m_dSyL = x < W ? MomentAboutY(rects, x, 1) : 0;
    jm.m_dSyR = MomentAboutY(rects, x, 0);
  }
}

void SetCentroid(CSteelJMData& jm, double xo, double yo) {
  jm.m_dXo = xo;
  jm.m_dYo = yo;
}

double CenterX(const CRect& r) { return r.x + r.width / 2; }
double CenterY(const CRect& r) { return r.y + r.height / 2; }
double Area(const CRect& r) { return r.width * r.height; }

}  // namespace

void CSteelJMData::InitJMData(CSteelJMData& jm) {
  jm.m_dXo = jm.m_dYo = jm.m_dA = 0;
  jm.m_dIx = jm.m_dIy = jm.m_dWx1 = jm.m_dWx2 = jm.m_dWyL = jm.m_dWyR = 0;
  jm.m_dSx1 = jm.m_dSx2 = jm.m_dSyL = jm.m_dSyR = jm.m_dix = jm.m_diy = 0;
  jm.m_dIxo = jm.m_dIyo = jm.m_dWxo1 = jm.m_dWxo2 = jm.m_dWyoL = jm.m_dWyoR = 0;
  jm.m_dSxo = jm.m_dSyo = jm.m_dixo = jm.m_diyo = 0;
}

void CSteelJMData::CalSectCharacterStyle(CSteelJMData& jm) {
  InitJMData(jm);
  if (jm.m_nStyle >= 0 && jm.m_nStyle < std::ssize(kWorkers)) kWorkers[jm.m_nStyle](jm);
}

void CSteelJMData::CalSectCharacterStyle1(CSteelJMData& jm) {
  if (jm.m_nStyle != orv3::kStyleRectangle) return;
  const double b = jm.m_dSize[0], h = jm.m_dSize[1];
  SetCentroid(jm, b / 2, h / 2);
  jm.m_dA = b * h;
  jm.m_dIxo = b * h * h * h / 12;
  jm.m_dIyo = h * b * b * b / 12;
  CalSectMomByI0(jm, b, h);
  const CRect rects[] = {{0, 0, b, h}};
  SetFirstMoments(jm, rects, b, h);
}

// Two corners on the vertical axis. 0.541 a^4 is the customary rounding of 5 sqrt(3) a^4 / 16, kept
// so that results agree with stored ones.
void CSteelJMData::CalSectCharacterStyle3(CSteelJMData& jm) {
  if (jm.m_nStyle != orv3::kStyleHexagon) return;
  const double a = jm.m_dSize[0];
  SetCentroid(jm, kRoot3 * a / 2, a);
  jm.m_dA = 3 * kRoot3 * a * a / 2;
  jm.m_dIxo = jm.m_dIyo = 0.541 * a * a * a * a;
  CalSectMomByI0(jm, kRoot3 * a, 2 * a);
}

void CSteelJMData::CalSectCharacterStyle4(CSteelJMData& jm) {
  if (jm.m_nStyle != orv3::kStyleTriangle) return;
  const double b = jm.m_dSize[0], h = jm.m_dSize[1];
  SetCentroid(jm, b / 2, h / 3);
  jm.m_dA = b * h / 2;
  jm.m_dIxo = b * h * h * h / 36;
  jm.m_dIyo = h * b * b * b / 48;
  CalSectMomByI0(jm, b, h);
}

void CSteelJMData::CalSectCharacterStyle5(CSteelJMData& jm) {
  if (jm.m_nStyle != orv3::kStyleCircle) return;
  const double R = jm.m_dSize[0];
  SetCentroid(jm, R, R);
  jm.m_dA = kPi * R * R;
  jm.m_dIxo = jm.m_dIyo = kPi * R * R * R * R / 4;
  CalSectMomByI0(jm, 2 * R, 2 * R);
  jm.m_dSxo = jm.m_dSyo = 2.0 / 3.0 * R * R * R;
}

void CSteelJMData::CalSectCharacterStyle6(CSteelJMData& jm) {
  if (jm.m_nStyle != orv3::kStyleTube) return;
  const double R = jm.m_dSize[0], r = jm.m_dSize[1];
  SetCentroid(jm, R, R);
  jm.m_dA = kPi * R * R - kPi * r * r;
  jm.m_dIxo = jm.m_dIyo = kPi * R * R * R * R / 4 - kPi * r * r * r * r / 4;
  CalSectMomByI0(jm, 2 * R, 2 * R);
  jm.m_dSxo = jm.m_dSyo = 2.0 / 3.0 * R * R * R - 2.0 / 3.0 * r * r * r;
}

void CSteelJMData::CalSectCharacterStyle8(CSteelJMData& jm) {
  if (jm.m_nStyle != orv3::kStyleGeneralH) return;
  const orv3::CPlateH h = orv3::PlateHOf(9, jm.m_dSize);
  const CRect plates[] = {
      {h.TopEdge(), h.m_dHeight - h.m_dTop, h.TopWidth(), h.m_dTop},
      {h.WebEdge(), h.m_dBottom, h.m_dWeb, h.WebHeight()},
      {h.BottomEdge(), 0, h.BottomWidth(), h.m_dBottom},
  };
  const auto& [top, web, bottom] = plates;
  double x = 0, y = 0;
  AddCentroids(Area(top), CenterX(top), CenterY(top), Area(web), CenterX(web), CenterY(web), x, y);
  AddCentroids(Area(top) + Area(web), x, y, Area(bottom), CenterX(bottom), CenterY(bottom),
               jm.m_dXo, jm.m_dYo);
  jm.m_dA = Area(top) + Area(web) + Area(bottom);
  jm.m_dIxo = jm.m_dIyo = 0;
  for (const CRect& r : plates) {
    jm.m_dIxo += RectInertia(r.width, r.height, CenterY(r) - jm.m_dYo);
    jm.m_dIyo += RectInertia(r.height, r.width, CenterX(r) - jm.m_dXo);
  }
  CalSectMomByI0(jm, h.Width(), h.m_dHeight);
  SetFirstMoments(jm, plates, h.Width(), h.m_dHeight);
}

void CSteelJMData::CalSectCharacterStyle2(CSteelJMData& jm) {
  if (jm.m_nStyle != orv3::kStyleGeneralBox) return;
  const double *s = jm.m_dSize, b = s[0], h = s[1], t1 = s[2], t2 = s[3], t3 = s[4], t4 = s[5];
  const CRect rects[] = {{0, 0, b, h}, {t3, t2, b - t3 - t4, h - t1 - t2, -1}};
  const CRect& hole = rects[1];
  // Centre of the hole from the outer edges, not from its extents: a hole of no area keeps it.
  const double xi = (t3 + b - t4) / 2, yi = (t2 + h - t1) / 2;
  AddCentroids(b * h, b / 2, h / 2, -Area(hole), xi, yi, jm.m_dXo, jm.m_dYo);
  jm.m_dA = b * h - Area(hole);
  jm.m_dIxo =
      RectInertia(b, h, h / 2 - jm.m_dYo) - RectInertia(hole.width, hole.height, yi - jm.m_dYo);
  jm.m_dIyo =
      RectInertia(h, b, b / 2 - jm.m_dXo) - RectInertia(hole.height, hole.width, xi - jm.m_dXo);
  CalSectMomByI0(jm, b, h);
  SetFirstMoments(jm, rects, b, h);
}

// Doubly symmetric. The crossing belongs to the vertical web; the horizontal web is two halves.
void CSteelJMData::CalSectCharacterStyle13(CSteelJMData& jm) {
  if (jm.m_nStyle != orv3::kStyleFlangedCross) return;
  const double *s = jm.m_dSize, b = s[0], h = s[1], bf1 = s[2], bf2 = s[3], tw = s[4], tf = s[5];
  const double hw = h - 2 * tf;               // vertical web
  const double half = (b - 2 * tf - tw) / 2;  // half of the horizontal web
  SetCentroid(jm, b / 2, h / 2);
  jm.m_dA = 2 * half * tw + 2 * tf * bf2 + 2 * tf * bf1 + hw * tw;
  jm.m_dIxo = 2 * RectInertia(bf1, tf, (h - tf) / 2) + 2 * RectInertia(tf, bf2, 0) +
              RectInertia(tw, hw, 0) + 2 * RectInertia(half, tw, 0);
  jm.m_dIyo = 2 * RectInertia(bf2, tf, (b - tf) / 2) + 2 * RectInertia(tf, bf1, 0) +
              2 * RectInertia(tw, half, (b - 2 * tf + tw) / 4) + RectInertia(hw, tw, 0);
  CalSectMomByI0(jm, b, h);
}
