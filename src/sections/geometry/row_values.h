// The geometry of a row, and whether its cells were enough: what the facade's members answer, and
// what pairs and lattice columns ask of their components. Outputs are set to 0 on entry and stand
// as far as they were found when a cell is missing.
#pragma once

#include "framework/array.h"
#include "framework/export.h"
#include "tables/data_item.h"

namespace orv3 {

// Quarter turns counter-clockwise, 0 to 3, of an angle in degrees; 0 for any other angle.
int QuarterTurns(double angle);

bool FindRect(const CDataItem& row, double& width, double& height, double angle);
bool FindCenter(const CDataItem& row, double& x, double& y, double angle);
double AreaOf(const CDataItem& row);
double ThickestPlate(const CDataItem& row);
double ThinnestPlate(const CDataItem& row);

// A component's own row: the one place where a row's geometry needs another row. Of the store in
// front, where there is one and it has the row, else of the system store; empty when neither has.
CDataItem ComponentRow(const CString& table, const CString& no);
// The numbers of the table in whichever of them has it.
ORV3CAL_API CStringArray ComponentNumbers(const CString& table);

}  // namespace orv3
