// The slendernesses of bending as steps of an answer, and the limit that they are held to.
#pragma once

#include "members/member_answer.h"

namespace orv3 {

// Effective lengths and radii of gyration, mm: lambda x and lambda y into the results.
void GiveSlendernesses(CMemberAnswer& answer, double lx, double ly, double rx, double ry);

// The limit given, no greater than the code's greatest, which is noted; 0: that of the code.
double TakenLimit(CMemberAnswer& answer, double given, double ofCode, double greatest);

}  // namespace orv3
