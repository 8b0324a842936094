// The plates of a section in axial compression that have limits of width: GB 50017-2017, 7.3.1;
// GB 50017-2003, 5.4.1 to 5.4.5.
#pragma once

#include <array>
#include <cstddef>

#include "codes/width_limits.h"
#include "members/member_answer.h"
#include "members/member_section.h"

namespace orv3 {

struct CAxialPlate {
  CMemberCheckKind m_nKind = CMemberCheckKind::Wall;
  CWidthElement m_nElement = CWidthElement::BoxWall;
  double m_dRatio = 0;  // of its width to its thickness, as its limit takes it
  const char* m_szClause2003 = "";
};

// None of solid bars.
struct CAxialPlates {
  std::array<CAxialPlate, 2> m_arrPlate;
  std::size_t m_nPlates = 0;
  const CAxialPlate* begin() const noexcept { return m_arrPlate.data(); }
  const CAxialPlate* end() const noexcept { return m_arrPlate.data() + m_nPlates; }
};

CAxialPlates AxialPlatesOf(const CMemberSection& section, CCodeEdition edition) noexcept;

// 0 without an outstand.
double OutstandRatio(const CMemberFlange& flange) noexcept;
// Of a box: between its walls, of the thinner flange.
double BoxFlangeRatio(const CMemberSection& section) noexcept;

}  // namespace orv3
