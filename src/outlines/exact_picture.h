// The picture of an outline with what its exact properties mark on it.
#pragma once

#include <optional>
#include <vector>

#include "drawing/drawing.h"
#include "framework/cstring.h"
#include "framework/export.h"
#include "framework/language.h"
#include "outlines/section_solver.h"

namespace orv3 {

// In the frame of the properties: the lower left corner of the loops' rectangle is the origin.
struct CExactPicture {
  std::vector<CPath> m_arrLoop;
  CExactProperties m_exact;
  CString m_strTitle;
  // On the boundary, then inside; none: without stresses.
  std::vector<CBoundaryStress> m_arrStress;
  CLanguage m_nLanguage = CLanguage::English;
};

// To scale: the steel, the centroid with the axes x and y, the principal axes 1 and 2 where they
// stand aslant, the shear centre S and the plastic neutral axes, each with its figures in writing.
// With stresses the boundary is coloured by the equivalent stress, in parts of the greatest.
ORV3CAL_API CDrawing ExactPictureDrawing(const CExactPicture& picture);

// The greatest in magnitude of sigma, tau and mises over the points, those at sharp corners left
// out; null without any that is a number.
struct CGreatestStress {
  const CBoundaryStress* m_pSigma = nullptr;
  const CBoundaryStress* m_pTau = nullptr;
  const CBoundaryStress* m_pMises = nullptr;
  bool m_bSharp = false;   // points at sharp re-entrant corners have been left out
  bool m_bCoarse = false;  // points at concave arcs have too low a tau: the greatest may be above
};
// Of one of them, how far it may be off as a part of itself.
ORV3CAL_API double StressError(const CBoundaryStress& point, double CBoundaryStress::*figure);

ORV3CAL_API CGreatestStress GreatestStress(const std::vector<CBoundaryStress>& points);

}  // namespace orv3
