// The styles that are three plates in the shape of an H: those of an H, a T, an L, a Z, a channel
// and a cross are computed as a general H of other sizes.
#include <algorithm>
#include <vector>

#include "framework/kvb_math.h"
#include "sections/rect_moments.h"
#include "sections/styles/plate_h.h"
#include "sections/styles/style_form.h"

namespace orv3 {
namespace {

// --- As an H -------------------------------------------------------------------------------------

CPlateH SymmetricH(CSizes s) {
  const double overhang = (s[0] - s[3]) / 2;
  return {s[3], s[1], s[2], s[2], overhang, overhang, overhang, overhang};
}
CPlateH PlateT(CSizes s) { return {s[0], s[1], 0, s[2], s[3], s[4], 0, 0}; }
CPlateH GeneralH(CSizes s) { return {s[0], s[1], s[2], s[3], s[4], s[5], s[6], s[7]}; }
CPlateH PlateL(CSizes s) { return {s[0], s[1], s[2], 0, 0, 0, 0, s[3]}; }
CPlateH PlateZ(CSizes s) { return {s[0], s[1], s[2], s[3], s[4], 0, 0, s[5]}; }
CPlateH Channel(CSizes s) { return {s[0], s[1], s[2], s[3], 0, s[5], 0, s[4]}; }
// The bar is the web, the arms are flanges that stand back.
CPlateH Cross(CSizes s) {
  return {s[0] + s[4] + s[5], s[1], s[2], s[3], -s[4], -s[5], -s[4], -s[5]};
}

using CAsH = CPlateH(CSizes);

void CalculateAsH(int style, CAsH* asH, CSteelJMData& jm) {
  if (jm.m_nStyle != style) return;
  const CPlateH h = asH(CSizes(jm.m_dSize));
  CalculateAs(kStyleGeneralH,
              {h.m_dWeb, h.m_dHeight, h.m_dBottom, h.m_dTop, h.m_dTopLeft, h.m_dTopRight,
               h.m_dBottomLeft, h.m_dBottomRight},
              jm);
}

// --- Outline -------------------------------------------------------------------------------------

struct CPlate {
  double m_dLeft;
  double m_dRight;
  double m_dBottom;
  double m_dTop;
  bool IsEmpty() const { return m_dRight == m_dLeft || m_dTop == m_dBottom; }
};

// One loop around plates that stand on each other.
CPath StackedPlates(std::span<const CPlate> plates) {
  CPath path;
  const auto add = [&path](double x, double y) {
    auto& all = path.m_arrVertex;
    if (all.empty() || all.back().x != x || all.back().y != y) all.push_back({x, y, 0});
  };
  for (const CPlate& plate : plates) {
    add(plate.m_dRight, plate.m_dBottom);
    add(plate.m_dRight, plate.m_dTop);
  }
  for (std::size_t i = plates.size(); i-- > 0;) {
    add(plates[i].m_dLeft, plates[i].m_dTop);
    add(plates[i].m_dLeft, plates[i].m_dBottom);
  }
  return path;
}

COutline HOutline(const CPlateH& h) {
  COutline out{{}, h.Width(), h.m_dHeight};
  if (std::min({h.WebHeight(), h.m_dWeb, h.m_dTop, h.m_dBottom, h.TopWidth(), h.BottomWidth()}) < 0)
    return out;
  const double bottom = h.BottomEdge();
  const double web = h.WebEdge();
  const double top = h.TopEdge();
  const CPlate plates[] = {
      {bottom, bottom + h.BottomWidth(), 0, h.m_dBottom},
      {web, web + h.m_dWeb, h.m_dBottom, h.m_dHeight - h.m_dTop},
      {top, top + h.TopWidth(), h.m_dHeight - h.m_dTop, h.m_dHeight},
  };
  // An empty plate parts the others, unless it has no height and they stand on each other.
  std::vector<CPlate> run;
  for (const CPlate& plate : plates) {
    if (!plate.IsEmpty()) {
      run.push_back(plate);
    } else if (plate.m_dTop != plate.m_dBottom && !run.empty()) {
      out.m_arrLoop.push_back(StackedPlates(run));
      run.clear();
    }
  }
  if (!run.empty()) out.m_arrLoop.push_back(StackedPlates(run));
  return out;
}

template <CAsH* AS_H>
COutline OutlineOf(CSizes s) {
  return HOutline(AS_H(s));
}

// --- Walls ---------------------------------------------------------------------------------------

// A web with a flange at each end. A flange that does not reach beyond the web on a side ends at
// the web's mid-line there.
CSectorial HSectorial(const CPlateH& h) {
  const double x = h.WebEdge() + h.m_dWeb / 2;
  const auto left = [&](double overhang) { return overhang > 0 ? h.WebEdge() - overhang : x; };
  const auto right = [&](double overhang) {
    return overhang > 0 ? h.WebEdge() + h.m_dWeb + overhang : x;
  };
  const double bottom = h.m_dBottom / 2, top = h.m_dHeight - h.m_dTop / 2;
  const CWall walls[] = {
      {x, bottom, left(h.m_dBottomLeft), bottom, h.m_dBottom},
      {x, bottom, right(h.m_dBottomRight), bottom, h.m_dBottom},
      {x, bottom, x, top, h.m_dWeb},
      {x, top, left(h.m_dTopLeft), top, h.m_dTop, 2},
      {x, top, right(h.m_dTopRight), top, h.m_dTop, 2},
  };
  return SectorialProperties(walls, CWallForm::Tree);
}

template <CAsH* AS_H>
CSectorial SectorialOf(CSizes s) {
  return HSectorial(AS_H(s));
}

// Arm and bar: every wall points at where they cross, so nothing warps.
CSectorial CrossSectorial(CSizes s) { return {s[4] + s[0] / 2, (s[2] + s[1] - s[3]) / 2, 0}; }

// --- Where the sizes are measured ----------------------------------------------------------------

CDimensions SymmetricHDimensions(CSizes s) {
  const double b = s[0], h = s[1], tf = s[2], tw = s[3];
  return {{L"b", b, kBottom, {0, 0}, {b, 0}},
          {L"h", h, kLeft, {0, 0}, {0, h}},
          {L"tf", tf, kLeft, {0, h - tf}, {0, h}},
          {L"tw", tw, kBottom, {(b - tw) / 2, tf}, {(b + tw) / 2, tf}}};
}

CDimensions TDimensions(CSizes s) {
  const double b = s[0], h = s[1], bh = s[2];
  const CPlateH plates = PlateT(s);
  const double web = plates.WebEdge();
  const double top = plates.TopEdge();
  return {{L"b", b, kBottom, {web, 0}, {web + b, 0}},
          {L"h", h, kLeft, {web, 0}, {top, h}},
          {L"bh", bh, kLeft, {top, h - bh}, {top, h}},
          {L"bf1", s[3], kTop, {top, h}, {web, h}},
          {L"bf2", s[4], kTop, {web + b, h}, {web + b + s[4], h}}};
}

CDimensions GeneralHDimensions(CSizes s) {
  const double h = s[1];
  const CPlateH plates = GeneralH(s);
  const double web = plates.WebEdge();
  const double top = plates.TopEdge();
  const double bottom = plates.BottomEdge();
  return {{L"b", s[0], kBottom, {web, s[2]}, {web + s[0], s[2]}},
          {L"h", h, kLeft, {bottom, 0}, {top, h}},
          {L"bh1", s[2], kLeft, {bottom, 0}, {bottom, s[2]}},
          {L"bh2", s[3], kLeft, {top, h - s[3]}, {top, h}},
          {L"bf1", s[4], kTop, {top, h}, {top + s[4], h}},
          {L"bf2", s[5], kTop, {top + s[4] + s[0], h}, {top + plates.TopWidth(), h}},
          {L"bf3", s[6], kBottom, {bottom, 0}, {bottom + s[6], 0}},
          {L"bf4", s[7], kBottom, {bottom + s[6] + s[0], 0}, {bottom + plates.BottomWidth(), 0}}};
}

CDimensions LDimensions(CSizes s) {
  const double b = s[0], h = s[1], bh = s[2], bf = s[3];
  return {{L"b", b, kTop, {0, h}, {b, h}},
          {L"h", h, kLeft, {0, 0}, {0, h}},
          {L"bh", bh, kLeft, {0, 0}, {0, bh}},
          {L"bf", bf, kBottom, {b, 0}, {b + bf, 0}}};
}

CDimensions ZDimensions(CSizes s) {
  const double b = s[0], h = s[1];
  const CPlateH plates = PlateZ(s);
  const double web = plates.WebEdge();
  const double top = plates.TopEdge();
  return {{L"b", b, kBottom, {web, 0}, {web + b, 0}},
          {L"h", h, kLeft, {web, 0}, {top, h}},
          {L"bh1", s[2], kLeft, {web, 0}, {web, s[2]}},
          {L"bh2", s[3], kLeft, {top, h - s[3]}, {top, h}},
          {L"bf1", s[4], kTop, {top, h}, {web, h}},
          {L"bf2", s[5], kBottom, {web + b, 0}, {web + b + s[5], 0}}};
}

CDimensions ChannelDimensions(CSizes s) {
  const double b = s[0], h = s[1];
  return {{L"b", b, kBottom, {0, 0}, {b, 0}},
          {L"h", h, kLeft, {0, 0}, {0, h}},
          {L"bh1", s[2], kLeft, {0, 0}, {0, s[2]}},
          {L"bh2", s[3], kLeft, {0, h - s[3]}, {0, h}},
          {L"bf1", s[4], kBottom, {b, 0}, {b + s[4], 0}},
          {L"bf2", s[5], kTop, {b, h}, {b + s[5], h}}};
}

CDimensions CrossDimensions(CSizes s) {
  const double b = s[0], h = s[1], bh1 = s[2], bh2 = s[3], bf1 = s[4], bf2 = s[5];
  return {{L"b", b, kTop, {bf1, h}, {bf1 + b, h}},
          {L"h", h, kLeft, {bf1, 0}, {bf1, h}},
          {L"bh1", bh1, kLeft, {bf1, 0}, {0, bh1}},
          {L"bh2", bh2, kLeft, {0, h - bh2}, {bf1, h}},
          {L"bf1", bf1, kBottom, {0, bh1}, {bf1, 0}},
          {L"bf2", bf2, kBottom, {bf1 + b, 0}, {bf1 + b + bf2, bh1}}};
}

// --- Which sizes bound a section -----------------------------------------------------------------

constexpr CSizeBound kHBounds[] = {
    {2,
     CBound::Below,
     [](CSizes s) { return s[1] / 2; },
     Signs("h(mm) / 2"),
     {"翼缘之间应有腹板高度", "the web needs a height between the flanges"}},
    {3,
     CBound::AtMost,
     [](CSizes s) { return s[0]; },
     Signs("b(mm)"),
     {"腹板不应厚于截面宽度", "the web is no thicker than the section is wide"}},
};

constexpr CSizeBound kTBounds[] = {
    {2,
     CBound::Below,
     [](CSizes s) { return s[1]; },
     Signs("h(mm)"),
     {"翼缘之下应有腹板高度", "the web needs a height below the flange"}},
};

constexpr CSizeBound kGeneralHBounds[] = {
    {2,
     CBound::Below,
     [](CSizes s) { return s[1]; },
     Signs("h(mm)"),
     {"翼缘之上应有腹板高度", "the web needs a height above the flange"}},
    {3,
     CBound::Below,
     [](CSizes s) { return s[1] - s[2]; },
     Signs("h(mm) - bh1(mm)"),
     {"翼缘之间应有腹板高度", "the web needs a height between the flanges"}},
};

constexpr CSizeBound kLBounds[] = {
    {2,
     CBound::Below,
     [](CSizes s) { return s[1]; },
     Signs("h(mm)"),
     {"肢之上应有腹板高度", "the web needs a height above the leg"}},
};

constexpr CSizeBound kZBounds[] = {
    {2,
     CBound::Below,
     [](CSizes s) { return s[1]; },
     Signs("h(mm)"),
     {"翼缘之上应有腹板高度", "the web needs a height above the flange"}},
    {3,
     CBound::Below,
     [](CSizes s) { return s[1] - s[2]; },
     Signs("h(mm) - bh1(mm)"),
     {"翼缘之间应有腹板高度", "the web needs a height between the flanges"}},
};

constexpr CSizeBound kChannelBounds[] = {
    {2,
     CBound::Below,
     [](CSizes s) { return s[1]; },
     Signs("h(mm)"),
     {"翼缘之上应有腹板高度", "the web needs a height above the flange"}},
    {3,
     CBound::Below,
     [](CSizes s) { return s[1] - s[2]; },
     Signs("h(mm) - bh1(mm)"),
     {"翼缘之间应有腹板高度", "the web needs a height between the flanges"}},
};

constexpr CSizeBound kCrossBounds[] = {
    {2,
     CBound::Below,
     [](CSizes s) { return s[1]; },
     Signs("h(mm)"),
     {"下伸臂之上横板应有厚度", "the bar needs a thickness above the lower arm"}},
    {3,
     CBound::Below,
     [](CSizes s) { return s[1] - s[2]; },
     Signs("h(mm) - bh1(mm)"),
     {"两臂之间横板应有厚度", "the bar needs a thickness between the arms"}},
};

// --- When it is symmetric ------------------------------------------------------------------------

bool IsZero(double size) { return CKvbMath::EqualTo(size, 0); }
bool IsSame(double a, double b) { return CKvbMath::EqualTo(a, b); }

// Without its outstanding plates a section is a bare rectangle.
bool IsBareL(CSizes s) { return IsZero(s[2]) || IsZero(s[3]); }
bool IsBareWeb(CSizes s) { return (IsZero(s[2]) && IsZero(s[3])) || IsZero(s[4]); }

bool IsLevelGeneralH(CSizes s) {
  return IsSame(s[2], s[3]) && IsSame(s[4], s[6]) && IsSame(s[5], s[7]);
}
bool IsUprightGeneralH(CSizes s) { return IsSame(s[4], s[5]) && IsSame(s[6], s[7]); }
bool IsLevelT(CSizes s) { return IsZero(s[2]) || (IsZero(s[3]) && IsZero(s[4])); }
bool IsUprightT(CSizes s) { return IsZero(s[2]) || IsSame(s[3], s[4]); }
bool IsLevelChannel(CSizes s) { return IsSame(s[2], s[3]) && IsSame(s[4], s[5]); }
bool IsLevelCross(CSizes s) { return IsSame(s[2], s[3]); }
bool IsUprightCross(CSizes s) { return IsSame(s[4], s[5]); }

}  // namespace

extern constinit const CStyleForm kHForm{
    .m_pCalculate = CSteelJMData::CalSectCharacterStyle14,
    .m_pOutline = OutlineOf<SymmetricH>,
    .m_pDimensions = SymmetricHDimensions,
    .m_pSectorial = SectorialOf<SymmetricH>,
    .m_pSymmetricX = Always,
    .m_pSymmetricY = Always,
    .m_bounds = kHBounds,
};

extern constinit const CStyleForm kTForm{
    .m_pCalculate = CSteelJMData::CalSectCharacterStyle7,
    .m_pOutline = OutlineOf<PlateT>,
    .m_pDimensions = TDimensions,
    .m_pSectorial = SectorialOf<PlateT>,
    .m_pSymmetricX = IsLevelT,
    .m_pSymmetricY = IsUprightT,
    .m_nMayBeZero = 3,
    .m_bounds = kTBounds,
};

extern constinit const CStyleForm kGeneralHForm{
    .m_pCalculate = CSteelJMData::CalSectCharacterStyle8,
    .m_pOutline = OutlineOf<GeneralH>,
    .m_pDimensions = GeneralHDimensions,
    .m_pSectorial = SectorialOf<GeneralH>,
    .m_pSymmetricX = IsLevelGeneralH,
    .m_pSymmetricY = IsUprightGeneralH,
    .m_nMayBeZero = 4,
    .m_bounds = kGeneralHBounds,
};

extern constinit const CStyleForm kLForm{
    .m_pCalculate = CSteelJMData::CalSectCharacterStyle9,
    .m_pOutline = OutlineOf<PlateL>,
    .m_pDimensions = LDimensions,
    .m_pSectorial = SectorialOf<PlateL>,
    .m_pSymmetricX = IsBareL,
    .m_pSymmetricY = IsBareL,
    .m_nMayBeZero = 3,
    .m_bounds = kLBounds,
};

extern constinit const CStyleForm kZForm{
    .m_pCalculate = CSteelJMData::CalSectCharacterStyle10,
    .m_pOutline = OutlineOf<PlateZ>,
    .m_pDimensions = ZDimensions,
    .m_pSectorial = SectorialOf<PlateZ>,
    .m_pSymmetricX = IsBareWeb,
    .m_pSymmetricY = IsBareWeb,
    .m_nMayBeZero = 4,
    .m_bounds = kZBounds,
};

extern constinit const CStyleForm kChannelForm{
    .m_pCalculate = CSteelJMData::CalSectCharacterStyle11,
    .m_pOutline = OutlineOf<Channel>,
    .m_pDimensions = ChannelDimensions,
    .m_pSectorial = SectorialOf<Channel>,
    .m_pSymmetricX = IsLevelChannel,
    .m_pSymmetricY = IsBareWeb,
    .m_nMayBeZero = 4,
    .m_bounds = kChannelBounds,
};

extern constinit const CStyleForm kCrossForm{
    .m_pCalculate = CSteelJMData::CalSectCharacterStyle12,
    .m_pOutline = OutlineOf<Cross>,
    .m_pDimensions = CrossDimensions,
    .m_pSectorial = CrossSectorial,
    .m_pSymmetricX = IsLevelCross,
    .m_pSymmetricY = IsUprightCross,
    .m_nMayBeZero = 2,
    .m_bounds = kCrossBounds,
};

}  // namespace orv3

void CSteelJMData::CalSectCharacterStyle8(CSteelJMData& jm) {
  if (jm.m_nStyle != orv3::kStyleGeneralH) return;
  const orv3::CPlateH h = orv3::GeneralH(jm.m_dSize);
  const orv3::CRect plates[] = {
      {h.TopEdge(), h.m_dHeight - h.m_dTop, h.TopWidth(), h.m_dTop},
      {h.WebEdge(), h.m_dBottom, h.m_dWeb, h.WebHeight()},
      {h.BottomEdge(), 0, h.BottomWidth(), h.m_dBottom},
  };
  const auto& [top, web, bottom] = plates;
  double x = 0, y = 0;
  orv3::AddCentroids(orv3::Area(top), orv3::CenterX(top), orv3::CenterY(top), orv3::Area(web),
                     orv3::CenterX(web), orv3::CenterY(web), x, y);
  orv3::AddCentroids(orv3::Area(top) + orv3::Area(web), x, y, orv3::Area(bottom),
                     orv3::CenterX(bottom), orv3::CenterY(bottom), jm.m_dXo, jm.m_dYo);
  jm.m_dA = orv3::Area(top) + orv3::Area(web) + orv3::Area(bottom);
  jm.m_dIxo = jm.m_dIyo = 0;
  for (const orv3::CRect& r : plates) {
    jm.m_dIxo += orv3::RectInertia(r.width, r.height, orv3::CenterY(r) - jm.m_dYo);
    jm.m_dIyo += orv3::RectInertia(r.height, r.width, orv3::CenterX(r) - jm.m_dXo);
  }
  CalSectMomByI0(jm, h.Width(), h.m_dHeight);
  orv3::SetFirstMoments(jm, plates, h.Width(), h.m_dHeight);
}

void CSteelJMData::CalSectCharacterStyle7(CSteelJMData& jm) {
  orv3::CalculateAsH(orv3::kStyleT, orv3::PlateT, jm);
}
void CSteelJMData::CalSectCharacterStyle9(CSteelJMData& jm) {
  orv3::CalculateAsH(orv3::kStyleL, orv3::PlateL, jm);
}
void CSteelJMData::CalSectCharacterStyle10(CSteelJMData& jm) {
  orv3::CalculateAsH(orv3::kStyleZ, orv3::PlateZ, jm);
}
void CSteelJMData::CalSectCharacterStyle11(CSteelJMData& jm) {
  orv3::CalculateAsH(orv3::kStyleChannel, orv3::Channel, jm);
}
void CSteelJMData::CalSectCharacterStyle12(CSteelJMData& jm) {
  orv3::CalculateAsH(orv3::kStyleCross, orv3::Cross, jm);
}
void CSteelJMData::CalSectCharacterStyle14(CSteelJMData& jm) {
  orv3::CalculateAsH(orv3::kStyleH, orv3::SymmetricH, jm);
}
