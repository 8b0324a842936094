// Largest slenderness of members: GB 50017-2017, 7.4.6 and 7.4.7; GB 50017-2003, 5.3.8 and 5.3.9.
#pragma once

#include "codes/answer.h"

namespace orv3 {

enum class CMemberRole {
  Compression,  // columns and truss members
  CompressionBracing,
  TensionStatic,   // under static load
  TensionDynamic,  // heavy cranes, direct dynamic load
  TensionBracing,
};

ORV3CAL_API CCodeAnswer<double> SlendernessLimit(CCodeEdition edition, CMemberRole role);

}  // namespace orv3
