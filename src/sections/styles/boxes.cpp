// Boxes of four plates.
#include <algorithm>

#include "framework/kvb_math.h"
#include "sections/rect_moments.h"
#include "sections/styles/style_form.h"

namespace orv3 {
namespace {

COutline BoxOutline(double b, double h, double top, double bottom, double left, double right) {
  COutline out{{}, b, h};
  const double holeWidth = b - left - right;
  const double holeHeight = h - top - bottom;
  if (!(b > 0 && h > 0) || std::min({top, bottom, left, right, holeWidth, holeHeight}) < 0)
    return out;
  const bool hole = holeWidth > 0 && holeHeight > 0;
  if (hole && holeWidth == b && holeHeight == h) return out;
  out.m_arrLoop.push_back(RectPath(0, 0, b, h));
  if (hole) out.m_arrLoop.push_back(Reversed(RectPath(left, bottom, holeWidth, holeHeight)));
  return out;
}

COutline SymmetricBoxOutline(CSizes s) { return BoxOutline(s[0], s[1], s[2], s[2], s[2], s[2]); }
COutline GeneralBoxOutline(CSizes s) { return BoxOutline(s[0], s[1], s[2], s[3], s[4], s[5]); }

CSectorial SymmetricBoxSectorial(CSizes s) {
  return BoxSectorial(s[0], s[1], s[2], s[2], s[2], s[2]);
}
CSectorial GeneralBoxSectorial(CSizes s) {
  return BoxSectorial(s[0], s[1], s[2], s[3], s[4], s[5]);
}

CDimensions SymmetricBoxDimensions(CSizes s) {
  return {{L"b", s[0], kBottom, {0, 0}, {s[0], 0}},
          {L"h", s[1], kLeft, {0, 0}, {0, s[1]}},
          {L"t", s[2], kBottom, {0, 0}, {s[2], 0}}};
}

CDimensions GeneralBoxDimensions(CSizes s) {
  const double b = s[0], h = s[1];
  return {
      {L"b", b, kBottom, {0, 0}, {b, 0}},          {L"h", h, kLeft, {0, 0}, {0, h}},
      {L"t1", s[2], kLeft, {0, h - s[2]}, {0, h}}, {L"t2", s[3], kLeft, {0, 0}, {0, s[3]}},
      {L"t3", s[4], kBottom, {0, 0}, {s[4], 0}},   {L"t4", s[5], kBottom, {b - s[5], 0}, {b, 0}}};
}

constexpr CSizeBound kBoxBounds[] = {
    {2,
     CBound::Below,
     [](CSizes s) { return std::min(s[0], s[1]) / 2; },
     {"b(mm) 与 h(mm) 较小者的一半", "half the smaller of b(mm) and h(mm)"},
     {"箱形截面应为空心", "the box needs a hole"}},
};

constexpr CSizeBound kGeneralBoxBounds[] = {
    {2,
     CBound::Below,
     [](CSizes s) { return s[1]; },
     Signs("h(mm)"),
     {"箱形截面应为空心", "the box needs a hole"}},
    {3,
     CBound::Below,
     [](CSizes s) { return s[1] - s[2]; },
     Signs("h(mm) - t1(mm)"),
     {"箱形截面应为空心", "the box needs a hole"}},
    {4,
     CBound::Below,
     [](CSizes s) { return s[0]; },
     Signs("b(mm)"),
     {"箱形截面应为空心", "the box needs a hole"}},
    {5,
     CBound::Below,
     [](CSizes s) { return s[0] - s[4]; },
     Signs("b(mm) - t3(mm)"),
     {"箱形截面应为空心", "the box needs a hole"}},
};

}  // namespace

extern constinit const CStyleForm kBoxForm{
    .m_pCalculate = CSteelJMData::CalSectCharacterStyle15,
    .m_pOutline = SymmetricBoxOutline,
    .m_pDimensions = SymmetricBoxDimensions,
    .m_pSectorial = SymmetricBoxSectorial,
    .m_pSymmetricX = Always,
    .m_pSymmetricY = Always,
    .m_bounds = kBoxBounds,
};

extern constinit const CStyleForm kGeneralBoxForm{
    .m_pCalculate = CSteelJMData::CalSectCharacterStyle2,
    .m_pOutline = GeneralBoxOutline,
    .m_pDimensions = GeneralBoxDimensions,
    .m_pSectorial = GeneralBoxSectorial,
    .m_pSymmetricX = [](CSizes s) { return CKvbMath::EqualTo(s[2], s[3]); },
    .m_pSymmetricY = [](CSizes s) { return CKvbMath::EqualTo(s[4], s[5]); },
    .m_bounds = kGeneralBoxBounds,
};

}  // namespace orv3

void CSteelJMData::CalSectCharacterStyle2(CSteelJMData& jm) {
  if (jm.m_nStyle != orv3::kStyleGeneralBox) return;
  const double *s = jm.m_dSize, b = s[0], h = s[1], t1 = s[2], t2 = s[3], t3 = s[4], t4 = s[5];
  const orv3::CRect rects[] = {{0, 0, b, h}, {t3, t2, b - t3 - t4, h - t1 - t2, -1}};
  const orv3::CRect& hole = rects[1];
  // Centre of the hole from the outer edges, not from its extents: a hole of no area keeps it.
  const double xi = (t3 + b - t4) / 2, yi = (t2 + h - t1) / 2;
  orv3::AddCentroids(b * h, b / 2, h / 2, -orv3::Area(hole), xi, yi, jm.m_dXo, jm.m_dYo);
  jm.m_dA = b * h - orv3::Area(hole);
  jm.m_dIxo = orv3::RectInertia(b, h, h / 2 - jm.m_dYo) -
              orv3::RectInertia(hole.width, hole.height, yi - jm.m_dYo);
  jm.m_dIyo = orv3::RectInertia(h, b, b / 2 - jm.m_dXo) -
              orv3::RectInertia(hole.height, hole.width, xi - jm.m_dXo);
  CalSectMomByI0(jm, b, h);
  orv3::SetFirstMoments(jm, rects, b, h);
}

void CSteelJMData::CalSectCharacterStyle15(CSteelJMData& jm) {
  if (jm.m_nStyle != orv3::kStyleBox) return;
  const double b = jm.m_dSize[0], h = jm.m_dSize[1], t = jm.m_dSize[2];
  orv3::CalculateAs(orv3::kStyleGeneralBox, {b, h, t, t, t, t}, jm);
}
