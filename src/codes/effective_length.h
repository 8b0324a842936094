// Effective-length factors of frame and stepped columns: GB 50017-2017, Appendix E; GB 50017-2003,
// Appendix D. The tables and the equations under them are the same.
#pragma once

#include "catalogue/code_tables/stepped_column_equation.h"
#include "codes/answer.h"

namespace orv3 {

// mu by the ratios of beam to column stiffness at both ends, not below 0. Infinity for sway with
// both ratios below 0.05.
ORV3CAL_API CCodeAnswer<double> FrameColumnMu(CCodeEdition edition, bool bSway, double k1,
                                              double k2);

// mu2 of the lower part of a single-stepped column; beyond the table by the equation under it.
// eta1 and k1 above 0 and up to 1000.
ORV3CAL_API CCodeAnswer<double> SingleSteppedMu2(CCodeEdition edition, CSteppedTop top, double eta1,
                                                 double k1);

// mu3 of the lowest part of a double-stepped column; eta1 0.2 to 1.8, eta2 0.2 to 1.2, K1 0.05 to
// 0.3 and K2 0.2 to 1.2.
ORV3CAL_API CCodeAnswer<double> DoubleSteppedMu3(CCodeEdition edition, CSteppedTop top, double eta1,
                                                 double eta2, double k1, double k2);

}  // namespace orv3
