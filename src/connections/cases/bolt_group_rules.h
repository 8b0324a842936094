// What refuses a bolt group by either edition of the code.
#pragma once

#include "connections/cases/bolt_case.h"
#include "reports/fault_list.h"

namespace orv3 {

// The diameters of the table of threads, and one that it lacks; `right`: what the bolts may have.
CText ThreadDiameters();
void DiameterFault(int diameter, const CText& right, CFaultList& faults);
// Too many bolts, and a staggered group of one line.
void GroupFaults(const CBoltCase& input, CFaultList& faults);
// A property class that the bolts do not have.
void GradeFaults(const CBoltCase& input, CFaultList& faults);
// Loads that are no numbers, or that nothing resists.
void LoadFaults(const CBoltCase& input, CFaultList& faults);
// Spacings that are not as many as the lines need, and holes, so wide along x and along y (mm),
// that run into one another or into an edge.
void HoleFaults(const CBoltCase& input, double alongX, double alongY, CFaultList& faults);

}  // namespace orv3
