// The slendernesses of bending as steps of an answer.
#pragma once

#include "members/member_answer.h"

namespace orv3 {

// Effective lengths and radii of gyration, mm: lambda x and lambda y into the results.
void GiveSlendernesses(CMemberAnswer& answer, double lx, double ly, double rx, double ry);

}  // namespace orv3
