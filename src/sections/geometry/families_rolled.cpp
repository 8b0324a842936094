// Rolled and cold-formed sections.
//
// An angle stands with its heel at the lower left, a T with its flange at the top, a channel with
// its back on the left.
#include "sections/geometry/families.h"
#include "sections/geometry/formulas.h"

namespace orv3 {
namespace {

using K = CSectionKind;

constexpr CFamily ISection(K kind, CSource width, CSource height, CSource moment, CSource flange) {
  return {
      .m_kind = kind,
      .m_width = width,
      .m_height = height,
      .m_x = HalfWidth,
      .m_y = HalfHeight,
      .m_Ix = L"Ix(cm^4)",
      .m_Iy = L"Iy(cm^4)",
      .m_ix = L"ix(cm)",
      .m_iy = L"iy(cm)",
      .m_Wx1 = L"Wx(cm^3)",
      .m_Wx2 = L"Wx(cm^3)",
      .m_WyL = L"Wy(cm^3)",
      .m_WyR = L"Wy(cm^3)",
      .m_Sx = moment,
      .m_arrPlate = {flange, L"tw(mm)"},
      .m_Iw = IWarping,
      .m_bSymmetricX = true,
      .m_bSymmetricY = true,
  };
}

constexpr CFamily Tube(K kind, CSource width, CSource inertia, CSource radius, CSource modulus,
                       CFormula moment) {
  return {
      .m_kind = kind,
      .m_width = width,
      .m_height = width,
      .m_x = HalfWidth,
      .m_y = HalfHeight,
      .m_Ix = inertia,
      .m_Iy = inertia,
      .m_ix = radius,
      .m_iy = radius,
      .m_Wx1 = modulus,
      .m_Wx2 = modulus,
      .m_WyL = modulus,
      .m_WyR = modulus,
      .m_Sx = moment,
      .m_arrPlate = {L"t(mm)"},
      .m_bSymmetricX = true,
      .m_bSymmetricY = true,
  };
}

// The height is a text column. The facade's vertical centroid is at mid-height, as for all sections
// of one web; the true one lies Cx below the top.
constexpr CFamily kRolledT{
    .m_kind = K::SplitT,
    .m_width = L"B(mm)",
    .m_height = {TextNumber, L"h(mm)"},
    .m_x = HalfWidth,
    .m_y = HalfHeight,
    .m_Ix = L"Ix(cm^4)",
    .m_Iy = L"Iy(cm^4)",
    .m_ix = L"ix(cm)",
    .m_iy = L"iy(cm)",
    .m_Wx1 = {ModulusAtDepth, L"Cx(cm)"},
    .m_Wx2 = L"Wx(cm^3)",
    .m_WyL = L"Wy(cm^3)",
    .m_WyR = L"Wy(cm^3)",
    .m_Sx = TMoment,
    .m_arrPlate = {L"t2(mm)", L"t1(mm)"},
    .m_e0 = {TShearCentre, L"Cx(cm)"},
    .m_bSymmetricY = true,
    .m_trueY = {BelowTop, L"Cx(cm)"},
};

constexpr CFamily RolledChannel(K kind) {
  return {
      .m_kind = kind,
      .m_width = L"b(mm)",
      .m_height = L"h(mm)",
      .m_x = L"zo(cm)",
      .m_y = HalfHeight,
      .m_Ix = L"Ix(cm^4)",
      .m_Iy = L"Iy(cm^4)",
      .m_ix = L"ix(cm)",
      .m_iy = L"iy(cm)",
      .m_Wx1 = L"Wx(cm^3)",
      .m_Wx2 = L"Wx(cm^3)",
      .m_WyL = L"Wymax(cm^3)",
      .m_WyR = L"Wymin(cm^3)",
      .m_Sx = L"Sx(cm^3)",
      .m_arrPlate = {L"t(mm)", L"tw(mm)"},
      .m_e0 = {ChannelShearCentre, L"zo(cm)"},
      .m_Iw = ChannelWarping,
      .m_bSymmetricX = true,
  };
}

constexpr CFamily ColdChannel(K kind, CFormula moment) {
  return {
      .m_kind = kind,
      .m_width = L"b(mm)",
      .m_height = L"h(mm)",
      .m_x = L"xo(cm)",
      .m_y = HalfHeight,
      .m_Ix = L"Ix(cm^4)",
      .m_Iy = L"Iy(cm^4)",
      .m_ix = L"ix(cm)",
      .m_iy = L"iy(cm)",
      .m_Wx1 = L"Wx(cm^3)",
      .m_Wx2 = L"Wx(cm^3)",
      .m_WyL = L"Wymax(cm^3)",
      .m_WyR = L"Wymin(cm^3)",
      .m_Sx = moment,
      .m_arrPlate = {L"t(mm)"},
      .m_e0 = L"eo(cm)",
      .m_Iw = L"Iw(cm^6)",
      .m_bSymmetricX = true,
  };
}

// About the axes x1 along the flanges and y1 along the web.
constexpr CFamily ColdZ(K kind, CFormula width, CFormula moment) {
  return {
      .m_kind = kind,
      .m_width = width,
      .m_height = L"h(mm)",
      .m_x = HalfWidth,
      .m_y = HalfHeight,
      .m_Ix = L"Ix1(cm^4)",
      .m_Iy = L"Iy1(cm^4)",
      .m_ix = L"ix1(cm)",
      .m_iy = L"iy1(cm)",
      .m_Wx1 = L"Wx1(cm^3)",
      .m_Wx2 = L"Wx1(cm^3)",
      .m_WyL = L"Wy1(cm^3)",
      .m_WyR = L"Wy1(cm^3)",
      .m_Sx = moment,
      .m_arrPlate = {L"t(mm)"},
      .m_Iw = L"Iw(cm^6)",
      .m_leastR = L"iy(cm)",
  };
}

// Io and the moduli are about axes along the legs, the facade's radii about Xo, the axis of
// symmetry, and Yo: those a single angle buckles about.
constexpr CFamily kEqualAngle{
    .m_kind = K::EqualAngle,
    .m_width = L"b(mm)",
    .m_height = L"b(mm)",
    .m_x = L"zo(cm)",
    .m_y = L"zo(cm)",
    .m_Ix = L"Ix(cm^4)",
    .m_Iy = L"Ix(cm^4)",
    .m_ix = L"ixo(cm)",
    .m_iy = L"iyo(cm)",
    .m_Wx1 = L"Wxmin(cm^3)",
    .m_Wx2 = L"Wxmax(cm^3)",
    .m_WyL = L"Wxmax(cm^3)",
    .m_WyR = L"Wxmin(cm^3)",
    .m_Sx = HotAngleMoment,
    .m_arrPlate = {L"t(mm)"},
    .m_e0 = AngleShearCentre,
    .m_trueR = L"ix(cm)",
    .m_leastR = L"iyo(cm)",
};

// The long leg stands upright.
constexpr CFamily kUnequalAngle{
    .m_kind = K::UnequalAngle,
    .m_width = L"b(mm)",
    .m_height = L"B(mm)",
    .m_x = L"xo(cm)",
    .m_y = L"yo(cm)",
    .m_Ix = L"Ix(cm^4)",
    .m_Iy = L"Iy(cm^4)",
    .m_ix = L"ix(cm)",
    .m_iy = L"iy(cm)",
    .m_Wx1 = L"Wxmin(cm^3)",
    .m_Wx2 = L"Wxmax(cm^3)",
    .m_WyL = L"Wymax(cm^3)",
    .m_WyR = L"Wymin(cm^3)",
    .m_Sx = HotAngleMoment,
    .m_arrPlate = {L"t(mm)"},
    .m_e0 = AngleShearCentre,
    .m_leastR = L"iu(cm)",
};

// All about Xo and Yo, which are along the legs in these tables.
constexpr CFamily ColdAngle(K kind, CFormula moment, CSource warping) {
  return {
      .m_kind = kind,
      .m_width = L"b(mm)",
      .m_height = L"b(mm)",
      .m_x = L"yo(cm)",
      .m_y = L"yo(cm)",
      .m_Ix = L"Ixo(cm^4)",
      .m_Iy = L"Ixo(cm^4)",
      .m_ix = L"ixo(cm)",
      .m_iy = L"ixo(cm)",
      .m_Wx1 = L"Wxomin(cm^3)",
      .m_Wx2 = L"Wxomax(cm^3)",
      .m_WyL = L"Wxomax(cm^3)",
      .m_WyR = L"Wxomin(cm^3)",
      .m_Sx = moment,
      .m_arrPlate = {L"t(mm)"},
      .m_e0 = L"eo(cm)",
      .m_Iw = warping,
      .m_leastR = L"iy(cm)",
  };
}

constexpr CFamily kRolledFamilies[] = {
    ISection(K::OrdinaryI, L"b(mm)", L"h(mm)", L"Sx(cm^3)", L"t(mm)"),
    ISection(K::LightI, L"b(mm)", L"h(mm)", L"Sx(cm^3)", L"t(mm)"),
    ISection(K::WeldedH, L"B(mm)", L"H(mm)", L"Sx(cm^3)", L"tf(mm)"),
    ISection(K::LightWeldedH, L"B(mm)", L"H(mm)", L"Sx(cm^3)", L"tf(mm)"),
    ISection(K::WideH, L"B(mm)", L"H(mm)", WideHMoment, L"tf(mm)"),
    ISection(K::NarrowH, L"B(mm)", L"H(mm)", WideHMoment, L"tf(mm)"),
    Tube(K::SquareTube, L"h(mm)", L"Ix(cm^4)", L"ix(cm)", L"Wx(cm^3)", SquareTubeMoment),
    kRolledT,
    RolledChannel(K::OrdinaryChannel),
    RolledChannel(K::LightChannel),
    ColdChannel(K::ColdChannel, ColdChannelMoment),
    ColdChannel(K::LippedChannel, LippedMoment),
    ColdZ(K::LippedZ, ZWidth, LippedMoment),
    ColdZ(K::SlantLippedZ, SlantLipZWidth, SlantLipMoment),
    Tube(K::RoundTube, L"d(mm)", L"I(cm^4)", L"i(cm)", L"W(cm^3)", RoundTubeMoment),
    kEqualAngle,
    kUnequalAngle,
    ColdAngle(K::ColdAngle, ColdAngleMoment, {}),
    ColdAngle(K::LippedAngle, LippedAngleMoment, L"Iw(cm^6)"),
};
static_assert(std::size(kRolledFamilies) == kSingleKinds && InKindOrder(kRolledFamilies));

}  // namespace

std::span<const CFamily> RolledFamilies() noexcept { return kRolledFamilies; }

}  // namespace orv3
