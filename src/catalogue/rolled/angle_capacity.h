// What the capacity columns N and P of 热轧等边角钢 hold, and how far they may be used.
#pragma once

#include <vector>

#include "framework/export.h"
#include "framework/language.h"
#include "tables/data_item.h"

namespace orv3 {

// One column "P(1.5m)(kN)" of a row.
struct CAngleCapacity {
  int m_nColumn;
  double m_dLength;  // of the strut, m
  double m_dLambda;  // its slenderness L/iyo
};
// In the order of the columns; none for a row without them or without iyo.
ORV3CAL_API std::vector<CAngleCapacity> AngleCapacities(const CDataItem& row);

// Whether a table's columns are such.
ORV3CAL_API bool HasAngleCapacities(const CString& tableName);

// GB 50017-2003, 5.3.8: the greatest slenderness of compression members, that of bracing, and where
// the tables of phi end (Appendix C).
inline constexpr double kStrutSlenderness = 150, kBracingSlenderness = 200, kPhiSlenderness = 250;

// What the figures are computed with.
ORV3CAL_API CTextLiteral AngleCapacityBasis() noexcept;

}  // namespace orv3
