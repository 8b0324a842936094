// The picture of a lattice column: its limbs to scale where they stand, their numbers, the
// centroidal axes, and the spacings dimensioned.
#pragma once

#include <string>

#include "catalogue/lattice/lattice_limbs.h"
#include "drawing/drawing.h"
#include "framework/cstring.h"
#include "framework/export.h"
#include "framework/language.h"

namespace orv3 {

struct CLatticePicture {
  CString m_strTable;
  CString m_strName;
  CLatticeLimbs m_limbs;  // fetched and placed
  CLanguage m_nLanguage = CLanguage::Chinese;
};

// A limb whose outline cannot be drawn stands as its enclosing rectangle.
ORV3CAL_API CDrawing LatticePictureDrawing(const CLatticePicture& picture);
ORV3CAL_API std::string LatticePictureSvg(const CLatticePicture& picture);

}  // namespace orv3
