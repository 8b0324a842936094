// The shapes of the section tables, one file per family group.
#pragma once

#include <vector>

#include "catalogue/outline/row_sizes.h"
#include "catalogue/outline/row_spacing.h"
#include "sections/outline.h"
#include "sections/section_dimensions.h"

namespace orv3 {

// Fall of the inner flange faces: GB/T 706-1988 draws 1:6, YB 163-63 12 %; the channels of
// GB/T 707-1988 and YB 164-63 have 10 %.
inline constexpr double kOrdinarySlope = 1.0 / 6;
inline constexpr double kLightSlope = 0.12;
inline constexpr double kChannelSlope = 0.1;
// The toes of a leg are rounded by a third of its thickness (GB/T 9787-1988, GB/T 9788-1988).
inline constexpr double kLegToe = 1.0 / 3;
// Radii of the faces of a cold-formed bend, in thicknesses (GB 50018-2002, Appendix B).
inline constexpr double kInnerBend = 2;
inline constexpr double kOuterBend = 3;

// Each reads its sizes and answers the outline with the origin at the enclosing rectangle's
// lower-left corner. What is drawn counts only when the sizes were whole.

// Rolled (rolled_shapes.cpp).
COutline OrdinaryI(CRowSizes& sizes);
COutline LightI(CRowSizes& sizes);
COutline RolledH(CRowSizes& sizes);
COutline WeldedH(CRowSizes& sizes);
COutline SplitT(CRowSizes& sizes);
COutline RolledChannel(CRowSizes& sizes);
COutline EqualAngle(CRowSizes& sizes);
COutline UnequalAngle(CRowSizes& sizes);

// Cold-formed (cold_shapes.cpp).
COutline ColdAngle(CRowSizes& sizes);
COutline LippedAngle(CRowSizes& sizes);
COutline ColdChannel(CRowSizes& sizes);
COutline LippedChannel(CRowSizes& sizes);
COutline LippedZ(CRowSizes& sizes);
COutline SlopingLipZ(CRowSizes& sizes);
COutline SquareTube(CRowSizes& sizes);
COutline RoundTube(CRowSizes& sizes);

// A rolled-section table: its shape, and where its sizes are measured on it (rolled_tables.cpp).
struct CRolledTable {
  CSectionKind m_kind;
  COutline (*m_pShape)(CRowSizes&);
  std::vector<CSizeDimension> (*m_pDimensions)(CRowSizes&, const COutline&);
};
const CRolledTable* FindRolledTable(const CString& tableName);  // null for another table

// A turned outline: `quarters` quarter turns counter-clockwise, origin as before.
COutline QuarterTurned(COutline outline, int quarters);

// Pairs of angles and channels, and the cross of angles (pair_shapes.cpp): two equal rows of the
// system store.
struct CPair {
  COutline m_outline;  // without loops when the part is not in the store or has no outline
  COutline m_part;     // as it stands on the right, the upper one of a cross
  double m_dGap = 0;   // mm
  const wchar_t* m_szWidth = L"";  // signs of the part's width and height and of the gap
  const wchar_t* m_szHeight = L"";
  const wchar_t* m_szGap = L"";
};
CPair PairOf(const CDataItem& row);

// Lattice columns (lattice_shape.cpp).
struct CPlacedLimbs {
  COutline m_outline;  // without loops when a limb is not in the store or has no outline
  std::vector<CPoint> m_arrCentroid;  // of the limbs
};
bool IsLatticeTable(const CString& tableName);
CPlacedLimbs PlaceLimbs(const CDataItem& row);

}  // namespace orv3
