// The shapes of the section tables, one file per family group.
#pragma once

#include "catalogue/outline/row_sizes.h"
#include "sections/outline.h"

namespace orv3 {

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

// A turned outline: `quarters` quarter turns counter-clockwise, origin as before.
COutline QuarterTurned(COutline outline, int quarters);

// Built of rows of the system store; no loops when one is not there or has no outline.
// Pairs of angles and channels, and the cross of angles (pair_shapes.cpp).
bool IsPairTable(const CString& tableName);
COutline PairOutline(const CDataItem& row);
// Lattice columns (lattice_shape.cpp).
bool IsLatticeTable(const CString& tableName);
COutline LatticeOutline(const CDataItem& row);

}  // namespace orv3
