// Two equal rolled sections as one. A pair stands like its components: angles with their
// outstanding legs at the bottom. The columns for a spacing belong to the axis that lies between
// the components, which is y in a pair and X1 in a cross.
#include "sections/geometry/families.h"
#include "sections/geometry/formulas.h"

namespace orv3 {
namespace {

using K = CSectionKind;

constexpr CFamily AnglePair(K kind) {
  return {
      .m_kind = kind,
      .m_width = PairWidth,
      .m_height = PairHeight,
      .m_x = HalfWidth,
      .m_y = PairY,
      .m_Ix = L"Ix(cm^4)",
      .m_Iy = PairIy,
      .m_ix = L"ix(cm)",
      .m_iy = PairRadiusY,
      .m_Wx1 = L"Wxmin(cm^3)",
      .m_Wx2 = L"Wxmax(cm^3)",
      .m_WyL = PairModulusY,
      .m_WyR = PairModulusY,
      .m_Sx = PairMoment,
      .m_arrPlate = {PairThickest, PairThinnest},
      .m_e0 = AnglePairShearCentre,
      .m_bSymmetricY = true,
  };
}

// About X1, which parts the two angles, and Y1 through both, at 45 degrees to the legs.
constexpr CFamily kAngleCross{
    .m_kind = K::AngleCross,
    .m_width = PairWidth,
    .m_height = PairWidth,
    .m_x = HalfWidth,
    .m_y = PairY,
    .m_Ix = CrossPairIx,
    .m_Iy = L"Iy1(cm^4)",
    .m_ix = CrossPairRadiusX,
    .m_iy = L"iy1(cm)",
    .m_Wx1 = CrossPairModulusX,
    .m_Wx2 = CrossPairModulusX,
    .m_WyL = CrossPairModulusY,
    .m_WyR = CrossPairModulusY,
    .m_Sx = CrossPairMoment,
    .m_arrPlate = {PairThickest, PairThinnest},
    .m_bAslant = true,
};

constexpr CFamily BackToBack(K kind) {
  return {
      .m_kind = kind,
      .m_width = PairWidth,
      .m_height = PairHeight,
      .m_x = HalfWidth,
      .m_y = PairY,
      .m_Ix = L"Ix(cm^4)",
      .m_Iy = PairIy,
      .m_ix = L"ix(cm)",
      .m_iy = PairRadiusY,
      .m_Wx1 = L"Wx(cm^3)",
      .m_Wx2 = L"Wx(cm^3)",
      .m_WyL = PairModulusY,
      .m_WyR = PairModulusY,
      .m_Sx = PairMoment,
      .m_arrPlate = {PairThickest, PairThinnest},
      .m_Iw = BackToBackWarping,
      .m_bSymmetricX = true,
      .m_bSymmetricY = true,
  };
}

constexpr CFamily ToeToToe(K kind) {
  CFamily family = BackToBack(kind);
  family.m_Iw = ToeToToeWarping;
  return family;
}

constexpr CFamily kPairFamilies[] = {
    AnglePair(K::EqualAnglePair),      AnglePair(K::LongLegPair),
    AnglePair(K::ShortLegPair),        kAngleCross,
    BackToBack(K::OrdinaryBackToBack), ToeToToe(K::OrdinaryToeToToe),
    BackToBack(K::LightBackToBack),    ToeToToe(K::LightToeToToe),
};
static_assert(std::size(kPairFamilies) == kPairKinds &&
              InKindOrder(kPairFamilies, K::EqualAnglePair));

}  // namespace

std::span<const CFamily> PairFamilies() noexcept { return kPairFamilies; }

}  // namespace orv3
