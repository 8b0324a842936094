// User-defined sections and lattice columns. Their properties are cells in mm; what differs is the
// sizes that make the rectangle and the plates.
#include "sections/geometry/families.h"
#include "sections/geometry/formulas.h"

namespace orv3 {
namespace {

using K = CSectionKind;
using CPlates = std::array<CSource, CFamily::kMostPlates>;

// Open or closed sections of plates, whose shear centre and warping constant follow from the sizes.
struct CPlateForm {
  CSource m_e0 = PlateShearCentre;
  CSource m_Iw = PlateWarping;
};
constexpr CPlateForm kPlates;
constexpr CPlateForm kCompact{{}, {}};  // solids and the round tube

constexpr CFamily UserDefined(CSectionKind kind, CSource width, CSource height, CPlates plates,
                              CPlateForm form, CSource moment = CSource(L"Sxo(mm^3)")) {
  return {
      .m_kind = kind,
      .m_width = width,
      .m_height = height,
      .m_x = L"xo(mm)",
      .m_y = L"yo(mm)",
      .m_Ix = L"Ixo(mm^4)",
      .m_Iy = L"Iyo(mm^4)",
      .m_ix = L"ixo(mm)",
      .m_iy = L"iyo(mm)",
      .m_Wx1 = L"Wxo1(mm^3)",
      .m_Wx2 = L"Wxo2(mm^3)",
      .m_WyL = L"WyoL(mm^3)",
      .m_WyR = L"WyoR(mm^3)",
      .m_Sx = moment,
      .m_arrPlate = plates,
      .m_e0 = form.m_e0,
      .m_Iw = form.m_Iw,
  };
}

// The centroid is measured from the origin of the limbs' placement (lattice_placement.h).
constexpr CFamily Lattice(CSectionKind kind) {
  return {
      .m_kind = kind,
      .m_width = LatticeWidth,
      .m_height = LatticeHeight,
      .m_x = L"xo(mm)",
      .m_y = L"yo(mm)",
      .m_Ix = L"Ix(mm^4)",
      .m_Iy = L"Iy(mm^4)",
      .m_ix = L"ixo(mm)",
      .m_iy = L"iyo(mm)",
      .m_Wx1 = L"Wx1(mm^3)",
      .m_Wx2 = L"Wx2(mm^3)",
      .m_WyL = L"WyL(mm^3)",
      .m_WyR = L"WyR(mm^3)",
      .m_Sx = LatticeMoment,
      .m_arrPlate = {LatticeThickest, LatticeThinnest},
  };
}

// Table, width, height, plate thicknesses, form.
constexpr CFamily kUserFamilies[] = {
    UserDefined(K::PlateH, L"b(mm)", L"h(mm)", {L"tf(mm)", L"tw(mm)"}, kPlates),
    UserDefined(K::PlateGeneralH, GeneralHWidth, L"h(mm)", {L"b(mm)", L"bh1(mm)", L"bh2(mm)"},
                kPlates),
    UserDefined(K::PlateBox, L"b(mm)", L"h(mm)", {L"t(mm)"}, kPlates),
    UserDefined(K::PlateGeneralBox, L"b(mm)", L"h(mm)",
                {L"t1(mm)", L"t2(mm)", L"t3(mm)", L"t4(mm)"}, kPlates),
    UserDefined(K::PlateT, TWidth, L"h(mm)", {L"b(mm)", L"bh(mm)"}, kPlates),
    UserDefined(K::PlateChannel, ChannelPlateWidth, L"h(mm)", {L"b(mm)", L"bh1(mm)", L"bh2(mm)"},
                kPlates),
    UserDefined(K::PlateZ, ZPlateWidth, L"h(mm)", {L"b(mm)", L"bh1(mm)", L"bh2(mm)"}, kPlates),
    UserDefined(K::SolidCircle, {Twice, L"R(mm)"}, {Twice, L"R(mm)"}, {CSource(Twice, L"R(mm)")},
                kCompact),
    UserDefined(K::PlateTube, {Twice, L"R(mm)"}, {Twice, L"R(mm)"}, {TubeThickness}, kCompact),
    UserDefined(K::PlateL, LWidth, L"h(mm)", {L"b(mm)", L"bh(mm)"}, kPlates),
    UserDefined(K::PlateCross, CrossWidth, L"h(mm)", {L"b(mm)", CrossBarThickness}, kPlates),
    UserDefined(K::FlangedCross, L"b(mm)", L"h(mm)", {L"tw(mm)", L"tf(mm)"}, kPlates,
                FlangedCrossMoment),
    UserDefined(K::SolidRectangle, L"b(mm)", L"h(mm)", {RectangleThickness}, kCompact),
    UserDefined(K::SolidHexagon, {HexagonWidth, L"a(mm)"}, {Twice, L"a(mm)"},
                {CSource(HexagonThickness, L"a(mm)")}, kCompact, {HexagonMoment, L"a(mm)"}),
    UserDefined(K::SolidTriangle, L"b(mm)", L"h(mm)", {TriangleThickness}, kCompact,
                TriangleMoment),
    Lattice(K::TwoLimbs),
    Lattice(K::FourLimbs),
    Lattice(K::ThreeLimbs),
};
static_assert(std::size(kUserFamilies) == kPlateKinds + kLatticeKinds &&
              InKindOrder(kUserFamilies, K::PlateH));

}  // namespace

std::span<const CFamily> UserFamilies() noexcept { return kUserFamilies; }

}  // namespace orv3
