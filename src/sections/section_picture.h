// The picture of a user-defined section, drawn to scale with its axes and sizes.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "drawing/drawing.h"
#include "framework/cstring.h"
#include "framework/export.h"
#include "framework/language.h"
#include "sections/outline.h"

namespace orv3 {

// Lengths in mm from the lower-left corner of the section's enclosing rectangle.
struct CSectionPicture {
  int m_nStyle = 0;  // 0 to 14
  std::array<double, kSectionSizes> m_arrSize{};
  CPoint m_base;       // axes X, Y
  CPoint m_centroid;   // axes X0, Y0
  CString m_strTitle;  // name of the style
  CString m_strName;   // name of the section
  std::optional<CPoint> m_shearCenter{};
  std::optional<CPoint> m_plastic{};       // where the plastic axes cross
  std::optional<double> m_dStrongAngle{};  // of the strong axis where it stands aslant, radians
  CLanguage m_nLanguage = CLanguage::Chinese;
};

// The section's outline, centroid and base point, both pairs of axes and a dimension for each size
// with its sign and value. A base point farther from the section than half its greater side is
// given in writing only. Sizes that bound no section are listed instead of drawn.
ORV3CAL_API CDrawing SectionPictureDrawing(const CSectionPicture& picture);
ORV3CAL_API std::string SectionPictureSvg(const CSectionPicture& picture);

}  // namespace orv3
