// The styles that are computed as a general H or a general box of other sizes.
#include <algorithm>
#include <initializer_list>

#include "sections/section_style.h"
#include "sections/steel_jm_data.h"

namespace {

constexpr int kGeneralH = 9;
constexpr int kGeneralBox = 14;

// Computes the record with the model's style and sizes, then gives it back its own style and sizes.
// The slots behind its own sizes keep the model's: they are stored with the record.
void CalculateAs(int model, std::initializer_list<double> modelSizes, CSteelJMData& jm) {
  const int own = jm.m_nStyle;
  double sizes[CSteelJMData::kSizeCount];
  std::copy(std::begin(jm.m_dSize), std::end(jm.m_dSize), sizes);

  jm.m_nStyle = model;
  std::copy(modelSizes.begin(), modelSizes.end(), jm.m_dSize);
  if (model == kGeneralH) {
    CSteelJMData::CalSectCharacterStyle8(jm);
  } else {
    CSteelJMData::CalSectCharacterStyle2(jm);
  }
  jm.m_nStyle = own;
  std::copy_n(sizes, orv3::FindSectionStyle(own)->m_nSizes, jm.m_dSize);
}

}  // namespace

// T: no bottom flange.
void CSteelJMData::CalSectCharacterStyle7(CSteelJMData& jm) {
  if (jm.m_nStyle != 8) return;
  const double *s = jm.m_dSize, b = s[0], h = s[1], bh = s[2], bf1 = s[3], bf2 = s[4];
  CalculateAs(kGeneralH, {b, h, 0, bh, bf1, bf2, 0, 0}, jm);
}

// L: the leg is the bottom flange, to the right.
void CSteelJMData::CalSectCharacterStyle9(CSteelJMData& jm) {
  if (jm.m_nStyle != 10) return;
  const double *s = jm.m_dSize, b = s[0], h = s[1], bh = s[2], bf = s[3];
  CalculateAs(kGeneralH, {b, h, bh, 0, 0, 0, 0, bf}, jm);
}

// Z: the top flange to the left, the bottom flange to the right.
void CSteelJMData::CalSectCharacterStyle10(CSteelJMData& jm) {
  if (jm.m_nStyle != 11) return;
  const double *s = jm.m_dSize, b = s[0], h = s[1], bh1 = s[2], bh2 = s[3], bf1 = s[4], bf2 = s[5];
  CalculateAs(kGeneralH, {b, h, bh1, bh2, bf1, 0, 0, bf2}, jm);
}

// Channel: both flanges to the right.
void CSteelJMData::CalSectCharacterStyle11(CSteelJMData& jm) {
  if (jm.m_nStyle != 12) return;
  const double *s = jm.m_dSize, b = s[0], h = s[1], bh1 = s[2], bh2 = s[3], bf1 = s[4], bf2 = s[5];
  CalculateAs(kGeneralH, {b, h, bh1, bh2, 0, bf2, 0, bf1}, jm);
}

// Cross: the horizontal bar is the model's web, the vertical arms its flanges, drawn in from it.
void CSteelJMData::CalSectCharacterStyle12(CSteelJMData& jm) {
  if (jm.m_nStyle != 13) return;
  const double *s = jm.m_dSize, b = s[0], h = s[1], bh1 = s[2], bh2 = s[3], bf1 = s[4], bf2 = s[5];
  CalculateAs(kGeneralH, {b + bf1 + bf2, h, bh1, bh2, -bf1, -bf2, -bf1, -bf2}, jm);
}

// Symmetric H.
void CSteelJMData::CalSectCharacterStyle14(CSteelJMData& jm) {
  if (jm.m_nStyle != 0) return;
  const double *s = jm.m_dSize, b = s[0], h = s[1], tf = s[2], tw = s[3];
  const double overhang = (b - tw) / 2;
  CalculateAs(kGeneralH, {tw, h, tf, tf, overhang, overhang, overhang, overhang}, jm);
}

// Symmetric box.
void CSteelJMData::CalSectCharacterStyle15(CSteelJMData& jm) {
  if (jm.m_nStyle != 1) return;
  const double *s = jm.m_dSize, b = s[0], h = s[1], t = s[2];
  CalculateAs(kGeneralBox, {b, h, t, t, t, t}, jm);
}
