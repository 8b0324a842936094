// The picture of an outline, drawn to scale with its axes and sizes.
#pragma once

#include <optional>
#include <vector>

#include "drawing/drawing.h"
#include "framework/cstring.h"
#include "framework/export.h"
#include "framework/language.h"
#include "sections/outline.h"
#include "sections/section_dimensions.h"
#include "sections/section_kind.h"

namespace orv3 {

// Lengths in mm from the lower-left corner of the section's enclosing rectangle.
struct COutlinePicture {
  COutline m_outline;  // with at least one loop
  std::vector<CSizeDimension> m_arrSize;
  CPoint m_centroid;
  std::optional<CPoint> m_base;  // axes X, Y
  CString m_strTitle;
  CAxisLetters m_axes{L"X0", L"Y0"};
  CAxisLetters m_baseAxes{};
  double m_dStrongAngle = 0;  // of the strong axis, radians
  std::optional<CPoint> m_shearCenter{};
  std::optional<CPoint> m_plastic{};  // where the plastic axes cross
  CLanguage m_nLanguage = CLanguage::Chinese;
};

// A base point or shear center farther from the section than half its greater side is given in
// writing only.
ORV3CAL_API CDrawing OutlinePictureDrawing(const COutlinePicture& picture);

// Lines of text in place of a picture, the first as its title.
ORV3CAL_API CDrawing TextPictureDrawing(const std::vector<CString>& lines);

// "tf = 20"
CString SizeText(const CSizeDimension& size);

}  // namespace orv3
