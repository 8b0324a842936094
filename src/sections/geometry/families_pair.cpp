// Two equal rolled sections as one. A pair stands like its components: angles with their
// outstanding legs at the bottom. The columns for a spacing belong to the axis that lies between
// the components, which is y in a pair and X1 in a cross.
#include "sections/geometry/families.h"
#include "sections/geometry/formulas.h"

namespace orv3 {
namespace {

using CJoin = CPairing::CJoin;

constexpr CFamily AnglePair(std::wstring_view table, std::wstring_view component, bool turned) {
  return {
      .m_arrTable = {table},
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
      .m_pair = {component, 1, L"a(mm)", CJoin::Back, turned},
  };
}

// About X1, which parts the two angles, and Y1 through both, at 45 degrees to the legs.
constexpr CFamily kAngleCross{
    .m_arrTable = {L"热轧等边角钢十字组合"},
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
    .m_pair = {L"热轧等边角钢", 1, L"δ(mm)", CJoin::Cross},
    .m_bAslant = true,
};

constexpr CFamily BackToBack(std::wstring_view table, std::wstring_view component) {
  return {
      .m_arrTable = {table},
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
      .m_pair = {component, 3, L"a(mm)", CJoin::Back},
  };
}

// Toes touch: the table has columns of no spacing, and channels apart are a lattice column.
constexpr CFamily ToeToToe(std::wstring_view table, std::wstring_view component) {
  CFamily family = BackToBack(table, component);
  family.m_pair.m_join = CJoin::Toe;
  family.m_pair.m_spacing = {};
  family.m_Iw = ToeToToeWarping;
  return family;
}

constexpr CFamily kFamilies[] = {
    AnglePair(L"热轧等边角钢组合", L"热轧等边角钢", false),
    AnglePair(L"热轧不等边角钢长边组合", L"热轧不等边角钢", false),
    AnglePair(L"热轧不等边角钢短边组合", L"热轧不等边角钢", true),
    kAngleCross,
    BackToBack(L"热轧普通槽钢][组合", L"热轧普通槽钢"),
    ToeToToe(L"热轧普通槽钢[]组合", L"热轧普通槽钢"),
    BackToBack(L"热轧轻型槽钢][组合", L"热轧轻型槽钢"),
    ToeToToe(L"热轧轻型槽钢[]组合", L"热轧轻型槽钢"),
};

}  // namespace

std::span<const CFamily> PairFamilies() noexcept { return kFamilies; }

}  // namespace orv3
