// The styles that are computed as a general H or a general box of other sizes.
#include <algorithm>
#include <initializer_list>

#include "sections/plate_h.h"
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

void CalculateAsH(int style, CSteelJMData& jm) {
  if (jm.m_nStyle != style) return;
  const orv3::CPlateH h = orv3::PlateHOf(style, jm.m_dSize);
  CalculateAs(kGeneralH,
              {h.m_dWeb, h.m_dHeight, h.m_dBottom, h.m_dTop, h.m_dTopLeft, h.m_dTopRight,
               h.m_dBottomLeft, h.m_dBottomRight},
              jm);
}

}  // namespace

void CSteelJMData::CalSectCharacterStyle7(CSteelJMData& jm) { CalculateAsH(orv3::kStyleT, jm); }
void CSteelJMData::CalSectCharacterStyle9(CSteelJMData& jm) { CalculateAsH(orv3::kStyleL, jm); }
void CSteelJMData::CalSectCharacterStyle10(CSteelJMData& jm) { CalculateAsH(orv3::kStyleZ, jm); }
void CSteelJMData::CalSectCharacterStyle11(CSteelJMData& jm) {
  CalculateAsH(orv3::kStyleChannel, jm);
}
void CSteelJMData::CalSectCharacterStyle12(CSteelJMData& jm) {
  CalculateAsH(orv3::kStyleCross, jm);
}
void CSteelJMData::CalSectCharacterStyle14(CSteelJMData& jm) { CalculateAsH(orv3::kStyleH, jm); }

void CSteelJMData::CalSectCharacterStyle15(CSteelJMData& jm) {
  if (jm.m_nStyle != orv3::kStyleBox) return;
  const double b = jm.m_dSize[0], h = jm.m_dSize[1], t = jm.m_dSize[2];
  CalculateAs(kGeneralBox, {b, h, t, t, t, t}, jm);
}
