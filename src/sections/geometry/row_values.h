// The geometry of a row, and whether its cells were enough: what the facade's members answer, and
// what pairs and lattice columns ask of their components. Outputs are set to 0 on entry and stand
// as far as they were found when a cell is missing.
#pragma once

#include "tables/data_item.h"

namespace orv3 {

// Quarter turns counter-clockwise, 0 to 3, of an angle in degrees; 0 for any other angle.
int QuarterTurns(double angle);

bool FindRect(const CDataItem& row, double& width, double& height, double angle);
bool FindCenter(const CDataItem& row, double& x, double& y, double angle);
double AreaOf(const CDataItem& row);
double ThickestPlate(const CDataItem& row);
double ThinnestPlate(const CDataItem& row);

// A component's own row: the one place where a row's geometry needs another row. Empty when the
// system store has none.
CDataItem ComponentRow(const CString& table, const CString& no);

}  // namespace orv3
