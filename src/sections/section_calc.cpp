// What the calculations of the styles share.
#include <algorithm>
#include <iterator>

#include "sections/base_point.h"
#include "sections/rect_moments.h"
#include "sections/styles/style_form.h"

namespace orv3 {
namespace {

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

}  // namespace

void SetFirstMoments(CSteelJMData& jm, std::span<const CRect> rects, double W, double H) {
  jm.m_dSxo = MomentAboutX(rects, jm.m_dYo, 1);
  jm.m_dSyo = MomentAboutY(rects, jm.m_dXo, 1);
  const double x = OntoEdge(jm.m_dX, W), y = OntoEdge(jm.m_dY, H);
  if (0 <= y && y <= H) {
    jm.m_dSx1 = y < H ? MomentAboutX(rects, y, 1) : 0;
    jm.m_dSx2 = MomentAboutX(rects, y, 0);
  }
  if (0 <= x && x <= W) {
    jm.m_dSyL = x < W ? MomentAboutY(rects, x, 1) : 0;
    jm.m_dSyR = MomentAboutY(rects, x, 0);
  }
}

void CalculateAs(CStyleNumber model, std::initializer_list<double> modelSizes, CSteelJMData& jm) {
  const int own = jm.m_nStyle;
  double sizes[kSectionSizes];
  std::copy(std::begin(jm.m_dSize), std::end(jm.m_dSize), sizes);

  jm.m_nStyle = model;
  std::copy(modelSizes.begin(), modelSizes.end(), jm.m_dSize);
  FindSectionStyle(model)->m_pForm->m_pCalculate(jm);
  jm.m_nStyle = own;
  std::copy_n(sizes, FindSectionStyle(own)->m_nSizes, jm.m_dSize);
}

}  // namespace orv3

void CSteelJMData::InitJMData(CSteelJMData& jm) {
  jm.m_dXo = jm.m_dYo = jm.m_dA = 0;
  jm.m_dIx = jm.m_dIy = jm.m_dWx1 = jm.m_dWx2 = jm.m_dWyL = jm.m_dWyR = 0;
  jm.m_dSx1 = jm.m_dSx2 = jm.m_dSyL = jm.m_dSyR = jm.m_dix = jm.m_diy = 0;
  jm.m_dIxo = jm.m_dIyo = jm.m_dWxo1 = jm.m_dWxo2 = jm.m_dWyoL = jm.m_dWyoR = 0;
  jm.m_dSxo = jm.m_dSyo = jm.m_dixo = jm.m_diyo = 0;
}

void CSteelJMData::CalSectCharacterStyle(CSteelJMData& jm) {
  InitJMData(jm);
  if (const auto* style = orv3::FindSectionStyle(jm.m_nStyle)) style->m_pForm->m_pCalculate(jm);
}
