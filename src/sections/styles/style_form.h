// What is known of a style of user-defined sections beyond its sizes, and what the styles' files
// share. Sizes are in the order of the style's columns, mm.
#pragma once

#include <initializer_list>
#include <iterator>
#include <span>

#include "framework/language.h"
#include "sections/dimension_sides.h"
#include "sections/geometry/thin_wall.h"
#include "sections/outline.h"
#include "sections/section_style.h"
#include "sections/steel_jm_data.h"

namespace orv3 {

using CSizes = std::span<const double, kSectionSizes>;

enum class CBound { Below, AtMost };

// One size against a bound that the others set.
struct CSizeBound {
  int m_nSize;
  CBound m_nBound;
  double (*m_pBound)(CSizes);
  CTextLiteral m_bound;  // how the bound comes about
  CTextLiteral m_why;
};

constexpr CTextLiteral Signs(const char* signs) { return {signs, signs}; }

constexpr bool Always(CSizes) { return true; }
constexpr bool Never(CSizes) { return false; }

struct CStyleForm {
  void (*m_pCalculate)(CSteelJMData&);
  COutline (*m_pOutline)(CSizes);
  CDimensions (*m_pDimensions)(CSizes);
  CSectorial (*m_pSectorial)(CSizes) = nullptr;  // null for solids and the tube, which warp little
  bool (*m_pSymmetricX)(CSizes);                 // about the horizontal axis
  bool (*m_pSymmetricY)(CSizes);
  int m_nMayBeZero = kSectionSizes;           // overhangs and arms: the first of the sizes that may
  std::span<const CSizeBound> m_bounds = {};  // in the order in which faults are told
};

// --- Calculation ---------------------------------------------------------------------------------

// One plate: its lower-left corner and its extents.
struct CRect {
  double x, y, width, height;
  double sign = 1;  // -1 for a hole
};

inline double CenterX(const CRect& r) { return r.x + r.width / 2; }
inline double CenterY(const CRect& r) { return r.y + r.height / 2; }
inline double Area(const CRect& r) { return r.width * r.height; }

inline void SetCentroid(CSteelJMData& jm, double xo, double yo) {
  jm.m_dXo = xo;
  jm.m_dYo = yo;
}

// SyL is the moment of the part right of the base axis and SyR that of the part left of it: tables
// and stores hold them so.
void SetFirstMoments(CSteelJMData& jm, std::span<const CRect> rects, double W, double H);

// Computes the record as the general H or box of other sizes, then gives it back its own style and
// sizes. The slots behind its own sizes keep the model's: they are stored with the record.
void CalculateAs(CStyleNumber model, std::initializer_list<double> modelSizes, CSteelJMData& jm);

}  // namespace orv3
