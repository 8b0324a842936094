// Solid sections with straight sides.
#include <numbers>
#include <utility>

#include "sections/rect_moments.h"
#include "sections/styles/style_form.h"

namespace orv3 {
namespace {

COutline PolygonOutline(double width, double height, std::vector<CVertex> vertices) {
  COutline out{{}, width, height};
  if (width > 0 && height > 0) out.m_arrLoop.push_back({std::move(vertices), true});
  return out;
}

// Two corners on the vertical axis.
COutline HexagonOutline(CSizes s) {
  const double a = s[0];
  const double width = std::numbers::sqrt3 * a;
  return PolygonOutline(width, 2 * a,
                        {{width / 2, 0, 0},
                         {width, a / 2, 0},
                         {width, 1.5 * a, 0},
                         {width / 2, 2 * a, 0},
                         {0, 1.5 * a, 0},
                         {0, a / 2, 0}});
}

COutline RectangleOutline(CSizes s) {
  return PolygonOutline(s[0], s[1], RectPath(0, 0, s[0], s[1]).m_arrVertex);
}

COutline TriangleOutline(CSizes s) {
  return PolygonOutline(s[0], s[1], {{0, 0, 0}, {s[0], 0, 0}, {s[0] / 2, s[1], 0}});
}

CDimensions RectangleDimensions(CSizes s) {
  return {{L"b", s[0], kBottom, {0, 0}, {s[0], 0}}, {L"h", s[1], kLeft, {0, 0}, {0, s[1]}}};
}

CDimensions HexagonDimensions(CSizes s) {
  return {{L"a", s[0], kLeft, {0, s[0] / 2}, {0, s[0] * 1.5}}};
}

CDimensions TriangleDimensions(CSizes s) {
  return {{L"b", s[0], kBottom, {0, 0}, {s[0], 0}}, {L"h", s[1], kLeft, {0, 0}, {s[0] / 2, s[1]}}};
}

}  // namespace

extern constinit const CStyleForm kRectangleForm{
    .m_pCalculate = CSteelJMData::CalSectCharacterStyle1,
    .m_pOutline = RectangleOutline,
    .m_pDimensions = RectangleDimensions,
    .m_pSymmetricX = Always,
    .m_pSymmetricY = Always,
};

extern constinit const CStyleForm kHexagonForm{
    .m_pCalculate = CSteelJMData::CalSectCharacterStyle3,
    .m_pOutline = HexagonOutline,
    .m_pDimensions = HexagonDimensions,
    .m_pSymmetricX = Always,
    .m_pSymmetricY = Always,
};

extern constinit const CStyleForm kTriangleForm{
    .m_pCalculate = CSteelJMData::CalSectCharacterStyle4,
    .m_pOutline = TriangleOutline,
    .m_pDimensions = TriangleDimensions,
    .m_pSymmetricX = Never,
    .m_pSymmetricY = Always,
};

}  // namespace orv3

void CSteelJMData::CalSectCharacterStyle1(CSteelJMData& jm) {
  if (jm.m_nStyle != orv3::kStyleRectangle) return;
  const double b = jm.m_dSize[0], h = jm.m_dSize[1];
  orv3::SetCentroid(jm, b / 2, h / 2);
  jm.m_dA = b * h;
  jm.m_dIxo = b * h * h * h / 12;
  jm.m_dIyo = h * b * b * b / 12;
  CalSectMomByI0(jm, b, h);
  const orv3::CRect rects[] = {{0, 0, b, h}};
  orv3::SetFirstMoments(jm, rects, b, h);
}

// Two corners on the vertical axis. 0.541 a^4 is the customary rounding of 5 sqrt(3) a^4 / 16, kept
// so that results agree with stored ones.
void CSteelJMData::CalSectCharacterStyle3(CSteelJMData& jm) {
  if (jm.m_nStyle != orv3::kStyleHexagon) return;
  const double a = jm.m_dSize[0];
  orv3::SetCentroid(jm, std::numbers::sqrt3 * a / 2, a);
  jm.m_dA = 3 * std::numbers::sqrt3 * a * a / 2;
  jm.m_dIxo = jm.m_dIyo = 0.541 * a * a * a * a;
  CalSectMomByI0(jm, std::numbers::sqrt3 * a, 2 * a);
}

void CSteelJMData::CalSectCharacterStyle4(CSteelJMData& jm) {
  if (jm.m_nStyle != orv3::kStyleTriangle) return;
  const double b = jm.m_dSize[0], h = jm.m_dSize[1];
  orv3::SetCentroid(jm, b / 2, h / 3);
  jm.m_dA = b * h / 2;
  jm.m_dIxo = b * h * h * h / 36;
  jm.m_dIyo = h * b * b * b / 48;
  CalSectMomByI0(jm, b, h);
}
