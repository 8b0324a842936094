// The circle and the tube.
#include <numbers>

#include "framework/elementary.h"
#include "sections/styles/style_form.h"

namespace orv3 {
namespace {

COutline RingOutline(double outer, double inner) {
  COutline out{{}, 2 * outer, 2 * outer};
  if (!(outer > 0 && inner >= 0 && inner < outer)) return out;
  const CPoint center{outer, outer};
  out.m_arrLoop.push_back(CirclePath(center, outer));
  if (inner > 0) out.m_arrLoop.push_back(Reversed(CirclePath(center, inner)));
  return out;
}

COutline CircleOutline(CSizes s) { return RingOutline(s[0], 0); }
COutline TubeOutline(CSizes s) { return RingOutline(s[0], s[1]); }

// The radius `radius` of a circle around (outer, outer), drawn at an angle.
CSizeDimension Radius(const wchar_t* sign, double outer, double radius, double degrees) {
  const double angle = degrees * std::numbers::pi / 180;
  return {sign,
          radius,
          CDimensionSide::Radius,
          {outer, outer},
          {outer + radius * Cos(angle), outer + radius * Sin(angle)}};
}

CDimensions CircleDimensions(CSizes s) { return {Radius(L"R", s[0], s[0], 55)}; }
CDimensions TubeDimensions(CSizes s) {
  return {Radius(L"R", s[0], s[0], 55), Radius(L"r", s[0], s[1], 125)};
}

constexpr CSizeBound kTubeBounds[] = {
    {1,
     CBound::Below,
     [](CSizes s) { return s[0]; },
     Signs("R(mm)"),
     {"内半径应小于外半径", "the inner radius is below the outer one"}},
};

}  // namespace

extern constinit const CStyleForm kCircleForm{
    .m_pCalculate = CSteelJMData::CalSectCharacterStyle5,
    .m_pOutline = CircleOutline,
    .m_pDimensions = CircleDimensions,
    .m_pSymmetricX = Always,
    .m_pSymmetricY = Always,
};

extern constinit const CStyleForm kTubeForm{
    .m_pCalculate = CSteelJMData::CalSectCharacterStyle6,
    .m_pOutline = TubeOutline,
    .m_pDimensions = TubeDimensions,
    .m_pSymmetricX = Always,
    .m_pSymmetricY = Always,
    .m_bounds = kTubeBounds,
};

}  // namespace orv3

using std::numbers::pi;

void CSteelJMData::CalSectCharacterStyle5(CSteelJMData& jm) {
  if (jm.m_nStyle != orv3::kStyleCircle) return;
  const double R = jm.m_dSize[0];
  orv3::SetCentroid(jm, R, R);
  jm.m_dA = pi * R * R;
  jm.m_dIxo = jm.m_dIyo = pi * R * R * R * R / 4;
  CalSectMomByI0(jm, 2 * R, 2 * R);
  jm.m_dSxo = jm.m_dSyo = 2.0 / 3.0 * R * R * R;
}

void CSteelJMData::CalSectCharacterStyle6(CSteelJMData& jm) {
  if (jm.m_nStyle != orv3::kStyleTube) return;
  const double R = jm.m_dSize[0], r = jm.m_dSize[1];
  orv3::SetCentroid(jm, R, R);
  jm.m_dA = pi * R * R - pi * r * r;
  jm.m_dIxo = jm.m_dIyo = pi * R * R * R * R / 4 - pi * r * r * r * r / 4;
  CalSectMomByI0(jm, 2 * R, 2 * R);
  jm.m_dSxo = jm.m_dSyo = 2.0 / 3.0 * R * R * R - 2.0 / 3.0 * r * r * r;
}
